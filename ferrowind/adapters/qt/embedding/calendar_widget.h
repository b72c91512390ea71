#pragma once

#include <QWidget>
#include <memory>

#include "ferrowind/control/calendar.h"
#include "ferrowind/platform/events/signal.h"
#include "ferrowind/platform/platform.h"
#include "ferrowind/platform/toolkit/control_site.h"

namespace ferrowind::qt {

/// The control as a widget that a host places on one of its windows, where it shows a small calendar of 16 by
/// 16 pixels. Destroying it closes the Calendars window.
class CalendarWidget : public QWidget, private platform::ControlSite {
  Q_OBJECT

 public:
  /// `platform` must outlive the widget.
  explicit CalendarWidget(const platform::Platform& platform, QWidget* parent = nullptr);
  /// A temporary would be gone before the widget's first use of it.
  explicit CalendarWidget(const platform::Platform&& platform, QWidget* parent = nullptr) = delete;
  ~CalendarWidget() override;

  /// The component's public interface.
  [[nodiscard]] Calendar& Control() const;
  /// As `Control().Show()`; but a Calendars window that is open comes back from the task bar and to the
  /// front, with the keyboard.
  void ShowInFront();

  [[nodiscard]] QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  class WidgetsCalendar;

  void SetSize(float width, float height) override;
  [[nodiscard]] platform::Subscription OnResize(std::function<void()> handler) override;

  platform::Signal<> resized_;
  std::unique_ptr<WidgetsCalendar> calendar_;
};

}  // namespace ferrowind::qt
