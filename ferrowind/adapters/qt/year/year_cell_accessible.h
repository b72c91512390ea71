#pragma once

#include <QAccessibleActionInterface>
#include <QAccessibleInterface>
#include <QPointer>

#include "ferrowind/adapters/qt/year/year_pane.h"

namespace ferrowind::qt {

/// A day of a year as assistive tools see it, which can do there all that the mouse can.
class YearCellAccessible final : public QAccessibleInterface,
                                 public QAccessibleTableCellInterface,
                                 public QAccessibleActionInterface {
 public:
  YearCellAccessible(YearPane& pane, const year_engine::YearPlace& place) : pane_(&pane), place_(place) {}

  [[nodiscard]] const year_engine::YearPlace& Place() const { return place_; }

  [[nodiscard]] bool isValid() const override;
  [[nodiscard]] QObject* object() const override { return nullptr; }
  [[nodiscard]] QWindow* window() const override;
  [[nodiscard]] QString text(QAccessible::Text kind) const override;
  void setText(QAccessible::Text /*kind*/, const QString& /*text*/) override {}
  [[nodiscard]] QRect rect() const override;
  [[nodiscard]] QAccessible::Role role() const override { return QAccessible::Cell; }
  [[nodiscard]] QAccessible::State state() const override;
  [[nodiscard]] QAccessibleInterface* parent() const override;
  [[nodiscard]] QAccessibleInterface* child(int /*index*/) const override { return nullptr; }
  [[nodiscard]] QAccessibleInterface* childAt(int /*x*/, int /*y*/) const override { return nullptr; }
  [[nodiscard]] int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface* /*child*/) const override { return -1; }
  void* interface_cast(QAccessible::InterfaceType type) override;

  [[nodiscard]] int columnExtent() const override { return 1; }
  [[nodiscard]] int rowExtent() const override { return 1; }
  [[nodiscard]] QList<QAccessibleInterface*> columnHeaderCells() const override { return {}; }
  [[nodiscard]] QList<QAccessibleInterface*> rowHeaderCells() const override { return {}; }
  [[nodiscard]] int columnIndex() const override { return place_.day - 1; }
  [[nodiscard]] int rowIndex() const override { return place_.calendar; }
  [[nodiscard]] bool isSelected() const override;
  [[nodiscard]] QAccessibleInterface* table() const override { return parent(); }

  [[nodiscard]] QStringList actionNames() const override;
  void doAction(const QString& name) override;
  [[nodiscard]] QStringList keyBindingsForAction(const QString& /*name*/) const override { return {}; }

 private:
  QPointer<YearPane> pane_;
  year_engine::YearPlace place_;
};

}  // namespace ferrowind::qt
