#pragma once

#include <QLocale>
#include <QString>

namespace ferrowind::qt {

/// The text as dates are compared: in lower case by the rules of the locale, with the digits 0 to 9 for those
/// of any script, one kind of hyphen, apostrophe and blank, single blanks between words and none around.
[[nodiscard]] QString PlainText(const QString& text, const QLocale& locale);

}  // namespace ferrowind::qt
