// How the Calendars window leads to the plan of a year.
#include <gmock/gmock.h>

#include "ferrowind/adapters/headless/headless_button.h"
#include "ferrowind/adapters/headless/headless_label.h"
#include "ferrowind/adapters/headless/headless_text_box.h"
#include "ferrowind/adapters/headless/headless_tool_bar.h"
#include "ferrowind/adapters/headless/headless_tree.h"
#include "ferrowind/control/default_headers.h"
#include "ferrowind/views/calendars/fm_calendar.h"
#include "ferrowind/views/planning/planning_additions.h"

#include "tests/support/fault_scenario.h"
#include "tests/unit/planning/memory_planning_world.h"

namespace ferrowind {
namespace {

using headless::HeadlessForm;
using planning::kDollar;
using planning::kEuro;
using testing::RunInFreshThread;

constexpr const char* kTool = "ID_PlanYear";

/// The Calendars window with the calendar EUR 2028; EUR has a book, and USD has none.
class ToolWorld : public planning::MemoryPlanningWorld {
 public:
  ToolWorld() {
    static_cast<void>(SharedServicesObject());
    GiveBook(kEuro, "EUR", "celebration | Christmas Day | 12-25 | 25 December\n");
    CreateCalendar(kEuro, 2028);
    with_additions.additions = &additions;
    auto headers = std::make_shared<GridFields>();
    auto holiday_headers = std::make_shared<GridFields>();
    AddDefaultHeaders(*headers);
    AddDefaultHolidayHeaders(*holiday_headers);
    EXPECT_TRUE(window->Init(headers, holiday_headers));
    window->Show();
    Tools().ClickTool("ID_Expand");
  }

  [[nodiscard]] HeadlessForm& Form() const { return world.toolkit.FormNamed("fmCalendar"); }
  [[nodiscard]] headless::HeadlessToolBar& Tools() const {
    return Form().Part<headless::HeadlessToolBar>("ssatb");
  }
  void SelectNode(const std::string& node) const {
    Form().Part<headless::HeadlessTree>("tvCalendar").ClickNode(node);
  }
  void ReadAnew() const {
    Tools().ClickTool("ID_Refresh");
    Tools().ClickTool("ID_Expand");
  }
  [[nodiscard]] std::size_t PlanWindows() const { return world.toolkit.CountOfForms("fmYearPlan"); }
  /// Creates the calendar of 2029 of the selected currency, and presses the button when it is asked whether
  /// to prepare it.
  void CreateCalendarAndAnswer(const char* button) {
    world.toolkit.ScriptModal("fmSelectYear", [](HeadlessForm& form) {
      form.Part<headless::HeadlessTextBox>("txtYear").ReplaceText("2029");
      form.Part<headless::HeadlessButton>("cmdCreate").Click();
    });
    world.toolkit.ScriptModal("fmMessage", [this, button](HeadlessForm& form) {
      question = form.Part<headless::HeadlessLabel>("lblMessage").Text();
      form.Part<headless::HeadlessButton>(button).Click();
    });
    Tools().ClickTool("ID_New");
  }

  std::string question;
  almanac::DateTables tables;
  platform::Platform with_additions = platform;
  PlanningWindows windows{with_additions, tables};
  PlanningAdditions additions{{with_additions, tables, windows}};
  std::shared_ptr<fmCalendar> window = MakeWindow();

 private:
  std::shared_ptr<fmCalendar> MakeWindow() {
    with_additions.additions = &additions;
    return fmCalendar::Create(with_additions);
  }
};

TEST(PlanYearTool, OpensThePlanOfTheCalendarOnShow) {
  RunInFreshThread([] {
    ToolWorld world;
    world.SelectNode("K978_2028");
    ASSERT_TRUE(world.Tools().ToolEnabled(kTool));
    world.Tools().ClickTool(kTool);
    ASSERT_EQ(world.PlanWindows(), 1U);
    EXPECT_EQ(world.world.toolkit.FormNamed("fmYearPlan").Caption(), "Plan of EUR 2028");
  });
}

TEST(PlanYearTool, CallsTheCalendarByItsCurrencyWhenTheDatabaseCannotBeRead) {
  RunInFreshThread([] {
    ToolWorld world;
    world.SelectNode("K978_2028");
    world.world.faults.FailAtCall(1);
    world.Tools().ClickTool(kTool);
    world.world.faults.Disarm();
    ASSERT_EQ(world.PlanWindows(), 1U);
    EXPECT_EQ(world.world.toolkit.FormNamed("fmYearPlan").Caption(), "Plan of EUR 2028");
  });
}

TEST(PlanYearTool, CannotBeUsedWhileNoCalendarIsOnShow) {
  RunInFreshThread([] {
    ToolWorld world;
    EXPECT_FALSE(world.Tools().ToolEnabled(kTool));
    world.SelectNode("K978_2028");
    world.SelectNode("K978");
    EXPECT_FALSE(world.Tools().ToolEnabled(kTool));
  });
}

TEST(PlanYearTool, OffersToPrepareACalendarThatWasJustCreated) {
  RunInFreshThread([] {
    ToolWorld world;
    world.SelectNode("K978_2028");
    world.CreateCalendarAndAnswer("cmdOk");
    EXPECT_EQ(world.question, "Nothing is closed in EUR 2029 yet. Prepare it now?");
    ASSERT_EQ(world.PlanWindows(), 1U);
    EXPECT_EQ(world.world.toolkit.FormNamed("fmYearPlan").Caption(), "Plan of EUR 2029");
  });
}

TEST(PlanYearTool, LeavesANewCalendarAsItIsWhenThatIsDeclined) {
  RunInFreshThread([] {
    ToolWorld world;
    world.SelectNode("K978_2028");
    world.CreateCalendarAndAnswer("cmdCancel");
    EXPECT_NE(world.question, "");
    EXPECT_EQ(world.PlanWindows(), 0U);
  });
}

TEST(PlanYearTool, DoesNotOfferThatForACurrencyWithoutABook) {
  RunInFreshThread([] {
    ToolWorld world;
    ToolWorld::CreateCalendar(kDollar, 2028);
    world.ReadAnew();
    world.SelectNode("K840_2028");
    world.CreateCalendarAndAnswer("cmdOk");
    EXPECT_EQ(world.question, "");
    EXPECT_EQ(world.PlanWindows(), 0U);
  });
}

TEST(PlanYearTool, WorksAsEverAfterAnyFailureOfANewCalendarAndItsOffer) {
  testing::FailEachCall<ToolWorld>(
      {.arrange =
           [](ToolWorld& world) {
             EXPECT_TRUE(world.windows.CloseAll());
             world.world.database->Tables().calendars.erase({kEuro, 2029});
             world.ReadAnew();
             world.SelectNode("K978_2028");
             world.question.clear();
           },
       .act = [](ToolWorld& world) { world.CreateCalendarAndAnswer("cmdOk"); },
       .look =
           [](ToolWorld& world) {
             const bool is_created = world.world.database->Tables().calendars.contains({kEuro, 2029});
             const std::string failed = world.world.faults.FailedCall();
             // The dialog of a new calendar says nothing where its own answer is lost.
             if (is_created && world.question.empty() && failed != "command.ParameterAt") {
               EXPECT_FALSE(testing::SeenByOperator(world.world.log).empty());
             }
             if (failed.empty()) {
               EXPECT_TRUE(world.world.toolkit.FormNamed("fmYearPlan").IsShown());
             }
           },
       // The window itself says nothing of some of the calls that it reads the calendars by.
       .is_silent = [](const std::string&) { return true; },
       .most_told = 2},
      40);
}

}  // namespace
}  // namespace ferrowind
