#pragma once

#include <string_view>
#include <vector>

/// The SQL that makes an empty database a calendar database, but for roles, rows and rights.
namespace ferrowind::postgres {

/// What procedures call, each behind what it uses.
[[nodiscard]] std::vector<std::string_view> DeliveredFunctions();

struct DeliveredProcedure {
  std::string_view name;
  std::string_view script;
};
[[nodiscard]] std::vector<DeliveredProcedure> DeliveredProcedures();

/// The scripts that create the schema `ferrowind` and everything in it, in the order in which they run.
[[nodiscard]] std::vector<std::string_view> DeliveredScripts();

}  // namespace ferrowind::postgres
