#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "ferrowind/almanac/date_expression.h"
#include "ferrowind/platform/values/phrase.h"

namespace ferrowind::almanac {

/// The types of holiday rules; the numbers are those of the database (TID1).
enum class RuleKind : std::uint8_t {
  /// Opens a day that would be closed.
  kWorkingDay = 1,
  /// Every week on one weekday.
  kWeekday = 2,
  /// On the same date each year.
  kCelebration = 3,
  /// On a date that differs from year to year.
  kPoint = 4,
};

struct BookRule {
  /// Not blank.
  std::string name;
  RuleKind kind = RuleKind::kPoint;
  DateExpression expression;
  std::string comment;
  /// What the day is called to which the holiday moves off a closed day; empty for the name and "(observed)".
  std::string moved_name;

  /// `moved_name`, or what stands for it when it is empty.
  [[nodiscard]] std::string NameOfMovedDay() const;
  bool operator==(const BookRule&) const = default;
};

/// What the calendars of one currency should be, and whose word that is.
struct RuleBook {
  std::string publisher;
  std::string document;
  /// The first year that it tells of; nothing when it tells of all years.
  std::optional<int> since;
  /// The order counts: of two holidays on one day the first has it (planner.h).
  std::vector<BookRule> rules;

  [[nodiscard]] bool HoldsIn(int year) const { return !since || year >= *since; }
  /// Whether `year` is one from `kFirstYear` to `kLastYear` for which the book holds.
  [[nodiscard]] bool CanPlan(int year) const {
    return year >= kFirstYear && year <= kLastYear && HoldsIn(year);
  }
  /// Why nothing can be planned for `year` by the book of `owner`, without a full stop: "The book of EUR
  /// holds from 2015 on, so it does not tell what 2012 should be". Precondition: it does not hold in that
  /// year.
  [[nodiscard]] platform::Phrase WhyNotIn(int year, const std::string& owner) const;
  bool operator==(const RuleBook&) const = default;
};

}  // namespace ferrowind::almanac
