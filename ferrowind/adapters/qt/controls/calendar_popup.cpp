#include "ferrowind/adapters/qt/controls/calendar_popup.h"

#include <QScreen>
#include <QVBoxLayout>
#include <algorithm>

namespace ferrowind::qt {

CalendarPopup::CalendarPopup(QWidget& field, const QDate& date)
    : QFrame(&field, Qt::Popup), field_(field), calendar_(*new QCalendarWidget(this)) {
  setAttribute(Qt::WA_DeleteOnClose);
  setFrameShape(QFrame::StyledPanel);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(1, 1, 1, 1);
  layout->addWidget(&calendar_);
  calendar_.setLocale(field.locale());
  calendar_.setFirstDayOfWeek(field.locale().firstDayOfWeek());
  calendar_.setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
  // Its own editor for typed dates is never freed when a window closes over it; dates are typed in the field.
  calendar_.setDateEditEnabled(false);
  calendar_.setDateRange(QDate(date.year(), 1, 1), QDate(date.year(), 12, 31));
  calendar_.setSelectedDate(date);
  connect(&calendar_, &QCalendarWidget::clicked, this, &CalendarPopup::Choose);
  connect(&calendar_, &QCalendarWidget::activated, this, &CalendarPopup::Choose);
}

void CalendarPopup::Open() {
  adjustSize();
  move(Place());
  show();
  calendar_.setFocus();
}

void CalendarPopup::Choose(const QDate& date) {
  if (!isVisible()) return;
  close();
  Q_EMIT Chosen(date);
}

QPoint CalendarPopup::Place() const {
  const QRect room = field_.screen()->availableGeometry();
  const QRect below(field_.mapToGlobal(QPoint(0, field_.height())), size());
  const bool fits_below = below.bottom() <= room.bottom();
  const int top = fits_below ? below.top() : field_.mapToGlobal(QPoint(0, 0)).y() - height();
  const int right_most = std::max(room.left(), room.right() + 1 - width());
  return {std::clamp(below.left(), room.left(), right_most), std::max(top, room.top())};
}

}  // namespace ferrowind::qt
