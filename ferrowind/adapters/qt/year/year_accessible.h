#pragma once

#include <QAccessibleInterface>
#include <QAccessibleWidget>
#include <map>

#include "ferrowind/adapters/year_engine/year_days.h"

namespace ferrowind::qt {

class YearPane;

/// A year as assistive tools see it: a table with a row for each calendar and a column for each day of the
/// year. Its children are the cells, row by row.
class YearAccessible final : public QAccessibleWidget, public QAccessibleTableInterface {
 public:
  explicit YearAccessible(YearPane& pane);
  ~YearAccessible() override;
  YearAccessible(const YearAccessible&) = delete;
  YearAccessible& operator=(const YearAccessible&) = delete;

  /// For `QAccessible::installFactory`: makes one for a year's pane, and nothing for anything else.
  static QAccessibleInterface* Make(const QString& class_name, QObject* object);
  /// The number of the day's cell among the children.
  [[nodiscard]] static int ChildOf(const year_engine::YearDays& days, const year_engine::YearPlace& place);

  void* interface_cast(QAccessible::InterfaceType type) override;
  [[nodiscard]] int childCount() const override;
  [[nodiscard]] QAccessibleInterface* child(int index) const override;
  int indexOfChild(const QAccessibleInterface* child) const override;
  [[nodiscard]] QAccessibleInterface* childAt(int x, int y) const override;
  [[nodiscard]] QAccessibleInterface* focusChild() const override;

  [[nodiscard]] int rowCount() const override;
  [[nodiscard]] int columnCount() const override;
  [[nodiscard]] QAccessibleInterface* cellAt(int row, int column) const override;
  [[nodiscard]] QAccessibleInterface* caption() const override { return nullptr; }
  [[nodiscard]] QAccessibleInterface* summary() const override { return nullptr; }
  [[nodiscard]] QString columnDescription(int column) const override;
  [[nodiscard]] QString rowDescription(int row) const override;
  [[nodiscard]] int selectedCellCount() const override;
  [[nodiscard]] QList<QAccessibleInterface*> selectedCells() const override;
  /// Days are selected one by one.
  [[nodiscard]] int selectedRowCount() const override { return 0; }
  [[nodiscard]] QList<int> selectedRows() const override { return {}; }
  [[nodiscard]] bool isRowSelected(int /*row*/) const override { return false; }
  bool selectRow(int /*row*/) override { return false; }
  bool unselectRow(int /*row*/) override { return false; }
  [[nodiscard]] int selectedColumnCount() const override { return 0; }
  [[nodiscard]] QList<int> selectedColumns() const override { return {}; }
  [[nodiscard]] bool isColumnSelected(int /*column*/) const override { return false; }
  bool selectColumn(int /*column*/) override { return false; }
  bool unselectColumn(int /*column*/) override { return false; }
  void modelChange(QAccessibleTableModelChangeEvent* event) override;

 private:
  void ForgetCells();

  YearPane& pane_;
  /// By number; made as they are asked for, and the accessibility framework's to delete.
  mutable std::map<int, QAccessible::Id> cells_;
};

}  // namespace ferrowind::qt
