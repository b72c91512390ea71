#pragma once

#include <string>

#include "ferrowind/adapters/odbc/handle.h"
#include "ferrowind/platform/values/failure.h"

/// The one place where the errors of drivers and of the driver manager become failures.
namespace ferrowind::odbc {

/// What a driver or the driver manager says of the last function that failed.
struct Diagnostic {
  /// Five digits and capital letters; "HY000", a general error, where nothing or nonsense is said.
  std::string sqlstate;
  /// On one line.
  std::string text;
};

[[nodiscard]] Diagnostic DiagnosticOf(SQLSMALLINT kind, SQLHANDLE handle);
template <SQLSMALLINT kKind>
[[nodiscard]] Diagnostic DiagnosticOf(const Handle<kKind>& handle) {
  return DiagnosticOf(kKind, handle.Get());
}

/// That no connection to `database`, which begins the sentence, was made.
[[nodiscard]] platform::Failure ConnectFailure(const std::string& database, const Diagnostic& diagnostic);

/// That a statement on `database` failed.
[[nodiscard]] platform::Failure StatementFailure(const std::string& database, const Diagnostic& diagnostic);

/// Whether that may be said of a connection that is lost: no statement on it will do anything any more.
[[nodiscard]] bool IsOfLostConnection(const platform::Failure& failure);

}  // namespace ferrowind::odbc
