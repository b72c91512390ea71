#include "ferrowind/adapters/qt/forms/control_maker.h"

#include <QFrame>
#include <QGroupBox>
#include <QSplitter>
#include <utility>

#include "ferrowind/adapters/qt/controls/qt_animation.h"
#include "ferrowind/adapters/qt/controls/qt_button.h"
#include "ferrowind/adapters/qt/controls/qt_date_picker.h"
#include "ferrowind/adapters/qt/controls/qt_drop_down_list.h"
#include "ferrowind/adapters/qt/controls/qt_label.h"
#include "ferrowind/adapters/qt/controls/qt_status_bar.h"
#include "ferrowind/adapters/qt/controls/qt_text_box.h"
#include "ferrowind/adapters/qt/controls/qt_text_view.h"
#include "ferrowind/adapters/qt/controls/qt_tool_bar.h"
#include "ferrowind/adapters/qt/controls/qt_tree.h"
#include "ferrowind/adapters/qt/controls/qt_up_down.h"
#include "ferrowind/adapters/qt/grid/grid_widget.h"
#include "ferrowind/adapters/qt/grid/qt_grid.h"
#include "ferrowind/adapters/qt/table/qt_table.h"
#include "ferrowind/adapters/qt/year/qt_year_view.h"

namespace ferrowind::qt {

using platform::ControlKind;

namespace {

template <typename Adapter, typename Widget>
std::unique_ptr<platform::Control> MakeOver(QWidget& widget) {
  auto* fitting = qobject_cast<Widget*>(&widget);
  if (fitting == nullptr) return nullptr;
  return std::make_unique<Adapter>(*fitting);
}

std::unique_ptr<platform::Control> MakePlain(QWidget& widget, bool is_of_kind) {
  if (!is_of_kind) return nullptr;
  return std::make_unique<QtControl<platform::Control>>(widget);
}

/// Frames and panels do nothing but hold other controls.
bool IsHolder(const QWidget& widget) {
  const QMetaObject* type = widget.metaObject();
  return type == &QWidget::staticMetaObject || type == &QFrame::staticMetaObject ||
         type == &QGroupBox::staticMetaObject;
}

}  // namespace

bool CanBeControl(const QWidget& widget) {
  // Of the labels only the plain ones: those derived from them belong to the layout, as notes and pictures.
  if (widget.metaObject() == &QLabel::staticMetaObject) return true;
  return qobject_cast<const QPushButton*>(&widget) != nullptr ||
         qobject_cast<const QLineEdit*>(&widget) != nullptr ||
         qobject_cast<const QPlainTextEdit*>(&widget) != nullptr ||
         qobject_cast<const QComboBox*>(&widget) != nullptr ||
         qobject_cast<const UpDownArrows*>(&widget) != nullptr ||
         qobject_cast<const TreeView*>(&widget) != nullptr ||
         qobject_cast<const GridWidget*>(&widget) != nullptr ||
         qobject_cast<const TableView*>(&widget) != nullptr ||
         qobject_cast<const YearWidget*>(&widget) != nullptr ||
         qobject_cast<const QToolBar*>(&widget) != nullptr ||
         qobject_cast<const QStatusBar*>(&widget) != nullptr;
}

bool CanHoldControls(const QWidget& widget) {
  return IsHolder(widget) || qobject_cast<const QSplitter*>(&widget) != nullptr;
}

std::unique_ptr<platform::Control> MakeControl(ControlKind kind, QWidget& widget) {
  switch (kind) {
    case ControlKind::kLabel:
      return MakeOver<QtLabel, QLabel>(widget);
    case ControlKind::kButton:
      return MakeOver<QtButton, QPushButton>(widget);
    case ControlKind::kTextBox:
      return MakeOver<QtTextBox, QLineEdit>(widget);
    case ControlKind::kTextView:
      return MakeOver<QtTextView, QPlainTextEdit>(widget);
    case ControlKind::kDropDownList:
      return MakeOver<QtDropDownList, QComboBox>(widget);
    case ControlKind::kDatePicker:
      return MakeOver<QtDatePicker, DateField>(widget);
    case ControlKind::kUpDown:
      return MakeOver<QtUpDown, UpDownArrows>(widget);
    case ControlKind::kFrame:
    case ControlKind::kPanel:
      return MakePlain(widget, IsHolder(widget));
    case ControlKind::kSplitter:
      return MakePlain(widget, qobject_cast<QSplitter*>(&widget) != nullptr);
    case ControlKind::kTree:
      return MakeOver<QtTree, TreeView>(widget);
    case ControlKind::kGrid:
      return MakeOver<QtGrid, GridWidget>(widget);
    case ControlKind::kTable:
      return MakeOver<QtTable, TableView>(widget);
    case ControlKind::kToolBar:
      return MakeOver<QtToolBar, QToolBar>(widget);
    case ControlKind::kStatusBar:
      return MakeOver<QtStatusBar, QStatusBar>(widget);
    case ControlKind::kAnimation:
      return MakeOver<QtAnimation, QLabel>(widget);
    case ControlKind::kYearView:
      return MakeOver<QtYearView, YearWidget>(widget);
  }
  return nullptr;
}

}  // namespace ferrowind::qt
