#include "ferrowind/adapters/qt/controls/tree_view.h"

#include <QHelpEvent>
#include <QPainter>
#include <QResizeEvent>
#include <QScopedValueRollback>
#include <QStyledItemDelegate>
#include <utility>

#include "ferrowind/adapters/qt/look/flat_scroll_bar.h"
#include "ferrowind/adapters/qt/look/text_tip.h"

namespace ferrowind::qt {
namespace {

bool IsBelow(QModelIndex index, const QModelIndex& ancestor) {
  while (index.isValid()) {
    index = index.parent();
    if (index == ancestor) return true;
  }
  return false;
}

/// Rows with some room around their text.
class RoomyRows : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;
  [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    constexpr int kRoom = 6;
    return QStyledItemDelegate::sizeHint(option, index) + QSize(0, kRoom);
  }

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    QStyledItemDelegate::paint(painter, option, index);
    // The shades of a selection with and without the keyboard are too much alike on dark ground.
    if (!option.state.testFlag(QStyle::State_HasFocus)) return;
    constexpr int kFrame = 2;
    painter->setPen(
        QPen(option.palette.color(QPalette::Link), kFrame, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter->drawRect(option.rect.adjusted(kFrame / 2, kFrame / 2, -kFrame / 2, -kFrame / 2));
  }

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
    QStyledItemDelegate::initStyleOption(option, index);
    // The quiet selection of a tree without the keyboard is no ground for an icon drawn for the strong one.
    if (!option->state.testFlag(QStyle::State_Active)) option->icon = PlainWhenSelected(*option);
  }

 private:
  static QIcon PlainWhenSelected(const QStyleOptionViewItem& option) {
    const qreal scale = option.widget == nullptr ? 1 : option.widget->devicePixelRatioF();
    const QPixmap plain = option.icon.pixmap(option.decorationSize, scale, QIcon::Normal);
    QIcon icon;
    icon.addPixmap(plain, QIcon::Normal);
    icon.addPixmap(plain, QIcon::Selected);
    return icon;
  }
};

}  // namespace

/// Puts toggles off until the work is done: in the middle of it the base class still uses nodes that a
/// handler may have removed.
class TreeView::Work {
 public:
  explicit Work(TreeView& view) : view_(view) { ++view_.works_under_way_; }
  ~Work() {
    if (--view_.works_under_way_ == 0) view_.RaiseToggles();
  }
  Work(const Work&) = delete;
  Work& operator=(const Work&) = delete;

 private:
  TreeView& view_;
};

TreeView::TreeView(QWidget* parent) : QTreeView(parent) {
  setVerticalScrollBar(new FlatScrollBar(Qt::Vertical));
  setHorizontalScrollBar(new FlatScrollBar(Qt::Horizontal));
  setHeaderHidden(true);
  setUniformRowHeights(true);
  setItemDelegate(new RoomyRows(this));
  setSelectionMode(QAbstractItemView::SingleSelection);
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  connect(this, &QAbstractItemView::clicked, this, [this] { was_clicked_ = true; });
  connect(this, &QTreeView::expanded, this, [this](const QModelIndex& index) { NoteToggle(index, true); });
  connect(this, &QTreeView::collapsed, this, [this](const QModelIndex& index) { NoteToggle(index, false); });
}

QModelIndex TreeView::SelectedNode() const {
  const QModelIndexList selected =
      selectionModel() == nullptr ? QModelIndexList() : selectionModel()->selectedIndexes();
  return selected.isEmpty() ? QModelIndex() : selected.first();
}

void TreeView::SelectNode(const QModelIndex& index) {
  const Work work(*this);
  const QScopedValueRollback<bool> by_program(is_selected_by_program_, true);
  setCurrentIndex(index);
  // A view that is not shown does not scroll to the node, and so expands nothing, by itself.
  for (QModelIndex above = index.parent(); above.isValid(); above = above.parent()) expand(above);
}

void TreeView::SetNodeExpanded(const QModelIndex& index, bool is_expanded) {
  const Work work(*this);
  setExpanded(index, is_expanded);
}

void TreeView::showEvent(QShowEvent* event) {
  QTreeView::showEvent(event);
  // What was selected before could not be scrolled to.
  const Work work(*this);
  if (const QModelIndex selected = SelectedNode(); selected.isValid()) scrollTo(selected);
}

void TreeView::resizeEvent(QResizeEvent* event) {
  QTreeView::resizeEvent(event);
  const QModelIndex selected = SelectedNode();
  if (!selected.isValid()) return;
  // What was in sight stays there.
  const QRect place = visualRect(selected);
  if (place.top() < 0 || place.bottom() >= event->oldSize().height()) return;
  const Work work(*this);
  scrollTo(selected);
}

bool TreeView::viewportEvent(QEvent* event) {
  if (event->type() != QEvent::ToolTip) return QTreeView::viewportEvent(event);
  const auto& help = *static_cast<QHelpEvent*>(event);
  const QModelIndex node = indexAt(help.pos());
  // A node that tells more than its text does so cut or not.
  if (node.data(Qt::ToolTipRole).isValid()) return QTreeView::viewportEvent(event);
  const QRect area = visualRect(node);
  const bool is_cut = node.isValid() && sizeHintForIndex(node).width() > area.width();
  ShowTextTip(help, *viewport(), area, is_cut ? node.data(Qt::DisplayRole).toString() : QString());
  return true;
}

void TreeView::keyPressEvent(QKeyEvent* event) {
  has_moved_ = false;
  was_clicked_ = false;
  {
    const Work work(*this);
    QTreeView::keyPressEvent(event);
  }
  if (has_moved_) RaiseChosen();
}

void TreeView::mousePressEvent(QMouseEvent* event) {
  const Work work(*this);
  has_moved_ = false;
  was_clicked_ = false;
  QTreeView::mousePressEvent(event);
}

void TreeView::mouseMoveEvent(QMouseEvent* event) {
  const Work work(*this);
  QTreeView::mouseMoveEvent(event);
}

void TreeView::mouseReleaseEvent(QMouseEvent* event) {
  {
    const Work work(*this);
    QTreeView::mouseReleaseEvent(event);
  }
  if (has_moved_ || was_clicked_) RaiseChosen();
}

void TreeView::mouseDoubleClickEvent(QMouseEvent* event) {
  const Work work(*this);
  QTreeView::mouseDoubleClickEvent(event);
}

void TreeView::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) {
  QTreeView::selectionChanged(selected, deselected);
  if (is_selected_by_program_) return;
  has_moved_ = true;
  if (works_under_way_ == 0 && !selected.isEmpty()) FollowAssistiveTool();
}

void TreeView::FollowAssistiveTool() {
  // Later: whoever changed the selection is not done with it yet, and a handler may change the tree.
  QMetaObject::invokeMethod(
      this,
      [this] {
        // Keys go on from the node that is current.
        SelectNode(SelectedNode());
        RaiseChosen();
      },
      Qt::QueuedConnection);
}

QItemSelectionModel::SelectionFlags TreeView::selectionCommand(const QModelIndex& index,
                                                               const QEvent* event) const {
  // Otherwise Ctrl with a click or a key would leave nothing selected.
  if (!index.isValid() || (event != nullptr && event->type() == QEvent::MouseButtonRelease)) {
    return QItemSelectionModel::NoUpdate;
  }
  return QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows;
}

void TreeView::NoteToggle(const QModelIndex& index, bool is_expanded) {
  const Work work(*this);
  if (!is_expanded && IsBelow(SelectedNode(), index)) SelectNode(index);
  toggles_.push_back({index, is_expanded});
}

void TreeView::RaiseToggles() {
  for (const Toggle& toggle : std::exchange(toggles_, {})) {
    const QModelIndex node = toggle.node;
    if (node.isValid()) Q_EMIT Toggled(node, toggle.is_expanded);
  }
}

void TreeView::RaiseChosen() {
  has_moved_ = false;
  was_clicked_ = false;
  const QModelIndex selected = SelectedNode();
  if (selected.isValid()) Q_EMIT Chosen(selected);
}

}  // namespace ferrowind::qt
