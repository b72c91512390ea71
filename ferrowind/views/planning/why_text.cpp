#include "ferrowind/views/planning/why_text.h"

#include <utility>

#include "ferrowind/data/said.h"
#include "ferrowind/planning/plan_words.h"
#include "ferrowind/views/planning/day_text.h"

namespace ferrowind {
namespace {

using planning::DayStory;
using planning::SameDay;
using platform::CellMark;
using platform::Date;
using platform::Platform;

std::string Titled(std::string text) {
  if (!text.empty() && text[0] >= 'a' && text[0] <= 'z') text[0] = static_cast<char>(text[0] - 'a' + 'A');
  return text;
}

std::string StateText(const Platform& platform, const DayStory& story) {
  if (story.state != DayStory::State::kOrdinary) return story.rule;
  return Titled(Said(platform, planning::kOrdinaryDay));
}

std::string CommentLine(const Platform& platform, const DayStory& story) {
  const bool is_exception = story.state == DayStory::State::kException;
  if (story.comment.empty())
    return is_exception ? Said(platform, "No reason is given for the exception.") : "";
  return Said(platform, is_exception ? "Reason: %1" : "Text: %1", {story.comment});
}

platform::TableCell DateCell(const Platform& platform, const SameDay& year) {
  if (!year.is_prepared) return {.text = Said(platform, "not prepared"), .mark = CellMark::kMissing};
  const std::string what = year.rule.empty() ? Said(platform, planning::kOrdinaryDay) : year.rule;
  const std::string weekday = platform.locale.WeekdayName(year.day.Weekday());
  // A weekend is called by its weekday.
  return {.text = what == weekday ? weekday : weekday + ", " + what,
          .description = DayText(platform.locale, year.day) + ": " + what};
}

platform::TableCell RuleCell(const Platform& platform, const SameDay& year) {
  if (!year.is_prepared) return {};
  std::string days;
  for (const Date& day : year.days_of_rule)
    days += (days.empty() ? "" : ", ") + DayText(platform.locale, day);
  return {.text = days.empty() ? Said(platform, "no day") : days};
}

}  // namespace

std::string WhyText(const Platform& platform, const std::string& code, const DayStory& story,
                    const std::string& changed) {
  std::string text = code + ", " + DayText(platform.locale, story.day) + ": " + StateText(platform, story);
  const auto add = [&](const std::string& line) {
    if (!line.empty()) text += "\n" + line;
  };
  //: says 1
  const auto add_named = [&](const char* line, const std::string& what) {
    if (!what.empty()) add(Said(platform, line, {what}));
  };
  add(CommentLine(platform, story));
  add_named("Rule: %1", story.expression);
  add_named("Plan: %1", story.opinion);
  add_named("Book: %1", story.source);
  add_named("Changed: %1", changed);
  return text;
}

std::vector<platform::TableColumn> YearColumns(const Platform& platform, const DayStory& story) {
  // The last column has what room is left.
  std::vector<platform::TableColumn> columns{
      {.key = "Year", .caption = Said(platform, "Year")},
      {.key = "Date", .caption = Said(platform, "Same day"), .stretches = !story.has_dated_rule}};
  if (story.has_dated_rule) columns.push_back({.key = "Rule", .caption = story.rule, .stretches = true});
  return columns;
}

std::vector<platform::TableRow> YearRows(const Platform& platform, const DayStory& story,
                                         const std::vector<SameDay>& years) {
  std::vector<platform::TableRow> rows;
  for (const SameDay& year : years) {
    platform::TableRow row{.key = std::to_string(year.year)};
    row.cells = {{.text = row.key}, DateCell(platform, year)};
    if (story.has_dated_rule) row.cells.push_back(RuleCell(platform, year));
    rows.push_back(std::move(row));
  }
  return rows;
}

}  // namespace ferrowind
