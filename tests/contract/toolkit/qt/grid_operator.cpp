#include "tests/contract/toolkit/qt/grid_operator.h"

#include <QAction>
#include <QApplication>
#include <QMenu>
#include <QTest>
#include <algorithm>

#include "ferrowind/adapters/qt/grid/grid_header.h"
#include "ferrowind/adapters/qt/grid/grid_model.h"
#include "ferrowind/adapters/qt/grid/grid_view.h"
#include "ferrowind/adapters/qt/grid/group_by_box.h"
#include "ferrowind/adapters/qt/grid/group_chip.h"

namespace ferrowind::contract {
namespace {

/// Drags by plain mouse events that are all sent to `source`, as they are while a button is held.
void Drag(QWidget& source, QPoint from, QPoint to) {
  QTest::mousePress(&source, Qt::LeftButton, {}, from);
  QTest::mouseMove(&source, (from + to) / 2);
  QTest::mouseMove(&source, to);
  QTest::mouseRelease(&source, Qt::LeftButton, {}, to);
}

}  // namespace

GridOperator::GridOperator(platform::Grid& grid) : grid_(dynamic_cast<qt::QtGrid&>(grid)) { QTest::qWait(0); }

void GridOperator::ClickRow(int row, Qt::MouseButton button, Qt::KeyboardModifiers modifiers) {
  const QPoint at = grid_.Widget().View().visualRect(CellOf(row, 0)).center();
  QTest::mouseClick(grid_.Widget().View().viewport(), button, modifiers, at);
}

void GridOperator::ToggleGroup(int row) {
  const QPoint at = grid_.Widget().View().visualRect(CellOf(row, 0)).center();
  QTest::mouseDClick(grid_.Widget().View().viewport(), Qt::LeftButton, {}, at);
}

void GridOperator::ClickHeader(const std::string& column_key) {
  QTest::mouseClick(grid_.Widget().View().Header().viewport(), Qt::LeftButton, {},
                    HeaderOf(ColumnOf(column_key)));
}

void GridOperator::DragHeaderToGroups(const std::string& column_key) {
  qt::GroupByBox& box = grid_.Widget().Box();
  QWidget& headers = *grid_.Widget().View().Header().viewport();
  const QPoint behind_the_others = box.mapToGlobal(box.rect().center() + QPoint(box.width() / 2 - 4, 0));
  Drag(headers, HeaderOf(ColumnOf(column_key)), headers.mapFromGlobal(behind_the_others));
}

void GridOperator::DragGroupAway(int position) {
  auto chips = grid_.Widget().Box().findChildren<qt::GroupChip*>();
  chips.removeIf([](const qt::GroupChip* chip) { return !chip->isVisible(); });
  std::sort(chips.begin(), chips.end(),
            [](const auto* left, const auto* right) { return left->x() < right->x(); });
  qt::GroupChip& chip = *chips.at(position - 1);
  const QWidget& rows = *grid_.Widget().View().viewport();
  Drag(chip, QPoint(chip.height() / 2, chip.height() / 2),
       chip.mapFromGlobal(rows.mapToGlobal(rows.rect().center())));
}

void GridOperator::ToggleGroupByBox() {
  qt::GridView& view = grid_.Widget().View();
  QTest::keyClick(&view, Qt::Key_Down, Qt::AltModifier);
  auto& menu = dynamic_cast<QMenu&>(*QApplication::activePopupWidget());
  menu.setActiveAction(menu.findChild<QAction*>(QStringLiteral("showGroupPanel")));
  QTest::keyClick(&menu, Qt::Key_Return);
}

std::string GridOperator::CellText(int row, const std::string& column_key) {
  return CellOf(row, ColumnOf(column_key)).data(Qt::DisplayRole).toString().toStdString();
}

std::string GridOperator::GroupText(int row) {
  return CellOf(row, 0).data(Qt::DisplayRole).toString().toStdString();
}

RowLook GridOperator::LookOf(int row) {
  const auto look = grid_.Widget().View().Model()->Content().LookOf(
      static_cast<grid_engine::Record>(grid_.RowBookmark(row) - 1));
  return {look.fore_color, look.is_bold, look.is_struck_through};
}

QModelIndex GridOperator::CellOf(int row, int column) const {
  return grid_.Widget().View().Model()->index(row - 1, column);
}

int GridOperator::ColumnOf(const std::string& column_key) const {
  return grid_.ColumnByKey(column_key).Index() - 1;
}

QPoint GridOperator::HeaderOf(int column) const {
  const qt::GridHeader& header = grid_.Widget().View().Header();
  return {header.sectionViewportPosition(column) + header.sectionSize(column) / 2, header.height() / 2};
}

}  // namespace ferrowind::contract
