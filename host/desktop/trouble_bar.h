#pragma once

#include <QFrame>
#include <QLabel>
#include <QString>

namespace ferrowind::host {

/// A bar that warns in a few lines. It never takes the keyboard, and hides until there is a text for it.
class TroubleBar : public QFrame {
  Q_OBJECT

 public:
  explicit TroubleBar(QWidget* parent = nullptr);

  /// Shows the text, as it is and never as markup, and hides for an empty one.
  void Tell(const QString& text);

 signals:
  /// The operator has read it and wants to see what is below.
  void Dismissed();

 protected:
  void changeEvent(QEvent* event) override;

 private:
  void FollowTheme();

  QLabel* text_;
};

}  // namespace ferrowind::host
