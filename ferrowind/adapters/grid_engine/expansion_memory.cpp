#include "ferrowind/adapters/grid_engine/expansion_memory.h"

#include <algorithm>
#include <utility>

#include "ferrowind/adapters/grid_engine/value_order.h"

namespace ferrowind::grid_engine {

bool GroupPathLess::operator()(const GroupPath& left, const GroupPath& right) const {
  return std::lexicographical_compare(
      left.begin(), left.end(), right.begin(), right.end(), [](const GroupStep& a, const GroupStep& b) {
        return a.column != b.column ? a.column < b.column : CompareValues(a.value, b.value) < 0;
      });
}

void ExpansionMemory::Remember(GroupPath path, bool is_expanded) {
  if (is_expanded == is_expanded_by_default_) {
    exceptions_.erase(path);
  } else {
    exceptions_.insert(std::move(path));
  }
}

void ExpansionMemory::RememberAll(bool is_expanded) {
  is_expanded_by_default_ = is_expanded;
  exceptions_.clear();
}

}  // namespace ferrowind::grid_engine
