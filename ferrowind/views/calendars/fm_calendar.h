#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "ferrowind/platform/events/signal.h"
#include "ferrowind/platform/platform.h"
#include "ferrowind/views/calendars/calendars_extension.h"
#include "ferrowind/views/calendars/calendars_window.h"
#include "ferrowind/views/calendars/currency_tree.h"
#include "ferrowind/views/calendars/day_commands.h"
#include "ferrowind/views/calendars/day_grid.h"
#include "ferrowind/views/common/group_by_box_tool.h"
#include "ferrowind/views/common/host_columns.h"
#include "ferrowind/views/common/window_placement.h"

namespace ferrowind {

/// The Calendars window: the tree of currencies and calendars, the grid of the selected calendar's days, and
/// the commands on both.
///
/// It closes by itself when its frame is closed, and after a failed `Init`. Whoever holds it may drop it at
/// any time, also from `OnClosing`; it lives until its running handler has returned.
class fmCalendar : public CalendarsWindow, public std::enable_shared_from_this<fmCalendar> {
 public:
  /// `platform` must outlive the window. Failure when the toolkit cannot make the form.
  [[nodiscard]] static std::shared_ptr<fmCalendar> Create(const platform::Platform& platform);

  bool Init(std::shared_ptr<GridFields> headers, std::shared_ptr<GridFields> holiday_headers) override;
  void Show() override;
  bool ForceClosing() override;
  [[nodiscard]] platform::Subscription OnClosing(std::function<void()> handler) override;

  /// Asks whether to leave. True only for the answer "Cancel", by intention; nothing, and no question, when
  /// the window is closing after a failed start.
  [[nodiscard]] std::optional<bool> AskToExit();

 protected:
  explicit fmCalendar(const platform::Platform& platform);
  /// Subscribes the handlers; needs the window to be shared already.
  void Connect();
  /// Makes the window that the assignment of holidays opens.
  [[nodiscard]] virtual std::shared_ptr<HolidaysWindow> CreateHolidaysWindow();

 private:
  using NodeKey = std::string;

  fmCalendar(const platform::Platform& platform, const platform::WindowParts& additional);

  /// The index of the message that ends the start, or nothing when the window is ready.
  std::optional<std::int32_t> Start(std::shared_ptr<GridFields> headers,
                                    std::shared_ptr<GridFields> holiday_headers);
  void FailStart(std::int32_t error_index);
  void LoadLayout();
  void SaveLayout();
  void RefreshAll(std::int32_t currency_id, std::int32_t year, const std::string& key);
  void Refresh();
  void Choose(std::int32_t currency_id, std::int32_t year);
  /// Shows the days of the selected node, as an action of the operator's own.
  void ChooseSelectedNode();
  void TellOfNode(platform::OperatorAction& action) const;
  /// Runs work while the animation plays; a failure of it is reported.
  void WhileAnimated(const std::function<void()>& work);
  void SetAllCurrenciesExpanded(bool expanded);
  void ShowDaysOf(const std::optional<NodeKey>& node);
  void ShowDaysOfSelectedNode();
  void ShowDayMenu();
  void RefreshTools();

  void Form_Load();
  void Form_Resize();
  void Form_QueryUnload();
  void ssatb_ToolClick(const std::string& id);
  void ssatb_ToolEnter(const std::string& id);
  void ssatb_ToolLeave();
  void tvCalendar_NodeClick(const NodeKey& node);
  void tvCalendar_ExpandedOrCollapsed();
  void gexCalendar_HeaderClick(platform::GridColumn& column);
  void gexCalendar_BeforeGroupChange();
  void gexCalendar_AfterGroupChange();
  void gexCalendar_MouseUp(std::int32_t button);
  void gexCalendar_CurrentRowChange();

  const platform::Platform& platform_;
  std::shared_ptr<platform::Form> form_;
  platform::Tree& tvCalendar_;
  platform::Grid& gexCalendar_;
  platform::ToolBar& ssatb_;
  platform::StatusBar& sbCalendar_;
  platform::Animation& anim_;
  platform::Control& ssspUp_;
  platform::Control& sssp_;
  GroupByBoxTool group_by_box_tool_;
  CurrencyTree currencies_;
  DayGrid day_grid_;
  HostColumns host_columns_;
  CalendarsExtension extension_;
  DayCommands day_commands_;
  bool is_closing_after_failed_start_ = false;
  /// The program may have closed it while a dialog of it was just being answered.
  bool has_closed_ = false;
  StoredPlacement placement_{"Window Calendars"};
  platform::Signal<> closing_;
  std::vector<platform::Subscription> subscriptions_;
};

}  // namespace ferrowind
