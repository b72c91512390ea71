#pragma once

#include <string>

namespace ferrowind::sqlite {

/// The name of the user who started this program.
[[nodiscard]] const std::string& SystemUserName();

}  // namespace ferrowind::sqlite
