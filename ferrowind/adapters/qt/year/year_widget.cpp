#include "ferrowind/adapters/qt/year/year_widget.h"

#include <QVBoxLayout>

#include "ferrowind/adapters/qt/year/year_legend.h"
#include "ferrowind/adapters/qt/year/year_pane.h"

namespace ferrowind::qt {

YearWidget::YearWidget(QWidget* parent)
    : QFrame(parent), pane_(new YearPane(this)), legend_(new YearLegend(this)) {
  setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  layout->addWidget(pane_, 1);
  layout->addWidget(legend_);
  legend_->hide();
  setFocusProxy(pane_);
}

void YearWidget::RefreshLegend() { legend_->SetEntries(pane_->Days().Content().legend); }

}  // namespace ferrowind::qt
