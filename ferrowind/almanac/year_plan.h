#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "ferrowind/almanac/rule_book.h"
#include "ferrowind/platform/values/date.h"
#include "ferrowind/platform/values/phrase.h"

namespace ferrowind::almanac {

/// How a rule comes to a day.
enum class Standing : std::uint8_t {
  /// The day is what its expression says.
  kBase,
  /// It has moved here off a day that is closed anyway; the day has the name of the moved day.
  kSubstitute,
  /// It has moved here off a day that is a working day again; the day has the rule's own name.
  kMoved,
};

/// A day of a plan that is no ordinary working day.
struct PlannedDay {
  /// 1 to 366.
  std::int16_t day_of_year = 0;
  Standing standing = Standing::kBase;
  /// Of the move in the rule's expression that brought it here; 0 for `kBase`.
  std::uint8_t move = 0;
  /// The rule's position in the book's list, from 0 on.
  std::uint32_t rule = 0;
  /// The serial (`platform::Date`) of the base date, which may be in another year.
  std::int32_t base = 0;
};

/// A rule whose dates the plan lacks, because its table does not reach the year, or the book says that they
/// are unknown, and no other rule of its name has a day in it.
struct UnknownDates {
  /// The rule's position in the book's list, from 0 on.
  std::size_t rule = 0;
  /// Empty when the book says that they are unknown.
  std::string table;
  /// What the table reaches; both 0 when there is no such table.
  int first_year = 0;
  int last_year = 0;
};

/// What a calendar of a year should be by a book. Immutable; holds what it needs of the book itself.
class YearPlan {
 public:
  [[nodiscard]] int Year() const { return year_; }
  [[nodiscard]] const RuleBook& Book() const { return *book_; }

  /// Ascending, at most one for each day. A day of kind 1 is among them when it opens a closed day.
  [[nodiscard]] const std::vector<PlannedDay>& Days() const { return days_; }
  /// Null for an ordinary working day; valid as long as the plan.
  [[nodiscard]] const PlannedDay* Find(int day_of_year) const;

  /// The name of the database's rule: the book rule's, or the name of its moved day.
  [[nodiscard]] std::string NameOf(const PlannedDay& day) const;
  [[nodiscard]] RuleKind KindOf(const PlannedDay& day) const;
  /// The comment of the database's rule.
  [[nodiscard]] std::string CommentOf(const PlannedDay& day) const;
  [[nodiscard]] platform::Date DateOf(const PlannedDay& day) const;

  /// Why the day is what it is, a sentence without a full stop, for operators: "Easter Sunday 16 April 2028,
  /// two days before"; for an ordinary working day, too. Precondition: 1 to 365 or 366.
  [[nodiscard]] platform::Phrase WhyOf(int day_of_year) const;
  /// The end of that sentence: what else came to the day, each behind a semicolon; says nothing without any.
  [[nodiscard]] platform::Phrase AlsoOn(int day_of_year) const;

  /// Empty when the plan is complete.
  [[nodiscard]] const std::vector<UnknownDates>& Unknown() const { return unknown_; }
  /// For operators, a sentence for each of `Unknown`.
  [[nodiscard]] std::vector<platform::Phrase> Incomplete() const;

 private:
  friend class PlanBuilder;
  friend class PlanReasons;

  /// A rule that came to a day and does not have it.
  enum class Fate : std::uint8_t {
    /// A rule before it in the book, or a working day, has the day.
    kHidden,
    /// It has moved to another day, and this one is a working day.
    kMovedAway,
    /// It is not observed.
    kDropped,
  };
  struct Other {
    PlannedDay day;
    Fate fate = Fate::kHidden;
    /// The serial of the day to which it moved.
    std::int32_t target = 0;
  };

  YearPlan(int year, std::shared_ptr<const RuleBook> book) : year_(year), book_(std::move(book)) {}

  int year_;
  std::shared_ptr<const RuleBook> book_;
  std::vector<PlannedDay> days_;
  /// Ascending by day, then by rule.
  std::vector<Other> others_;
  std::vector<UnknownDates> unknown_;
};

}  // namespace ferrowind::almanac
