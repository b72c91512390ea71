#include "ferrowind/adapters/odbc/diagnostics.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <span>

#include "ferrowind/adapters/odbc/wide_text.h"
#include "ferrowind/adapters/postgres_calls/sql_state.h"

namespace ferrowind::odbc {
namespace {

using platform::Failure;

constexpr const char* kReporter = "ODBC";
constexpr std::size_t kSizeOfState = 5;

Failure FailureOf(const std::string& plain_words, const Diagnostic& diagnostic) {
  return postgres::FailureOfState(diagnostic.sqlstate, plain_words, diagnostic.text, kReporter);
}

}  // namespace

Diagnostic DiagnosticOf(SQLSMALLINT kind, SQLHANDLE handle) {
  std::array<SQLWCHAR, kSizeOfState + 1> state{};
  std::array<SQLWCHAR, 2048> text{};
  SQLINTEGER native = 0;
  SQLSMALLINT length = 0;
  const SQLRETURN answer = SQLGetDiagRecW(kind, handle, 1, state.data(), &native, text.data(),
                                          static_cast<SQLSMALLINT>(text.size()), &length);
  if (!SQL_SUCCEEDED(answer)) return {"HY000", "no reason is given"};
  // A text that did not fit is told its whole length.
  const auto size =
      std::clamp<std::size_t>(static_cast<std::size_t>(std::max<SQLSMALLINT>(length, 0)), 0, text.size() - 1);
  const auto sqlstate = FromWide(std::span(state).first(kSizeOfState)).value_or("");
  const auto message = FromWide(std::span(text).first(size)).value_or("");
  return {postgres::IsSqlState(sqlstate) ? sqlstate : "HY000", postgres::OnOneLine(message.c_str())};
}

Failure ConnectFailure(const std::string& database, const Diagnostic& diagnostic) {
  const std::string& state = diagnostic.sqlstate;
  // A driver manager warns that it cannot load the driver, and then fails.
  if (state.starts_with("IM") || state.starts_with("01")) {
    return FailureOf(database +
                         " cannot be connected to: the driver or the data source that the connection string "
                         "names is not installed here, or cannot be used",
                     {state.starts_with("01") ? "IM003" : state, diagnostic.text});
  }
  return FailureOf(database + " cannot be connected to", {"08001", diagnostic.text});
}

Failure StatementFailure(const std::string& database, const Diagnostic& diagnostic) {
  return FailureOf(postgres::PlainWords(diagnostic.sqlstate, database), diagnostic);
}

bool IsOfLostConnection(const Failure& failure) {
  constexpr std::array<const char*, 6> kStates = {"08003", "08006", "08007", "08S01", "57P01", "57P02"};
  return std::any_of(kStates.begin(), kStates.end(),
                     [&](const char* state) { return postgres::IsOfState(failure, state); });
}

}  // namespace ferrowind::odbc
