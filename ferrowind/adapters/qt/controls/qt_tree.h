#pragma once

#include "ferrowind/adapters/qt/controls/qt_control.h"
#include "ferrowind/adapters/qt/controls/tree_model.h"
#include "ferrowind/adapters/qt/controls/tree_view.h"
#include "ferrowind/platform/toolkit/tree.h"

namespace ferrowind::qt {

class QtTree : public QtControl<platform::Tree> {
 public:
  explicit QtTree(TreeView& view);
  ~QtTree() override;

  void Clear() override;
  void AddRoot(const platform::TreeNode& node) override;
  void AddChild(const std::string& parent_key, const platform::TreeNode& node) override;

  [[nodiscard]] std::int32_t Count() const override;
  [[nodiscard]] std::string Text(const std::string& key) const override;
  [[nodiscard]] std::string Description(const std::string& key) const override;
  [[nodiscard]] std::optional<std::string> Parent(const std::string& key) const override;
  [[nodiscard]] std::optional<std::string> First() const override;
  [[nodiscard]] std::optional<std::string> NextSibling(const std::string& key) const override;

  [[nodiscard]] bool Expanded(const std::string& key) const override;
  void SetExpanded(const std::string& key, bool expanded) override;
  [[nodiscard]] std::optional<std::string> Selected() const override;
  void Select(const std::string& key) override;

  [[nodiscard]] platform::Subscription OnNodeClick(std::function<void(const std::string&)> handler) override;
  [[nodiscard]] platform::Subscription OnExpanded(std::function<void(const std::string&)> handler) override;
  [[nodiscard]] platform::Subscription OnCollapsed(std::function<void(const std::string&)> handler) override;

 private:
  void Append(const QModelIndex& parent, const platform::TreeNode& node);
  [[nodiscard]] QModelIndex NodeOf(const std::string& key) const;

  TreeView& view_;
  TreeModel model_;
  platform::Signal<const std::string&> node_clicked_;
  platform::Signal<const std::string&> expanded_;
  platform::Signal<const std::string&> collapsed_;
};

}  // namespace ferrowind::qt
