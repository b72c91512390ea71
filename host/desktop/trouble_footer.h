#pragma once

#include <QMargins>
#include <QObject>
#include <QPointer>
#include <QString>

#include "host/desktop/trouble_bar.h"

namespace ferrowind::host {

/// Puts the bar with the trouble that stands below the content of the window in which the operator works, as
/// long as that window has room for it. The windows are not the host's own and know nothing of it; nothing of
/// them is covered.
class TroubleFooter : public QObject {
  Q_OBJECT

 public:
  /// `own_window`, which must outlive the footer, is left alone: it tells of the trouble itself.
  explicit TroubleFooter(QWidget& own_window);
  ~TroubleFooter() override;

  /// An empty text ends the trouble.
  void Tell(const QString& text);

  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  /// Moves the bar to the active window, where that is one for it.
  void Follow();
  void Place();
  /// Gives the window its whole area back.
  void Leave();

  QWidget& own_window_;
  QString text_;
  /// Goes with the window that it is on.
  QPointer<TroubleBar> bar_;
  /// Those that the window has without the bar.
  QMargins margins_;
};

}  // namespace ferrowind::host
