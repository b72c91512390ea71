#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "ferrowind/almanac/date_expression.h"

/// Date expressions for people who do not write their grammar: what most holidays need, by choices.
namespace ferrowind::almanac {

enum class DateForm : std::uint8_t {
  /// The same day and month each year.
  kSameDate,
  /// One day once.
  kOnce,
  kEaster,
  kOrthodoxEaster,
  /// Such as the third Monday of January.
  kNthWeekday,
  /// Such as the Monday on or before 24 May.
  kWeekdayByDate,
  /// The dates of a named table.
  kTable,
  /// Every week.
  kEveryWeekday,
};

/// What becomes of a holiday that falls on a closed day.
enum class ClosedDayChoice : std::uint8_t {
  kStays,
  /// To the next day that is neither weekend nor holiday.
  kNextFreeDay,
  /// From Saturday and Sunday to the Monday after.
  kNextMonday,
  /// From Saturday back to Friday, from Sunday on to Monday.
  kFridayOrMonday,
  /// From Sunday on to Monday; on a Saturday it stays.
  kMondayAfterSunday,
  kNotObserved,
};

/// What was chosen. Choices that the form does not ask for mean nothing.
struct ExpressionChoices {
  /// The choices in the words of an expression: one in its normal form, or a text that is none when the
  /// choices are no date, such as 30 February, or name no table.
  [[nodiscard]] std::string ToText() const;
  /// What the choices say; an `ExpressionError` when their text is no expression.
  [[nodiscard]] DateExpression ToExpression() const;
  /// The choices that say exactly `expression`; nothing when it says more than choices can.
  [[nodiscard]] static std::optional<ExpressionChoices> Of(const DateExpression& expression);

  DateForm form = DateForm::kSameDate;
  /// Of `kOnce`.
  int year = kFirstYear;
  /// 1 to 12; of the dates, the nth weekday and the weekday by a date.
  int month = 1;
  /// 1 to 31.
  int day = 1;
  /// Days after Easter Sunday or after the dates of the table, before them when negative.
  int offset = 0;
  /// 1 to 5, or `NthWeekday::kLast`.
  int ordinal = 1;
  /// 1 Sunday to 7 Saturday.
  int weekday = 2;
  Relation relation = Relation::kOnOrAfter;
  std::string table;
  /// Not of `kEveryWeekday`.
  ClosedDayChoice on_closed_day = ClosedDayChoice::kStays;
  /// The first and the last year of the rule.
  std::optional<int> from;
  std::optional<int> to;
};

}  // namespace ferrowind::almanac
