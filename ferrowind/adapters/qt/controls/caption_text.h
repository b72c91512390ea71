#pragma once

#include <QChar>
#include <QString>

namespace ferrowind::qt {

/// Whether a keyboard has a key for it: letters of Latin alphabets and digits.
[[nodiscard]] bool CanBeMnemonic(QChar character);

/// Whether its words have no such character, as in Japanese, so that its access key must come from elsewhere.
[[nodiscard]] bool HasForeignWords(const QString& caption);

/// The caption as a widget takes it: an ampersand stands for itself, and the first character equal to
/// `mnemonic` (letter case ignored; null for none) is the widget's access key. A caption of foreign words
/// gets it behind, in brackets.
[[nodiscard]] QString MarkedCaption(const QString& caption, QChar mnemonic = {});

}  // namespace ferrowind::qt
