#include "ferrowind/adapters/qt/embedding/calendar_widget.h"

#include <QPainter>
#include <utility>

#include "ferrowind/adapters/qt/controls/element.h"
#include "ferrowind/adapters/qt/look/tree_images.h"
#include "ferrowind/adapters/qt/values/twips.h"

namespace ferrowind::qt {
namespace {

constexpr int kSide = 16;

}  // namespace

CalendarWidget::CalendarWidget(const platform::Platform& platform, QWidget* parent) : QWidget(parent) {
  setAccessibleName(QStringLiteral("Ferrowind calendar"));
  setAccessibleDescription(QStringLiteral("Holiday calendars of currencies"));
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  resize(kSide, kSide);
  calendar_ = std::make_unique<Calendar>(platform, static_cast<platform::ControlSite*>(this));
}

CalendarWidget::~CalendarWidget() = default;

QSize CalendarWidget::sizeHint() const { return {kSide, kSide}; }

void CalendarWidget::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  TreeImage("Calendar")
      .paint(&painter, rect(), Qt::AlignCenter, isEnabled() ? QIcon::Normal : QIcon::Disabled);
}

void CalendarWidget::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  RunGuarded("Calendar", [this] { resized_.Emit(); });
}

void CalendarWidget::SetSize(float width, float height) { resize(PixelsX(width), PixelsY(height)); }

platform::Subscription CalendarWidget::OnResize(std::function<void()> handler) {
  return resized_.Subscribe(std::move(handler));
}

}  // namespace ferrowind::qt
