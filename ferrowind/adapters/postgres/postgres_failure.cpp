#include "ferrowind/adapters/postgres/postgres_failure.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

namespace ferrowind::postgres {
namespace {

using platform::Failure;

constexpr std::string_view kCannotConnect = "08001";
constexpr std::string_view kLinkLost = "08006";

std::int32_t NumberOf(std::string_view sqlstate) {
  std::int32_t number = 0;
  for (const char c : sqlstate) number = number * 36 + (c <= '9' ? c - '0' : c - 'A' + 10);
  return number;
}

std::string PlainWords(std::string_view sqlstate, const std::string& database) {
  struct Meaning {
    std::string_view state;
    const char* words;
  };
  // A longer state stands before the class that it belongs to.
  static constexpr Meaning kMeanings[] = {
      {"08", " was disconnected"},
      {"22021", " does not take a text that is not valid UTF-8"},
      {"22", " cannot work with a value"},
      {"23", " refuses a wrong row"},
      {"25006", " is read-only"},
      {"40", " was busy with another call that got in the way; nothing was done"},
      {"42501", " does not permit this"},
      {"42P01", " is no calendar database, or lacks a part of one"},
      {"53100", " is on a server whose disk is full"},
      {"53300", " is on a server that has no connection free"},
      {"53", " is on a server that is short of something"},
      {"54", " was given a value that is too large"},
      {"55P03", " is locked by another program"},
      {"57014", " did not finish: it was told to stop"},
      {"57P", " is on a server that is being stopped or started"},
  };
  for (const auto& meaning : kMeanings) {
    if (sqlstate.starts_with(meaning.state)) return database + meaning.words;
  }
  return database + " reports an error";
}

/// libpq's texts have several lines, and end with a line break.
std::string OnOneLine(const char* text) {
  constexpr std::string_view kBlanks = " \t\n";
  const std::string_view lines = text != nullptr ? text : "";
  std::string line;
  for (std::size_t at = lines.find_first_not_of(kBlanks); at != std::string_view::npos;) {
    const std::size_t end = std::min(lines.find('\n', at), lines.size());
    line += (line.empty() ? "" : " ") + std::string(lines.substr(at, end - at));
    at = lines.find_first_not_of(kBlanks, end);
  }
  while (!line.empty() && line.back() == ' ') line.pop_back();
  return line;
}

std::string TextOrEmpty(const char* text) { return text != nullptr ? text : ""; }

}  // namespace

Failure FailureOfState(std::string_view sqlstate, const std::string& plain_words,
                       const std::string& native_text) {
  return {NumberOf(sqlstate),
          plain_words + " (PostgreSQL " + std::string(sqlstate) + ": " + native_text + ")"};
}

Failure ConnectFailure(const PGconn* connection) {
  if (connection == nullptr) return FailureOfState("53200", "There is no memory for a connection", "libpq");
  return FailureOfState(kCannotConnect, NameOfDatabase(connection) + " cannot be connected to",
                        OnOneLine(PQerrorMessage(connection)));
}

Failure ResultFailure(const PGconn* connection, const PGresult* result) {
  const char* const sqlstate = result != nullptr ? PQresultErrorField(result, PG_DIAG_SQLSTATE) : nullptr;
  if (sqlstate == nullptr) return LinkFailure(connection);
  return FailureOfState(sqlstate, PlainWords(sqlstate, NameOfDatabase(connection)),
                        TextOrEmpty(PQresultErrorField(result, PG_DIAG_MESSAGE_PRIMARY)));
}

Failure LinkFailure(const PGconn* connection) {
  return FailureOfState(kLinkLost, PlainWords(kLinkLost, NameOfDatabase(connection)),
                        OnOneLine(PQerrorMessage(connection)));
}

Failure Introduced(const std::string& introduction, const Failure& failure) {
  return {failure.Number(), introduction + failure.Description()};
}

std::string NameOfDatabase(const PGconn* connection) {
  const std::string name = TextOrEmpty(PQdb(connection));
  const std::string host = TextOrEmpty(PQhost(connection));
  if (host.empty()) return "The database " + name;
  return "The database " + name + " at " + host + ":" + TextOrEmpty(PQport(connection));
}

}  // namespace ferrowind::postgres
