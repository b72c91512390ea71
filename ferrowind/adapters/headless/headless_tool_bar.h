#pragma once

#include <deque>
#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "ferrowind/adapters/headless/headless_control.h"
#include "ferrowind/platform/toolkit/tool_bar.h"

namespace ferrowind::headless {

class HeadlessToolBar : public HeadlessControl<platform::ToolBar> {
 public:
  using HeadlessControl::HeadlessControl;

  void AddTool(const platform::ToolDesign& tool) override;
  void SetBar(const std::string& caption, const std::vector<std::string>& ids) override;
  void AddPopupMenu(const std::string& id, const std::string& caption,
                    const std::vector<std::string>& ids) override;
  [[nodiscard]] bool ToolEnabled(const std::string& id) const override { return ToolOf(id).enabled; }
  void SetToolEnabled(const std::string& id, bool enabled) override;
  [[nodiscard]] bool ToolPressed(const std::string& id) const override { return ToolOf(id).pressed; }
  void SetToolPressed(const std::string& id, bool pressed) override;
  [[nodiscard]] std::string ToolDescription(const std::string& id) const override {
    return ToolOf(id).design.description;
  }
  [[nodiscard]] std::string ToolCaption(const std::string& id) const override {
    return ToolOf(id).design.caption;
  }
  void SetToolCaption(const std::string& id, const std::string& caption) override;
  void SetToolDescription(const std::string& id, const std::string& description) override;
  void ShowPopupMenu(const std::string& id) override;
  [[nodiscard]] platform::Subscription OnToolClick(
      std::function<void(const std::string& id)> handler) override {
    return clicked_.Subscribe(std::move(handler));
  }
  [[nodiscard]] platform::Subscription OnToolEnter(
      std::function<void(const std::string& id)> handler) override {
    return entered_.Subscribe(std::move(handler));
  }
  [[nodiscard]] platform::Subscription OnToolLeave(
      std::function<void(const std::string& id)> handler) override {
    return left_.Subscribe(std::move(handler));
  }

  struct Menu {
    std::string caption;
    std::vector<std::string> ids;
  };
  /// What `SetBar` put on the bar.
  [[nodiscard]] const Menu& Bar() const { return bar_; }
  /// What `AddPopupMenu` made; `id` must be that of a popup menu.
  [[nodiscard]] const Menu& PopupMenu(const std::string& id) const { return menus_.at(id); }
  [[nodiscard]] const platform::ToolDesign& Design(const std::string& id) const { return ToolOf(id).design; }

  /// The operator clicks a tool of the bar; script error when it is not there or disabled.
  void ClickTool(const std::string& id);
  /// The operator presses the shortcut of a tool of this bar; false when no tool that is enabled has it.
  bool PressShortcut(const std::string& shortcut);
  void EnterTool(const std::string& id);
  void LeaveTool(const std::string& id);
  /// The operator will choose that tool in the next popup menu that has no choice yet. A menu without one is
  /// dismissed. A tool that the menu does not have, or a disabled one, is a script error then.
  void ChooseFromNextPopup(const std::string& tool_id) { popup_choices_.push_back(tool_id); }

 private:
  struct Tool {
    platform::ToolDesign design;
    bool enabled = true;
    bool pressed = false;
  };

  [[nodiscard]] const Tool& ToolOf(const std::string& id) const;
  [[nodiscard]] Tool& ToolOf(const std::string& id);
  void RequireUnusedId(const std::string& id) const;
  void RequireTools(const std::vector<std::string>& ids) const;
  void RequireToolOnBar(const std::string& id);
  void Activate(const std::string& id, const Menu& place);
  void Click(Tool& tool);

  std::map<std::string, Tool> tools_;
  std::map<std::string, Menu> menus_;
  Menu bar_;
  std::deque<std::string> popup_choices_;
  platform::Signal<const std::string&> clicked_;
  platform::Signal<const std::string&> entered_;
  platform::Signal<const std::string&> left_;
};

}  // namespace ferrowind::headless
