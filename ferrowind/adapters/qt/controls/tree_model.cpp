#include "ferrowind/adapters/qt/controls/tree_model.h"

#include <utility>

#include "ferrowind/adapters/qt/look/text_tip.h"
#include "ferrowind/adapters/qt/look/tree_images.h"
#include "ferrowind/adapters/qt/values/qt_text.h"

namespace ferrowind::qt {

struct TreeModel::Node {
  std::string key;
  QString text;
  QString description;
  const QIcon* icon = nullptr;
  Node* parent = nullptr;
  int row = 0;
  std::vector<std::unique_ptr<Node>> children = {};
};

TreeModel::TreeModel(QObject* parent) : QAbstractItemModel(parent), root_(std::make_unique<Node>()) {}

TreeModel::~TreeModel() = default;

bool TreeModel::Append(const QModelIndex& parent, const platform::TreeNode& node) {
  if (nodes_by_key_.contains(node.key)) return false;
  Node& above = NodeAt(parent);
  const int row = static_cast<int>(above.children.size());
  beginInsertRows(parent, row, row);
  auto& added = above.children.emplace_back(std::make_unique<Node>(
      Node{node.key, ToQt(node.text), ToQt(node.description), IconOf(node.image), &above, row}));
  nodes_by_key_.emplace(added->key, added.get());
  endInsertRows();
  return true;
}

void TreeModel::Clear() {
  beginResetModel();
  nodes_by_key_.clear();
  root_->children.clear();
  endResetModel();
}

QModelIndex TreeModel::Find(const std::string& key) const {
  const auto found = nodes_by_key_.find(key);
  return found == nodes_by_key_.end() ? QModelIndex() : createIndex(found->second->row, 0, found->second);
}

const std::string& TreeModel::KeyOf(const QModelIndex& index) {
  return static_cast<const Node*>(index.constInternalPointer())->key;
}

QModelIndex TreeModel::index(int row, int column, const QModelIndex& parent) const {
  const Node& above = NodeAt(parent);
  if (column != 0 || row < 0 || row >= static_cast<int>(above.children.size())) return {};
  return createIndex(row, 0, above.children[static_cast<std::size_t>(row)].get());
}

QModelIndex TreeModel::parent(const QModelIndex& child) const {
  if (!child.isValid()) return {};
  Node* above = NodeAt(child).parent;
  return above == root_.get() ? QModelIndex() : createIndex(above->row, 0, above);
}

int TreeModel::rowCount(const QModelIndex& parent) const {
  return static_cast<int>(NodeAt(parent).children.size());
}

int TreeModel::columnCount(const QModelIndex& /*parent*/) const { return 1; }

QVariant TreeModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  const Node& node = NodeAt(index);
  if (role == Qt::DisplayRole) return node.text;
  if (role == Qt::AccessibleDescriptionRole && !node.description.isEmpty()) return node.description;
  if (role == Qt::ToolTipRole && !node.description.isEmpty()) return PlainToolTip(node.description);
  if (role == Qt::DecorationRole && node.icon != nullptr) return *node.icon;
  return {};
}

const TreeModel::Node& TreeModel::NodeAt(const QModelIndex& index) const {
  return index.isValid() ? *static_cast<const Node*>(index.constInternalPointer()) : *root_;
}

TreeModel::Node& TreeModel::NodeAt(const QModelIndex& index) {
  return const_cast<Node&>(std::as_const(*this).NodeAt(index));
}

const QIcon* TreeModel::IconOf(const std::string& image) {
  const auto known = icons_.find(image);
  const QIcon& icon =
      known != icons_.end() ? known->second : icons_.emplace(image, TreeImage(image)).first->second;
  return icon.isNull() ? nullptr : &icon;
}

}  // namespace ferrowind::qt
