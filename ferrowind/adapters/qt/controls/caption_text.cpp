#include "ferrowind/adapters/qt/controls/caption_text.h"

namespace ferrowind::qt {

QString MarkedCaption(const QString& caption, QChar mnemonic) {
  QString marked;
  for (const QChar character : caption) {
    if (!mnemonic.isNull() && character.toLower() == mnemonic.toLower()) {
      marked += QLatin1Char('&');
      mnemonic = {};
    }
    if (character == QLatin1Char('&')) marked += QLatin1Char('&');
    marked += character;
  }
  return marked;
}

}  // namespace ferrowind::qt
