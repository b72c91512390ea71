#include "ferrowind/views/planning/year_beside_days.h"

#include <utility>

#include "ferrowind/data/ignoring_failure.h"
#include "ferrowind/data/module_state.h"
#include "ferrowind/data/run_handler.h"
#include "ferrowind/data/said.h"
#include "ferrowind/planning/in_words.h"
#include "ferrowind/platform/values/conversion.h"
#include "ferrowind/platform/values/failure.h"
#include "ferrowind/views/common/window_placement.h"
#include "ferrowind/views/planning/day_row.h"
#include "ferrowind/views/planning/year_content.h"

namespace ferrowind {
namespace {

using platform::ControlOf;
using platform::Date;
using platform::YearCell;

constexpr const char* kShowTool = "ID_YearPlanner";
//: said
constexpr const char* kShowDescription = "Show or hide the year at a glance beside the days";
constexpr const char* kWindowTool = "ID_YearWindow";
constexpr const char* kExceptTool = "ID_ExceptDays";
constexpr const char* kSection = "Window Calendars";
constexpr const char* kSetting = "YearBesideDays";

bool WasVisible() {
  bool is_visible = false;
  IgnoringFailure([&] {
    const platform::Value stored =
        SharedServicesObject().ReadSetting(SettingsSectionOf(kSection), kSetting, {}, std::int32_t{0});
    is_visible = platform::ToInt32(stored) != 0;
  });
  return is_visible;
}

/// Says, for as long as it lives, that one side follows the other.
class Following {
 public:
  explicit Following(bool& flag) : flag_(flag) { flag_ = true; }
  ~Following() { flag_ = false; }
  Following(const Following&) = delete;
  Following& operator=(const Following&) = delete;

 private:
  bool& flag_;
};

bool IsOf(const std::optional<planning::YearOverview>& overview, const platform::CalendarOnShow& calendar) {
  return overview && overview->Year() == calendar.year &&
         overview->Calendars().front().currency.id == calendar.currency_id;
}

/// Says that the days on show are those of before, or that there are none.
void MarkUnread(platform::YearContent& content) {
  const platform::DayLook look{platform::DayTint::kAmber, platform::DayShape::kNone, "!"};
  const bool is_of_before = !content.calendars.empty();
  content.legend.insert(content.legend.begin(),
                        {look, planning::InWords(is_of_before ? "As it was before" : "Cannot be read")});
}

YearCell CellOf(const std::string& calendar, const Date& day) {
  return {calendar, static_cast<std::int16_t>(day.DayOfYear())};
}

}  // namespace

platform::WindowParts YearBesideDays::Parts() {
  constexpr const char* kCategory = "General";
  return {.controls = {{platform::ControlKind::kYearView, "yvDays"}},
          .tools = {{.id = kShowTool,
                     .caption = "Year",
                     .category = kCategory,
                     .description = kShowDescription,
                     .kind = platform::ToolKind::kTwoStateButton,
                     .shortcut = "Ctrl+Shift+Y"},
                    {.id = kWindowTool,
                     .caption = "Year planner...",
                     .category = kCategory,
                     .description = "Shows years of this and other currencies, and prints and saves them",
                     .shortcut = "Ctrl+P"},
                    {.id = kExceptTool,
                     .caption = "Except selected days with message ...",
                     .category = kCategory,
                     .description = "Except all selected days from the holiday list, with one message"}},
          .bar = {kShowTool, kWindowTool},
          .menu = {kExceptTool}};
}

YearBesideDays::YearBesideDays(const PlanningContext& context, platform::CalendarsScene& scene)
    : context_(context), scene_(scene), view_(ControlOf<platform::YearView>(scene.Window(), "yvDays")) {
  const auto subscribe = [this](platform::Subscription subscription) {
    subscriptions_.push_back(std::move(subscription));
  };
  const auto handler = [this](void (YearBesideDays::*member)()) {
    return [this, member] { RunHandler(context_.platform, [this, member] { (this->*member)(); }); };
  };
  subscribe(view_.OnCurrentChange(handler(&YearBesideDays::GoToDayInGrid)));
  subscribe(view_.OnActivate(handler(&YearBesideDays::ShowDayMenu)));
  subscribe(view_.OnMenuAsked(handler(&YearBesideDays::ShowDayMenu)));
}

void YearBesideDays::Started() {
  SetVisible(WasVisible());
  scene_.Tools().SetToolPressed(kShowTool, is_visible_);
  scene_.Tools().SetToolEnabled(kWindowTool, scene_.OnShow().has_value());
}

void YearBesideDays::Closing() { subscriptions_.clear(); }

bool YearBesideDays::RunTool(const std::string& id) {
  if (id == kShowTool) {
    SetVisible(scene_.Tools().ToolPressed(kShowTool));
    SharedServicesObject().WriteSetting(SettingsSectionOf(kSection), kSetting,
                                        std::int32_t{is_visible_ ? 1 : 0});
    return true;
  }
  if (id == kWindowTool) {
    if (const auto calendar = scene_.OnShow())
      context_.windows.OpenYearPlanner({calendar->currency_id}, calendar->year);
    return true;
  }
  if (id != kExceptTool) return false;
  ExceptDays();
  return true;
}

// Showing
// ------------------------------------------------------------------------------------------------

void YearBesideDays::SetVisible(bool is_visible) {
  is_visible_ = is_visible;
  view_.SetVisible(is_visible);
  Fill();
}

void YearBesideDays::DaysShown() {
  is_read_ = false;
  scene_.Tools().SetToolEnabled(kWindowTool, scene_.OnShow().has_value());
  Fill();
}

void YearBesideDays::Fill() {
  if (!is_visible_) return;
  {
    const Following following(is_following_);
    std::string failure;
    try {
      ReadCalendar();
    } catch (const platform::Failure& failed) {
      // The days themselves have told it, or the operator can go on with them.
      failure = failed.Description();
    }
    platform::YearContent content =
        overview_ ? YearContentOf(*overview_, context_.platform.clock.Today()) : platform::YearContent();
    if (!failure.empty()) MarkUnread(content);
    view_.SetContent(std::move(content));
    scene_.Tools().SetToolDescription(
        kShowTool, failure.empty() ? Said(context_.platform, kShowDescription)
                                   : Said(context_.platform, "The year cannot be read: %1", {failure}));
  }
  CurrentDayChanged();
}

void YearBesideDays::ReadCalendar() {
  const auto calendar = scene_.OnShow();
  if (!calendar || !IsOf(overview_, *calendar)) overview_.reset();
  if (!calendar || (overview_ && is_read_)) return;
  const planning::Currency currency = {
      calendar->currency_id, calendar->currency, calendar->currency, true, {}};
  overview_ = planning::YearOverview::Load({&currency, 1}, calendar->year);
  is_read_ = true;
}

void YearBesideDays::CurrentDayChanged() {
  const auto day = scene_.CurrentDay();
  const auto current = view_.Current();
  // A host may show other days than those of the calendar.
  if (!is_visible_ || is_following_ || !day || !current || !overview_ || day->Year() != overview_->Year())
    return;
  const YearCell cell = CellOf(current->calendar, *day);
  if (cell == *current) return;
  const Following following(is_following_);
  view_.SetCurrent(cell);
}

void YearBesideDays::GoToDayInGrid() {
  const auto current = view_.Current();
  if (is_following_ || !current || !overview_) return;
  const Date day = Date(overview_->Year(), 1, 1).AddDays(current->day_of_year - 1);
  if (scene_.CurrentDay() == day) return;
  const Following following(is_following_);
  if (GoToRowOf(scene_.Days(), day)) return;
  // It may be in a group that is collapsed.
  scene_.Days().ExpandAllGroups();
  static_cast<void>(GoToRowOf(scene_.Days(), day));
}

// Doing
// ------------------------------------------------------------------------------------------------

void YearBesideDays::ShowDayMenu() {
  GoToDayInGrid();
  const auto current = view_.Current();
  const auto day = scene_.CurrentDay();
  // The menu is of the grid's day, which is another where a filter leaves this one out.
  if (current && day && CellOf(current->calendar, *day) == *current) scene_.ShowDayMenu();
}

std::vector<YearCell> YearBesideDays::ChosenCells(const std::string& calendar) const {
  std::vector<YearCell> cells;
  if (is_visible_) cells = view_.Selected();
  if (cells.size() > 1) return cells;
  cells.clear();
  for (const std::int32_t row : scene_.Days().MarkedRows()) {
    const platform::Value date = scene_.Days().CellValue(row, kDateColumn);
    if (!date.IsEmpty()) cells.push_back(CellOf(calendar, platform::ToDate(date)));
  }
  return cells;
}

void YearBesideDays::DayMenuOpens(bool is_of_day) {
  const auto calendar = scene_.OnShow();
  const bool has_several =
      is_of_day && calendar && ChosenCells(std::to_string(calendar->currency_id)).size() > 1;
  scene_.Tools().SetToolEnabled(kExceptTool, has_several);
}

void YearBesideDays::ExceptDays() {
  const auto calendar = scene_.OnShow();
  if (!calendar) return;
  ReadCalendar();
  const planning::YearOverview seen = *overview_;
  const auto days =
      DaysToExcept(seen, SelectedDaysOf(seen, ChosenCells(std::to_string(calendar->currency_id))));
  if (days.empty()) return;
  const auto reason = AskForReason(context_.platform.toolkit);
  if (!reason) return;
  const DaysOutcome excepted = ExceptDaysWith(*reason, seen, days);
  if (excepted.changed) context_.windows.TellChanged(*excepted.changed);
  if (excepted.problems.empty()) return;
  scene_.Refresh();
  ShowProblems(excepted, scene_.Window());
}

}  // namespace ferrowind
