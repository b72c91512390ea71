#pragma once

#include <string>

namespace ferrowind::contract {

/// The calendar database that all of a program's are copies of.
[[nodiscard]] const std::string& ModelDatabase();

/// Whether the check of databases finds nothing in `database`; true where the machine has no such check.
[[nodiscard]] bool IsSoundDatabase(const std::string& database);

}  // namespace ferrowind::contract
