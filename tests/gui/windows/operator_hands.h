#pragma once

#include <QComboBox>
#include <QPushButton>
#include <QTest>
#include <QTreeView>
#include <QWidget>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "ferrowind/adapters/qt/grid/grid_view.h"

/// What an operator does with a window, by nothing but mouse and keyboard events, and what they see.
namespace ferrowind::gui {

/// The widget of that name in the window. None is an error that ends the test.
template <typename Widget>
Widget& Find(const QWidget& window, const std::string& name) {
  auto* widget = window.findChild<Widget*>(QString::fromStdString(name));
  if (widget == nullptr) throw std::runtime_error("no " + name + " in " + window.objectName().toStdString());
  return *widget;
}

/// The window of that name on show, or null.
[[nodiscard]] QWidget* WindowOnShow(const std::string& name);

/// Gives the window the focus, as the desktop does once a window above it is closed; the off-screen one has
/// no window manager for that.
void Activate(QWidget& window);
/// Gives the widget the focus with the Tab key.
void TabTo(QWidget& widget);
void Press(QWidget& widget, Qt::Key key, Qt::KeyboardModifiers modifiers = {}, int times = 1);
void Click(QWidget& widget);
void ClickButton(QWidget& window, const std::string& name);
/// Replaces the text by typing.
void TypeInto(QWidget& window, const std::string& name, const std::string& text);
/// Chooses the item of that text with the arrow keys.
void ChooseItem(QWidget& window, const std::string& name, const std::string& text);
/// Sets the day and the month of a date picker by typing over its fields.
void TypeDate(QWidget& window, const std::string& name, const QDate& date);

// Toolbar and menus

void ClickTool(QWidget& window, const std::string& id);
[[nodiscard]] bool IsToolEnabled(QWidget& window, const std::string& id);
void PickFromMenu(QWidget& menu, const std::string& id);
/// The question or message that a modal window asks: the text of a message box.
[[nodiscard]] std::string TextOfMessage(const QWidget& window);
/// Presses the button of a message box or dialog by its text without mnemonics.
void PressButton(QWidget& window, const std::string& text);

// Tree

/// Walks to the node of these texts, from the root down, with the arrow keys, opening the nodes on the way.
void WalkToNode(QTreeView& tree, const std::vector<std::string>& path);
void ClickNode(QTreeView& tree, const std::vector<std::string>& path);
/// The text of the selected node after those of the nodes above it.
[[nodiscard]] std::vector<std::string> SelectedNode(const QTreeView& tree);

// Grid

[[nodiscard]] qt::GridView& GridIn(QWidget& window);
[[nodiscard]] int RowsOf(const qt::GridView& grid);
[[nodiscard]] std::string CellText(const qt::GridView& grid, int row, const std::string& caption);
/// All texts of the column, from top to bottom.
[[nodiscard]] std::vector<std::string> ColumnTexts(const qt::GridView& grid, const std::string& caption);
/// The 0-based row of the record whose cell has that text; -1 without one.
[[nodiscard]] int RowOf(const qt::GridView& grid, const std::string& caption, const std::string& text);
[[nodiscard]] int ColumnOf(const qt::GridView& grid, const std::string& caption);
[[nodiscard]] grid_content::RowLook LookOfRow(const qt::GridView& grid, int row);
/// Makes the row current with the arrow keys; it is then on show.
void WalkToRow(qt::GridView& grid, int row);
void ClickRow(qt::GridView& grid, int row, Qt::MouseButton button = Qt::LeftButton,
              Qt::KeyboardModifiers modifiers = {});
void ClickHeader(qt::GridView& grid, const std::string& caption, Qt::KeyboardModifiers modifiers = {});
/// Drags the header of that column to the place in screen coordinates.
void DragHeader(qt::GridView& grid, const std::string& caption, const QPoint& global);
/// A right click as the desktop sends it: press, release and the request for a context menu.
void RightClickRow(qt::GridView& grid, int row);

void TurnWheel(QWidget& widget, const QPoint& at, int steps);

}  // namespace ferrowind::gui
