#include "ferrowind/adapters/postgres/postgres_failure.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <utility>

#include "ferrowind/platform/values/utf8_validation.h"

namespace ferrowind::postgres {
namespace {

using platform::Failure;

constexpr std::string_view kCannotConnect = "08001";
constexpr std::string_view kLinkLost = "08006";
constexpr std::string_view kNotConfirmed = "01000";
constexpr std::string_view kStrangeAnswer = "08P01";
constexpr std::string_view kTooLargeAnswer = "54000";

/// Whatever answers in the place of a server may write anything there.
bool IsSqlState(std::string_view text) {
  return text.size() == 5 && std::all_of(text.begin(), text.end(), [](char c) {
           return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z');
         });
}

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
      {"08P01", " gave an answer that no PostgreSQL server gives"},
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

/// Of a text that may be of any length, and of any bytes, when no server wrote it.
std::string Readable(std::string text) {
  constexpr std::size_t kMostBytes = 2000;
  if (text.size() > kMostBytes) text.replace(kMostBytes, std::string::npos, "...");
  if (platform::IsWellFormedUtf8(text)) return text;
  std::replace_if(
      text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) > 0x7F; }, '?');
  return text;
}

std::string TextOrEmpty(const char* text) { return text != nullptr ? text : ""; }

}  // namespace

Failure FailureOfState(std::string_view sqlstate, const std::string& plain_words,
                       const std::string& native_text) {
  return {NumberOf(sqlstate),
          plain_words + " (PostgreSQL " + std::string(sqlstate) + ": " + native_text + ")"};
}

bool IsOfState(const Failure& failure, std::string_view sqlstate) {
  return failure.Number() == NumberOf(sqlstate);
}

Failure NoMemoryForConnection() {
  return FailureOfState("53200", "There is no memory for a connection", "libpq");
}

Failure ConnectFailure(const std::string& database, const std::string& reasons) {
  return FailureOfState(kCannotConnect, database + " cannot be connected to", reasons);
}

Failure OptionsRefused(const std::string& database, const std::string& reasons) {
  return FailureOfState(
      kCannotConnect,
      database +
          " cannot be connected to: the pool in front of it passes on no \"options\"; leave "
          "them out of the connection string, or write \"ignore_startup_parameters = "
          "options\" into the pool's settings",
      reasons);
}

Failure SilentServer(const std::string& database, std::int64_t seconds) {
  return FailureOfState(kCannotConnect,
                        database + " does not answer; calls fail at once, and after " +
                            std::to_string(seconds) + (seconds == 1 ? " second" : " seconds") +
                            " one tries again",
                        "the server is silent");
}

NoAnswer::NoAnswer(std::string_view sqlstate, const std::string& database, std::chrono::milliseconds time)
    : Failure(FailureOfState(sqlstate, database + " does not answer",
                             "no whole answer came within " + std::to_string(time.count()) + " ms")) {}

Failure Unconfirmed(const PGconn* connection, const std::string& notice) {
  return FailureOfState(
      kNotConfirmed,
      NameOfDatabase(connection) +
          " has it stored on this server, not confirmed by its standby; do not do it again, "
          "but look for it should the standby take over",
      Readable(notice));
}

bool IsUnconfirmed(const Failure& failure) { return IsOfState(failure, kNotConfirmed); }

Failure ResultFailure(const PGconn* connection, const PGresult* result) {
  const char* const sqlstate = result != nullptr ? PQresultErrorField(result, PG_DIAG_SQLSTATE) : nullptr;
  if (sqlstate == nullptr) {
    const bool is_answer = result != nullptr && PQresultStatus(result) != PGRES_FATAL_ERROR;
    return is_answer ? StrangeAnswer(connection, PQresStatus(PQresultStatus(result)))
                     : LinkFailure(connection);
  }
  if (!IsSqlState(sqlstate)) return StrangeAnswer(connection, "an error without a number");
  std::string text = OnOneLine(PQresultErrorField(result, PG_DIAG_MESSAGE_PRIMARY));
  // Which key is missing, or there twice.
  const std::string_view state(sqlstate);
  const std::string detail = OnOneLine(PQresultErrorField(result, PG_DIAG_MESSAGE_DETAIL));
  if ((state == "23503" || state == "23505") && !detail.empty()) text += ": " + detail;
  return FailureOfState(sqlstate, PlainWords(sqlstate, NameOfDatabase(connection)), text);
}

Failure LinkFailure(const PGconn* connection) {
  return FailureOfState(kLinkLost, PlainWords(kLinkLost, NameOfDatabase(connection)),
                        OnOneLine(PQerrorMessage(connection)));
}

Failure StrangeAnswer(const PGconn* connection, const std::string& answer) {
  return FailureOfState(kStrangeAnswer, PlainWords(kStrangeAnswer, NameOfDatabase(connection)), answer);
}

Failure TooLargeAnswer(const PGconn* connection) {
  return FailureOfState(
      kTooLargeAnswer,
      NameOfDatabase(connection) + " gives more than 512 MB at once, which no calendar database does",
      "the rest was not read");
}

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
  return Readable(std::move(line));
}

Failure Introduced(const std::string& introduction, const Failure& failure) {
  return {failure.Number(), introduction + failure.Description()};
}

std::string NameOfDatabase(const PGconn* connection) {
  const std::string name = TextOrEmpty(PQdb(connection));
  const std::string server = NameOfServer(connection);
  return "The database " + name + (server.empty() ? "" : " at " + server);
}

std::string NameOfServer(const PGconn* connection) {
  const std::string host = TextOrEmpty(PQhost(connection));
  return host.empty() ? host : host + ":" + TextOrEmpty(PQport(connection));
}

}  // namespace ferrowind::postgres
