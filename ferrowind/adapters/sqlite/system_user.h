#pragma once

#include <string>

namespace ferrowind::sqlite {

/// The name of the operating system's user who started this program, or that user's number when it has no
/// name.
[[nodiscard]] const std::string& SystemUserName();

}  // namespace ferrowind::sqlite
