#include "ferrowind/almanac/expression_words.h"

#include <cstddef>
#include <cstdlib>
#include <optional>
#include <variant>

#include "ferrowind/almanac/anchor_day.h"
#include "ferrowind/almanac/date_words.h"
#include "ferrowind/almanac/day_count.h"
#include "ferrowind/almanac/easter.h"

namespace ferrowind::almanac {
namespace {

/// More years than these are not told one by one.
constexpr std::size_t kMostYearsTold = 4;

std::string Capitalised(std::string text) {
  if (!text.empty() && text[0] >= 'a' && text[0] <= 'z') text[0] = static_cast<char>(text[0] - 'a' + 'A');
  return text;
}

/// ", two days before" for -2; nothing for 0.
std::string OffsetWords(int days) {
  if (days == 0) return {};
  const int count = std::abs(days);
  return ", " + NumberWord(count) + (count == 1 ? " day " : " days ") + (days < 0 ? "before" : "after");
}

std::string YearList(const std::vector<int>& years) {
  if (years.size() > kMostYearsTold) return "certain years";
  std::string list;
  for (std::size_t i = 0; i < years.size(); ++i) {
    if (i > 0) list += i + 1 == years.size() ? " and " : ", ";
    list += std::to_string(years[i]);
  }
  return list;
}

std::string LimitWords(const DateExpression& expression) {
  std::string words;
  if (!expression.only_on.IsEmpty()) words += ", only on " + AnyOf(expression.only_on);
  const YearLimits& years = expression.years;
  if (years.from) words += ", from " + std::to_string(*years.from) + " on";
  if (years.to) words += ", until " + std::to_string(*years.to);
  if (years.choice == YearChoice::kOnly) words += ", only in " + YearList(years.years);
  return words;
}

/// An anchor as what a day is or what one comes after, in a certain year.
struct AnchorWords {
  /// Of the anchor's year.
  int year;
  /// The anchor's day.
  std::int32_t day;
  /// Whether the words stand within a sentence, after "on or after".
  bool is_within;

  std::string operator()(const FixedDate& date) const {
    return DayAndMonth(date.month, date.day) + (is_within ? ' ' + std::to_string(year) : "");
  }
  std::string operator()(const SingleDate&) const {
    return is_within ? LongDate(day) : "once, on " + LongDate(day);
  }
  std::string operator()(const EasterDate& easter) const {
    return (easter.church == Church::kOrthodox ? "Orthodox Easter Sunday " : "Easter Sunday ") +
           LongDate(EasterSunday(easter.church, year)) + OffsetWords(easter.offset);
  }
  std::string operator()(const NthWeekday& nth) const {
    return (is_within ? "the " : "") + std::string(OrdinalWord(nth.ordinal)) + ' ' +
           std::string(WeekdayName(nth.weekday)) + " of " + std::string(MonthName(nth.month)) + ' ' +
           std::to_string(year);
  }
  std::string operator()(const EquinoxDate& equinox) const {
    return (is_within ? "the day of the " : "day of the ") +
           std::string(equinox.equinox == Equinox::kVernal ? "vernal" : "autumnal") + " equinox " +
           std::to_string(year) + " at UTC" + UtcOffset(equinox.utc_offset_minutes);
  }
  std::string operator()(const TableDate& table) const {
    return LongDate(day - table.offset) + " of the table " + table.table + OffsetWords(table.offset);
  }
  std::string operator()(const EveryWeekday& every) const {
    return "every " + std::string(WeekdayName(every.weekday));
  }
  std::string operator()(const BetweenHolidays&) const { return "a day between two holidays"; }
  std::string operator()(const UnknownDate&) const { return "a day that is not known yet"; }
};

/// The year whose anchor leads to the base date.
int YearOfAnchor(const DateExpression& expression, std::int32_t base) {
  const int year = YearOf(base);
  for (const int candidate : {year, year - 1, year + 1, year - 2, year + 2}) {
    const auto day = AnchorDay(expression.anchor, candidate);
    if (day && TakeSteps(expression, *day) == base) return candidate;
  }
  return year;
}

}  // namespace

std::string WordsOfBase(const DateExpression& expression, std::int32_t base) {
  const bool has_steps = !expression.steps.empty();
  if (has_steps && std::holds_alternative<TableDate>(expression.anchor)) {
    // Several dates of a table may lead to the day; which did is not kept.
    const auto& table = std::get<TableDate>(expression.anchor);
    return std::string(WeekdayName(expression.steps.front().weekday)) + ' ' +
           std::string(RelationWords(expression.steps.front().relation)) + " a day of the table " +
           table.table + LimitWords(expression);
  }
  const int year = YearOfAnchor(expression, base);
  const std::int32_t day = has_steps ? AnchorDay(expression.anchor, year).value_or(base) : base;
  std::string words;
  for (const WeekdayStep& step : expression.steps) {
    words += words.empty() ? "" : "the ";
    words += std::string(WeekdayName(step.weekday)) + ' ' + std::string(RelationWords(step.relation)) + ' ';
  }
  words += std::visit(AnchorWords{year, day, has_steps}, expression.anchor);
  return Capitalised(words) + LimitWords(expression);
}

std::string WordsOfTarget(const MoveTarget& target) {
  if (target.direction == Direction::kNearest) return std::string(WeekdayName(target.weekday));
  const std::string direction = target.direction == Direction::kNext ? "the next " : "the previous ";
  if (target.weekday == MoveTarget::kFreeDay) return direction + "free day";
  return direction + std::string(WeekdayName(target.weekday));
}

}  // namespace ferrowind::almanac
