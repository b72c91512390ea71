#pragma once

#include <string>

#include "ferrowind/adapters/qt/grid/qt_grid.h"

#include "tests/contract/toolkit/toolkit_under_test.h"

namespace ferrowind::contract {

/// An operator at a grid that is on the screen. Rows are 1-based.
class GridOperator {
 public:
  explicit GridOperator(platform::Grid& grid);

  void ClickRow(int row, Qt::MouseButton button, Qt::KeyboardModifiers modifiers);
  void ToggleGroup(int row);
  void ClickHeader(const std::string& column_key);
  void DragHeaderToGroups(const std::string& column_key);
  void DragGroupAway(int position);
  void ToggleGroupByBox();
  [[nodiscard]] std::string CellText(int row, const std::string& column_key);
  [[nodiscard]] std::string GroupText(int row);
  [[nodiscard]] RowLook LookOf(int row);

 private:
  [[nodiscard]] QModelIndex CellOf(int row, int column) const;
  [[nodiscard]] int ColumnOf(const std::string& column_key) const;
  [[nodiscard]] QPoint HeaderOf(int column) const;

  qt::QtGrid& grid_;
};

}  // namespace ferrowind::contract
