#include "ferrowind/views/planning/why_pane.h"

#include "ferrowind/data/ignoring_failure.h"
#include "ferrowind/data/module_state.h"
#include "ferrowind/data/run_handler.h"
#include "ferrowind/data/said.h"
#include "ferrowind/platform/values/conversion.h"
#include "ferrowind/platform/values/failure.h"
#include "ferrowind/views/common/window_placement.h"
#include "ferrowind/views/planning/currency_on_show.h"
#include "ferrowind/views/planning/day_text.h"
#include "ferrowind/views/planning/why_text.h"

namespace ferrowind {
namespace {

using platform::ControlKind;
using platform::ControlOf;

constexpr const char* kTool = "ID_Why";
constexpr const char* kSection = "Window Calendars";
constexpr const char* kSetting = "WhyPane";

bool WasVisible() {
  bool is_visible = true;
  IgnoringFailure([&] {
    const platform::Value stored =
        SharedServicesObject().ReadSetting(SettingsSectionOf(kSection), kSetting, {}, std::int32_t{1});
    is_visible = platform::ToInt32(stored) != 0;
  });
  return is_visible;
}

}  // namespace

platform::WindowParts WhyPane::Parts() {
  return {.controls = {{ControlKind::kPanel, "pnWhy"},
                       {ControlKind::kTextView, "txtWhy"},
                       {ControlKind::kTable, "tblYears"}},
          .tools = {{kTool, "Why", "General", "Show or hide why the day is what it is",
                     platform::ToolKind::kTwoStateButton, "Ctrl+I"}},
          .bar = {kTool}};
}

WhyPane::WhyPane(const PlanningContext& context, platform::CalendarsScene& scene)
    : context_(context),
      scene_(scene),
      pane_(scene.Window().ControlNamed("pnWhy")),
      text_(ControlOf<platform::TextView>(scene.Window(), "txtWhy")),
      years_(ControlOf<platform::Table>(scene.Window(), "tblYears")) {}

void WhyPane::Started() {
  SetVisible(WasVisible());
  scene_.Tools().SetToolPressed(kTool, is_visible_);
}

bool WhyPane::RunTool(const std::string& id) {
  if (id != kTool) return false;
  SetVisible(scene_.Tools().ToolPressed(kTool));
  SharedServicesObject().WriteSetting(SettingsSectionOf(kSection), kSetting,
                                      std::int32_t{is_visible_ ? 1 : 0});
  return true;
}

void WhyPane::DaysShown() {
  story_.reset();
  TellSoon();
}

void WhyPane::CurrentDayChanged() { TellSoon(); }

void WhyPane::Closing() { rest_.Reset(); }

void WhyPane::SetVisible(bool is_visible) {
  is_visible_ = is_visible;
  pane_.SetVisible(is_visible);
  TellSoon();
}

void WhyPane::TellSoon() {
  rest_.Reset();
  if (!is_visible_) return;
  rest_ = context_.platform.toolkit.After(kRestMilliseconds,
                                          [this] { RunHandler(context_.platform, [this] { Tell(); }); });
}

void WhyPane::Tell() {
  const auto calendar = scene_.OnShow();
  const auto day = scene_.CurrentDay();
  // A host may show other days than those of the calendar.
  if (!calendar || !day || day->Year() != calendar->year) {
    return TellNothing(Said(context_.platform, "Choose a day: here stands why it is open or closed."));
  }
  try {
    TellOf(*calendar, *day);
  } catch (const platform::Failure& failure) {
    story_.reset();
    TellNothing(
        Said(context_.platform, "%1, %2: why it is what it is cannot be read.",
             {planning::UnmistakableCode(CurrencyOf(*calendar)), DayText(context_.platform.locale, *day)}) +
        "\n" + failure.Description());
  }
}

void WhyPane::TellOf(const platform::CalendarOnShow& calendar, const platform::Date& day) {
  if (!story_) story_.emplace(calendar.currency_id, calendar.year, context_.tables);
  const planning::DayStory story = story_->Of(day);
  const platform::Platform& platform = context_.platform;
  text_.SetText(
      WhyText(platform, planning::UnmistakableCode(CurrencyOf(calendar)), story, LastChangeOf(day)));
  years_.SetColumns(YearColumns(platform, story));
  years_.SetRows(YearRows(platform, story, story_->Around(day)));
}

std::string WhyPane::LastChangeOf(const platform::Date& day) const {
  try {
    return story_->LoadLastChange(day);
  } catch (const platform::Failure& failure) {
    // The rest is known all the same.
    return failure.Description();
  }
}

void WhyPane::TellNothing(const std::string& text) {
  text_.SetText(text);
  years_.SetColumns({});
}

}  // namespace ferrowind
