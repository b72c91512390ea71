#include "ferrowind/views/calendars/action_subject.h"

#include "ferrowind/views/calendars/node_key.h"

namespace ferrowind {

void DescribeNode(platform::OperatorAction& action, const platform::Tree& tree,
                  const std::optional<std::string>& node) {
  if (!node) return;
  const auto currency_node = tree.Parent(*node);
  action.currency = tree.Text(currency_node.value_or(*node));
  if (currency_node) action.year = node_key::YearOfCalendarNode(*node);
}

}  // namespace ferrowind
