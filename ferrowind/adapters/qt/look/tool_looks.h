#pragma once

#include <QIcon>
#include <QKeySequence>
#include <string>

namespace ferrowind::qt {

/// What a layout adds to a tool: its icon, and the key that presses it while its window is active.
struct ToolLook {
  QIcon icon = {};
  QKeySequence shortcut = {};
};

/// A tool that no layout knows has neither.
[[nodiscard]] ToolLook ToolLookOf(const std::string& tool_id);

}  // namespace ferrowind::qt
