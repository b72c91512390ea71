#include "ferrowind/adapters/qt/controls/qt_date_picker.h"

#include <QCalendarWidget>
#include <QLocale>
#include <QSignalBlocker>
#include <array>

#include "ferrowind/adapters/qt/controls/calendar_popup_keys.h"

namespace ferrowind::qt {
namespace {

constexpr std::array kFields = {"MMMM", "yyyy", "d"};

QString FieldAt(const QString& format, qsizetype at) {
  for (const char* field : kFields) {
    if (format.mid(at).startsWith(QLatin1String(field))) return QLatin1String(field);
  }
  return {};
}

QString Quoted(QString literal) {
  if (literal.isEmpty()) return literal;
  return QLatin1Char('\'') + literal.replace(QLatin1Char('\''), QStringLiteral("''")) + QLatin1Char('\'');
}

}  // namespace

QString QtDateFormat(const QString& format) {
  QString converted;
  QString literal;
  for (qsizetype at = 0; at < format.size();) {
    const QString field = FieldAt(format, at);
    if (field.isEmpty()) {
      literal += format[at++];
      continue;
    }
    converted += Quoted(literal) + field;
    literal.clear();
    at += field.size();
  }
  return converted + Quoted(literal);
}

QtDatePicker::QtDatePicker(QDateEdit& edit)
    : QtControl(edit), edit_(edit), date_(FromQt(QDate::currentDate())) {
  edit_.setLocale(QLocale::system());
  edit_.setDateRange(QDate(100, 1, 1), QDate(9999, 12, 31));
  edit_.setCalendarPopup(true);
  new CalendarPopupKeys(edit_);
  edit_.setDate(ToQt(date_));
  QObject::connect(&edit_, &QDateEdit::dateChanged, Context(),
                   [this](const QDate& date) { date_ = FromQt(date); });
}

platform::Date QtDatePicker::Date() const { return date_; }

void QtDatePicker::SetDate(const platform::Date& date) {
  edit_.setDate(ToQt(date));
  date_ = date;
}

void QtDatePicker::SetCustomFormat(const std::string& format) {
  edit_.setDisplayFormat(QtDateFormat(ToQt(format)));
}

}  // namespace ferrowind::qt
