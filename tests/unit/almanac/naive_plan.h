#pragma once

#include <map>
#include <string>

#include "ferrowind/almanac/rule_book.h"
#include "ferrowind/platform/values/date.h"

namespace ferrowind::testing {

/// The days of a year by a book without tables, each with its rule's number and how it stands ("3 base", "4
/// substitute", "5 moved"). The rules of planner.h done in the plainest way, to compare a planner with.
[[nodiscard]] std::map<platform::Date, std::string> NaivePlan(const almanac::RuleBook& book, int year);

}  // namespace ferrowind::testing
