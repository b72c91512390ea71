#pragma once

#include <QAccessibleInterface>
#include <QPointer>

#include "ferrowind/adapters/qt/grid/uniform_table_view.h"

namespace ferrowind::qt {

/// A cell or a header of a table as assistive tools see it. It tells what stands at its place now.
class TableElementAccessible final : public QAccessibleInterface, public QAccessibleTableCellInterface {
 public:
  static constexpr int kHeader = -1;

  /// Rows and columns count from 0; `kHeader` for the headers of columns and of rows.
  TableElementAccessible(UniformTableView& view, int row, int column)
      : view_(&view), row_(row), column_(column) {}

  [[nodiscard]] int Row() const { return row_; }
  [[nodiscard]] int Column() const { return column_; }

  [[nodiscard]] bool isValid() const override;
  [[nodiscard]] QObject* object() const override { return nullptr; }
  [[nodiscard]] QWindow* window() const override;
  [[nodiscard]] QString text(QAccessible::Text kind) const override;
  void setText(QAccessible::Text /*kind*/, const QString& /*text*/) override {}
  [[nodiscard]] QRect rect() const override;
  [[nodiscard]] QAccessible::Role role() const override;
  [[nodiscard]] QAccessible::State state() const override;
  [[nodiscard]] QAccessibleInterface* parent() const override;
  [[nodiscard]] QAccessibleInterface* child(int /*index*/) const override { return nullptr; }
  [[nodiscard]] QAccessibleInterface* childAt(int /*x*/, int /*y*/) const override { return nullptr; }
  [[nodiscard]] int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface* /*child*/) const override { return -1; }
  void* interface_cast(QAccessible::InterfaceType type) override;

  // Of a cell
  [[nodiscard]] int columnExtent() const override { return 1; }
  [[nodiscard]] int rowExtent() const override { return 1; }
  [[nodiscard]] QList<QAccessibleInterface*> columnHeaderCells() const override;
  [[nodiscard]] QList<QAccessibleInterface*> rowHeaderCells() const override { return {}; }
  [[nodiscard]] int columnIndex() const override { return column_; }
  [[nodiscard]] int rowIndex() const override { return row_; }
  [[nodiscard]] bool isSelected() const override;
  [[nodiscard]] QAccessibleInterface* table() const override { return parent(); }

 private:
  [[nodiscard]] bool IsCell() const { return row_ != kHeader && column_ != kHeader; }
  [[nodiscard]] bool IsColumnHeader() const { return row_ == kHeader && column_ != kHeader; }
  [[nodiscard]] QModelIndex Index() const { return view_->model()->index(row_, column_); }
  [[nodiscard]] QAccessible::State StateOfCell() const;

  QPointer<UniformTableView> view_;
  int row_;
  int column_;
};

}  // namespace ferrowind::qt
