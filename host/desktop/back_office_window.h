#pragma once

#include <QMainWindow>
#include <functional>

#include "ferrowind/adapters/qt/embedding/calendar_widget.h"

#include "host/desktop/trouble_bar.h"

namespace ferrowind::host {

/// A small back-office window with the calendar control on it.
class BackOfficeWindow : public QMainWindow {
  Q_OBJECT

 public:
  /// `platform` must outlive the window. `database` is what people call the database, `url` its address
  /// without a password; the operator is shown both.
  BackOfficeWindow(const platform::Platform& platform, const QString& database, const QString& url);
  /// Closes the Calendars window.
  ~BackOfficeWindow() override;

  /// Where a host puts its start page, for which the window keeps its room; empty at first.
  [[nodiscard]] QWidget& PlaceOfStartPage() { return *start_page_; }
  /// `may_close` is asked before the window closes, and keeps it open by a false.
  void AskBeforeClosing(std::function<bool()> may_close) { may_close_ = std::move(may_close); }

  void OpenCalendars();
  /// Shows what is wrong with the database; an empty text when nothing is.
  void TellTrouble(const QString& text);
  /// Shows in the status line what was done last.
  void TellNote(const QString& text);
  /// While another window tells of the trouble, this one keeps silent, so that it is told once.
  void SetTroubleToldElsewhere(bool is_elsewhere);

 signals:
  /// The operator has read the trouble.
  void TroubleDismissed();
  /// The operator has come to this window.
  void Activated();

 protected:
  /// Stays open when the Calendars window, or what is asked before closing, refuses.
  void closeEvent(QCloseEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void CloseCalendars();
  void ShowTrouble();

  qt::CalendarWidget* control_;
  TroubleBar* trouble_;
  QWidget* start_page_;
  std::function<bool()> may_close_;
  QString trouble_text_;
  bool is_told_elsewhere_ = false;
};

}  // namespace ferrowind::host
