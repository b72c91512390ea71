#include "ferrowind/adapters/postgres_calls/sql_state.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <utility>

#include "ferrowind/platform/values/utf8_validation.h"

namespace ferrowind::postgres {
namespace {

using platform::Failure;

std::int32_t NumberOf(std::string_view sqlstate) {
  std::int32_t number = 0;
  for (const char c : sqlstate) number = number * 36 + (c <= '9' ? c - '0' : c - 'A' + 10);
  return number;
}

}  // namespace

bool IsSqlState(std::string_view text) {
  return text.size() == 5 && std::all_of(text.begin(), text.end(), [](char c) {
           return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z');
         });
}

Failure FailureOfState(std::string_view sqlstate, const std::string& plain_words,
                       const std::string& native_text, std::string_view reporter) {
  return {NumberOf(sqlstate), plain_words + " (" + std::string(reporter) + " " + std::string(sqlstate) +
                                  ": " + native_text + ")"};
}

bool IsOfState(const Failure& failure, std::string_view sqlstate) {
  return failure.Number() == NumberOf(sqlstate);
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

Failure Introduced(const std::string& introduction, const Failure& failure) {
  return {failure.Number(), introduction + failure.Description()};
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

std::string Readable(std::string text) {
  constexpr std::size_t kMostBytes = 2000;
  if (text.size() > kMostBytes) text.replace(kMostBytes, std::string::npos, "...");
  if (platform::IsWellFormedUtf8(text)) return text;
  std::replace_if(
      text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) > 0x7F; }, '?');
  return text;
}

}  // namespace ferrowind::postgres
