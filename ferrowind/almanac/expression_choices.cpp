#include "ferrowind/almanac/expression_choices.h"

#include <array>
#include <variant>
#include <vector>

#include "ferrowind/almanac/date_words.h"

namespace ferrowind::almanac {
namespace {

constexpr int kSunday = 1;
constexpr int kSaturday = 7;

constexpr std::array kClosedDayChoices{
    ClosedDayChoice::kStays,          ClosedDayChoice::kNextFreeDay,       ClosedDayChoice::kNextMonday,
    ClosedDayChoice::kFridayOrMonday, ClosedDayChoice::kMondayAfterSunday, ClosedDayChoice::kNotObserved};

std::string DateText(const ExpressionChoices& choices) {
  return Digits(choices.month, 2) + '-' + Digits(choices.day, 2);
}

std::string OffsetText(int offset) {
  if (offset == 0) return {};
  return (offset > 0 ? "+" : "") + std::to_string(offset);
}

std::string OrdinalText(int ordinal) {
  static constexpr std::array kOrdinals{"last", "1st", "2nd", "3rd", "4th", "5th"};
  const auto position = static_cast<std::size_t>(ordinal);
  return position < kOrdinals.size() ? kOrdinals[position] : std::to_string(ordinal);
}

std::string WeekdayText(int weekday) {
  return weekday < kSunday || weekday > kSaturday ? std::string() : std::string(WeekdayName(weekday));
}

std::string BaseText(const ExpressionChoices& choices) {
  switch (choices.form) {
    case DateForm::kSameDate:
      return DateText(choices);
    case DateForm::kOnce:
      return Digits(choices.year, 4) + '-' + DateText(choices);
    case DateForm::kEaster:
      return "easter" + OffsetText(choices.offset);
    case DateForm::kOrthodoxEaster:
      return "orthodox" + OffsetText(choices.offset);
    case DateForm::kNthWeekday:
      return OrdinalText(choices.ordinal) + ' ' + WeekdayText(choices.weekday) + " of " +
             Digits(choices.month, 2);
    case DateForm::kWeekdayByDate:
      return WeekdayText(choices.weekday) + ' ' + std::string(RelationWords(choices.relation)) + ' ' +
             DateText(choices);
    case DateForm::kTable:
      return "table " + choices.table + OffsetText(choices.offset);
    case DateForm::kEveryWeekday:
      return "weekday " + WeekdayText(choices.weekday);
  }
  return {};
}

std::string ClosedDayText(ClosedDayChoice choice) {
  switch (choice) {
    case ClosedDayChoice::kStays:
      return {};
    case ClosedDayChoice::kNextFreeDay:
      return " to next free day";
    case ClosedDayChoice::kNextMonday:
      return " Saturday, Sunday to next Monday";
    case ClosedDayChoice::kFridayOrMonday:
      return " Saturday to Friday Sunday to Monday";
    case ClosedDayChoice::kMondayAfterSunday:
      return " Sunday to Monday";
    case ClosedDayChoice::kNotObserved:
      return " else not observed";
  }
  return {};
}

/// Fills in the choices that an anchor and its steps say; false when choices cannot.
class BaseReader {
 public:
  BaseReader(const DateExpression& expression, ExpressionChoices& choices)
      : expression_(expression), choices_(choices) {}

  bool operator()(const FixedDate& date) const {
    choices_.month = date.month;
    choices_.day = date.day;
    choices_.form = expression_.steps.empty() ? DateForm::kSameDate : DateForm::kWeekdayByDate;
    if (expression_.steps.size() > 1) return false;
    for (const WeekdayStep& step : expression_.steps) {
      choices_.weekday = step.weekday;
      choices_.relation = step.relation;
    }
    return true;
  }
  bool operator()(const SingleDate& single) const {
    choices_.form = DateForm::kOnce;
    choices_.year = single.date.Year();
    choices_.month = single.date.Month();
    choices_.day = single.date.Day();
    return true;
  }
  bool operator()(const EasterDate& easter) const {
    choices_.form = easter.church == Church::kWestern ? DateForm::kEaster : DateForm::kOrthodoxEaster;
    choices_.offset = easter.offset;
    return true;
  }
  bool operator()(const NthWeekday& nth) const {
    choices_.form = DateForm::kNthWeekday;
    choices_.ordinal = nth.ordinal;
    choices_.weekday = nth.weekday;
    choices_.month = nth.month;
    return true;
  }
  bool operator()(const TableDate& date) const {
    choices_.form = DateForm::kTable;
    choices_.table = date.table;
    choices_.offset = date.offset;
    return true;
  }
  bool operator()(const EveryWeekday& every) const {
    choices_.form = DateForm::kEveryWeekday;
    choices_.weekday = every.weekday;
    return true;
  }
  bool operator()(const EquinoxDate&) const { return false; }
  bool operator()(const BetweenHolidays&) const { return false; }
  bool operator()(const UnknownDate&) const { return false; }

 private:
  const DateExpression& expression_;
  ExpressionChoices& choices_;
};

}  // namespace

std::string ExpressionChoices::ToText() const {
  std::string text = BaseText(*this);
  if (form != DateForm::kEveryWeekday) text += ClosedDayText(on_closed_day);
  if (from) text += " from " + std::to_string(*from);
  if (to) text += " to " + std::to_string(*to);
  return text;
}

DateExpression ExpressionChoices::ToExpression() const { return DateExpression::Parse(ToText()); }

std::optional<ExpressionChoices> ExpressionChoices::Of(const DateExpression& expression) {
  ExpressionChoices choices;
  if (!std::visit(BaseReader(expression, choices), expression.anchor)) return std::nullopt;
  choices.from = expression.years.from;
  choices.to = expression.years.to;
  for (const ClosedDayChoice choice : kClosedDayChoices) {
    choices.on_closed_day = choice;
    if (choices.ToExpression() == expression) return choices;
  }
  return std::nullopt;
}

}  // namespace ferrowind::almanac
