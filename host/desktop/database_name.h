#pragma once

#include <string>

#include "ferrowind/platform/services/words.h"

namespace ferrowind::host {

/// What people call the database of a connection string: the name of its file, or its name and that of its
/// server ("calendars on db.bank.example"). Never holds a user or a password. A connection string that is
/// none is named as it is, without passwords.
[[nodiscard]] std::string DatabaseName(const std::string& connection_string,
                                       const platform::Words* words = nullptr);

}  // namespace ferrowind::host
