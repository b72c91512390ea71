#pragma once

#include <QPersistentModelIndex>
#include <QTreeView>
#include <vector>

namespace ferrowind::qt {

/// A tree view of which always at most one node is selected, and which tells the operator's selections from
/// those that the program makes.
class TreeView : public QTreeView {
  Q_OBJECT

 public:
  explicit TreeView(QWidget* parent = nullptr);

  /// The selected node; not valid when none is.
  [[nodiscard]] QModelIndex SelectedNode() const;
  /// Selects without raising `Chosen`, and expands what hides the node.
  void SelectNode(const QModelIndex& index);
  void SetNodeExpanded(const QModelIndex& index, bool is_expanded);

 Q_SIGNALS:
  /// The operator clicked the node, again even, or moved the selection to it by key or by an assistive tool.
  /// Raised once the mouse button is released, so that a selection dragged over many nodes is one choice.
  void Chosen(const QModelIndex& index);
  /// A node was expanded or collapsed. Raised once the view is done with it, so that a handler may change the
  /// tree. A node that collapsed over the selected one is the selected one by then.
  void Toggled(const QModelIndex& index, bool is_expanded);

 protected:
  void showEvent(QShowEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  bool viewportEvent(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;
  [[nodiscard]] QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                                     const QEvent* event) const override;

 private:
  class Work;
  struct Toggle {
    QPersistentModelIndex node;
    bool is_expanded;
  };

  void NoteToggle(const QModelIndex& index, bool is_expanded);
  void RaiseToggles();
  void RaiseChosen();
  /// The selection was changed neither by the program nor by keys nor by the mouse.
  void FollowAssistiveTool();

  /// How many pieces of work are under way that the base class does with nodes.
  int works_under_way_ = 0;
  std::vector<Toggle> toggles_;

  bool is_selected_by_program_ = false;
  /// Since the last press of a key or mouse button.
  bool has_moved_ = false;
  bool was_clicked_ = false;
};

}  // namespace ferrowind::qt
