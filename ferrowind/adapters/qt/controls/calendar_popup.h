#pragma once

#include <QCalendarWidget>
#include <QDate>
#include <QFrame>

namespace ferrowind::qt {

/// The calendar of one year, open below a field until a day is chosen, Esc is pressed or the operator clicks
/// elsewhere; it then deletes itself.
class CalendarPopup : public QFrame {
  Q_OBJECT

 public:
  /// Shows the year of `date` with that day selected, in the language of `field`.
  CalendarPopup(QWidget& field, const QDate& date);
  void Open();

 Q_SIGNALS:
  void Chosen(const QDate& date);

 private:
  void Choose(const QDate& date);
  [[nodiscard]] QPoint Place() const;

  QWidget& field_;
  QCalendarWidget& calendar_;
};

}  // namespace ferrowind::qt
