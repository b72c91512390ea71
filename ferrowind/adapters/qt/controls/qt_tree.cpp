#include "ferrowind/adapters/qt/controls/qt_tree.h"

#include "ferrowind/platform/values/failure.h"

namespace ferrowind::qt {

using platform::Failure;
namespace failure_number = platform::failure_number;

namespace {

std::optional<std::string> KeyOrNone(const QModelIndex& index) {
  if (!index.isValid()) return std::nullopt;
  return TreeModel::KeyOf(index);
}

}  // namespace

QtTree::QtTree(TreeView& view) : QtControl(view), view_(view) {
  view_.setModel(&model_);
  QObject::connect(&view_, &TreeView::Chosen, Context(), [this](const QModelIndex& index) {
    // A copy, since a handler may clear the tree.
    const std::string key = TreeModel::KeyOf(index);
    Raise(node_clicked_, key);
  });
  QObject::connect(&view_, &TreeView::Toggled, Context(), [this](const QModelIndex& index, bool is_expanded) {
    const std::string key = TreeModel::KeyOf(index);
    Raise(is_expanded ? expanded_ : collapsed_, key);
  });
}

QtTree::~QtTree() { view_.setModel(nullptr); }

void QtTree::Clear() { model_.Clear(); }

void QtTree::AddRoot(const platform::TreeNode& node) { Append({}, node); }

void QtTree::AddChild(const std::string& parent_key, const platform::TreeNode& node) {
  Append(NodeOf(parent_key), node);
}

std::int32_t QtTree::Count() const { return static_cast<std::int32_t>(model_.NodeCount()); }

std::string QtTree::Text(const std::string& key) const {
  return FromQt(NodeOf(key).data(Qt::DisplayRole).toString());
}

std::string QtTree::Description(const std::string& key) const {
  return FromQt(NodeOf(key).data(Qt::AccessibleDescriptionRole).toString());
}

std::optional<std::string> QtTree::Parent(const std::string& key) const {
  return KeyOrNone(NodeOf(key).parent());
}

std::optional<std::string> QtTree::First() const { return KeyOrNone(model_.index(0, 0, {})); }

std::optional<std::string> QtTree::NextSibling(const std::string& key) const {
  const QModelIndex node = NodeOf(key);
  return KeyOrNone(model_.index(node.row() + 1, 0, node.parent()));
}

bool QtTree::Expanded(const std::string& key) const { return view_.isExpanded(NodeOf(key)); }

void QtTree::SetExpanded(const std::string& key, bool expanded) {
  view_.SetNodeExpanded(NodeOf(key), expanded);
}

std::optional<std::string> QtTree::Selected() const { return KeyOrNone(view_.SelectedNode()); }

void QtTree::Select(const std::string& key) { view_.SelectNode(NodeOf(key)); }

platform::Subscription QtTree::OnNodeClick(std::function<void(const std::string&)> handler) {
  return node_clicked_.Subscribe(std::move(handler));
}

platform::Subscription QtTree::OnExpanded(std::function<void(const std::string&)> handler) {
  return expanded_.Subscribe(std::move(handler));
}

platform::Subscription QtTree::OnCollapsed(std::function<void(const std::string&)> handler) {
  return collapsed_.Subscribe(std::move(handler));
}

void QtTree::Append(const QModelIndex& parent, const platform::TreeNode& node) {
  if (model_.Append(parent, node)) return;
  throw Failure(failure_number::kKeyNotUnique, "The tree " + Name() + " has a node " + node.key + " already");
}

QModelIndex QtTree::NodeOf(const std::string& key) const {
  const QModelIndex node = model_.Find(key);
  if (!node.isValid()) {
    throw Failure(failure_number::kElementNotFound, "The tree " + Name() + " has no node " + key);
  }
  return node;
}

}  // namespace ferrowind::qt
