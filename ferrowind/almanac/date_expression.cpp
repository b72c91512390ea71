#include "ferrowind/almanac/date_expression.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "ferrowind/almanac/date_expression_parser.h"
#include "ferrowind/almanac/date_words.h"

namespace ferrowind::almanac {
namespace {

std::string Offset(int days) {
  if (days == 0) return {};
  return (days > 0 ? "+" : "") + std::to_string(days);
}

struct AnchorText {
  std::string operator()(const FixedDate& date) const {
    return Digits(date.month, 2) + '-' + Digits(date.day, 2);
  }
  std::string operator()(const SingleDate& single) const { return single.date.ToIso(); }
  std::string operator()(const EasterDate& easter) const {
    return (easter.church == Church::kWestern ? "easter" : "orthodox") + Offset(easter.offset);
  }
  std::string operator()(const NthWeekday& nth) const {
    static constexpr std::array kOrdinals = {"last", "1st", "2nd", "3rd", "4th", "5th"};
    return std::string(kOrdinals.at(static_cast<std::size_t>(nth.ordinal))) + ' ' +
           std::string(WeekdayName(nth.weekday)) + " of " + Digits(nth.month, 2);
  }
  std::string operator()(const EquinoxDate& equinox) const {
    return (equinox.equinox == Equinox::kVernal ? "vernal equinox " : "autumnal equinox ") +
           UtcOffset(equinox.utc_offset_minutes);
  }
  std::string operator()(const TableDate& table) const {
    return "table " + table.table + Offset(table.offset);
  }
  std::string operator()(const EveryWeekday& every) const {
    return "weekday " + std::string(WeekdayName(every.weekday));
  }
  std::string operator()(const BetweenHolidays&) const { return "between"; }
  std::string operator()(const UnknownDate&) const { return "unknown"; }
};

/// Monday first, as people list the days of a week.
std::string WeekdayList(WeekdaySet weekdays) {
  std::string list;
  for (int k = 0; k < 7; ++k) {
    const int weekday = (k + 1) % 7 + 1;
    if (!weekdays.Contains(weekday)) continue;
    if (!list.empty()) list += ", ";
    list += WeekdayName(weekday);
  }
  return list;
}

std::string MoveText(const Move& move) {
  std::string text = WeekdayList(move.weekdays);
  if (move.taken) text += text.empty() ? "taken" : ", taken";
  text += text.empty() ? "to " : " to ";
  if (move.target.direction == Direction::kNext) text += "next ";
  if (move.target.direction == Direction::kPrevious) text += "previous ";
  text += move.target.weekday == MoveTarget::kFreeDay ? "free day" : WeekdayName(move.target.weekday);
  return text;
}

std::string YearText(const YearLimits& years) {
  std::string text;
  if (years.from) text += " from " + std::to_string(*years.from);
  if (years.to) text += " to " + std::to_string(*years.to);
  if (years.choice == YearChoice::kAll) return text;
  text += years.choice == YearChoice::kOnly ? " only " : " not ";
  for (std::size_t i = 0; i < years.years.size(); ++i) {
    if (i > 0) text += ", ";
    text += std::to_string(years.years[i]);
  }
  return text;
}

}  // namespace

bool YearLimits::Include(int year) const {
  if ((from && year < *from) || (to && year > *to)) return false;
  if (choice == YearChoice::kAll) return true;
  const bool is_listed = std::binary_search(years.begin(), years.end(), year);
  return is_listed == (choice == YearChoice::kOnly);
}

DateExpression DateExpression::Parse(std::string_view text) { return DateExpressionParser(text).Parse(); }

std::string DateExpression::ToText() const {
  std::string text;
  for (const WeekdayStep& step : steps) {
    text += WeekdayName(step.weekday);
    text += ' ';
    text += RelationWords(step.relation);
    text += ' ';
  }
  text += std::visit(AnchorText(), anchor);
  if (!only_on.IsEmpty()) text += " if " + WeekdayList(only_on);
  for (const Move& move : moves) text += ' ' + MoveText(move);
  if (else_not_observed) text += " else not observed";
  return text + YearText(years);
}

}  // namespace ferrowind::almanac
