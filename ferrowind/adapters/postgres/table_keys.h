#pragma once

#include <string>
#include <vector>

#include "ferrowind/adapters/postgres/server_connection.h"

namespace ferrowind::postgres {

/// The indexes of a table, with the constraints that are made of them, and the references of the table and to
/// it, taken away so that many rows go into it quickly: to make them of all rows at once takes a small part
/// of what it takes to heed them row by row. In the transaction that is open on the connection: undoing it
/// brings them back, too.
class SetAsideKeys {
 public:
  /// Takes them away from `table` of the schema `ferrowind`. `connection` must outlive this object.
  SetAsideKeys(ServerConnection& connection, const std::string& table);

  /// Makes them as they were, by the definitions that the server had of them. Rows that they forbid are a
  /// failure that names the key.
  void PutBack();

 private:
  ServerConnection& connection_;
  std::vector<std::string> definitions_;
};

}  // namespace ferrowind::postgres
