// Reads the input as the text of a book and of a date table: whatever it is, it is either refused with its
// line named, or it is written and read again as the same, its faults are found, and years are planned by it.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "ferrowind/almanac/book_faults.h"
#include "ferrowind/almanac/book_text.h"
#include "ferrowind/almanac/date_table.h"
#include "ferrowind/almanac/planner.h"
#include "ferrowind/almanac/text_error.h"
#include "ferrowind/platform/values/utf8_validation.h"

#include "fuzz/expectation.h"

namespace {

using ferrowind::almanac::DateTable;
using ferrowind::almanac::DateTables;
using ferrowind::almanac::PlannedDay;
using ferrowind::almanac::Planner;
using ferrowind::almanac::RuleBook;
using ferrowind::almanac::TextError;
using ferrowind::almanac::YearPlan;
using ferrowind::fuzz::Expect;
using ferrowind::platform::IsWellFormedUtf8;

void ExpectPlaceWithinText(const TextError& error, std::string_view text) {
  Expect(error.Line() >= 1 && error.Line() <= text.size() + 1, "a refusal names a line of the text");
  Expect(error.Place() >= 1 && error.Place() <= text.size() + 1, "a refusal names a place in its line");
  Expect(IsWellFormedUtf8(error.Description()), "a refusal is UTF-8");
}

std::optional<RuleBook> TryBook(std::string_view text) {
  try {
    return ferrowind::almanac::ReadBook(text);
  } catch (const TextError& error) {
    ExpectPlaceWithinText(error, text);
    return std::nullopt;
  }
}

void TryTable(std::string_view text) {
  try {
    const DateTable table = ferrowind::almanac::ReadDateTable("a", text);
    for (std::size_t i = 0; i < table.dates.size(); ++i) {
      Expect(table.Reaches(table.dates[i].Year()), "a date is within the table's years");
      Expect(i == 0 || table.dates[i - 1] < table.dates[i], "the dates of a table ascend");
    }
  } catch (const TextError& error) {
    ExpectPlaceWithinText(error, text);
  }
}

void ExpectOrderlyPlan(const YearPlan& plan) {
  int last = 0;
  for (const PlannedDay& day : plan.Days()) {
    Expect(day.day_of_year > last, "the days of a plan ascend");
    last = day.day_of_year;
    Expect(day.rule < plan.Book().rules.size(), "a planned day has a rule of the book");
    Expect(!plan.NameOf(day).empty(), "a planned day has a name");
    Expect(plan.DateOf(day).Year() == plan.Year(), "a planned day is within the year");
    (void)plan.CommentOf(day);
  }
  for (const int day : {1, 2, 60, 120, 359, 360, 365})
    Expect(!plan.WhyOf(day).InEnglish().empty(), "a day has a reason");
  Expect(plan.Incomplete().size() == plan.Unknown().size(), "each rule without dates is told");
}

/// Long books are the business of tests that take their time.
constexpr std::size_t kMostRules = 60;

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view input(reinterpret_cast<const char*>(data), size);
  TryTable(input);
  const auto book = TryBook(input);
  if (!book || book->rules.size() > kMostRules) return 0;
  const auto again = TryBook(ferrowind::almanac::WriteBook(*book));
  Expect(again && *again == *book, "a book that is written is read as the same");
  DateTables tables;
  tables.Add({"a", 2025, 2027, {{2025, 1, 1}, {2025, 12, 31}, {2026, 6, 1}}});
  (void)FaultsOf(*book, tables);
  Expect(ferrowind::almanac::FaultsBetween({{"A", *book}, {"B", *book}}).empty(),
         "a book has no faults between it and itself");
  const Planner planner(*book, tables);
  for (const int year : {1900, 2026, 2199}) ExpectOrderlyPlan(planner.Plan(year));
  return 0;
}
