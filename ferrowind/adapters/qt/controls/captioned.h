#pragma once

#include <QChar>
#include <QString>

namespace ferrowind::qt {

/// A control whose caption can carry an access key. The caption that its port gives stays without the mark.
class Captioned {
 public:
  virtual ~Captioned() = default;
  /// Whether an access key would lead anywhere.
  [[nodiscard]] virtual bool TakesMnemonic() const = 0;
  [[nodiscard]] virtual QString PlainCaption() const = 0;
  /// Kept over changes of the caption, which shows it as `MarkedCaption` does.
  virtual void SetMnemonic(QChar mnemonic) = 0;
};

}  // namespace ferrowind::qt
