#include "ferrowind/adapters/qt/embedding/calendar_widget.h"

#include <QApplication>
#include <QPainter>
#include <QPointer>
#include <utility>

#include "ferrowind/adapters/qt/controls/element.h"
#include "ferrowind/adapters/qt/look/tree_images.h"
#include "ferrowind/adapters/qt/values/translated.h"
#include "ferrowind/adapters/qt/values/twips.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::qt {
namespace {

constexpr int kSide = 16;
constexpr const char* kNoPlatform = "The calendar widget was given no platform";

/// The window of the form of that name that is none of those; null without one.
QWidget* WindowOfForm(const QString& form_name, const QWidgetList& but_none_of) {
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (window->objectName() == form_name && !but_none_of.contains(window)) return window;
  }
  return nullptr;
}

}  // namespace

/// Remembers which window is its Calendars window, of which there may be one for each control.
class CalendarWidget::WidgetsCalendar : public Calendar {
 public:
  using Calendar::Calendar;

  [[nodiscard]] QWidget* Window() const { return window_; }

 protected:
  [[nodiscard]] std::shared_ptr<CalendarsWindow> CreateCalendarsWindow() override {
    const QWidgetList before = QApplication::topLevelWidgets();
    auto created = Calendar::CreateCalendarsWindow();
    window_ = WindowOfForm(QStringLiteral("fmCalendar"), before);
    return created;
  }

 private:
  QPointer<QWidget> window_;
};

CalendarWidget::CalendarWidget(QWidget* parent) : QWidget(parent) {
  setAccessibleName(Translated("Ferrowind calendar"));
  setAccessibleDescription(Translated("Holiday calendars of currencies"));
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  resize(kSide, kSide);
}

CalendarWidget::CalendarWidget(const platform::Platform& platform, QWidget* parent) : CalendarWidget(parent) {
  SetPlatform(platform);
}

CalendarWidget::~CalendarWidget() = default;

void CalendarWidget::SetPlatform(const platform::Platform& platform) {
  if (calendar_) throw platform::InvalidArgument();
  calendar_ = std::make_unique<WidgetsCalendar>(platform, static_cast<platform::ControlSite*>(this));
}

Calendar& CalendarWidget::Control() const {
  if (!calendar_) throw platform::Failure(platform::failure_number::kObjectNotSet, kNoPlatform);
  return *calendar_;
}

void CalendarWidget::ShowInFront() {
  if (!calendar_) {
    qWarning("%s", kNoPlatform);
    return;
  }
  // A host may destroy the widget from what it is told meanwhile.
  const QPointer<CalendarWidget> self(this);
  calendar_->Show();
  if (!self) return;
  QWidget* window = calendar_->Window();
  if (window == nullptr || !window->isVisible()) return;
  window->setWindowState(window->windowState() & ~Qt::WindowMinimized);
  window->raise();
  window->activateWindow();
}

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
