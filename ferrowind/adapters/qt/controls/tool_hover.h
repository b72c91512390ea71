#pragma once

#include <QAction>
#include <QEvent>
#include <QMenu>
#include <QObject>
#include <QPointer>
#include <QWidget>

namespace ferrowind::qt {

/// Follows the tool under the mouse, or under the keyboard's selection in a menu, whether it is enabled or
/// not.
class ToolHover : public QObject {
  Q_OBJECT

 public:
  explicit ToolHover(QObject* parent = nullptr);

  /// Watches the button of `tool` on a bar.
  void WatchButton(QWidget& button, QAction& tool);
  void WatchMenu(QMenu& menu);

 Q_SIGNALS:
  /// Always in pairs, one tool after the other.
  void Entered(QAction* tool);
  void Left(QAction* tool);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void MoveTo(QAction* tool);
  void FollowButton(QWidget& button, QEvent& event);
  void FollowMenu(QMenu& menu, QEvent& event);

  QPointer<QAction> tool_;
};

}  // namespace ferrowind::qt
