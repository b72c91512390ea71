// The toolbar of the Calendars window: what is on it, when it is enabled, what a click does.
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/unit/views/calendars/calendars_world.h"

namespace ferrowind {
namespace {

using platform::ToolKind;
using testing::CalendarsWorld;
using ::testing::ElementsAre;
using testing::RunInFreshThread;
using Texts = std::vector<std::string>;

const Texts kTreeTools = {"ID_New", "ID_Expand", "ID_Collapse"};
const Texts kGridTools = {"ID_Copy", "ID_ShowHide", "ID_ExpSel", "ID_ExpandGrid", "ID_CollapseGrid"};

void ExpectEnabled(const CalendarsWorld& calendars, const Texts& tools, bool enabled) {
  for (const auto& tool : tools) EXPECT_EQ(calendars.Tools().ToolEnabled(tool), enabled) << tool;
}

TEST(CalendarTools, StandOnTheBarAndInThePopupMenuInTheirOrder) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.Open();
    EXPECT_EQ(calendars.Tools().Bar().caption, "ToolBar");
    EXPECT_EQ(calendars.Tools().Bar().ids,
              (Texts{"ID_Refresh", "ID_New", "ID_Expand", "ID_Collapse", "-", "ID_ShowHide", "ID_ExpandGrid",
                     "ID_CollapseGrid", "ID_ExpSel", "ID_Copy"}));
    EXPECT_EQ(calendars.Tools().PopupMenu("ID_StatesMenu").caption, "StatesMenu");
    EXPECT_EQ(calendars.Tools().PopupMenu("ID_StatesMenu").ids,
              (Texts{"ID_AssignSingle", "ID_AssignMany", "-", "ID_Except", "ID_Except2"}));
  });
}

TEST(CalendarTools, HaveTheirCaptionsAndDescriptions) {
  struct Texts3 {
    const char* id;
    const char* caption;
    const char* description;
  };
  constexpr Texts3 kExpected[] = {
      {"ID_Refresh", "Refresh", "Refresh all"},
      {"ID_New", "New", "Create new calendar"},
      {"ID_Expand", "Expand", "Expand currency nodes"},
      {"ID_Collapse", "Collapse", "Collapse currency nodes"},
      {"ID_ShowHide", "Show or hide headers group", "Show or hide headers group"},
      {"ID_ExpandGrid", "Expand all grid", "Expand all grid"},
      {"ID_CollapseGrid", "Collapse all grid", "Collapse all grid"},
      {"ID_ExpSel", "Expand selection", "Expand selection"},
      {"ID_Copy", "Copy rows from grid to clipboard", "Copy rows from grid to clipboard"},
      {"ID_AssignSingle", "Assign holiday for single day ...", "Assign holiday for single day"},
      {"ID_AssignMany", "Assign group holidays for calendar ...", "Assign group holidays for calendar"},
      {"ID_Except", "Except day from holidays list", "Except day from holidays list"},
      {"ID_Except2", "Except day from holiday list with message ...",
       "Except day from holiday list with message"},
  };
  RunInFreshThread([&] {
    CalendarsWorld calendars;
    calendars.Open();
    for (const auto& expected : kExpected) {
      const auto& tool = calendars.Tools().Design(expected.id);
      EXPECT_EQ(tool.caption, expected.caption);
      EXPECT_EQ(tool.description, expected.description);
      EXPECT_EQ(tool.category, "General");
      const bool is_two_state = tool.id == "ID_ShowHide";
      EXPECT_EQ(tool.kind, is_two_state ? ToolKind::kTwoStateButton : ToolKind::kButton);
    }
  });
}

TEST(CalendarTools, OfTheTreeAreEnabledAndOfTheGridDisabledUntilACalendarIsShown) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.Open();
    ExpectEnabled(calendars, kTreeTools, true);
    ExpectEnabled(calendars, kGridTools, false);
    calendars.SelectNode("K978_2026");
    ExpectEnabled(calendars, kTreeTools, true);
    ExpectEnabled(calendars, kGridTools, true);
    calendars.SelectNode("K978");
    ExpectEnabled(calendars, kGridTools, false);
    calendars.SelectNode("K978_2027");
    ExpectEnabled(calendars, kGridTools, true);
  });
}

TEST(CalendarTools, AreEnabledAgainWhenARefreshFindsCurrencies) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.world.dictionary->SetCurrencies({});
    calendars.AnswerAllInfo({});
    calendars.Open();
    ExpectEnabled(calendars, kTreeTools, false);
    calendars.world.dictionary->SetCurrencies({{978, "EUR"}});
    calendars.Click("ID_Refresh");
    ExpectEnabled(calendars, kTreeTools, true);
  });
}

TEST(CalendarTools, DescribeThemselvesInTheStatusBarUnderTheMouse) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.Open();
    EXPECT_EQ(calendars.StatusText(), "");
    calendars.Tools().EnterTool("ID_New");
    EXPECT_EQ(calendars.StatusText(), "Create new calendar");
    calendars.Tools().EnterTool("ID_Copy");
    EXPECT_EQ(calendars.StatusText(), "Copy rows from grid to clipboard");
    calendars.Tools().LeaveTool("ID_Copy");
    EXPECT_EQ(calendars.StatusText(), "");
    EXPECT_TRUE(calendars.world.log.Contains(R"(sbCalendar.SetPanelText(1, "Create new calendar"))"));
  });
}

TEST(CalendarTools, ShowAndHideTheGroupByBoxByTheButtonsStateUnderALockOfTheWindow) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.OpenAt("K978_2026");
    calendars.Click("ID_ShowHide");
    EXPECT_TRUE(calendars.Grid().GroupByBoxVisible());
    EXPECT_THAT(calendars.world.log.Calls(),
                ElementsAre(R"(operator.ssatb.ClickTool("ID_ShowHide"))", "toolkit.LockUpdates(fmCalendar)",
                            "gexCalendar.SetGroupByBoxVisible(True)", "toolkit.UnlockUpdates()"));
    calendars.Click("ID_ShowHide");
    EXPECT_FALSE(calendars.Grid().GroupByBoxVisible());
  });
}

TEST(CalendarTools, ExpandAndCollapseTheGridAndExpandTheSelection) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.OpenAt("K978_2026");
    for (const char* tool : {"ID_CollapseGrid", "ID_ExpandGrid", "ID_ExpSel"}) calendars.Click(tool);
    EXPECT_THAT(calendars.world.log.StartingWith("gexCalendar."),
                ElementsAre("gexCalendar.CollapseAllGroups()", "gexCalendar.ExpandAllGroups()",
                            "gexCalendar.ExpandSelection()"));
  });
}

TEST(CalendarTools, CopyTheRowsWithTheirCaptions) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.OpenAt("K978_2026");
    calendars.Click("ID_Copy");
    EXPECT_THAT(calendars.world.log.Calls(), ElementsAre(R"(operator.ssatb.ClickTool("ID_Copy"))",
                                                         "services.CopyGridRows(gexCalendar, True)"));
  });
}

TEST(CalendarTools, AFailureOfACopyIsReportedAndLeavesTheWindowUsable) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.OpenAt("K978_2026");
    calendars.world.faults.FailAtCall(1);
    calendars.Click("ID_Copy");
    EXPECT_EQ(calendars.SeenByOperator(),
              Texts{R"(services.ReportError(7777, "Planned fault in services.CopyGridRows"))"});
    calendars.Click("ID_Copy");
    EXPECT_NE(calendars.world.services->Clipboard(), "");
  });
}

TEST(CalendarTools, AToolOfAnUnknownIdDoesNothing) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.Open();
    calendars.Tools().AddTool({"ID_Other", "Other", "General", "Other"});
    calendars.Tools().SetBar("ToolBar", {"ID_Other"});
    calendars.world.log.Clear();
    calendars.Click("ID_Other");
    EXPECT_THAT(calendars.world.log.Calls(), ElementsAre(R"(operator.ssatb.ClickTool("ID_Other"))"));
  });
}

}  // namespace
}  // namespace ferrowind
