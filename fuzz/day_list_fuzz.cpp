// Reads the input as a list of days: as a table, as JSON and as text. Whatever it is, it is either refused
// with lines of it named, or its days are written and read again as the same, sorted by year, and become a
// plan that closes what the list closes.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "ferrowind/almanac/planner.h"
#include "ferrowind/exchange/csv_list.h"
#include "ferrowind/exchange/json_list.h"
#include "ferrowind/exchange/list_book.h"
#include "ferrowind/exchange/list_difference.h"
#include "ferrowind/exchange/list_faults.h"
#include "ferrowind/exchange/list_format.h"
#include "ferrowind/exchange/list_text.h"
#include "ferrowind/exchange/text_list.h"
#include "ferrowind/platform/values/utf8_validation.h"

#include "fuzz/expectation.h"

namespace {

using ferrowind::almanac::CalendarContent;
using ferrowind::almanac::RuleDirectory;
using ferrowind::almanac::RuleKind;
using ferrowind::exchange::DayList;
using ferrowind::exchange::ListedDay;
using ferrowind::exchange::ListedKind;
using ferrowind::exchange::ListError;
using ferrowind::exchange::YearList;
using ferrowind::fuzz::Expect;
using ferrowind::platform::IsWellFormedUtf8;

using Reader = std::function<DayList(std::string_view text)>;

std::optional<DayList> Try(const Reader& read, std::string_view text) {
  try {
    return read(text);
  } catch (const ListError& error) {
    const auto lines = static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n')) +
                       static_cast<std::size_t>(std::count(text.begin(), text.end(), '\r')) + 1;
    Expect(!error.Faults().empty(), "a refusal tells a fault");
    for (const auto& fault : error.Faults())
      Expect(fault.line <= lines, "a refusal names a line of the text");
    Expect(IsWellFormedUtf8(error.Description()), "a refusal is UTF-8");
    return std::nullopt;
  }
}

/// Without what another list cannot keep.
DayList WithoutLines(DayList list) {
  for (ListedDay& day : list.days) day.line = 0;
  return list;
}

void ExpectTheSame(const DayList& list, const Reader& read, const std::string& written) {
  const auto again = Try(read, written);
  Expect(again && WithoutLines(*again).days == WithoutLines(list).days,
         "a list that is written is read as the same");
}

/// A calendar of that year with a few marked days.
CalendarContent Calendar(int year) {
  return {
      year,
      {{1, RuleKind::kPoint, 3, {}}, {2, RuleKind::kWeekday, 2, {}}, {9, RuleKind::kWorkingDay, 1, "Open"}}};
}

const RuleDirectory& Rules() {
  static const RuleDirectory kRules({{1, "Working day by exception", RuleKind::kWorkingDay},
                                     {2, "Saturday", RuleKind::kWeekday},
                                     {3, "New Year", RuleKind::kPoint}});
  return kRules;
}

void ExpectPlan(const YearList& list, bool takes_names) {
  const CalendarContent calendar = Calendar(list.year);
  const auto listed = BookOf(list, "a", {calendar, Rules(), nullptr, takes_names});
  const auto plan = ferrowind::almanac::PlanYear(listed.book, list.year, {});
  for (const ListedDay& day : list.days) {
    const auto* const planned = plan.Find(day.date.DayOfYear());
    const bool closes = day.kind == ListedKind::kHoliday || day.kind == ListedKind::kWeekend;
    const bool is_closed = planned != nullptr && plan.KindOf(*planned) != RuleKind::kWorkingDay;
    if (closes) Expect(is_closed, "what the list closes is closed");
    if (day.kind == ListedKind::kWorkingDay) Expect(!is_closed, "what the list opens is open");
  }
  for (const auto& difference : DifferencesOf(list, calendar, Rules())) {
    Expect(difference.date.Year() == list.year, "a difference is within the year");
  }
}

void ExpectYears(const DayList& list) {
  if (list.days.empty()) return;
  const int year = list.days.front().date.Year();
  const std::string currency = list.days.front().currency;
  try {
    const auto sorted = SortByYear(list, currency, ferrowind::exchange::WantedYears{year, year});
    Expect(sorted.years.size() == 1 && !sorted.years.front().days.empty(), "a list has its first day");
    const auto& days = sorted.years.front().days;
    for (std::size_t i = 1; i < days.size(); ++i) Expect(days[i - 1].date < days[i].date, "days ascend");
    ExpectPlan(sorted.years.front(), false);
    ExpectPlan(sorted.years.front(), true);
  } catch (const ListError&) {
    // A day that is open and closed at once.
  }
}

void Check(const Reader& read, std::string_view text) {
  const auto list = Try(read, text);
  if (!list) return;
  for (const ListedDay& day : list->days) {
    Expect(IsWellFormedUtf8(day.name) && ferrowind::exchange::FaultOfName(day.name).empty(),
           "a name can be one");
    Expect(day.line >= 1, "a day has a line");
  }
  ExpectTheSame(*list, ferrowind::exchange::ReadJsonList, WriteJsonList(*list));
  ExpectTheSame(*list, ferrowind::exchange::ReadCsvList, WriteCsvList(*list));
  (void)WriteTextList(*list);
  ExpectYears(*list);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::string text;
  try {
    text = ferrowind::exchange::TextOfList(std::string(reinterpret_cast<const char*>(data), size));
  } catch (const ListError&) {
    return 0;
  }
  Expect(IsWellFormedUtf8(text), "the text of a list is UTF-8");
  (void)ferrowind::exchange::FormatOf("", text);
  Check(ferrowind::exchange::ReadCsvList, text);
  Check(ferrowind::exchange::ReadJsonList, text);
  Check(ferrowind::exchange::ReadTextList, text);
  return 0;
}
