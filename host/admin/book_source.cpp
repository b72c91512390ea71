#include "host/admin/book_source.h"

#include <sstream>
#include <string_view>
#include <utility>

#include "ferrowind/almanac/text_lines.h"

#include "host/admin/given_text.h"

namespace ferrowind::host {
namespace {

constexpr std::string_view kState = "# state ";

/// What the first line that begins as a `StateLine` does says.
std::optional<std::string> StateIn(const std::string& text) {
  std::istringstream lines(text);
  for (std::string line; std::getline(lines, line);) {
    const std::string_view whole = almanac::WithoutOuterBlanks(line);
    if (whole.starts_with(kState)) {
      return std::string(almanac::WithoutOuterBlanks(whole.substr(kState.size())));
    }
  }
  return std::nullopt;
}

}  // namespace

BookSource ReadBookFrom(const std::string& file, std::istream& in) {
  GivenText given = ReadGivenText(file, in);
  return {std::move(given.name), almanac::ReadWholeBook(given.text), StateIn(given.text)};
}

std::string StateLine(const std::string& fingerprint) { return std::string(kState) + fingerprint + '\n'; }

}  // namespace ferrowind::host
