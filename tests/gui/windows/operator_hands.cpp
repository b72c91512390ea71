#include "tests/gui/windows/operator_hands.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QToolButton>
#include <QWheelEvent>
#include <algorithm>
#include <stdexcept>

#include "ferrowind/adapters/qt/controls/date_field.h"
#include "ferrowind/adapters/qt/grid/grid_header.h"
#include "ferrowind/adapters/qt/grid/grid_widget.h"

#include "tests/support/click_in_menu.h"

namespace ferrowind::gui {
namespace {

constexpr int kWheelStep = 120;

QModelIndex ChildOf(const QTreeView& tree, const QModelIndex& parent, const std::string& text) {
  const QAbstractItemModel& nodes = *tree.model();
  for (int row = 0; row < nodes.rowCount(parent); ++row) {
    const QModelIndex child = nodes.index(row, 0, parent);
    if (child.data().toString().toStdString() == text) return child;
  }
  throw std::runtime_error("no node " + text);
}

std::string WithoutMnemonic(QString text) { return text.remove(QLatin1Char('&')).toStdString(); }

}  // namespace

QWidget* WindowOnShow(const std::string& name) {
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (window->isVisible() && window->objectName().toStdString() == name) return window;
  }
  return nullptr;
}

void Activate(QWidget& window) {
  if (QApplication::activeWindow() == &window) return;
  window.activateWindow();
  EXPECT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() == &window; }))
      << window.objectName().toStdString();
}

void TabTo(QWidget& widget) {
  constexpr int kMostStops = 60;
  Activate(*widget.window());
  for (int stops = 0; !widget.hasFocus() && stops < kMostStops; ++stops) {
    QWidget* focused = QApplication::focusWidget();
    QTest::keyClick(focused != nullptr ? focused : widget.window(), Qt::Key_Tab);
  }
  EXPECT_TRUE(widget.hasFocus()) << widget.objectName().toStdString()
                                 << " cannot be reached with the Tab key";
}

void Press(QWidget& widget, Qt::Key key, Qt::KeyboardModifiers modifiers, int times) {
  for (int i = 0; i < times; ++i) QTest::keyClick(&widget, key, modifiers);
}

void Click(QWidget& widget) { QTest::mouseClick(&widget, Qt::LeftButton); }

void ClickButton(QWidget& window, const std::string& name) { Click(Find<QPushButton>(window, name)); }

void TypeInto(QWidget& window, const std::string& name, const std::string& text) {
  auto& line = Find<QLineEdit>(window, name);
  Click(line);
  QTest::keySequence(&line, QKeySequence::SelectAll);
  Press(line, Qt::Key_Delete);
  QTest::keyClicks(&line, QString::fromStdString(text));
}

void ChooseItem(QWidget& window, const std::string& name, const std::string& text) {
  auto& box = Find<QComboBox>(window, name);
  TabTo(box);
  Press(box, Qt::Key_Home);
  for (int i = 0; i < box.count() && box.currentText().toStdString() != text; ++i) Press(box, Qt::Key_Down);
  EXPECT_EQ(box.currentText().toStdString(), text);
}

void TypeDate(QWidget& window, const std::string& name, const QDate& date) {
  auto& field = Find<qt::DateField>(window, name);
  TabTo(field);
  QTest::keyClicks(&field, field.locale().toString(date, QStringLiteral("d MMMM")));
}

// Toolbar and menus

void ClickTool(QWidget& window, const std::string& id) {
  auto& button = Find<QToolButton>(window, id);
  ASSERT_TRUE(button.isVisible()) << id;
  Click(button);
}

bool IsToolEnabled(QWidget& window, const std::string& id) {
  return Find<QToolButton>(window, id).isEnabled();
}

void PickFromMenu(QWidget& menu, const std::string& id) {
  auto& actions = dynamic_cast<QMenu&>(menu);
  for (QAction* action : actions.actions()) {
    if (action->objectName().toStdString() != id) continue;
    testing::ClickInMenu(actions, *action);
    return;
  }
  ADD_FAILURE() << "no " << id << " in the menu";
  menu.close();
}

std::string TextOfMessage(const QWidget& window) {
  const auto* box = qobject_cast<const QMessageBox*>(&window);
  if (box != nullptr) return box->text().toStdString();
  return Find<QLabel>(window, "lblMessage").text().toStdString();
}

void PressButton(QWidget& window, const std::string& text) {
  for (auto* button : window.findChildren<QPushButton*>()) {
    if (WithoutMnemonic(button->text()) == text && button->isVisible()) return Click(*button);
  }
  ADD_FAILURE() << "no button " << text << " in " << window.objectName().toStdString();
}

// Tree

void WalkToNode(QTreeView& tree, const std::vector<std::string>& path) {
  TabTo(tree);
  Press(tree, Qt::Key_Home);
  QModelIndex node;
  for (std::size_t level = 0; level < path.size(); ++level) {
    node = ChildOf(tree, node, path[level]);
    for (int steps = 0; tree.currentIndex() != node && steps < 1000; ++steps) Press(tree, Qt::Key_Down);
    ASSERT_EQ(tree.currentIndex(), node) << path[level];
    if (level + 1 < path.size() && !tree.isExpanded(node)) Press(tree, Qt::Key_Right);
  }
}

void ClickNode(QTreeView& tree, const std::vector<std::string>& path) {
  QModelIndex node;
  for (const std::string& text : path) {
    if (node.isValid() && !tree.isExpanded(node)) {
      const QRect area = tree.visualRect(node);
      QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, QPoint(area.left() - 8, area.center().y()));
    }
    node = ChildOf(tree, node, text);
  }
  ASSERT_TRUE(tree.viewport()->rect().contains(tree.visualRect(node).center())) << path.back();
  QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, tree.visualRect(node).center());
}

std::vector<std::string> SelectedNode(const QTreeView& tree) {
  std::vector<std::string> path;
  const QModelIndexList selected = tree.selectionModel()->selectedIndexes();
  if (selected.isEmpty()) return path;
  for (QModelIndex node = selected.first(); node.isValid(); node = node.parent()) {
    path.insert(path.begin(), node.data().toString().toStdString());
  }
  return path;
}

// Grid

qt::GridView& GridIn(QWidget& window) {
  auto* grid = window.findChild<qt::GridWidget*>();
  if (grid == nullptr) throw std::runtime_error("no grid in " + window.objectName().toStdString());
  return grid->View();
}

int RowsOf(const qt::GridView& grid) { return grid.Model()->rowCount(); }

int ColumnOf(const qt::GridView& grid, const std::string& caption) {
  for (int column = 0; column < grid.Model()->columnCount(); ++column) {
    const QVariant header = grid.Model()->headerData(column, Qt::Horizontal, Qt::DisplayRole);
    if (header.toString().toStdString() == caption) return column;
  }
  throw std::runtime_error("no column " + caption);
}

std::string CellText(const qt::GridView& grid, int row, const std::string& caption) {
  return grid.Model()->index(row, ColumnOf(grid, caption)).data(Qt::DisplayRole).toString().toStdString();
}

std::vector<std::string> ColumnTexts(const qt::GridView& grid, const std::string& caption) {
  std::vector<std::string> texts;
  for (int row = 0; row < RowsOf(grid); ++row) texts.push_back(CellText(grid, row, caption));
  return texts;
}

int RowOf(const qt::GridView& grid, const std::string& caption, const std::string& text) {
  const auto texts = ColumnTexts(grid, caption);
  const auto found = std::find(texts.begin(), texts.end(), text);
  return found == texts.end() ? -1 : static_cast<int>(found - texts.begin());
}

grid_content::RowLook LookOfRow(const qt::GridView& grid, int row) {
  const qt::GridContent& content = grid.Model()->Content();
  const auto record = content.RecordInRow(static_cast<std::uint32_t>(row));
  return record ? content.LookOf(*record) : grid_content::RowLook{};
}

void WalkToRow(qt::GridView& grid, int row) {
  TabTo(grid);
  const bool is_from_end = row > RowsOf(grid) / 2;
  Press(grid, is_from_end ? Qt::Key_End : Qt::Key_Home, Qt::ControlModifier);
  const int away = row - grid.currentIndex().row();
  Press(grid, away > 0 ? Qt::Key_Down : Qt::Key_Up, {}, std::abs(away));
  ASSERT_EQ(grid.currentIndex().row(), row);
}

void ClickRow(qt::GridView& grid, int row, Qt::MouseButton button, Qt::KeyboardModifiers modifiers) {
  // The grid may be scrolled sideways: any cell of the row will do.
  constexpr int kNearTheLeft = 20;
  const QModelIndex cell = grid.Model()->index(row, grid.Header().FirstVisibleColumn());
  const QPoint place(kNearTheLeft, grid.visualRect(cell).center().y());
  ASSERT_TRUE(grid.viewport()->rect().contains(place)) << "row " << row;
  QTest::mouseClick(grid.viewport(), button, modifiers, place);
}

void ClickHeader(qt::GridView& grid, const std::string& caption, Qt::KeyboardModifiers modifiers) {
  const int column = ColumnOf(grid, caption);
  const QPoint middle(grid.Header().sectionViewportPosition(column) + grid.Header().sectionSize(column) / 2,
                      grid.Header().height() / 2);
  QTest::mouseClick(grid.Header().viewport(), Qt::LeftButton, modifiers, middle);
}

void DragHeader(qt::GridView& grid, const std::string& caption, const QPoint& global) {
  QWidget* header = grid.Header().viewport();
  const int column = ColumnOf(grid, caption);
  const QPoint from(grid.Header().sectionViewportPosition(column) + grid.Header().sectionSize(column) / 2,
                    header->height() / 2);
  const QPoint to = header->mapFromGlobal(global);
  QTest::mousePress(header, Qt::LeftButton, {}, from);
  QTest::mouseMove(header, (from + to) / 2);
  QTest::mouseMove(header, to);
  QTest::mouseRelease(header, Qt::LeftButton, {}, to);
}

void RightClickRow(qt::GridView& grid, int row) { ClickRow(grid, row, Qt::RightButton); }

void TurnWheel(QWidget& widget, const QPoint& at, int steps) {
  QWheelEvent event(at, widget.mapToGlobal(at), {}, {0, steps * kWheelStep}, Qt::NoButton, Qt::NoModifier,
                    Qt::NoScrollPhase, false);
  QApplication::sendEvent(&widget, &event);
}

}  // namespace ferrowind::gui
