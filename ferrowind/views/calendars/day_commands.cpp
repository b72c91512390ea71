#include "ferrowind/views/calendars/day_commands.h"

#include <optional>
#include <utility>

#include "ferrowind/data/action_scope.h"
#include "ferrowind/data/exec_proc.h"
#include "ferrowind/platform/values/conversion.h"
#include "ferrowind/platform/values/failure.h"
#include "ferrowind/views/calendars/action_subject.h"
#include "ferrowind/views/calendars/node_key.h"
#include "ferrowind/views/common/holiday_types.h"
#include "ferrowind/views/dialogs/fm_except_mess.h"
#include "ferrowind/views/dialogs/fm_select_year.h"

namespace ferrowind {
namespace {

/// The built-in rule of a working day by exception.
constexpr std::int32_t kExceptionRule = 1;

}  // namespace

DayCommands::DayCommands(const platform::Platform& platform, Window window)
    : platform_(platform), window_(std::move(window)) {}

void DayCommands::SetHolidayHeaders(std::shared_ptr<GridFields> holiday_headers) {
  holiday_headers_ = std::move(holiday_headers);
}

DayCommands::SelectedDay DayCommands::TakeSelectedDay() const {
  platform::Value date = window_.grid.CellValue(window_.grid.CurrentRow(), "FullDate");
  const std::int32_t day_of_year = platform::ToDate(date).DayOfYear();
  const std::string node = TakeSelectedNode();
  return {std::move(date), day_of_year, platform::ToInt32(window_.tree.Text(node)),
          node_key::CurrencyOfCalendarNode(node)};
}

std::string DayCommands::TakeSelectedNode() const {
  using platform::Failure;
  using platform::failure_number::kObjectNotSet;
  const auto node = window_.tree.Selected();
  if (!node) throw Failure(kObjectNotSet, "No calendar is selected");
  if (!window_.days.Shows(*node)) {
    throw Failure(kObjectNotSet,
                  "The days on show are not those of the selected calendar, which could not be read. Nothing "
                  "was changed: refresh, and choose the day again");
  }
  return *node;
}

void DayCommands::DescribeSelectedDay(platform::OperatorAction& action) const {
  DescribeNode(action, window_.tree, window_.tree.Selected());
  action.day = platform::ToDate(window_.grid.CellValue(window_.grid.CurrentRow(), "FullDate"));
}

void DayCommands::ExceptDay(const std::string& message) {
  const ActionScope action(platform_.action_observer, platform::ActionKind::kExceptDay,
                           [this](auto& about) { DescribeSelectedDay(about); });
  const SelectedDay day = TakeSelectedDay();
  SourceValues params;
  params.Add("TID1", holiday_type::kWorkingDay);
  params.Add("ID1", day.currency_id);
  params.Add("ID2", kExceptionRule);
  params.Add("Year1", day.year);
  params.Add("Day1", day.day_of_year);
  params.Add("ODate", day.date);
  if (!message.empty()) params.Add("Comment", message);
  std::shared_ptr<SourceValues> results;
  TellWrite(platform_.action_observer, {}, ExecProc("CldIUMain", &params, results));
  window_.show_days_of_selected_node();
}

void DayCommands::ExceptDayWithMessage() {
  // Before anybody types a message in vain.
  static_cast<void>(TakeSelectedNode());
  fmExceptMess dialog(platform_.toolkit);
  dialog.ShowModal();
  if (dialog.Result() == 0) ExceptDay(dialog.Message());
}

void DayCommands::AssignHolidays(std::int32_t mode) {
  struct Forgetting {
    ~Forgetting() { held.reset(); }
    std::shared_ptr<HolidaysWindow>& held;
  };
  std::optional<ActionScope> opening(std::in_place, platform_.action_observer,
                                     platform::ActionKind::kOpenRules,
                                     [this](auto& about) { DescribeSelectedDay(about); });
  holidays_window_ = window_.create_holidays_window();
  // Held here, because the window can be closed and forgotten while it is open, and because an assignment is
  // an action that lasts until its days are on show.
  const auto window = holidays_window_;
  const Forgetting forgetting{holidays_window_};
  const SelectedDay day = TakeSelectedDay();
  if (!window->Init(holiday_headers_, mode, day.year, day.currency_id, day.day_of_year)) {
    window->Unload();
    return;
  }
  opening.reset();
  try {
    window->ShowModal();
  } catch (const platform::Interruption&) {
    // It keeps its place, also when the application ends over it.
    window->Unload();
    throw;
  }
  if (window->Result() == 1) window_.show_days_of_selected_node();
}

void DayCommands::CreateNewCalendar() {
  const auto node = window_.tree.Selected();
  if (!node) return;
  // The dialog is gone by then, and with it the action that it has begun.
  if (const auto created = AskForNewCalendar(*node)) window_.on_created(*created);
}

std::optional<platform::CalendarOnShow> DayCommands::AskForNewCalendar(const std::string& node) {
  fmSelectYear dialog(platform_);
  const auto currency_node = window_.tree.Parent(node);
  dialog.SetCcyID(currency_node ? node_key::CurrencyOfCalendarNode(node)
                                : node_key::CurrencyOfCurrencyNode(node));
  const std::string currency = window_.tree.Text(currency_node.value_or(node));
  dialog.SetCurrency(currency);
  dialog.SetCaption(dialog.Caption() + " " + currency + " currency");
  dialog.ShowModal();
  if (dialog.Result() == 0) window_.refresh_and_select(dialog.CcyID(), dialog.EnterYear());
  if (!dialog.HasCreated()) return std::nullopt;
  return platform::CalendarOnShow{dialog.CcyID(), currency, dialog.EnterYear()};
}

bool DayCommands::ForceCloseHolidaysWindow() {
  const auto window = holidays_window_;
  if (!window) return true;
  if (!window->ForceClosing()) return false;
  holidays_window_.reset();
  return true;
}

}  // namespace ferrowind
