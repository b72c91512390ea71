#include "ferrowind/adapters/headless/headless_tree.h"

#include <algorithm>

#include "ferrowind/platform/values/failure.h"

namespace ferrowind::headless {

using platform::Failure;
using platform::TreeNode;
namespace failure_number = platform::failure_number;

void HeadlessTree::Clear() {
  core_.Record("Clear");
  nodes_.clear();
  roots_.clear();
  selected_.reset();
}

void HeadlessTree::AddRoot(const TreeNode& node) {
  core_.Record("AddRoot", {node.key, node.text, node.image});
  Add(std::nullopt, node);
}

void HeadlessTree::AddChild(const std::string& parent_key, const TreeNode& node) {
  core_.Record("AddChild", {parent_key, node.key, node.text, node.image});
  Add(parent_key, node);
}

void HeadlessTree::Add(std::optional<std::string> parent, const TreeNode& node) {
  auto& siblings = parent ? NodeOf(*parent).children : roots_;
  if (!nodes_.emplace(node.key, Node{node, std::move(parent), {}, false}).second) {
    throw Failure(failure_number::kKeyNotUnique,
                  "The tree " + Name() + " has a node " + node.key + " already");
  }
  siblings.push_back(node.key);
}

std::optional<std::string> HeadlessTree::First() const {
  if (roots_.empty()) return std::nullopt;
  return roots_.front();
}

std::optional<std::string> HeadlessTree::NextSibling(const std::string& key) const {
  const Node& node = NodeOf(key);
  const auto& siblings = node.parent ? NodeOf(*node.parent).children : roots_;
  const auto next = std::next(std::find(siblings.begin(), siblings.end(), key));
  if (next == siblings.end()) return std::nullopt;
  return *next;
}

void HeadlessTree::SetExpanded(const std::string& key, bool expanded) {
  core_.Record("SetExpanded", {key, expanded});
  const auto keep = core_.Keep();
  ChangeExpanded(key, expanded);
}

void HeadlessTree::Select(const std::string& key) {
  core_.Record("Select", {key});
  const auto keep = core_.Keep();
  std::vector<std::string> hiding;
  for (auto parent = NodeOf(key).parent; parent; parent = NodeOf(*parent).parent) hiding.push_back(*parent);
  selected_ = key;
  std::for_each(hiding.rbegin(), hiding.rend(),
                [this](const std::string& parent) { ChangeExpanded(parent, true); });
}

void HeadlessTree::ClickNode(const std::string& key) {
  const auto keep = core_.BeginAction("ClickNode", {key});
  RequireShown(key);
  core_.TakeFocus();
  selected_ = key;
  node_clicked_.Emit(key);
}

void HeadlessTree::ToggleNode(const std::string& key) {
  const auto keep = core_.BeginAction("ToggleNode", {key});
  RequireShown(key);
  if (NodeOf(key).children.empty()) core_.RaiseScriptError("The node " + key + " has no children to show");
  core_.TakeFocus();
  ChangeExpanded(key, !NodeOf(key).expanded);
}

const HeadlessTree::Node& HeadlessTree::NodeOf(const std::string& key) const {
  const auto found = nodes_.find(key);
  if (found == nodes_.end()) {
    throw Failure(failure_number::kElementNotFound, "The tree " + Name() + " has no node " + key);
  }
  return found->second;
}

HeadlessTree::Node& HeadlessTree::NodeOf(const std::string& key) {
  return const_cast<Node&>(std::as_const(*this).NodeOf(key));
}

bool HeadlessTree::IsBelow(std::optional<std::string> key, const std::string& ancestor) const {
  while (key) {
    key = NodeOf(*key).parent;
    if (key == ancestor) return true;
  }
  return false;
}

void HeadlessTree::RequireShown(const std::string& key) {
  if (!nodes_.contains(key)) core_.RaiseScriptError("The tree " + Name() + " has no node " + key);
  for (auto parent = NodeOf(key).parent; parent; parent = NodeOf(*parent).parent) {
    if (!NodeOf(*parent).expanded) {
      core_.RaiseScriptError("The operator cannot see the node " + key + ": the node " + *parent +
                             " is collapsed");
    }
  }
}

void HeadlessTree::ChangeExpanded(const std::string& key, bool expanded) {
  Node& node = NodeOf(key);
  if (node.expanded == expanded) return;
  node.expanded = expanded;
  if (!expanded && IsBelow(selected_, key)) selected_ = key;
  // A copy, since a handler may clear the tree and `key` may be a key in it.
  const std::string changed = key;
  (expanded ? expanded_ : collapsed_).Emit(changed);
}

}  // namespace ferrowind::headless
