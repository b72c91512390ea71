#pragma once

#include <QAction>
#include <QMenu>
#include <QPointer>
#include <QToolBar>
#include <map>
#include <memory>

#include "ferrowind/adapters/qt/controls/qt_control.h"
#include "ferrowind/adapters/qt/controls/tool_hover.h"
#include "ferrowind/platform/toolkit/tool_bar.h"

namespace ferrowind::qt {

/// Each tool is an action with the tool's id as its object name; its button on the bar and the menus have
/// their ids as object names too. Buttons show the tool's icon, and its description as their tooltip.
class QtToolBar : public QtControl<platform::ToolBar> {
 public:
  explicit QtToolBar(QToolBar& bar);
  ~QtToolBar() override;

  void AddTool(const platform::ToolDesign& tool) override;
  void SetBar(const std::string& caption, const std::vector<std::string>& ids) override;
  void AddPopupMenu(const std::string& id, const std::string& caption,
                    const std::vector<std::string>& ids) override;
  [[nodiscard]] bool ToolEnabled(const std::string& id) const override;
  void SetToolEnabled(const std::string& id, bool enabled) override;
  [[nodiscard]] bool ToolPressed(const std::string& id) const override;
  void SetToolPressed(const std::string& id, bool pressed) override;
  [[nodiscard]] std::string ToolDescription(const std::string& id) const override;
  [[nodiscard]] std::string ToolCaption(const std::string& id) const override;
  void SetToolCaption(const std::string& id, const std::string& caption) override;
  void SetToolDescription(const std::string& id, const std::string& description) override;
  void ShowPopupMenu(const std::string& id) override;
  [[nodiscard]] platform::Subscription OnToolClick(std::function<void(const std::string&)> handler) override;
  [[nodiscard]] platform::Subscription OnToolEnter(std::function<void(const std::string&)> handler) override;
  [[nodiscard]] platform::Subscription OnToolLeave(std::function<void(const std::string&)> handler) override;

 private:
  /// Has the tool's button on the bar, if it has one, tell the same as the tool.
  void DescribeButton(QAction& tool);
  [[nodiscard]] QAction& ToolOf(const std::string& id) const;
  /// The actions of those ids, null for a separator.
  [[nodiscard]] std::vector<QAction*> ToolsOf(const std::vector<std::string>& ids) const;
  void RequireUnusedId(const std::string& id) const;

  QToolBar& bar_;
  std::map<std::string, std::unique_ptr<QAction>> tools_;
  std::map<std::string, std::unique_ptr<QMenu>> menus_;
  platform::Signal<const std::string&> clicked_;
  platform::Signal<const std::string&> entered_;
  platform::Signal<const std::string&> left_;
  ToolHover hover_;
};

}  // namespace ferrowind::qt
