#include "ferrowind/adapters/qt/controls/qt_date_picker.h"

#include <QLocale>
#include <array>

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

QtDatePicker::QtDatePicker(DateField& field) : QtControl(field), field_(field) {
  field_.setLocale(QLocale::system());
}

void QtDatePicker::SetCustomFormat(const std::string& format) {
  field_.SetFormat(QtDateFormat(ToQt(format)));
}

bool QtDatePicker::RequireDate() {
  if (field_.TakeTyped()) return true;
  SetFocus();
  return false;
}

}  // namespace ferrowind::qt
