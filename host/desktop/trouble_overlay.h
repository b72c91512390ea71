#pragma once

#include <QObject>
#include <QPointer>
#include <QString>

#include "host/desktop/trouble_bar.h"

namespace ferrowind::host {

/// Lays the bar with the trouble that stands over the bottom of the window in which the operator works, as
/// long as that window has room for it. The windows themselves, which are not the host's own, know nothing
/// of it.
class TroubleOverlay : public QObject {
  Q_OBJECT

 public:
  /// `own_window`, which must outlive the overlay, is left alone: it tells of the trouble itself.
  explicit TroubleOverlay(QWidget& own_window);
  ~TroubleOverlay() override;

  /// An empty text ends the trouble.
  void Tell(const QString& text);

  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  /// Moves the bar to the active window, where that is one for it.
  void Follow();
  void Place();

  QWidget& own_window_;
  QString text_;
  /// Goes with the window that it lies over.
  QPointer<TroubleBar> bar_;
};

}  // namespace ferrowind::host
