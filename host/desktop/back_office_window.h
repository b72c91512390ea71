#pragma once

#include <QMainWindow>

#include "ferrowind/adapters/qt/embedding/calendar_widget.h"

namespace ferrowind::host {

/// A small back-office window with the calendar control on it.
class BackOfficeWindow : public QMainWindow {
  Q_OBJECT

 public:
  /// `platform` must outlive the window. `database` is shown to the user and holds no password.
  BackOfficeWindow(const platform::Platform& platform, const QString& database);

  void OpenCalendars();

 protected:
  /// Stays open when the Calendars window refuses to close.
  void closeEvent(QCloseEvent* event) override;

 private:
  void CloseCalendars();

  qt::CalendarWidget* control_;
};

}  // namespace ferrowind::host
