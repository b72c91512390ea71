#pragma once

#include <QAccessibleInterface>
#include <QAccessibleWidget>
#include <QList>
#include <QString>
#include <map>
#include <utility>

namespace ferrowind::qt {

class UniformTableView;

/// A table as assistive tools see it. Qt's own would tell the headers of hidden columns, and headers
/// of rows, as showing.
///
/// Its children are numbered as Qt numbers those of a table in its events: first the headers of the columns,
/// then row by row, each row with a header in front; hidden columns count. Rows and columns count from 0.
class UniformTableAccessible final : public QAccessibleWidget, public QAccessibleTableInterface {
 public:
  explicit UniformTableAccessible(UniformTableView& view);
  ~UniformTableAccessible() override;
  UniformTableAccessible(const UniformTableAccessible&) = delete;
  UniformTableAccessible& operator=(const UniformTableAccessible&) = delete;

  /// For `QAccessible::installFactory`: makes one for a uniform table, and nothing for anything else.
  static QAccessibleInterface* Make(const QString& class_name, QObject* object);

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
  [[nodiscard]] QString rowDescription(int /*row*/) const override { return {}; }
  [[nodiscard]] int selectedCellCount() const override;
  [[nodiscard]] QList<QAccessibleInterface*> selectedCells() const override;
  [[nodiscard]] int selectedRowCount() const override;
  [[nodiscard]] QList<int> selectedRows() const override;
  [[nodiscard]] bool isRowSelected(int row) const override;
  /// Adds to a selection of several rows, and makes the row the current one otherwise.
  bool selectRow(int row) override;
  bool unselectRow(int row) override;
  /// Rows are selected as a whole.
  [[nodiscard]] int selectedColumnCount() const override { return 0; }
  [[nodiscard]] QList<int> selectedColumns() const override { return {}; }
  [[nodiscard]] bool isColumnSelected(int /*column*/) const override { return false; }
  bool selectColumn(int /*column*/) override { return false; }
  bool unselectColumn(int /*column*/) override { return false; }
  void modelChange(QAccessibleTableModelChangeEvent* event) override;

 private:
  [[nodiscard]] QAccessibleInterface* ElementAt(int row, int column) const;
  [[nodiscard]] bool HasRow(int row) const { return row >= 0 && row < rowCount(); }
  void ForgetElements();

  UniformTableView& view_;
  /// By row and column; made as they are asked for, and the accessibility framework's to delete.
  mutable std::map<std::pair<int, int>, QAccessible::Id> elements_;
};

}  // namespace ferrowind::qt
