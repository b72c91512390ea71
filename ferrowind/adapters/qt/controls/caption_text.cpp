#include "ferrowind/adapters/qt/controls/caption_text.h"

#include <algorithm>

namespace ferrowind::qt {
namespace {

/// The colon of a label stays its end.
QString WithKeyBehind(const QString& caption, QChar mnemonic) {
  const bool has_colon = caption.endsWith(QLatin1Char(':')) || caption.endsWith(QChar(u'：'));
  QString marked = caption;
  marked.insert(caption.size() - (has_colon ? 1 : 0),
                QLatin1String("(&") + mnemonic.toUpper() + QLatin1Char(')'));
  return marked;
}

}  // namespace

bool CanBeMnemonic(QChar character) {
  return character.isDigit() || (character.isLetter() && character.script() == QChar::Script_Latin);
}

bool HasForeignWords(const QString& caption) {
  return std::any_of(caption.begin(), caption.end(), [](QChar character) { return character.isLetter(); }) &&
         std::none_of(caption.begin(), caption.end(), CanBeMnemonic);
}

QString MarkedCaption(const QString& caption, QChar mnemonic) {
  const bool is_behind = !mnemonic.isNull() && HasForeignWords(caption);
  QString marked;
  for (const QChar character : caption) {
    if (!mnemonic.isNull() && character.toLower() == mnemonic.toLower()) {
      marked += QLatin1Char('&');
      mnemonic = {};
    }
    if (character == QLatin1Char('&')) marked += QLatin1Char('&');
    marked += character;
  }
  return is_behind ? WithKeyBehind(marked, mnemonic) : marked;
}

}  // namespace ferrowind::qt
