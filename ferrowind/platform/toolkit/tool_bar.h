#pragma once

#include <functional>
#include <string>
#include <vector>

#include "ferrowind/export.h"
#include "ferrowind/platform/events/subscription.h"
#include "ferrowind/platform/toolkit/control.h"

namespace ferrowind::platform {

/// Whether a tool keeps a state: a two-state button is pressed or not, and each click changes that.
enum class FERROWIND_EXPORT ToolKind { kButton, kTwoStateButton };

/// A tool, known by its id, that stands on the bar, in a popup menu or both.
struct FERROWIND_EXPORT ToolDesign {
  /// Unique on the tool bar; letter case counts.
  std::string id;
  /// Shown in menus, and read by assistive tools; "&" is a letter like others.
  std::string caption = {};
  /// What the tool belongs to; not shown.
  std::string category = {};
  /// What the tool does, in a sentence: its tooltip, and what assistive tools read.
  std::string description = {};
  /// A two-state button is not pressed at first.
  ToolKind kind = ToolKind::kButton;
  /// The keys that click the tool while its window is active, as "Ctrl+F", "F5" or "Ctrl+Shift+Z"; menus and
  /// the tooltip tell them as the desktop writes them. A text box that has the focus keeps those it needs
  /// itself, as for undoing what was typed. "" for those that the layout gives it, if any.
  std::string shortcut = {};
};

/// The place of a separator in a list of tool ids.
inline constexpr const char* kToolSeparator = "-";

/// Tools identified by strings: a bar of them and popup menus of them. A method that takes the id of no tool
/// fails with Element not found (35601) and names the id.
class FERROWIND_EXPORT ToolBar : public Control {
 public:
  /// Adds a tool, enabled and not pressed; it is not shown until it is put on the bar or into a menu. An id
  /// in use is the failure Key not unique (35602). Its shortcut works wherever the tool stands,
  /// and also while it stands nowhere.
  virtual void AddTool(const ToolDesign& tool) = 0;
  /// Puts the tools of those ids on the bar, in that order, in place of what was there.
  virtual void SetBar(const std::string& caption, const std::vector<std::string>& ids) = 0;
  /// Adds the popup menu `id` of the tools of those ids, in that order.
  virtual void AddPopupMenu(const std::string& id, const std::string& caption,
                            const std::vector<std::string>& ids) = 0;

  ///@{
  /// Whether the operator can click the tool, wherever it stands.
  [[nodiscard]] virtual bool ToolEnabled(const std::string& id) const = 0;
  virtual void SetToolEnabled(const std::string& id, bool enabled) = 0;
  ///@}
  /// Whether a two-state button is pressed (state 1).
  [[nodiscard]] virtual bool ToolPressed(const std::string& id) const = 0;
  /// Raises no event.
  virtual void SetToolPressed(const std::string& id, bool pressed) = 0;
  ///@{
  /// As designed, or as set since.
  [[nodiscard]] virtual std::string ToolDescription(const std::string& id) const = 0;
  [[nodiscard]] virtual std::string ToolCaption(const std::string& id) const = 0;
  ///@}
  ///@{
  /// Both show at once, wherever the tool stands: so it can name what it would do now.
  virtual void SetToolCaption(const std::string& id, const std::string& caption) = 0;
  virtual void SetToolDescription(const std::string& id, const std::string& description) = 0;
  ///@}

  /// Shows the popup menu at the mouse position, or at the grid's current row when a key asked for it.
  /// Returns once it is closed; a tool chosen in it has raised `OnToolClick` by then.
  virtual void ShowPopupMenu(const std::string& id) = 0;

  /// A tool was clicked, on the bar or in a menu, or its shortcut was pressed; a two-state button has its new
  /// state already.
  [[nodiscard]] virtual Subscription OnToolClick(std::function<void(const std::string& id)> handler) = 0;
  /// The mouse, or the keyboard's selection in a menu, came to a tool; the tool may be disabled.
  [[nodiscard]] virtual Subscription OnToolEnter(std::function<void(const std::string& id)> handler) = 0;
  /// The mouse or the selection has gone from the tool; comes before `OnToolEnter` of the next one.
  [[nodiscard]] virtual Subscription OnToolLeave(std::function<void(const std::string& id)> handler) = 0;
};

}  // namespace ferrowind::platform
