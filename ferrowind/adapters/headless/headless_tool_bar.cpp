#include "ferrowind/adapters/headless/headless_tool_bar.h"

#include <algorithm>

#include "ferrowind/platform/values/failure.h"

namespace ferrowind::headless {

using platform::Failure;
namespace failure_number = platform::failure_number;

void HeadlessToolBar::AddTool(const platform::ToolDesign& tool) {
  core_.Record("AddTool", {tool.id, tool.caption});
  RequireUnusedId(tool.id);
  tools_.emplace(tool.id, Tool{tool, true, false});
}

void HeadlessToolBar::SetBar(const std::string& caption, const std::vector<std::string>& ids) {
  core_.Log().Record(Name() + ".SetBar(" + ArgumentText(caption) + ", " + ArgumentText(ids) + ")");
  RequireTools(ids);
  bar_ = {caption, ids};
}

void HeadlessToolBar::AddPopupMenu(const std::string& id, const std::string& caption,
                                   const std::vector<std::string>& ids) {
  core_.Log().Record(Name() + ".AddPopupMenu(" + ArgumentText(id) + ", " + ArgumentText(caption) + ", " +
                     ArgumentText(ids) + ")");
  RequireUnusedId(id);
  RequireTools(ids);
  menus_.emplace(id, Menu{caption, ids});
}

void HeadlessToolBar::SetToolEnabled(const std::string& id, bool enabled) {
  core_.Record("SetToolEnabled", {id, enabled});
  ToolOf(id).enabled = enabled;
}

void HeadlessToolBar::SetToolPressed(const std::string& id, bool pressed) {
  core_.Record("SetToolPressed", {id, pressed});
  ToolOf(id).pressed = pressed;
}

void HeadlessToolBar::SetToolCaption(const std::string& id, const std::string& caption) {
  core_.Record("SetToolCaption", {id, caption});
  ToolOf(id).design.caption = caption;
}

void HeadlessToolBar::SetToolDescription(const std::string& id, const std::string& description) {
  core_.Record("SetToolDescription", {id, description});
  ToolOf(id).design.description = description;
}

void HeadlessToolBar::ShowPopupMenu(const std::string& id) {
  core_.Record("ShowPopupMenu", {id});
  const auto menu = menus_.find(id);
  if (menu == menus_.end()) {
    throw Failure(failure_number::kElementNotFound, "The toolbar " + Name() + " has no popup menu " + id);
  }
  if (popup_choices_.empty()) return;
  const std::string choice = popup_choices_.front();
  popup_choices_.pop_front();
  const auto keep = core_.BeginAction("ChooseFromPopup", {choice});
  Activate(choice, menu->second);
}

void HeadlessToolBar::ClickTool(const std::string& id) {
  const auto keep = core_.BeginAction("ClickTool", {id});
  Activate(id, bar_);
}

bool HeadlessToolBar::PressShortcut(const std::string& shortcut) {
  const auto keep = core_.BeginAction("PressShortcut", {shortcut});
  for (auto& [id, tool] : tools_) {
    if (tool.design.shortcut != shortcut || !tool.enabled) continue;
    Click(tool);
    return true;
  }
  return false;
}

void HeadlessToolBar::EnterTool(const std::string& id) {
  const auto keep = core_.BeginAction("EnterTool", {id});
  RequireToolOnBar(id);
  entered_.Emit(id);
}

void HeadlessToolBar::LeaveTool(const std::string& id) {
  const auto keep = core_.BeginAction("LeaveTool", {id});
  RequireToolOnBar(id);
  left_.Emit(id);
}

const HeadlessToolBar::Tool& HeadlessToolBar::ToolOf(const std::string& id) const {
  const auto found = tools_.find(id);
  if (found == tools_.end()) {
    throw Failure(failure_number::kElementNotFound, "The toolbar " + Name() + " has no tool " + id);
  }
  return found->second;
}

HeadlessToolBar::Tool& HeadlessToolBar::ToolOf(const std::string& id) {
  return const_cast<Tool&>(std::as_const(*this).ToolOf(id));
}

void HeadlessToolBar::RequireUnusedId(const std::string& id) const {
  if (tools_.contains(id) || menus_.contains(id)) {
    throw Failure(failure_number::kKeyNotUnique, "The toolbar " + Name() + " has a tool " + id + " already");
  }
}

void HeadlessToolBar::RequireTools(const std::vector<std::string>& ids) const {
  for (const auto& id : ids) {
    if (id != platform::kToolSeparator) static_cast<void>(ToolOf(id));
  }
}

void HeadlessToolBar::RequireToolOnBar(const std::string& id) {
  if (std::find(bar_.ids.begin(), bar_.ids.end(), id) == bar_.ids.end()) {
    core_.RaiseScriptError("The bar of " + Name() + " has no tool " + id);
  }
}

void HeadlessToolBar::Activate(const std::string& id, const Menu& place) {
  if (std::find(place.ids.begin(), place.ids.end(), id) == place.ids.end()) {
    core_.RaiseScriptError("The operator cannot choose " + id + ": it is not in " + place.caption);
  }
  Tool& tool = ToolOf(id);
  if (!tool.enabled) core_.RaiseScriptError("The operator cannot choose " + id + ": it is disabled");
  Click(tool);
}

void HeadlessToolBar::Click(Tool& tool) {
  if (tool.design.kind == platform::ToolKind::kTwoStateButton) tool.pressed = !tool.pressed;
  const std::string id = tool.design.id;
  clicked_.Emit(id);
}

}  // namespace ferrowind::headless
