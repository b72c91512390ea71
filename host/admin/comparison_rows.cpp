#include "host/admin/comparison_rows.h"

#include <cstddef>
#include <optional>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include "ferrowind/almanac/date_words.h"
#include "ferrowind/planning/counted.h"
#include "ferrowind/planning/plan_words.h"

namespace ferrowind::host {

using platform::Value;

std::shared_ptr<platform::RecordSet> ComparisonRows(
    const almanac::Comparison& comparison, OutputFormat format,
    const std::function<bool(const almanac::ComparedDay& day)>& is_shown) {
  const Value ordinary = format == OutputFormat::kTable ? Value(planning::kOrdinaryDay) : Value();
  const auto named = [&](const std::optional<std::string>& name) { return name ? Value(*name) : ordinary; };
  std::vector<std::vector<Value>> rows;
  for (const almanac::ComparedDay& day : comparison.Days()) {
    if (!is_shown(day)) continue;
    const almanac::ComparisonLine line = comparison.LineOf(day);
    rows.push_back({line.date, std::string(almanac::WeekdayName(line.date.Weekday())), named(line.now),
                    named(line.should), std::string(almanac::TextOf(line.action)),
                    planning::WhyOf(day, line)});
  }
  return std::make_shared<platform::RecordSet>(
      std::vector<std::string>{"date", "weekday", "now", "should", "action", "why"}, std::move(rows));
}

std::shared_ptr<platform::RecordSet> JoinedRows(
    const std::vector<std::pair<std::string, std::shared_ptr<platform::RecordSet>>>& calendars) {
  const platform::RecordSet& first = *calendars.front().second;
  std::vector<std::string> fields = {"currency"};
  for (std::size_t field = 0; field < first.FieldCount(); ++field) fields.push_back(first.FieldName(field));
  std::vector<std::vector<Value>> joined;
  for (const auto& [code, rows] : calendars) {
    for (std::size_t i = 0; i < rows->RowCount(); ++i) {
      const auto row = rows->BookmarkAt(i);
      std::vector<Value> values = {Value(code)};
      for (std::size_t field = 0; field < rows->FieldCount(); ++field)
        values.push_back(rows->Cell(row, field));
      joined.push_back(std::move(values));
    }
  }
  return std::make_shared<platform::RecordSet>(std::move(fields), std::move(joined));
}

void WriteWithWeekends(const platform::RecordSet& rows, std::size_t weekends, std::ostream& out) {
  const bool has_rows = rows.RowCount() != 0;
  if (has_rows) WriteList(rows, OutputFormat::kTable, out);
  if (weekends != 0)
    out << (has_rows ? "and " : "") << planning::Counted(weekends, "day", "days") << " of weekends\n";
}

}  // namespace ferrowind::host
