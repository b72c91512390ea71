#pragma once

#include <QWidget>
#include <memory>

#include "ferrowind/control/calendar.h"
#include "ferrowind/export.h"
#include "ferrowind/platform/events/signal.h"
#include "ferrowind/platform/platform.h"
#include "ferrowind/platform/toolkit/control_site.h"

/// The surroundings of the control in Qt, and the control as a widget.
namespace ferrowind::qt {

/// The control as a widget that a host places on one of its windows, where it shows a small calendar of 16 by
/// 16 pixels. Destroying it closes the Calendars window.
class FERROWIND_EXPORT CalendarWidget : public QWidget, private platform::ControlSite {
  Q_OBJECT

 public:
  /// As the forms of Qt Designer make it: it has no control before `SetPlatform`.
  explicit CalendarWidget(QWidget* parent = nullptr);
  /// `platform` must outlive the widget.
  explicit CalendarWidget(const platform::Platform& platform, QWidget* parent = nullptr);
  /// A temporary would be gone before the widget's first use of it.
  explicit CalendarWidget(const platform::Platform&& platform, QWidget* parent = nullptr) = delete;
  ~CalendarWidget() override;

  /// Gives a widget without a control its control. `platform` must outlive the widget. A widget that has one
  /// keeps it, and this is the failure Invalid argument.
  void SetPlatform(const platform::Platform& platform);
  void SetPlatform(const platform::Platform&& platform) = delete;

  /// The component's public interface; without a control the failure 91.
  [[nodiscard]] Calendar& Control() const;

  /// The size of the mark that stands for the control on the host's window.
  [[nodiscard]] QSize sizeHint() const override;

 public Q_SLOTS:
  /// As `Control().Show()`; but a Calendars window that is open comes back from the task bar and to the
  /// front, with the keyboard. Without a control nothing is opened, and Qt's log says so.
  void ShowInFront();

 private:
  class WidgetsCalendar;

  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void SetSize(float width, float height) override;
  [[nodiscard]] platform::Subscription OnResize(std::function<void()> handler) override;

  platform::Signal<> resized_;
  std::unique_ptr<WidgetsCalendar> calendar_;
};

}  // namespace ferrowind::qt
