#include "host/desktop/database_trouble.h"

#include <QLocale>
#include <QTime>

#include "ferrowind/adapters/services/password_free.h"

namespace ferrowind::host {

void DatabaseTrouble::DatabaseAnswered() {
  if (text_.isEmpty()) return;
  text_.clear();
  emit Changed(text_);
}

void DatabaseTrouble::DatabaseFailed(const platform::Failure& failure) {
  const QString time = QLocale().toString(QTime::currentTime(), QLocale::LongFormat);
  const QString why = QString::fromStdString(PasswordFree(failure.Description())).simplified();
  text_ =
      tr("%1: the database did not do what was asked. What is shown may be out of date.\n%2").arg(time, why);
  emit Changed(text_);
}

}  // namespace ferrowind::host
