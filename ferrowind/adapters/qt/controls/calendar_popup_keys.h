#pragma once

#include <QDateEdit>
#include <QObject>

namespace ferrowind::qt {

/// Opens the calendar of a date edit by Alt+Down and F4, the keys that open drop-down lists; Qt opens it by
/// the mouse alone. Lives as long as the edit.
class CalendarPopupKeys : public QObject {
 public:
  /// The edit has its calendar popup enabled.
  explicit CalendarPopupKeys(QDateEdit& edit);
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void OpenCalendar();

  QDateEdit& edit_;
};

}  // namespace ferrowind::qt
