#include "ferrowind/views/planning/rule_years_table.h"

#include <string>

#include "ferrowind/data/said.h"
#include "ferrowind/views/planning/day_text.h"

namespace ferrowind {
namespace {

using almanac::RuleDate;
using almanac::RuleYear;
using platform::CellMark;
using platform::CellTone;
using platform::TableRow;

/// More dates of one year than this are counted: no holiday has that many.
constexpr std::size_t kMostDates = 40;

}  // namespace

RuleYearsTable::RuleYearsTable(const platform::Platform& platform, platform::Table& table)
    : platform_(platform), table_(table) {
  table_.SetColumns({{"year", Said(platform, "Year")},
                     {"date", Said(platform, "Date")},
                     {.key = "why", .caption = Said(platform, "Why"), .stretches = true}});
}

void RuleYearsTable::Show(const std::vector<RuleYear>& years) {
  std::vector<TableRow> rows;
  for (const RuleYear& year : years) {
    if (year.dates.size() > kMostDates) {
      rows.push_back(CountOf(year));
      continue;
    }
    for (const RuleDate& date : year.dates) rows.push_back(RowOf(year, date));
    if (!year.is_known) {
      rows.push_back(
          RowWithoutDate(year.year, "The dates of this year are not known yet", CellMark::kWarning));
    } else if (year.dates.empty()) {
      rows.push_back(RowWithoutDate(year.year, "None", CellMark::kNone));
    }
  }
  // Emptied first, so that the columns are as wide as the days of this rule need.
  table_.SetRows({});
  table_.SetRows(rows);
}

TableRow RuleYearsTable::RowOf(const RuleYear& year, const RuleDate& date) const {
  const CellTone tone = date.has_day ? CellTone::kNormal : CellTone::kQuiet;
  const CellMark mark = date.has_day ? CellMark::kNone : CellMark::kRemoved;
  const std::string why = Said(platform_, date.why);
  return {.key = date.date.ToIso() + (date.has_day ? "" : "-"),
          .cells = {{.text = std::to_string(year.year), .tone = tone},
                    {.text = DayText(platform_.locale, date.date), .mark = mark, .tone = tone},
                    {.text = why, .tone = tone, .description = why}}};
}

TableRow RuleYearsTable::CountOf(const RuleYear& year) const {
  const auto count = static_cast<int>(year.dates.size());
  return {
      .key = std::to_string(year.year),
      .cells = {{std::to_string(year.year)},
                {SaidOfNumber(platform_, count, "%n day", "%n days")},
                {Said(platform_, "The first is %1", {DayText(platform_.locale, year.dates.front().date)})}}};
}

//: says 2
TableRow RuleYearsTable::RowWithoutDate(int year, const char* text, CellMark mark) const {
  return {.key = std::to_string(year) + "-none",
          .cells = {{.text = std::to_string(year), .tone = CellTone::kQuiet},
                    {.text = Said(platform_, text), .mark = mark, .tone = CellTone::kQuiet},
                    {}}};
}

}  // namespace ferrowind
