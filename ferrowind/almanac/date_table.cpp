#include "ferrowind/almanac/date_table.h"

#include <algorithm>
#include <utility>

#include "ferrowind/almanac/date_words.h"
#include "ferrowind/almanac/text_error.h"
#include "ferrowind/almanac/text_lines.h"

namespace ferrowind::almanac {
namespace {

constexpr std::string_view kYears = "years";

bool IsSmallLetter(char c) { return c >= 'a' && c <= 'z'; }
bool IsDigit(char c) { return c >= '0' && c <= '9'; }

void ReadYears(const TextLines& lines, DateTable& table) {
  const std::string_view years = WithoutOuterBlanks(lines.Line().substr(kYears.size()));
  const std::string_view first = years.substr(0, years.find_first_of(" \t"));
  const std::string_view last = WithoutOuterBlanks(years.substr(first.size()));
  table.first_year = YearIn(first).value_or(0);
  table.last_year = YearIn(last).value_or(0);
  if (table.first_year == 0)
    throw TextError(lines.Number(), lines.PlaceOf(first), AYear().InEnglish() + " is expected");
  if (table.last_year < table.first_year) {
    throw TextError(lines.Number(), lines.PlaceOf(last),
                    "a year " + std::to_string(table.first_year) + " to 2199 is expected");
  }
}

void ReadDate(const TextLines& lines, DateTable& table) {
  const auto refuse = [&lines](const std::string& reason) -> TextError {
    return {lines.Number(), lines.PlaceOf(lines.Line()), reason};
  };
  const auto date = platform::Date::FromIso(lines.Line());
  if (!date) throw refuse("a date YYYY-MM-DD is expected");
  if (!table.Reaches(date->Year())) {
    throw refuse("the date is not within the years " + std::to_string(table.first_year) + " to " +
                 std::to_string(table.last_year));
  }
  if (!table.dates.empty() && *date <= table.dates.back()) {
    throw refuse("a date after " + table.dates.back().ToIso() + " is expected");
  }
  table.dates.push_back(*date);
}

}  // namespace

bool IsTableName(std::string_view name) {
  bool begins_word = true;
  for (const char c : name) {
    if (c == '-' && !begins_word) {
      begins_word = true;
    } else if (IsSmallLetter(c) || (IsDigit(c) && !begins_word)) {
      begins_word = false;
    } else {
      return false;
    }
  }
  return !begins_word;
}

DateTable ReadDateTable(std::string name, std::string_view text) {
  DateTable table;
  table.name = std::move(name);
  TextLines lines(text);
  const std::string expectation = "the line \"years FIRST LAST\" is expected";
  if (!lines.Next()) throw TextError(lines.Number() + 1, 1, expectation);
  const std::string_view line = lines.Line();
  if (!line.starts_with(kYears) || line.substr(kYears.size()).find_first_of(" \t") != 0) {
    throw TextError(lines.Number(), lines.PlaceOf(line), expectation);
  }
  ReadYears(lines, table);
  while (lines.Next()) ReadDate(lines, table);
  return table;
}

void DateTables::Add(DateTable table) {
  const auto place =
      std::lower_bound(tables_.begin(), tables_.end(), table.name,
                       [](const DateTable& other, const std::string& name) { return other.name < name; });
  if (place != tables_.end() && place->name == table.name) {
    *place = std::move(table);
  } else {
    tables_.insert(place, std::move(table));
  }
}

const DateTable* DateTables::Find(std::string_view name) const {
  const auto place =
      std::lower_bound(tables_.begin(), tables_.end(), name,
                       [](const DateTable& other, std::string_view wanted) { return other.name < wanted; });
  return place != tables_.end() && place->name == name ? &*place : nullptr;
}

}  // namespace ferrowind::almanac
