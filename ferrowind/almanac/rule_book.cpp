#include "ferrowind/almanac/rule_book.h"

namespace ferrowind::almanac {

std::string BookRule::NameOfMovedDay() const {
  return moved_name.empty() ? name + " (observed)" : moved_name;
}

}  // namespace ferrowind::almanac
