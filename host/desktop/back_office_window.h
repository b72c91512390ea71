#pragma once

#include <QMainWindow>

#include "ferrowind/adapters/qt/embedding/calendar_widget.h"

#include "host/desktop/trouble_bar.h"

namespace ferrowind::host {

/// A small back-office window with the calendar control on it.
class BackOfficeWindow : public QMainWindow {
  Q_OBJECT

 public:
  /// `platform` must outlive the window. `database` is shown to the user and holds no password.
  BackOfficeWindow(const platform::Platform& platform, const QString& database);

  void OpenCalendars();
  /// Shows what is wrong with the database; an empty text when nothing is.
  void TellTrouble(const QString& text);

 protected:
  /// Stays open when the Calendars window refuses to close.
  void closeEvent(QCloseEvent* event) override;

 private:
  void CloseCalendars();

  qt::CalendarWidget* control_;
  TroubleBar* trouble_;
};

}  // namespace ferrowind::host
