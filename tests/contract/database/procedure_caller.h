#pragma once

#include <map>
#include <memory>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include "ferrowind/platform/database/engine.h"

#include "tests/contract/database/database_under_test.h"

namespace ferrowind::contract {

/// The values of a call under the names of their parameters, without the leading sign.
using Arguments = std::vector<std::pair<std::string, platform::Value>>;
using Row = std::vector<platform::Value>;

/// Calls a procedure. What is not given stays empty; a name that is no parameter fails the test by
/// std::logic_error.
[[nodiscard]] platform::CallOutcome CallOver(platform::Connection& connection, const std::string& procedure,
                                             const Arguments& arguments = {});

/// Calls procedures of one database.
class ProcedureCaller {
 public:
  /// `database` must outlive the caller. Each call is on a connection of its own, unless a test of very many
  /// calls wants one for `calls_per_connection` of them: a new one costs a server more than a call.
  explicit ProcedureCaller(DatabaseUnderTest& database, int calls_per_connection = 1)
      : database_(database), calls_per_connection_(calls_per_connection) {}

  platform::CallOutcome Call(const std::string& procedure, const Arguments& arguments = {});
  /// The return value alone.
  int Return(const std::string& procedure, const Arguments& arguments = {}) {
    return Call(procedure, arguments).return_value;
  }

 private:
  DatabaseUnderTest& database_;
  int calls_per_connection_;
  struct OpenConnection {
    std::unique_ptr<platform::Connection> connection;
    int calls_left = 0;
  };
  /// By connection string.
  std::map<std::string, OpenConnection> connections_;
};

[[nodiscard]] std::vector<std::string> FieldsOf(const platform::RecordSet& record_set);
[[nodiscard]] std::vector<Row> RowsOf(const platform::RecordSet& record_set);
/// The field `field` of every row.
[[nodiscard]] Row ColumnOf(const platform::RecordSet& record_set, const std::string& field);
/// The description of the failure that `body` throws; empty when it throws none.
[[nodiscard]] std::string FailureTextOf(const std::function<void()>& body);

}  // namespace ferrowind::contract

namespace ferrowind::platform {

/// Shows a value in a failed assertion.
void PrintTo(const Value& value, std::ostream* stream);

}  // namespace ferrowind::platform
