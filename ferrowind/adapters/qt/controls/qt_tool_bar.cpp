#include "ferrowind/adapters/qt/controls/qt_tool_bar.h"

#include <QCursor>
#include <QEvent>

#include "ferrowind/adapters/qt/controls/caption_text.h"
#include "ferrowind/adapters/qt/controls/popup_place.h"
#include "ferrowind/adapters/qt/look/tool_looks.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::qt {

using platform::Failure;
namespace failure_number = platform::failure_number;

namespace {

QKeySequence ShortcutOf(const platform::ToolDesign& tool, const ToolLook& look) {
  if (tool.shortcut.empty()) return look.shortcut;
  return QKeySequence::fromString(ToQt(tool.shortcut), QKeySequence::PortableText);
}

void SetCaptionOf(QAction& tool, const std::string& caption) {
  tool.setText(MarkedCaption(ToQt(caption)));
  tool.setIconText(ToQt(caption));
}

void SetDescriptionOf(QAction& tool, const std::string& description) {
  // As data and not as "What's this?", for which a dialog would open a menu and a window of its own.
  tool.setData(ToQt(description));
  const QString keys = tool.shortcut().toString(QKeySequence::NativeText);
  tool.setToolTip(ToQt(description) + (keys.isEmpty() ? QString() : QStringLiteral(" (%1)").arg(keys)));
}

/// Closes a menu when the window that it was opened from is closed from elsewhere.
class ClosingWithWindow : public QObject {
 public:
  ClosingWithWindow(QMenu& menu, QWidget& window) : menu_(menu) { window.installEventFilter(this); }

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Hide && !event->spontaneous()) menu_.close();
    return QObject::eventFilter(watched, event);
  }

 private:
  QMenu& menu_;
};

}  // namespace

QtToolBar::QtToolBar(QToolBar& bar) : QtControl(bar), bar_(bar) {
  QObject::connect(&hover_, &ToolHover::Entered, Context(), [this](QAction* tool) {
    const std::string id = FromQt(tool->objectName());
    Raise(entered_, id);
  });
  QObject::connect(&hover_, &ToolHover::Left, Context(), [this](QAction* tool) {
    const std::string id = FromQt(tool->objectName());
    Raise(left_, id);
  });
}

QtToolBar::~QtToolBar() = default;

void QtToolBar::AddTool(const platform::ToolDesign& tool) {
  RequireUnusedId(tool.id);
  const ToolLook look = ToolLookOf(tool.id);
  const QKeySequence shortcut = ShortcutOf(tool, look);
  auto action = std::make_unique<QAction>();
  action->setObjectName(ToQt(tool.id));
  action->setStatusTip({});
  action->setCheckable(tool.kind == platform::ToolKind::kTwoStateButton);
  action->setIcon(look.icon);
  action->setShortcut(shortcut);
  SetCaptionOf(*action, tool.caption);
  SetDescriptionOf(*action, tool.description);
  // An action has its shortcut where it stands, and a menu of its own stands in no window.
  if (!tool.shortcut.empty() && !bar_.isWindow()) bar_.window()->addAction(action.get());
  QObject::connect(action.get(), &QAction::triggered, Context(),
                   [this, id = tool.id] { Raise(clicked_, id); });
  tools_.emplace(tool.id, std::move(action));
}

void QtToolBar::SetBar(const std::string& caption, const std::vector<std::string>& ids) {
  const std::vector<QAction*> tools = ToolsOf(ids);
  bar_.clear();
  bar_.setWindowTitle(ToQt(caption));
  bar_.setAccessibleName(ToQt(caption));
  for (QAction* tool : tools) {
    if (tool == nullptr) {
      bar_.addSeparator();
      continue;
    }
    bar_.addAction(tool);
    QWidget* button = bar_.widgetForAction(tool);
    button->setObjectName(tool->objectName());
    DescribeButton(*tool);
    // A bar's buttons are out of the keyboard's reach by default.
    button->setFocusPolicy(Qt::TabFocus);
    hover_.WatchButton(*button, *tool);
  }
}

void QtToolBar::AddPopupMenu(const std::string& id, const std::string& caption,
                             const std::vector<std::string>& ids) {
  RequireUnusedId(id);
  const std::vector<QAction*> tools = ToolsOf(ids);
  auto menu = std::make_unique<QMenu>();
  menu->setObjectName(ToQt(id));
  menu->setTitle(MarkedCaption(ToQt(caption)));
  menu->setAccessibleName(ToQt(caption));
  for (QAction* tool : tools) {
    if (tool == nullptr) {
      menu->addSeparator();
    } else {
      menu->addAction(tool);
    }
  }
  hover_.WatchMenu(*menu);
  menus_.emplace(id, std::move(menu));
}

bool QtToolBar::ToolEnabled(const std::string& id) const { return ToolOf(id).isEnabled(); }

void QtToolBar::SetToolEnabled(const std::string& id, bool enabled) { ToolOf(id).setEnabled(enabled); }

bool QtToolBar::ToolPressed(const std::string& id) const { return ToolOf(id).isChecked(); }

void QtToolBar::SetToolPressed(const std::string& id, bool pressed) { ToolOf(id).setChecked(pressed); }

std::string QtToolBar::ToolDescription(const std::string& id) const {
  return FromQt(ToolOf(id).data().toString());
}

std::string QtToolBar::ToolCaption(const std::string& id) const { return FromQt(ToolOf(id).iconText()); }

void QtToolBar::SetToolCaption(const std::string& id, const std::string& caption) {
  QAction& tool = ToolOf(id);
  SetCaptionOf(tool, caption);
  DescribeButton(tool);
}

void QtToolBar::SetToolDescription(const std::string& id, const std::string& description) {
  QAction& tool = ToolOf(id);
  SetDescriptionOf(tool, description);
  DescribeButton(tool);
}

void QtToolBar::ShowPopupMenu(const std::string& id) {
  const auto menu = menus_.find(id);
  if (menu == menus_.end()) {
    throw Failure(failure_number::kElementNotFound, "The toolbar " + Name() + " has no popup menu " + id);
  }
  const ClosingWithWindow closing(*menu->second, *bar_.window());
  menu->second->exec(PopupPlace());
}

platform::Subscription QtToolBar::OnToolClick(std::function<void(const std::string&)> handler) {
  return clicked_.Subscribe(std::move(handler));
}

platform::Subscription QtToolBar::OnToolEnter(std::function<void(const std::string&)> handler) {
  return entered_.Subscribe(std::move(handler));
}

platform::Subscription QtToolBar::OnToolLeave(std::function<void(const std::string&)> handler) {
  return left_.Subscribe(std::move(handler));
}

void QtToolBar::DescribeButton(QAction& tool) {
  QWidget* button = bar_.widgetForAction(&tool);
  if (button == nullptr) return;
  button->setAccessibleName(tool.iconText());
  button->setAccessibleDescription(tool.data().toString());
}

QAction& QtToolBar::ToolOf(const std::string& id) const {
  const auto found = tools_.find(id);
  if (found == tools_.end()) {
    throw Failure(failure_number::kElementNotFound, "The toolbar " + Name() + " has no tool " + id);
  }
  return *found->second;
}

std::vector<QAction*> QtToolBar::ToolsOf(const std::vector<std::string>& ids) const {
  std::vector<QAction*> tools;
  for (const std::string& id : ids) tools.push_back(id == platform::kToolSeparator ? nullptr : &ToolOf(id));
  return tools;
}

void QtToolBar::RequireUnusedId(const std::string& id) const {
  if (tools_.contains(id) || menus_.contains(id)) {
    throw Failure(failure_number::kKeyNotUnique, "The toolbar " + Name() + " has a tool " + id + " already");
  }
}

}  // namespace ferrowind::qt
