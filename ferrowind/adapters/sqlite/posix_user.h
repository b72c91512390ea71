#pragma once

#include <string>

#include <sys/types.h>

namespace ferrowind::sqlite {

/// The name of a user of the operating system, or the user's number when it has no name.
[[nodiscard]] std::string UserName(uid_t user);

}  // namespace ferrowind::sqlite
