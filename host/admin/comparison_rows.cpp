#include "host/admin/comparison_rows.h"

#include <optional>
#include <utility>
#include <vector>

#include "ferrowind/almanac/date_words.h"

namespace ferrowind::host {

using platform::Value;

std::shared_ptr<platform::RecordSet> ComparisonRows(
    const almanac::Comparison& comparison, OutputFormat format,
    const std::function<bool(const almanac::ComparedDay& day)>& is_shown) {
  const Value ordinary = format == OutputFormat::kTable ? Value("working day") : Value();
  const auto named = [&](const std::optional<std::string>& name) { return name ? Value(*name) : ordinary; };
  std::vector<std::vector<Value>> rows;
  for (const almanac::ComparedDay& day : comparison.Days()) {
    if (!is_shown(day)) continue;
    const almanac::ComparisonLine line = comparison.LineOf(day);
    rows.push_back({line.date, std::string(almanac::WeekdayName(line.date.Weekday())), named(line.now),
                    named(line.should), std::string(almanac::TextOf(line.action)), line.why});
  }
  return std::make_shared<platform::RecordSet>(
      std::vector<std::string>{"date", "weekday", "now", "should", "action", "why"}, std::move(rows));
}

}  // namespace ferrowind::host
