#pragma once

#include <QAbstractItemModel>
#include <QIcon>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "ferrowind/platform/toolkit/tree.h"

namespace ferrowind::qt {

/// The nodes of a tree, each found by its key in constant time.
class TreeModel : public QAbstractItemModel {
  Q_OBJECT

 public:
  explicit TreeModel(QObject* parent = nullptr);
  ~TreeModel() override;

  /// Appends a node below `parent`, or a root node when that is not valid; false when the key is in use.
  bool Append(const QModelIndex& parent, const platform::TreeNode& node);
  void Clear();

  [[nodiscard]] std::size_t NodeCount() const { return nodes_by_key_.size(); }
  /// Not valid when there is no such node.
  [[nodiscard]] QModelIndex Find(const std::string& key) const;
  /// Precondition: `index` is valid.
  [[nodiscard]] static const std::string& KeyOf(const QModelIndex& index);

  [[nodiscard]] QModelIndex index(int row, int column, const QModelIndex& parent) const override;
  [[nodiscard]] QModelIndex parent(const QModelIndex& child) const override;
  [[nodiscard]] int rowCount(const QModelIndex& parent) const override;
  [[nodiscard]] int columnCount(const QModelIndex& parent) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;

 private:
  struct Node;

  [[nodiscard]] const Node& NodeAt(const QModelIndex& index) const;
  [[nodiscard]] Node& NodeAt(const QModelIndex& index);
  [[nodiscard]] const QIcon* IconOf(const std::string& image);

  std::unique_ptr<Node> root_;
  /// The keys are those that the nodes hold.
  std::unordered_map<std::string_view, Node*> nodes_by_key_;
  std::unordered_map<std::string, QIcon> icons_;
};

}  // namespace ferrowind::qt
