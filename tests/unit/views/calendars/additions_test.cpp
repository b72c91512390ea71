// What a host adds to the Calendars window.
#include <optional>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ferrowind/adapters/headless/headless_button.h"
#include "ferrowind/adapters/headless/headless_label.h"
#include "ferrowind/adapters/headless/headless_text_box.h"

#include "tests/support/fake_additions.h"
#include "tests/unit/views/calendars/calendars_world.h"

namespace ferrowind {
namespace {

using headless::HeadlessButton;
using headless::HeadlessForm;
using platform::CalendarOnShow;
using testing::CalendarsWorld;
using testing::Date;
using ::testing::ElementsAre;
using testing::ExpectInOrder;
using testing::FakeAdditions;
using testing::RunInFreshThread;
using Texts = std::vector<std::string>;

constexpr std::int32_t kRowOfGoodFriday = 5;

/// The Calendars window with additions that have a tool, an entry of the menu and a label.
class AddedWorld : public CalendarsWorld {
 public:
  AddedWorld() {
    platform.additions = &additions;
    additions.calendars_parts = {
        .controls = {{platform::ControlKind::kLabel, "lblAdded"}},
        .tools = {{"ID_Added", "Added", "General", "Adds"}, {"ID_AddedToo", "Added, too", "General", "Adds"}},
        .bar = {"ID_Added"},
        .menu = {"ID_AddedToo"}};
  }

  [[nodiscard]] Texts Told() const { return world.log.StartingWith("additions."); }
  void ScriptYearDialog(const char* button) {
    world.toolkit.ScriptModal("fmSelectYear", [button](HeadlessForm& form) {
      form.Part<headless::HeadlessTextBox>("txtYear").ReplaceText("2027");
      form.Part<HeadlessButton>(button).Click();
    });
  }

  FakeAdditions additions{world.log};
};

TEST(CalendarsAdditions, StandBehindTheControlsAndToolsOfTheWindow) {
  RunInFreshThread([] {
    AddedWorld calendars;
    calendars.Open();
    const auto& bar = calendars.Tools().Bar().ids;
    EXPECT_THAT(Texts(bar.end() - 3, bar.end()), ElementsAre("ID_Copy", "-", "ID_Added"));
    const auto& menu = calendars.Tools().PopupMenu("ID_StatesMenu").ids;
    EXPECT_THAT(Texts(menu.end() - 3, menu.end()), ElementsAre("ID_Except2", "-", "ID_AddedToo"));
    EXPECT_NO_THROW((void)calendars.Form().Part<headless::HeadlessLabel>("lblAdded"));
  });
}

TEST(CalendarsAdditions, AddColumnsBehindTheGivenOnesBeforeTheLayoutOfTheGridIsLoaded) {
  RunInFreshThread([] {
    AddedWorld calendars;
    calendars.additions.acts_in = "AddColumns";
    calendars.additions.act = [&] {
      calendars.additions.calendars->Days().AddColumn("Added", 0, 1, "Added");
    };
    ASSERT_TRUE(calendars.Start());
    EXPECT_EQ(calendars.Grid().ColumnByKey("Added").Index(), calendars.Grid().ColumnCount());
    ExpectInOrder(calendars.world.log,
                  {R"(gexCalendar.AddColumn("Added", 0, 1, "Added"))",
                   std::string("services.LoadGridLayout(gexCalendar, \"") + testing::kLayoutSection + "\")",
                   "additions.Started()"});
  });
}

TEST(CalendarsAdditions, RunTheirToolsAndNoneOfTheWindow) {
  RunInFreshThread([] {
    AddedWorld calendars;
    calendars.OpenAt("K978_2026");
    calendars.Click("ID_Added");
    calendars.Click("ID_ExpandGrid");
    calendars.ChooseForDay(kRowOfGoodFriday, "ID_AddedToo");
    EXPECT_THAT(calendars.Told(),
                ElementsAre(R"(additions.RunTool("ID_Added"))", "additions.CurrentDayChanged()",
                            "additions.DayMenuOpens(True)", R"(additions.RunTool("ID_AddedToo"))"));
  });
}

TEST(CalendarsAdditions, LearnOfTheDaysOnShowOnceAFill) {
  RunInFreshThread([] {
    AddedWorld calendars;
    calendars.Open();
    calendars.SelectNode("K978_2026");
    calendars.Grid().ClickRow(kRowOfGoodFriday);
    calendars.world.log.Clear();
    // The current row goes and comes back meanwhile.
    calendars.Click("ID_Refresh");
    EXPECT_EQ(calendars.Told(), Texts{"additions.DaysShown()"});
  });
}

TEST(CalendarsAdditions, SeeTheCalendarOnShowAndItsCurrentDay) {
  RunInFreshThread([] {
    AddedWorld calendars;
    calendars.Open();
    EXPECT_EQ(calendars.additions.calendars->OnShow(), std::nullopt);
    EXPECT_EQ(calendars.additions.calendars->CurrentDay(), std::nullopt);
    calendars.SelectNode("K978_2026");
    EXPECT_EQ(calendars.additions.calendars->OnShow(), (CalendarOnShow{978, "EUR", 2026}));
    calendars.Grid().ClickRow(kRowOfGoodFriday);
    EXPECT_EQ(calendars.additions.calendars->CurrentDay(), Date(2026, 4, 3));
    EXPECT_EQ(calendars.Told().back(), "additions.CurrentDayChanged()");
    calendars.SelectNode("K840");
    EXPECT_EQ(calendars.additions.calendars->OnShow(), std::nullopt);
    EXPECT_EQ(calendars.Told().back(), "additions.DaysShown()");
  });
}

TEST(CalendarsAdditions, SeeTheCalendarThatStaysOnShowWhenAnotherCannotBeRead) {
  RunInFreshThread([] {
    AddedWorld calendars;
    calendars.OpenAt("K978_2026");
    calendars.DaysAnswer().Returns(5);
    calendars.SelectNode("K978_2027");
    EXPECT_EQ(calendars.additions.calendars->OnShow(), (CalendarOnShow{978, "EUR", 2026}));
  });
}

TEST(CalendarsAdditions, SeeNoCurrentDayOnAGroupRow) {
  RunInFreshThread([] {
    AddedWorld calendars;
    calendars.OpenAt("K978_2026");
    calendars.Grid().GroupKeys().Add(calendars.Grid().ColumnByKey("MonthName").Index(), 1, 0);
    calendars.Grid().Refresh(false);
    ASSERT_TRUE(calendars.Grid().IsGroupRow(1));
    calendars.Grid().ClickRow(1);
    EXPECT_EQ(calendars.additions.calendars->CurrentDay(), std::nullopt);
    calendars.world.log.Clear();
    calendars.Grid().RightClickRow(1);
    EXPECT_THAT(calendars.Told(), ElementsAre("additions.DayMenuOpens(False)"));
  });
}

TEST(CalendarsAdditions, ShowAnotherCalendarAsTheOperatorWould) {
  RunInFreshThread([] {
    AddedWorld calendars;
    calendars.OpenAt("K978_2026");
    calendars.additions.calendars->Choose(840, 2026);
    EXPECT_EQ(calendars.Tree().Selected(), "K840_2026");
    EXPECT_EQ(calendars.additions.calendars->OnShow(), (CalendarOnShow{840, "USD", 2026}));
    EXPECT_EQ(calendars.world.log.CountOf(R"(command.SetText("CldAllInfo"))"), 0u);
  });
}

TEST(CalendarsAdditions, ShowACalendarThatIsNewInTheDatabase) {
  RunInFreshThread([] {
    AddedWorld calendars;
    calendars.OpenAt("K978_2026");
    calendars.AnswerAllInfo({{978, 2026}, {392, 2028}});
    calendars.additions.calendars->Choose(392, 2028);
    EXPECT_EQ(calendars.Tree().Selected(), "K392_2028");
    EXPECT_EQ(calendars.additions.calendars->OnShow(), (CalendarOnShow{392, "JPY", 2028}));
  });
}

TEST(CalendarsAdditions, OpenTheMenuOfTheCurrentDay) {
  RunInFreshThread([] {
    AddedWorld calendars;
    calendars.OpenAt("K978_2026");
    calendars.Grid().SetCurrentRow(0);
    calendars.additions.calendars->ShowDayMenu();
    EXPECT_FALSE(calendars.world.log.Contains(R"(ssatb.ShowPopupMenu("ID_StatesMenu"))"));
    calendars.Grid().ClickRow(kRowOfGoodFriday);
    calendars.additions.calendars->ShowDayMenu();
    EXPECT_TRUE(calendars.world.log.Contains(R"(ssatb.ShowPopupMenu("ID_StatesMenu"))"));
  });
}

TEST(CalendarsAdditions, LearnOfACreatedCalendarOnceItIsOnShowAndItsDialogIsGone) {
  RunInFreshThread([] {
    AddedWorld calendars;
    calendars.OpenAt("K978_2026");
    calendars.ScriptYearDialog("cmdCreate");
    calendars.Click("ID_New");
    EXPECT_THAT(calendars.Told(),
                ElementsAre("additions.DaysShown()", R"(additions.CalendarCreated(978, "EUR", 2027))"));
    EXPECT_EQ(calendars.Tree().Selected(), "K978_2027");
  });
}

TEST(CalendarsAdditions, LearnOfNoCalendarThatCouldNotBeCreatedOrWasNotAskedFor) {
  RunInFreshThread([] {
    AddedWorld calendars;
    calendars.OpenAt("K978_2026");
    calendars.AnswerStoring(6);
    calendars.ScriptYearDialog("cmdCreate");
    calendars.Click("ID_New");
    calendars.AnswerStoring(0);
    calendars.ScriptYearDialog("cmdCancel");
    calendars.Click("ID_New");
    EXPECT_THAT(calendars.Told(), ElementsAre("additions.DaysShown()"));
  });
}

TEST(CalendarsAdditions, LearnOfTheClosingOnce) {
  RunInFreshThread([] {
    AddedWorld calendars;
    calendars.OpenAt("K978_2026");
    EXPECT_TRUE(calendars.window->ForceClosing());
    EXPECT_TRUE(calendars.window->ForceClosing());
    EXPECT_THAT(calendars.Told(), ElementsAre("additions.Closing()"));
  });
}

TEST(CalendarsAdditions, ThatFailAreReportedAndLeaveTheWindowAsItIs) {
  for (const char* method : {"ForCalendars", "AddColumns", "Started", "DaysShown", "CurrentDayChanged",
                             "DayMenuOpens", "CalendarCreated", "RunTool", "Closing"}) {
    RunInFreshThread([method] {
      SCOPED_TRACE(method);
      AddedWorld calendars;
      calendars.additions.fails_in = method;
      ASSERT_TRUE(calendars.Start());
      calendars.window->Show();
      calendars.SelectNode("K978_2026");
      calendars.Click("ID_Added");
      calendars.ChooseForDay(kRowOfGoodFriday, "ID_Except");
      EXPECT_EQ(calendars.CallsOf("CldIUMain").size(), 1u);
      calendars.ScriptYearDialog("cmdCreate");
      calendars.Click("ID_New");
      EXPECT_EQ(calendars.CallsOf("CldIUMain").size(), 2u);
      EXPECT_EQ(calendars.Grid().RowCount(), 5);
      EXPECT_TRUE(calendars.window->ForceClosing());
      const auto seen = calendars.SeenByOperator();
      ASSERT_FALSE(seen.empty());
      EXPECT_THAT(seen.front(), ::testing::HasSubstr(std::string(method) + " cannot be done"));
    });
  }
}

}  // namespace
}  // namespace ferrowind
