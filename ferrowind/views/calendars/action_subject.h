#pragma once

#include <optional>
#include <string>

#include "ferrowind/platform/services/action_observer.h"
#include "ferrowind/platform/toolkit/tree.h"

namespace ferrowind {

/// Fills in the currency of the node and, where the node is one of a calendar, its year. Does nothing without
/// a node; a node that the tree has not is a failure.
void DescribeNode(platform::OperatorAction& action, const platform::Tree& tree,
                  const std::optional<std::string>& node);

}  // namespace ferrowind
