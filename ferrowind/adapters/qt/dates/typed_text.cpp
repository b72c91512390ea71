#include "ferrowind/adapters/qt/dates/typed_text.h"

namespace ferrowind::qt {
namespace {

/// What a character is compared as; 0 for one that only steers the layout of the text.
char32_t PlainCharacter(char32_t character) {
  if (QChar::category(character) == QChar::Other_Format) return 0;
  if (const int digit = QChar::digitValue(character); digit >= 0) return U'0' + static_cast<char32_t>(digit);
  if (QChar::category(character) == QChar::Punctuation_Dash || character == U'\u2212') return U'-';
  if (character == U'\u2019') return U'\'';
  return character;
}

}  // namespace

QString PlainText(const QString& text, const QLocale& locale) {
  QString plain;
  for (const char32_t character : text.normalized(QString::NormalizationForm_KC).toUcs4()) {
    const char32_t compared = PlainCharacter(character);
    if (compared != 0) plain += QString::fromUcs4(&compared, 1);
  }
  // The locale first: it alone knows what the lower case of a Turkish I is.
  return locale.toLower(plain).toCaseFolded().normalized(QString::NormalizationForm_KC).simplified();
}

}  // namespace ferrowind::qt
