#pragma once

#include <cstdint>
#include <set>
#include <vector>

#include "ferrowind/platform/values/value.h"

namespace ferrowind::grid_engine {

/// One step of the way to a group: what its records have in common in one column.
struct GroupStep {
  std::int16_t column = 0;
  platform::Value value;
};

/// The way to a group from the outermost level; empty for no group.
using GroupPath = std::vector<GroupStep>;

/// By columns and `CompareValues`, a group before the groups in it.
struct GroupPathLess {
  [[nodiscard]] bool operator()(const GroupPath& left, const GroupPath& right) const;
};

/// Which groups are expanded, told apart by their paths, so that it outlives the rows: a default, and the
/// groups that differ from it.
class ExpansionMemory {
 public:
  using Exceptions = std::set<GroupPath, GroupPathLess>;

  [[nodiscard]] bool IsExpandedByDefault() const { return is_expanded_by_default_; }
  [[nodiscard]] const Exceptions& GroupsThatDiffer() const { return exceptions_; }

  void Remember(GroupPath path, bool is_expanded);
  /// For all groups there are and will be; forgets those that differ.
  void RememberAll(bool is_expanded);

 private:
  bool is_expanded_by_default_ = true;
  Exceptions exceptions_;
};

}  // namespace ferrowind::grid_engine
