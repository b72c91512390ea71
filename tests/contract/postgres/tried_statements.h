#pragma once

#include <string>
#include <vector>

namespace ferrowind::contract {

/// A statement that takes a right on one object of a server.
struct TriedStatement {
  /// What it does there: "read", "write", "call", "use", "create in", "be", "set", or "change", which is for
  /// owners.
  std::string use;
  /// Such as "table ferrowind.cldday", "procedure ferrowind.cldundo", "user setting work_mem".
  std::string object;
  std::string sql;
};

/// Statements for every table, view, sequence, routine, type, schema, role and setting that the server and
/// the database have, and for whatever else is in the schema ferrowind or hangs on its tables, made from the
/// catalogues.
[[nodiscard]] std::vector<TriedStatement> StatementsToTry(const std::string& database);

}  // namespace ferrowind::contract
