#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

#include "ferrowind/export.h"
#include "ferrowind/platform/events/subscription.h"
#include "ferrowind/platform/toolkit/control.h"

namespace ferrowind::platform {

/// A node to be added to a tree.
struct FERROWIND_EXPORT TreeNode {
  /// Unique in the tree; the node's only name.
  std::string key;
  /// Shown beside the image; need not be unique.
  std::string text;
  /// The key of an image of the form's image list; an unknown one shows no image.
  std::string image;
  /// What the node stands for, which a tooltip shows and assistive tools read; "" for nothing to add.
  std::string description = {};
};

/// A tree of nodes, each known by its key alone, so that no reference outlives a node. Keys are
/// case-sensitive.
///
/// A method that takes a key fails with Element not found (35601) and names the key when there is no such
/// node.
class FERROWIND_EXPORT Tree : public Control {
 public:
  /// Removes all nodes; nothing is selected afterwards and no event is raised.
  virtual void Clear() = 0;
  /// Appends a root node. A key in use is the failure Key not unique (35602), which names it.
  virtual void AddRoot(const TreeNode& node) = 0;
  /// Appends a child of the node `parent_key`; fails as `AddRoot`.
  virtual void AddChild(const std::string& parent_key, const TreeNode& node) = 0;

  /// All nodes, those in collapsed ones too.
  [[nodiscard]] virtual std::int32_t Count() const = 0;
  ///@{
  /// As the node was added.
  [[nodiscard]] virtual std::string Text(const std::string& key) const = 0;
  [[nodiscard]] virtual std::string Description(const std::string& key) const = 0;
  ///@}
  /// Nothing for a root node.
  [[nodiscard]] virtual std::optional<std::string> Parent(const std::string& key) const = 0;
  /// The first root node; nothing in an empty tree.
  [[nodiscard]] virtual std::optional<std::string> First() const = 0;
  /// The sibling that follows; nothing behind the last one.
  [[nodiscard]] virtual std::optional<std::string> NextSibling(const std::string& key) const = 0;

  /// Whether the children are on show as far as the node itself is.
  [[nodiscard]] virtual bool Expanded(const std::string& key) const = 0;
  /// Raises `OnExpanded` or `OnCollapsed` when the state changes. Collapsing a node above the selected one
  /// selects that node and raises no `OnNodeClick`.
  virtual void SetExpanded(const std::string& key, bool expanded) = 0;

  /// The key of the selected node; nothing while none is.
  [[nodiscard]] virtual std::optional<std::string> Selected() const = 0;
  /// Selects the node, makes it visible by expanding its parents, and raises no `OnNodeClick`.
  virtual void Select(const std::string& key) = 0;

  /// The operator clicked a node or moved the selection to it by key. The node is already selected.
  [[nodiscard]] virtual Subscription OnNodeClick(std::function<void(const std::string& key)> handler) = 0;
  ///@{
  /// A node was expanded or collapsed, by the operator or the program.
  [[nodiscard]] virtual Subscription OnExpanded(std::function<void(const std::string& key)> handler) = 0;
  [[nodiscard]] virtual Subscription OnCollapsed(std::function<void(const std::string& key)> handler) = 0;
  ///@}
};

}  // namespace ferrowind::platform
