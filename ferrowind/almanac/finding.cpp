#include "ferrowind/almanac/finding.h"

#include <tuple>

namespace ferrowind::almanac {

std::string_view TextOf(FindingLevel level) {
  switch (level) {
    case FindingLevel::kNote:
      return "note";
    case FindingLevel::kWarning:
      return "warning";
    case FindingLevel::kError:
      return "error";
  }
  return {};
}

bool ComesBefore(const Finding& left, const Finding& right) {
  return std::tie(right.level, left.currency, left.year, left.day) <
         std::tie(left.level, right.currency, right.year, right.day);
}

}  // namespace ferrowind::almanac
