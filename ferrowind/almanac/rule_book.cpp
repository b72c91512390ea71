#include "ferrowind/almanac/rule_book.h"

namespace ferrowind::almanac {

std::string BookRule::NameOfMovedDay() const {
  return moved_name.empty() ? name + " (observed)" : moved_name;
}

std::string RuleBook::WhyNotIn(int year, const std::string& owner) const {
  return "The book of " + owner + " holds from " + std::to_string(*since) + " on, so it does not tell what " +
         std::to_string(year) + " should be";
}

}  // namespace ferrowind::almanac
