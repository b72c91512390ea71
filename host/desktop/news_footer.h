#pragma once

#include <QMargins>
#include <QObject>
#include <QPointer>
#include <QString>

#include "host/desktop/footer_panel.h"

namespace ferrowind::host {

/// Puts the trouble that stands, and the note of the last action, below the content of the window in which
/// the operator works, as long as that window has room for them. The windows are not the host's own and know
/// nothing of it; nothing of them is covered. Dialogs are left alone, and the window behind keeps the texts.
///
/// A trouble goes with the operator from window to window. A note stays where it was told, and goes into the
/// next window only when that one closes: elsewhere it would seem to be about something else.
class NewsFooter : public QObject {
  Q_OBJECT

 public:
  /// `own_window`, which must outlive the footer, is left alone: it tells of the news itself.
  explicit NewsFooter(QWidget& own_window);
  ~NewsFooter() override;

  /// An empty text ends the trouble, or the note.
  void TellTrouble(const QString& text);
  void TellNote(const QString& text);

  bool eventFilter(QObject* object, QEvent* event) override;

 signals:
  /// Whether a window carries the footer now.
  void Carried(bool is_carried);
  /// The operator has read the trouble.
  void Dismissed();

 private:
  void Show();
  /// Moves the panel to the active window, where that is one for it.
  void Follow();
  void Place();
  /// Gives the window its whole area back.
  void Leave();

  QWidget& own_window_;
  QString trouble_;
  QString note_;
  /// Whether the window that is active next is to have the note.
  bool is_note_new_ = false;
  /// Whether the panel shows it.
  bool has_note_ = false;
  /// Goes with the window that it is on.
  QPointer<FooterPanel> panel_;
  /// Those that the window has without the panel.
  QMargins margins_;
};

}  // namespace ferrowind::host
