#pragma once

#include <QDate>
#include <QLineEdit>
#include <QPointer>
#include <memory>

#include "ferrowind/adapters/qt/controls/calendar_popup.h"
#include "ferrowind/adapters/qt/dates/date_reader.h"

namespace ferrowind::qt {

/// A field that holds a day, which the operator types as day and month (see `DateReader`), steps (Up and Down
/// by a day, Page Up and Page Down by a month, the wheel by a day) or chooses from a calendar (its icon,
/// Alt+Down, F4). The year is that of the day which the program has set.
///
/// A text that is no day stays as it was typed. Once the operator leaves the field or presses Enter it is
/// marked by a thick edge, and `RefusalChanged` tells why.
class DateField : public QLineEdit {
  Q_OBJECT

 public:
  explicit DateField(QWidget* parent = nullptr);
  ~DateField() override;

  /// The day that the text is, else the last one that the field has shown.
  [[nodiscard]] QDate Date() const;
  void SetDate(const QDate& date);
  /// A format of `QLocale::toString`.
  void SetFormat(const QString& format);
  /// Shows the day that was typed in the field's format, or marks the text; true when there is a day.
  bool TakeTyped();
  [[nodiscard]] bool IsRefused() const { return !refusal_.isEmpty(); }
  /// The calendar, null while it is closed.
  [[nodiscard]] CalendarPopup* Popup() const;

 Q_SIGNALS:
  /// Why the text is refused; empty once it no longer is, and while the field is hidden.
  void RefusalChanged(const QString& refusal);

 protected:
  void changeEvent(QEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  void NoticeTyping();
  [[nodiscard]] DateReading Typed() const;
  void StepTo(const QDate& date);
  void ShowDate(const QDate& date);
  void Refuse(const QString& refusal);
  void OpenCalendar();

  std::unique_ptr<DateReader> reader_;
  QString format_ = QStringLiteral("d MMMM");
  QDate date_ = QDate::currentDate();
  /// Whether the operator has changed the text since the field last showed a day.
  bool is_typed_ = false;
  QString refusal_;
  int wheel_angle_ = 0;
  QPointer<CalendarPopup> popup_;
};

}  // namespace ferrowind::qt
