#include "ferrowind/almanac/rule_book.h"

namespace ferrowind::almanac {

std::string BookRule::NameOfMovedDay() const {
  return moved_name.empty() ? name + " (observed)" : moved_name;
}

platform::Phrase RuleBook::WhyNotIn(int year, const std::string& owner) const {
  return platform::Phrase::Of("The book of %1 holds from %2 on, so it does not tell what %3 should be",
                              {owner, std::to_string(*since), std::to_string(year)});
}

}  // namespace ferrowind::almanac
