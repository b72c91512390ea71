#include "ferrowind/adapters/qt/controls/tool_hover.h"

#include <QFocusEvent>
#include <QMouseEvent>

namespace ferrowind::qt {
namespace {

/// The dynamic property of a button that holds its tool.
constexpr const char* kToolOfButton = "ferrowindTool";

QAction* RealTool(QAction* action) { return action == nullptr || action->isSeparator() ? nullptr : action; }

/// As against a button that has the focus again because a menu or another window was closed.
bool IsReachedByTab(QEvent& event) {
  if (event.type() != QEvent::FocusIn) return false;
  const Qt::FocusReason reason = static_cast<QFocusEvent&>(event).reason();
  return reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason;
}

}  // namespace

ToolHover::ToolHover(QObject* parent) : QObject(parent) {}

void ToolHover::WatchButton(QWidget& button, QAction& tool) {
  button.setProperty(kToolOfButton, QVariant::fromValue(&tool));
  button.installEventFilter(this);
}

void ToolHover::WatchMenu(QMenu& menu) {
  menu.installEventFilter(this);
  connect(&menu, &QMenu::hovered, this, [this](QAction* tool) { MoveTo(RealTool(tool)); });
}

bool ToolHover::eventFilter(QObject* watched, QEvent* event) {
  if (auto* menu = qobject_cast<QMenu*>(watched)) {
    FollowMenu(*menu, *event);
  } else if (auto* button = qobject_cast<QWidget*>(watched)) {
    FollowButton(*button, *event);
  }
  return QObject::eventFilter(watched, event);
}

void ToolHover::MoveTo(QAction* tool) {
  if (tool == tool_) return;
  if (QAction* left = tool_) {
    tool_ = nullptr;
    Q_EMIT Left(left);
  }
  tool_ = tool;
  if (tool != nullptr) Q_EMIT Entered(tool);
}

void ToolHover::FollowButton(QWidget& button, QEvent& event) {
  auto* tool = button.property(kToolOfButton).value<QAction*>();
  const QEvent::Type type = event.type();
  if (type == QEvent::Enter || IsReachedByTab(event)) MoveTo(tool);
  const bool is_left = type == QEvent::Leave || type == QEvent::FocusOut || type == QEvent::Hide;
  if (is_left && tool == tool_) MoveTo(nullptr);
}

void ToolHover::FollowMenu(QMenu& menu, QEvent& event) {
  // A menu does not say that the mouse is over a disabled item.
  if (event.type() == QEvent::MouseMove) {
    MoveTo(RealTool(menu.actionAt(static_cast<QMouseEvent&>(event).position().toPoint())));
  }
  if (event.type() == QEvent::Leave || event.type() == QEvent::Hide) MoveTo(nullptr);
}

}  // namespace ferrowind::qt
