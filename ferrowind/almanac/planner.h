#pragma once

#include <memory>

#include "ferrowind/almanac/date_table.h"
#include "ferrowind/almanac/rule_book.h"
#include "ferrowind/almanac/year_plan.h"

/// How a book becomes the plan of a year.
///
/// Every rule's base dates are placed first. Then each holiday that falls where it does not stay moves, in
/// the order of base dates and, on one date, of the book:
/// - A day is *closed* to a rule when it is a weekend day of the book (its weekday rules) or when a rule
/// before it in
///   the book has it (it is *taken*). A move without conditions holds on a closed day, one with conditions on
///   the weekdays that it names and, with `taken`, on a taken day. The first move that holds is made.
/// - A day is *free* when it is no weekend day, no base date of any rule, and none to which a holiday has
/// moved.
/// - What it leaves: off a closed day it stays marked there, and the new day is a substitute with a name of
/// its own.
///   Off a day that would be a working day without it the holiday goes as a whole.
/// - On a closed day that no move takes it off it stays, or is dropped when the rule says `else not
/// observed`. A day `between` is a working day then whose neighbours both are base dates on which a holiday
/// stands.
///
/// Of two rules on one day the first in the book has it, but weekday rules give way to all others and a
/// working day beats them all. Holidays move across the turn of the year: a plan looks two months beyond both
/// ends of its year, and no move to a free day goes further than a month; where none is that near, the
/// holiday stays.
namespace ferrowind::almanac {

class PreparedBook;

/// Makes the plans of a book; knows the book's tables, so that planning looks nothing up by name.
class Planner {
 public:
  /// Keeps what it needs of both. A table that a rule names and that is missing leaves plans incomplete.
  Planner(RuleBook book, const DateTables& tables);

  [[nodiscard]] const RuleBook& Book() const;

  /// `RuleBook::CanPlan` of the book.
  [[nodiscard]] bool Reaches(int year) const { return Book().CanPlan(year); }
  /// A year that the planner does not reach is a `platform::Failure` that says why. Threads may plan at once.
  [[nodiscard]] YearPlan Plan(int year) const;

 private:
  std::shared_ptr<const PreparedBook> prepared_;
};

/// One plan; whoever needs several years of a book keeps a `Planner`.
[[nodiscard]] YearPlan PlanYear(const RuleBook& book, int year, const DateTables& tables);

}  // namespace ferrowind::almanac
