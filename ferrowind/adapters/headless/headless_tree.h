#pragma once

#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "ferrowind/adapters/headless/headless_control.h"
#include "ferrowind/platform/toolkit/tree.h"

namespace ferrowind::headless {

class HeadlessTree : public HeadlessControl<platform::Tree> {
 public:
  using HeadlessControl::HeadlessControl;

  void Clear() override;
  void AddRoot(const platform::TreeNode& node) override;
  void AddChild(const std::string& parent_key, const platform::TreeNode& node) override;
  [[nodiscard]] std::int32_t Count() const override { return static_cast<std::int32_t>(nodes_.size()); }
  [[nodiscard]] std::string Text(const std::string& key) const override { return NodeOf(key).design.text; }
  [[nodiscard]] std::string Description(const std::string& key) const override {
    return NodeOf(key).design.description;
  }
  [[nodiscard]] std::optional<std::string> Parent(const std::string& key) const override {
    return NodeOf(key).parent;
  }
  [[nodiscard]] std::optional<std::string> First() const override;
  [[nodiscard]] std::optional<std::string> NextSibling(const std::string& key) const override;
  [[nodiscard]] bool Expanded(const std::string& key) const override { return NodeOf(key).expanded; }
  void SetExpanded(const std::string& key, bool expanded) override;
  [[nodiscard]] std::optional<std::string> Selected() const override { return selected_; }
  void Select(const std::string& key) override;
  [[nodiscard]] platform::Subscription OnNodeClick(
      std::function<void(const std::string& key)> handler) override {
    return node_clicked_.Subscribe(std::move(handler));
  }
  [[nodiscard]] platform::Subscription OnExpanded(
      std::function<void(const std::string& key)> handler) override {
    return expanded_.Subscribe(std::move(handler));
  }
  [[nodiscard]] platform::Subscription OnCollapsed(
      std::function<void(const std::string& key)> handler) override {
    return collapsed_.Subscribe(std::move(handler));
  }

  [[nodiscard]] std::string Image(const std::string& key) const { return NodeOf(key).design.image; }
  /// The keys of the root nodes, or of a node's children, in order.
  [[nodiscard]] const std::vector<std::string>& Roots() const { return roots_; }
  [[nodiscard]] const std::vector<std::string>& Children(const std::string& key) const {
    return NodeOf(key).children;
  }

  /// The operator clicks a node; script error when a collapsed parent hides it.
  void ClickNode(const std::string& key);
  /// The operator clicks the mark that expands or collapses a node.
  void ToggleNode(const std::string& key);

 private:
  struct Node {
    platform::TreeNode design;
    std::optional<std::string> parent;
    std::vector<std::string> children;
    bool expanded = false;
  };

  [[nodiscard]] const Node& NodeOf(const std::string& key) const;
  [[nodiscard]] Node& NodeOf(const std::string& key);
  void Add(std::optional<std::string> parent, const platform::TreeNode& node);
  [[nodiscard]] bool IsBelow(std::optional<std::string> key, const std::string& ancestor) const;
  void RequireShown(const std::string& key);
  void ChangeExpanded(const std::string& key, bool expanded);

  std::map<std::string, Node> nodes_;
  std::vector<std::string> roots_;
  std::optional<std::string> selected_;
  platform::Signal<const std::string&> node_clicked_;
  platform::Signal<const std::string&> expanded_;
  platform::Signal<const std::string&> collapsed_;
};

}  // namespace ferrowind::headless
