#pragma once

namespace ferrowind::automation {

/// What people see where classes are listed.
inline constexpr const wchar_t* kClassTitle = L"Ferrowind holiday calendars";

}  // namespace ferrowind::automation
