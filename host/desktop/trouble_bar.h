#pragma once

#include <QFrame>
#include <QString>

#include "host/desktop/scrolled_text.h"

namespace ferrowind::host {

/// A bar that warns in a few lines; more of them scroll. It never takes the keyboard by itself, and hides
/// until there is a text for it. Shift+Esc, or its button, dismisses it.
class TroubleBar : public QFrame {
  Q_OBJECT

 public:
  explicit TroubleBar(QWidget* parent = nullptr);

  /// Shows the text, as it is and never as markup, and hides for an empty one.
  void Tell(const QString& text);
  /// The most that the bar may take of the height of its window, in pixels.
  void SetMostHeight(int height);

 signals:
  /// The operator has read it. The bar stays until it is told otherwise.
  void Dismissed();

 protected:
  void changeEvent(QEvent* event) override;

 private:
  void FollowTheme();

  ScrolledText* text_;
};

}  // namespace ferrowind::host
