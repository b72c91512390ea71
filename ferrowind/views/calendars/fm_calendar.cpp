#include "ferrowind/views/calendars/fm_calendar.h"

#include <utility>

#include "ferrowind/data/action_scope.h"
#include "ferrowind/data/confirm.h"
#include "ferrowind/data/error_reporting.h"
#include "ferrowind/data/error_table.h"
#include "ferrowind/data/ignoring_failure.h"
#include "ferrowind/data/module_state.h"
#include "ferrowind/data/run_handler.h"
#include "ferrowind/data/runtime_failure.h"
#include "ferrowind/platform/values/conversion.h"
#include "ferrowind/views/calendars/action_subject.h"
#include "ferrowind/views/calendars/calendar_tools.h"
#include "ferrowind/views/calendars/node_key.h"
#include "ferrowind/views/common/additional_parts.h"
#include "ferrowind/views/common/grid_setup.h"
#include "ferrowind/views/common/holiday_type_formats.h"
#include "ferrowind/views/common/value_list.h"
#include "ferrowind/views/holidays/fm_enter_holidays.h"

namespace ferrowind {
namespace {

using platform::ControlKind;
using platform::ControlOf;

constexpr const char* kLayoutSection = "Calendar\\7E34C663-43BF-11d6-8AE5-0050228F1EE8";
constexpr const char* kAnimationFile = "/Progress.pra";
constexpr std::int32_t kDescriptionPanel = 1;

platform::WindowParts AdditionalParts(const platform::Platform& platform) {
  return platform.additions == nullptr ? platform::WindowParts() : platform.additions->CalendarsParts();
}

platform::FormDesign Design() {
  return {.name = "fmCalendar",
          .caption = "Calendars",
          .border = platform::FormBorder::kSizable,
          .start = platform::FormStart::kAsPlaced,
          .client_width = 16950,
          .client_height = 9900,
          .controls = {{ControlKind::kTree, "tvCalendar"},
                       {.kind = ControlKind::kGrid, .name = "gexCalendar", .marks_row_ranges = true},
                       {ControlKind::kToolBar, "ssatb"},
                       {ControlKind::kPanel, "pctToolBar"},
                       {ControlKind::kPanel, "ssspUp"},
                       {ControlKind::kSplitter, "sssp"},
                       {ControlKind::kStatusBar, "sbCalendar"},
                       {ControlKind::kAnimation, "anim"}}};
}

}  // namespace

std::shared_ptr<fmCalendar> fmCalendar::Create(const platform::Platform& platform) {
  struct Creatable : fmCalendar {
    explicit Creatable(const platform::Platform& surroundings) : fmCalendar(surroundings) {}
  };
  auto window = std::make_shared<Creatable>(platform);
  window->Connect();
  return window;
}

fmCalendar::fmCalendar(const platform::Platform& platform)
    : fmCalendar(platform, AdditionalParts(platform)) {}

fmCalendar::fmCalendar(const platform::Platform& platform, const platform::WindowParts& additional)
    : platform_(platform),
      form_(platform.toolkit.CreateForm(WithControls(Design(), additional))),
      tvCalendar_(ControlOf<platform::Tree>(*form_, "tvCalendar")),
      gexCalendar_(ControlOf<platform::Grid>(*form_, "gexCalendar")),
      ssatb_(ControlOf<platform::ToolBar>(*form_, "ssatb")),
      sbCalendar_(ControlOf<platform::StatusBar>(*form_, "sbCalendar")),
      anim_(ControlOf<platform::Animation>(*form_, "anim")),
      ssspUp_(form_->ControlNamed("ssspUp")),
      sssp_(form_->ControlNamed("sssp")),
      group_by_box_tool_(platform.toolkit, *form_, ssatb_, gexCalendar_),
      currencies_(
          platform.toolkit, *form_, tvCalendar_, [this] { RefreshTools(); }, platform.action_observer),
      day_grid_(platform, {*form_, tvCalendar_, gexCalendar_, sssp_, [this] { RefreshTools(); }}),
      host_columns_(platform, gexCalendar_),
      extension_({*form_, tvCalendar_, gexCalendar_, ssatb_, sbCalendar_, day_grid_,
                  [this](std::int32_t currency_id, std::int32_t year) { Choose(currency_id, year); },
                  [this] { Refresh(); }, [this] { ShowDayMenu(); }}),
      day_commands_(platform, {tvCalendar_, gexCalendar_, day_grid_, [this] { ShowDaysOfSelectedNode(); },
                               [this](std::int32_t currency_id, std::int32_t year) {
                                 RefreshAll(currency_id, year, "");
                               },
                               [this] { return CreateHolidaysWindow(); },
                               [this](const auto& created) { extension_.CalendarCreated(created); }}) {
  SetupCalendarTools(ssatb_, additional);
  gexCalendar_.SetEnabled(false);
}

void fmCalendar::Connect() {
  // A handler keeps the window alive while it runs: the control may drop its reference meanwhile.
  const auto handler = [weak = weak_from_this()](auto member) {
    return [weak, member](auto&&... arguments) {
      if (const auto self = weak.lock())
        RunHandler(self->platform_, [&] { ((*self).*member)(arguments...); });
    };
  };
  const auto subscribe = [this](platform::Subscription subscription) {
    subscriptions_.push_back(std::move(subscription));
  };
  subscribe(form_->OnLoad(handler(&fmCalendar::Form_Load)));
  subscribe(form_->OnResize(handler(&fmCalendar::Form_Resize)));
  const auto query_unload = handler(&fmCalendar::Form_QueryUnload);
  subscribe(form_->OnCloseQuery([query_unload](bool& is_refused) {
    if (!is_refused) query_unload();
  }));
  subscribe(ssatb_.OnToolClick(handler(&fmCalendar::ssatb_ToolClick)));
  subscribe(ssatb_.OnToolEnter(handler(&fmCalendar::ssatb_ToolEnter)));
  const auto tool_leave = handler(&fmCalendar::ssatb_ToolLeave);
  subscribe(ssatb_.OnToolLeave([tool_leave](const std::string&) { tool_leave(); }));
  subscribe(tvCalendar_.OnNodeClick(handler(&fmCalendar::tvCalendar_NodeClick)));
  const auto expanded_or_collapsed = handler(&fmCalendar::tvCalendar_ExpandedOrCollapsed);
  subscribe(tvCalendar_.OnExpanded([expanded_or_collapsed](const NodeKey&) { expanded_or_collapsed(); }));
  subscribe(tvCalendar_.OnCollapsed([expanded_or_collapsed](const NodeKey&) { expanded_or_collapsed(); }));
  subscribe(gexCalendar_.OnUnboundValue(
      [this](platform::RecordSet::Bookmark bookmark, std::int16_t column, platform::Value& receiver) {
        // No message while the grid paints: a cell that cannot be computed stays empty.
        IgnoringFailure([&] { day_grid_.ComputeCell(bookmark, column, receiver); });
        IgnoringFailure([&] { host_columns_.ComputeCell(bookmark, column, receiver); });
      }));
  subscribe(gexCalendar_.OnUnboundOrder(
      [this](platform::RecordSet::Bookmark bookmark, std::int16_t column, platform::Value& receiver) {
        IgnoringFailure([&] { day_grid_.ComputeOrder(bookmark, column, receiver); });
      }));
  subscribe(gexCalendar_.OnHeaderClick(handler(&fmCalendar::gexCalendar_HeaderClick)));
  subscribe(gexCalendar_.OnBeforeGroupChange(handler(&fmCalendar::gexCalendar_BeforeGroupChange)));
  subscribe(gexCalendar_.OnAfterGroupChange(handler(&fmCalendar::gexCalendar_AfterGroupChange)));
  subscribe(gexCalendar_.OnMouseUp(handler(&fmCalendar::gexCalendar_MouseUp)));
  if (platform_.additions == nullptr) return;
  subscribe(gexCalendar_.OnCurrentRowChange(handler(&fmCalendar::gexCalendar_CurrentRowChange)));
  RunHandler(platform_, [this] { extension_.Make(platform_.additions); });
}

// Starting and closing
// ------------------------------------------------------------------------------------------------

bool fmCalendar::Init(std::shared_ptr<GridFields> headers, std::shared_ptr<GridFields> holiday_headers) {
  // The control may drop its reference while a failed start unloads the window.
  const auto self = shared_from_this();
  const InSurroundings surroundings(platform_);
  const ActionScope action(platform_.action_observer, platform::ActionKind::kOpenCalendars);
  try {
    form_->Load();
    const auto error_index = Start(std::move(headers), std::move(holiday_headers));
    if (!error_index) return true;
    FailStart(*error_index);
  } catch (...) {
    const RuntimeFailureScope caught;
    FailStart(error_index::kCannotLoadHolidayTypes);
  }
  return false;
}

std::optional<std::int32_t> fmCalendar::Start(std::shared_ptr<GridFields> headers,
                                              std::shared_ptr<GridFields> holiday_headers) {
  day_grid_.SetHeaders(headers);
  IgnoringFailure([&] { anim_.Open(platform_.component_folder + kAnimationFile); });
  if (!currencies_.LoadCurrencies()) return error_index::kCannotLoadCurrency;
  if (!currencies_.LoadCalendars()) return error_index::kCannotLoadCalendars;
  SetupGridColumns(gexCalendar_, *headers);
  if (!FillColumnValueList(gexCalendar_, "HolidayType", *currencies_.HolidayTypes(), "Description1",
                           "TID1")) {
    return error_index::kCannotLoadHolidayTypes;
  }
  if (gexCalendar_.FormatCount() == 0) AddHolidayTypeFormats(gexCalendar_);
  day_commands_.SetHolidayHeaders(std::move(holiday_headers));
  extension_.AddColumns();
  LoadLayout();
  host_columns_.Follow(*headers);
  extension_.Started();
  return std::nullopt;
}

void fmCalendar::LoadLayout() {
  try {
    SharedServicesObject().LoadGridLayout(gexCalendar_, kLayoutSection);
  } catch (...) {
    // As the place of the window: what cannot be read is as if it had never been stored.
    TraceFailureBeingHandled();
  }
}

void fmCalendar::SaveLayout() {
  host_columns_.SaveLayout([this] { SharedServicesObject().SaveGridLayout(gexCalendar_, kLayoutSection); });
}

void fmCalendar::FailStart(std::int32_t error_index) {
  RunHandler([&] { ShowErrorMessage(error_index); });
  is_closing_after_failed_start_ = true;
  RunHandler([this] { form_->Unload(); });
}

void fmCalendar::Show() { form_->Show(); }

bool fmCalendar::ForceClosing() {
  const auto self = shared_from_this();
  return day_commands_.ForceCloseHolidaysWindow() && form_->Unload();
}

std::shared_ptr<HolidaysWindow> fmCalendar::CreateHolidaysWindow() {
  platform::OperatorAction subject;
  if (platform_.action_observer != nullptr || platform_.additions != nullptr) {
    IgnoringFailure([&] { TellOfNode(subject); });
  }
  return std::make_shared<fmEnterHolidays>(
      platform_, [this](const auto& work) { WhileAnimated(work); }, subject.currency);
}

platform::Subscription fmCalendar::OnClosing(std::function<void()> handler) {
  return closing_.Subscribe(std::move(handler));
}

std::optional<bool> fmCalendar::AskToExit() {
  if (is_closing_after_failed_start_) return std::nullopt;
  return Confirm(platform_.toolkit, "Exit from calendars", "You wish exit calendars. Ok ?", 1) == 1;
}

void fmCalendar::Form_Load() { placement_.Restore(platform_.toolkit, *form_); }

// A minimised window, for one, has no room left for the panes: whatever fails here is ignored.
void fmCalendar::Form_Resize() {
  IgnoringFailure([&] { sssp_.SetHeight(form_->InnerHeight() - ssspUp_.Height()); });
}

void fmCalendar::Form_QueryUnload() {
  has_closed_ = true;
  closing_.Emit();
  extension_.Closing();
  try {
    SaveLayout();
  } catch (...) {
    // The operator is told once, of what failed first.
    IgnoringFailure([this] { placement_.Save(*form_); });
    throw;
  }
  placement_.Save(*form_);
  platform_.toolkit.ProcessPendingEvents();
}

// Tree
// ----------------------------------------------------------------------------------------------------------------

void fmCalendar::RefreshAll(std::int32_t currency_id, std::int32_t year, const std::string& key) {
  if (has_closed_) return;
  const auto reload = [&] {
    {
      const UpdateLock lock(platform_.toolkit, sssp_);
      currencies_.LoadCurrencies();
      currencies_.LoadCalendars();
      currencies_.SelectNode(currency_id, year, key);
    }
    ShowDaysOfSelectedNode();
  };
  WhileAnimated([&] { extension_.WhileFilling(reload); });
}

void fmCalendar::WhileAnimated(const std::function<void()>& work) {
  IgnoringFailure([&] { anim_.Play(); });
  const auto stop = [this] { IgnoringFailure([this] { anim_.Stop(); }); };
  try {
    RunStep(work);
  } catch (...) {
    stop();
    throw;
  }
  stop();
}

void fmCalendar::Refresh() {
  const ActionScope action(platform_.action_observer, platform::ActionKind::kRefresh,
                           [this](auto& about) { TellOfNode(about); });
  RefreshAll(0, 0, tvCalendar_.Selected().value_or(""));
}

void fmCalendar::TellOfNode(platform::OperatorAction& action) const {
  DescribeNode(action, tvCalendar_, tvCalendar_.Selected());
}

void fmCalendar::Choose(std::int32_t currency_id, std::int32_t year) {
  const auto node = node_key::OfCalendar(platform::ToText(currency_id), platform::ToText(year));
  currencies_.SelectNode(currency_id, year, "");
  if (tvCalendar_.Selected() == node) {
    ChooseSelectedNode();
  } else {
    RefreshAll(currency_id, year, "");
  }
}

void fmCalendar::SetAllCurrenciesExpanded(bool expanded) {
  if (tvCalendar_.Count() == 0) return;
  currencies_.SetAllExpanded(expanded);
  if (tvCalendar_.Selected()) ChooseSelectedNode();
}

void fmCalendar::tvCalendar_NodeClick(const NodeKey& node) {
  const ActionScope action(platform_.action_observer, platform::ActionKind::kShowDays,
                           [&](auto& about) { DescribeNode(about, tvCalendar_, node); });
  day_grid_.SetCurrentNode(node);
  ShowDaysOf(node);
}

void fmCalendar::tvCalendar_ExpandedOrCollapsed() {
  if (tvCalendar_.Selected() != day_grid_.CurrentNode()) ChooseSelectedNode();
}

void fmCalendar::ChooseSelectedNode() {
  const ActionScope action(platform_.action_observer, platform::ActionKind::kShowDays,
                           [this](auto& about) { TellOfNode(about); });
  ShowDaysOfSelectedNode();
}

void fmCalendar::ShowDaysOfSelectedNode() {
  if (!has_closed_) ShowDaysOf(tvCalendar_.Selected());
}

void fmCalendar::ShowDaysOf(const std::optional<NodeKey>& node) {
  extension_.WhileFilling([&] { day_grid_.ShowDaysOf(node); });
}

// Tools
// ---------------------------------------------------------------------------------------------------------------

void fmCalendar::RefreshTools() { RefreshCalendarTools(ssatb_, tvCalendar_, gexCalendar_); }

void fmCalendar::ssatb_ToolClick(const std::string& id) {
  struct ToolAction {
    const char* id;
    void (*run)(fmCalendar& window);
  };
  static constexpr ToolAction kActions[] = {
      {"ID_AssignSingle", [](fmCalendar& w) { w.day_commands_.AssignHolidays(kSingleDayMode); }},
      {"ID_AssignMany", [](fmCalendar& w) { w.day_commands_.AssignHolidays(kWholeCalendarMode); }},
      {"ID_Except", [](fmCalendar& w) { w.day_commands_.ExceptDay(""); }},
      {"ID_Except2", [](fmCalendar& w) { w.day_commands_.ExceptDayWithMessage(); }},
      {"ID_Expand", [](fmCalendar& w) { w.SetAllCurrenciesExpanded(true); }},
      {"ID_Collapse", [](fmCalendar& w) { w.SetAllCurrenciesExpanded(false); }},
      {"ID_ExpandGrid", [](fmCalendar& w) { w.gexCalendar_.ExpandAllGroups(); }},
      {"ID_CollapseGrid", [](fmCalendar& w) { w.gexCalendar_.CollapseAllGroups(); }},
      {"ID_New", [](fmCalendar& w) { w.day_commands_.CreateNewCalendar(); }},
      {"ID_Refresh", [](fmCalendar& w) { w.Refresh(); }},
      {"ID_Copy", [](fmCalendar& w) { SharedServicesObject().CopyGridRows(w.gexCalendar_, true); }},
      {"ID_ExpSel", [](fmCalendar& w) { w.gexCalendar_.ExpandSelection(); }},
      {GroupByBoxTool::kId, [](fmCalendar& w) { w.group_by_box_tool_.ShowOrHideBox(); }},
  };
  for (const auto& action : kActions) {
    if (id == action.id) {
      action.run(*this);
      return;
    }
  }
  extension_.RunTool(id);
}

void fmCalendar::ssatb_ToolEnter(const std::string& id) {
  sbCalendar_.SetPanelText(kDescriptionPanel, ssatb_.ToolDescription(id));
}

void fmCalendar::ssatb_ToolLeave() { sbCalendar_.SetPanelText(kDescriptionPanel, ""); }

void fmCalendar::gexCalendar_HeaderClick(platform::GridColumn& column) { day_grid_.CycleSortOrder(column); }

void fmCalendar::gexCalendar_BeforeGroupChange() { day_grid_.BeforeRegrouping(); }

void fmCalendar::gexCalendar_AfterGroupChange() { day_grid_.AfterRegrouping(); }

void fmCalendar::gexCalendar_MouseUp(std::int32_t button) {
  if (button == platform::kRightButton) ShowDayMenu();
}

void fmCalendar::ShowDayMenu() {
  const std::int32_t row = gexCalendar_.CurrentRow();
  if (row == 0) return;
  // A group row is no day.
  const bool is_of_day = gexCalendar_.RowBookmark(row) != 0;
  EnableDayTools(ssatb_, is_of_day);
  extension_.DayMenuOpens(is_of_day);
  ssatb_.ShowPopupMenu(kDayMenu);
}

void fmCalendar::gexCalendar_CurrentRowChange() { extension_.CurrentDayChanged(); }

}  // namespace ferrowind
