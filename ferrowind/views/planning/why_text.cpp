#include "ferrowind/views/planning/why_text.h"

#include "ferrowind/planning/plan_words.h"
#include "ferrowind/views/planning/day_text.h"

namespace ferrowind {
namespace {

using planning::DayStory;
using planning::SameDay;
using platform::CellMark;
using platform::Date;
using platform::Locale;

std::string Titled(std::string text) {
  if (!text.empty() && text[0] >= 'a' && text[0] <= 'z') text[0] = static_cast<char>(text[0] - 'a' + 'A');
  return text;
}

std::string StateText(const DayStory& story) {
  return story.state == DayStory::State::kOrdinary ? Titled(planning::kOrdinaryDay) : story.rule;
}

std::string CommentLine(const DayStory& story) {
  const bool is_exception = story.state == DayStory::State::kException;
  if (story.comment.empty()) return is_exception ? "No reason is given for the exception." : "";
  return (is_exception ? "Reason: " : "Text: ") + story.comment;
}

std::string DayAndMonth(const Locale& locale, const Date& day) {
  return std::to_string(day.Day()) + " " + locale.MonthName(day.Month());
}

platform::TableCell DateCell(const Locale& locale, const SameDay& year) {
  if (!year.is_prepared) return {.text = "not prepared", .mark = CellMark::kMissing};
  const std::string what = year.rule.empty() ? planning::kOrdinaryDay : year.rule;
  const std::string weekday = locale.WeekdayName(year.day.Weekday());
  return {.text = weekday + ", " + what, .description = DayText(locale, year.day) + ": " + what};
}

platform::TableCell RuleCell(const Locale& locale, const SameDay& year) {
  if (!year.is_prepared) return {};
  std::string days;
  for (const Date& day : year.days_of_rule) {
    days += (days.empty() ? "" : ", ") + locale.WeekdayName(day.Weekday()) + " " + DayAndMonth(locale, day);
  }
  return {.text = days.empty() ? "no day" : days};
}

}  // namespace

std::string WhyText(const Locale& locale, const std::string& code, const DayStory& story,
                    const std::string& changed) {
  std::string text = code + ", " + DayText(locale, story.day) + ": " + StateText(story);
  const auto add = [&](const std::string& line) {
    if (!line.empty()) text += "\n" + line;
  };
  add(CommentLine(story));
  add(story.expression.empty() ? "" : "Rule: " + story.expression);
  add("Plan: " + story.opinion);
  add(story.source.empty() ? "" : "Book: " + story.source);
  add(changed.empty() ? "" : "Changed: " + changed);
  return text;
}

std::vector<platform::TableColumn> YearColumns(const Locale& locale, const DayStory& story) {
  std::vector<platform::TableColumn> columns{
      {.key = "Year", .caption = "Year"},
      {.key = "Date", .caption = DayAndMonth(locale, story.day), .stretches = true}};
  if (story.has_dated_rule) {
    columns.push_back({.key = "Rule", .caption = story.rule, .stretches = true});
  }
  return columns;
}

std::vector<platform::TableRow> YearRows(const Locale& locale, const DayStory& story,
                                         const std::vector<SameDay>& years) {
  std::vector<platform::TableRow> rows;
  for (const SameDay& year : years) {
    platform::TableRow row{.key = std::to_string(year.year)};
    row.cells = {{.text = row.key}, DateCell(locale, year)};
    if (story.has_dated_rule) row.cells.push_back(RuleCell(locale, year));
    rows.push_back(std::move(row));
  }
  return rows;
}

}  // namespace ferrowind
