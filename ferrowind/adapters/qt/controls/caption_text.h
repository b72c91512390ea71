#pragma once

#include <QChar>
#include <QString>

namespace ferrowind::qt {

/// The caption as a widget takes it: an ampersand stands for itself, and the first character equal to
/// `mnemonic` (letter case ignored; null for none) is the widget's access key.
[[nodiscard]] QString MarkedCaption(const QString& caption, QChar mnemonic = {});

}  // namespace ferrowind::qt
