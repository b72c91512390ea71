#include "ferrowind/almanac/planner.h"

#include <string>
#include <utility>

#include "ferrowind/almanac/plan_builder.h"
#include "ferrowind/almanac/prepared_book.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::almanac {

Planner::Planner(RuleBook book, const DateTables& tables)
    : prepared_(std::make_shared<const PreparedBook>(std::move(book), tables)) {}

const RuleBook& Planner::Book() const { return *prepared_->Book(); }

YearPlan Planner::Plan(int year) const {
  if (year < kFirstYear || year > kLastYear) {
    throw platform::Failure(platform::failure_number::kInvalidArgument,
                            "Years can be planned from " + std::to_string(kFirstYear) + " to " +
                                std::to_string(kLastYear) + ", not " + std::to_string(year));
  }
  if (!Book().HoldsIn(year)) {
    throw platform::Failure(platform::failure_number::kInvalidArgument,
                            Book().WhyNotIn(year, Book().publisher).InEnglish());
  }
  return PlanBuilder(*prepared_, year).Build();
}

YearPlan PlanYear(const RuleBook& book, int year, const DateTables& tables) {
  return Planner(book, tables).Plan(year);
}

}  // namespace ferrowind::almanac
