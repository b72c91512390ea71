#include "ferrowind/adapters/qt/grid/grid_widget.h"

#include <QVBoxLayout>

#include "ferrowind/adapters/qt/grid/column_drag.h"
#include "ferrowind/adapters/qt/grid/grid_header.h"
#include "ferrowind/adapters/qt/grid/grid_view.h"
#include "ferrowind/adapters/qt/grid/group_by_box.h"

namespace ferrowind::qt {

GridWidget::GridWidget(QWidget* parent)
    : QFrame(parent),
      box_(new GroupByBox(this)),
      view_(new GridView(this)),
      drag_(new ColumnDrag(*this, view_->Header(), *box_)) {
  setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  layout->addWidget(box_);
  layout->addWidget(view_, 1);
  box_->hide();
  box_->SetDrag(drag_);
  view_->Header().SetDrag(drag_);
  setFocusProxy(view_);
  connect(box_, &GroupByBox::LeaveAsked, view_, [this] { view_->setFocus(Qt::OtherFocusReason); });
}

}  // namespace ferrowind::qt
