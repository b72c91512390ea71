#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "ferrowind/adapters/headless/headless_animation.h"
#include "ferrowind/adapters/headless/headless_form.h"
#include "ferrowind/adapters/headless/headless_grid.h"
#include "ferrowind/adapters/headless/headless_status_bar.h"
#include "ferrowind/adapters/headless/headless_tool_bar.h"
#include "ferrowind/adapters/headless/headless_tree.h"
#include "ferrowind/control/default_headers.h"
#include "ferrowind/views/calendars/fm_calendar.h"

#include "tests/support/call_order.h"
#include "tests/support/component_world.h"
#include "tests/support/run_in_fresh_thread.h"

namespace ferrowind::testing {

using platform::Date;
using platform::Value;
using Rows = std::vector<std::vector<Value>>;

inline constexpr const char* kLayoutSection = "Calendar\\7E34C663-43BF-11d6-8AE5-0050228F1EE8";
inline constexpr const char* kPlacementSection =
    "\\Tessaro\\Calendar\\7E34C663-43BF-11d6-8AE5-0050228F1EE8\\Window Calendars";

/// A Holidays window that does what its test says; what is asked of it is in the log as
/// "holidays.METHOD(...)".
class FakeHolidaysWindow : public HolidaysWindow {
 public:
  explicit FakeHolidaysWindow(headless::CallLog& log) : log_(log) {}

  bool Init(std::shared_ptr<GridFields> given_headers, std::int32_t mode, std::int32_t year,
            std::int32_t currency_id, std::int32_t day_of_year) override {
    log_.Record(headless::CallText("holidays", "Init", {mode, year, currency_id, day_of_year}));
    headers = std::move(given_headers);
    return is_ready;
  }
  void ShowModal() override {
    log_.Record("holidays.ShowModal()");
    if (while_shown) while_shown();
  }
  [[nodiscard]] std::int32_t Result() const override { return result; }
  void Unload() override { log_.Record("holidays.Unload()"); }
  bool ForceClosing() override {
    log_.Record("holidays.ForceClosing()");
    return agrees_to_close;
  }

  std::shared_ptr<GridFields> headers;
  bool is_ready = true;
  std::int32_t result = 0;
  bool agrees_to_close = true;
  /// Plays what happens while the window is open.
  std::function<void()> while_shown;

 private:
  headless::CallLog& log_;
};

/// The Calendars window with a Holidays window that the test gives it, or its own when there is none.
class CalendarsWindowUnderTest : public fmCalendar {
 public:
  [[nodiscard]] static std::shared_ptr<CalendarsWindowUnderTest> Create(const platform::Platform& platform) {
    struct Creatable : CalendarsWindowUnderTest {
      explicit Creatable(const platform::Platform& surroundings) : CalendarsWindowUnderTest(surroundings) {}
    };
    auto window = std::make_shared<Creatable>(platform);
    window->Connect();
    return window;
  }

  std::shared_ptr<FakeHolidaysWindow> holidays;
  int created_holidays_windows = 0;

 protected:
  explicit CalendarsWindowUnderTest(const platform::Platform& platform) : fmCalendar(platform) {}
  [[nodiscard]] std::shared_ptr<HolidaysWindow> CreateHolidaysWindow() override {
    ++created_holidays_windows;
    return holidays ? holidays : fmCalendar::CreateHolidaysWindow();
  }
};

/// The Calendars window over a scripted database with the calendars EUR 2026 and 2027 and USD 2026, and JPY
/// without one. Make one on a fresh thread.
class CalendarsWorld : public ComponentWorld {
 public:
  explicit CalendarsWorld(platform::ActionObserver* action_observer = nullptr)
      : ComponentWorld(action_observer) {
    world.dictionary->SetCurrencies({{978, "EUR"}, {840, "USD"}, {392, "JPY"}});
    world.toolkit.AddAnimation("/component/Progress.pra");
    AnswerAllInfo(UsualCalendars());
    AnswerDays(UsualDays());
    AnswerStoring(0);
    AddDefaultHeaders(*headers);
    AddDefaultHolidayHeaders(*holiday_headers);
  }

  static Rows UsualCalendars() { return {{978, 2026}, {978, 2027}, {840, 2026}}; }
  static Rows UsualTypes() {
    return {{1, "Working day"}, {2, "Holiday"}, {3, "Celebration"}, {4, "Holiday point"}};
  }
  static std::vector<Value> Day(const Date& date, std::int32_t type, const Value& name = {}) {
    return {date, type, name, {}, {}, {}, std::int16_t{1}};
  }
  static Rows UsualDays() {
    return {Day(Date(2026, 1, 1), 3, "New Year's Day"), Day(Date(2026, 1, 2), 1),
            Day(Date(2026, 1, 3), 2, "Saturday"), Day(Date(2026, 1, 4), 2, "Sunday"),
            Day(Date(2026, 4, 3), 4, "Good Friday")};
  }

  /// From now on the start information has these calendars, and these types.
  headless::ProcedureScript& AnswerAllInfo(const Rows& calendars, const Rows& types = UsualTypes()) {
    world.commands.Forget("CldAllInfo");
    return world.commands.Answer("CldAllInfo")
        .Gives({"ID1", "Year1"}, calendars)
        .Gives({"TID1", "Description1"}, types);
  }
  /// As `AnswerAllInfo` with the usual calendars and types, and with what the Holidays window needs: the rule
  /// 2, Saturday, and the first weekday.
  void AnswerAllInfoWithARule() {
    AnswerAllInfo(UsualCalendars())
        .Gives({"ID2", "Name1", "Comment", "TID1", "D1", "MY", "MD", "WD", "Del"},
               {{2, "Saturday", {}, 2, {}, {}, {}, std::int16_t{7}, {}}})
        .Gives({"FirstDay"}, {{1}});
  }
  /// From now on every calendar has these days.
  void AnswerDays(const Rows& days) {
    world.commands.Forget("CldGetMain");
    DaysAnswer().Gives({"ODate", "TID1", "Name1", "Comment2", "Comment", "ID2", "Day1"}, days);
  }
  /// The answer of the days' procedure, to be described, in place of the one before.
  headless::ProcedureScript& DaysAnswer() {
    using platform::ParameterType;
    world.commands.Forget("CldGetMain");
    return world.commands.Answer("CldGetMain")
        .Takes("@ID1", ParameterType::kInt32)
        .Takes("@Year1", ParameterType::kInt32);
  }
  void AnswerStoring(std::int32_t return_value) {
    using platform::ParameterType;
    world.commands.Forget("CldIUMain");
    world.commands.Answer("CldIUMain")
        .Takes("@TID1", ParameterType::kInt32)
        .Takes("@ID1", ParameterType::kInt32)
        .Takes("@ID2", ParameterType::kInt32)
        .Takes("@Year1", ParameterType::kInt32)
        .Takes("@Day1", ParameterType::kInt32)
        .Takes("@ODate", ParameterType::kDate)
        .Takes("@Comment", ParameterType::kText)
        .Returns(return_value);
  }

  /// Makes the window and starts it.
  bool Start() {
    window = CalendarsWindowUnderTest::Create(platform);
    form_ = &world.toolkit.FormNamed("fmCalendar");
    return window->Init(headers, holiday_headers);
  }
  /// Starts the window, shows it and forgets the calls so far.
  void Open() {
    ASSERT_TRUE(Start());
    window->Show();
    world.log.Clear();
  }
  /// Opens the window and selects a calendar.
  void OpenAt(const std::string& node) {
    Open();
    SelectNode(node);
    world.log.Clear();
  }
  /// The operator selects a node, expanding its currency where needed.
  void SelectNode(const std::string& key) {
    const auto parent = Tree().Parent(key);
    if (parent && !Tree().Expanded(*parent)) Tree().ToggleNode(*parent);
    Tree().ClickNode(key);
  }
  void Click(const std::string& tool) { Tools().ClickTool(tool); }
  /// The operator chooses from the menu of a day.
  void ChooseForDay(std::int32_t row, const std::string& tool) {
    Tools().ChooseFromNextPopup(tool);
    Grid().RightClickRow(row);
  }

  [[nodiscard]] headless::HeadlessForm& Form() const { return *form_; }
  [[nodiscard]] headless::HeadlessTree& Tree() const { return Part<headless::HeadlessTree>("tvCalendar"); }
  [[nodiscard]] headless::HeadlessGrid& Grid() const { return Part<headless::HeadlessGrid>("gexCalendar"); }
  [[nodiscard]] headless::HeadlessToolBar& Tools() const { return Part<headless::HeadlessToolBar>("ssatb"); }
  [[nodiscard]] headless::HeadlessAnimation& Animation() const {
    return Part<headless::HeadlessAnimation>("anim");
  }
  [[nodiscard]] std::string StatusText() const {
    return Part<headless::HeadlessStatusBar>("sbCalendar").PanelText(1);
  }
  [[nodiscard]] std::vector<headless::ExecutedCall> CallsOf(const std::string& procedure) const {
    return world.commands.CallsOf(procedure);
  }
  /// The fake Holidays window that the assignment of holidays opens from now on.
  FakeHolidaysWindow& UseFakeHolidaysWindow() {
    window->holidays = std::make_shared<FakeHolidaysWindow>(world.log);
    return *window->holidays;
  }

  std::shared_ptr<GridFields> headers = std::make_shared<GridFields>();
  std::shared_ptr<GridFields> holiday_headers = std::make_shared<GridFields>();
  std::shared_ptr<CalendarsWindowUnderTest> window;

 private:
  template <typename Kind>
  [[nodiscard]] Kind& Part(const std::string& name) const {
    return form_->Part<Kind>(name);
  }

  headless::HeadlessForm* form_ = nullptr;
};

/// What selecting a node, or selecting it again, must ask the database for.
inline void ExpectDaysAsked(const headless::ExecutedCall& call, std::int32_t currency_id, std::int32_t year) {
  EXPECT_EQ(call.parameters,
            (std::vector<std::pair<std::string, Value>>{{"@ID1", currency_id}, {"@Year1", year}}));
}

}  // namespace ferrowind::testing
