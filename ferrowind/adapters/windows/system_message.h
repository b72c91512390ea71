#pragma once

#include <cstdint>
#include <string>

namespace ferrowind::windows {

/// What Windows says of one of its errors (`GetLastError`), in UTF-8, without the full stop and line break
/// behind it.
[[nodiscard]] std::string SystemMessage(std::uint32_t error);

}  // namespace ferrowind::windows
