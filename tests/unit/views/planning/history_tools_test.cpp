// The tools of the Calendars window that open the history and undo one's own last change.
#include "ferrowind/views/planning/history_tools.h"

#include <gmock/gmock.h>

#include "ferrowind/adapters/headless/headless_grid.h"
#include "ferrowind/adapters/headless/headless_tree.h"
#include "ferrowind/control/default_headers.h"
#include "ferrowind/views/calendars/fm_calendar.h"
#include "ferrowind/views/planning/planning_additions.h"

#include "tests/support/fault_scenario.h"
#include "tests/unit/views/planning/history_world.h"

namespace ferrowind {
namespace {

using headless::HeadlessButton;
using headless::HeadlessForm;
using headless::HeadlessLabel;
using headless::HeadlessToolBar;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using testing::HistoryWorld;
using ::testing::IsEmpty;
using testing::RunInFreshThread;
using Origin = planning::ActionStack::Origin;

/// The Calendars window with the additions, EUR 2028 on show.
class ToolsWorld : public HistoryWorld {
 public:
  ToolsWorld() {
    with_additions.additions = &additions;
    AddDefaultHeaders(*headers);
    AddDefaultHolidayHeaders(*holiday_headers);
    world.toolkit.AddAnimation("/component/Progress.pra");
    window = fmCalendar::Create(with_additions);
    EXPECT_TRUE(window->Init(headers, holiday_headers));
    window->Show();
    Tree().ToggleNode("K978");
    Tree().ClickNode("K978_2028");
    Rest();
    world.log.Clear();
  }

  [[nodiscard]] HeadlessForm& Calendars() const { return world.toolkit.FormNamed("fmCalendar"); }
  [[nodiscard]] headless::HeadlessTree& Tree() const {
    return Calendars().Part<headless::HeadlessTree>("tvCalendar");
  }
  [[nodiscard]] HeadlessToolBar& Tools() const { return Calendars().Part<HeadlessToolBar>("ssatb"); }
  void Rest() { world.toolkit.Advance(HistoryTools::kRestMilliseconds); }
  void Refresh() {
    Tools().ClickTool("ID_Refresh");
    Rest();
  }
  /// Answers the next question, which is kept as `asked`.
  void Answer(const char* button) {
    world.toolkit.ScriptModal("fmMessage", [this, button](HeadlessForm& form) {
      asked.push_back(form.Part<HeadlessLabel>("lblMessage").Text());
      form.Part<HeadlessButton>(button).Click();
    });
  }
  /// The question, and what tells why nothing was undone.
  void AnswerAll() {
    while (world.toolkit.WaitingScripts() < 2) Answer("cmdOk");
  }
  /// What stands on the day that the operator excepts, in the database and in the grid.
  [[nodiscard]] std::string StoredName() const {
    const auto rule = world.database->Tables().calendars.at({978, 2028})[104].rule;
    return rule ? world.database->Tables().rules.at(*rule).name : "Working day";
  }
  [[nodiscard]] std::string NameOnShow() const {
    return Calendars().Part<headless::HeadlessGrid>("gexCalendar").CellText(105, "HolidayName");
  }
  [[nodiscard]] std::size_t EntryCount() const { return world.database->History().size(); }

  platform::Platform with_additions = platform;
  PlanningAdditions additions{{with_additions, tables, windows}};
  std::shared_ptr<GridFields> headers = std::make_shared<GridFields>();
  std::shared_ptr<GridFields> holiday_headers = std::make_shared<GridFields>();
  std::shared_ptr<fmCalendar> window;
  std::vector<std::string> asked;

 private:
  /// The Calendars window reads the days anew then, which is not for the tools to answer for.
  platform::Subscription changed_ = windows.OnChanged([this](const auto&) { world.faults.Disarm(); });
};

TEST(HistoryTools, OpenTheHistoryOfTheCalendarOnShow) {
  RunInFreshThread([] {
    ToolsWorld calendars;
    calendars.Tools().ClickTool("ID_History");
    EXPECT_EQ(calendars.Chosen("cmbCalendar"), "EUR 2028");
    calendars.Tree().ClickNode("K978");
    calendars.Tools().ClickTool("ID_History");
    EXPECT_EQ(calendars.Chosen("cmbCalendar"), "All");
  });
}

TEST(HistoryTools, OpenTheHistoryOfADay) {
  RunInFreshThread([] {
    ToolsWorld calendars;
    calendars.Tools().ChooseFromNextPopup("ID_DayHistory");
    calendars.Calendars().Part<headless::HeadlessGrid>("gexCalendar").RightClickRow(1);
    EXPECT_THAT(calendars.Chosen("cmbCalendar"), ::testing::StartsWith("EUR, "));
  });
}

TEST(HistoryTools, NameWhatUndoWouldUndo) {
  RunInFreshThread([] {
    ToolsWorld calendars;
    EXPECT_EQ(calendars.Tools().Design("ID_Undo").shortcut, "Ctrl+Z");
    EXPECT_EQ(calendars.Tools().ToolDescription("ID_Undo"),
              "Undoes your last change of this calendar: Created the calendar EUR 2028");
    calendars.ExceptGoodFriday();
    calendars.Refresh();
    EXPECT_EQ(calendars.Tools().ToolDescription("ID_Undo"),
              "Undoes your last change of this calendar: Excepted Friday 14 April 2028: Audit");
  });
}

TEST(HistoryTools, ReadTheHistoryOnlyOnceTheOperatorRestsOnTheDays) {
  RunInFreshThread([] {
    ToolsWorld calendars;
    calendars.ExceptGoodFriday();
    calendars.Tools().ClickTool("ID_Refresh");
    EXPECT_EQ(calendars.Tools().ToolDescription("ID_Undo"), "Undoes your last change of this calendar");
    EXPECT_TRUE(calendars.Tools().ToolEnabled("ID_Undo"));
    calendars.Rest();
    EXPECT_EQ(calendars.Tools().ToolDescription("ID_Undo"),
              "Undoes your last change of this calendar: Excepted Friday 14 April 2028: Audit");
  });
}

TEST(HistoryTools, OfferNoUndoWithoutAnOwnChange) {
  RunInFreshThread([] {
    ToolsWorld calendars;
    calendars.ActAs("otto");
    calendars.Refresh();
    EXPECT_FALSE(calendars.Tools().ToolEnabled("ID_Undo"));
    EXPECT_EQ(calendars.Tools().ToolDescription("ID_Undo"), "Undoes your last change of this calendar");
  });
}

TEST(HistoryTools, UndoWhatIsNamedOnceItIsConfirmed) {
  RunInFreshThread([] {
    ToolsWorld calendars;
    calendars.ExceptGoodFriday();
    calendars.Refresh();
    calendars.Answer("cmdCancel");
    calendars.Calendars().PressShortcut("Ctrl+Z");
    EXPECT_THAT(calendars.asked, ElementsAre("Undo in EUR 2028: Excepted Friday 14 April 2028: Audit?"));
    EXPECT_EQ(calendars.EntryCount(), 5U);
    calendars.Answer("cmdOk");
    calendars.Calendars().PressShortcut("Ctrl+Z");
    EXPECT_EQ(calendars.EntryCount(), 6U);
    EXPECT_EQ(planning::LoadCalendarBehind(978, 2028, 6).days[104].name, "Good Friday");
    // The days are shown anew, and what comes before is next.
    calendars.Rest();
    EXPECT_EQ(calendars.Tools().ToolDescription("ID_Undo"),
              "Undoes your last change of this calendar: Created the calendar EUR 2028");
    EXPECT_THAT(calendars.SeenByOperator(), IsEmpty());
  });
}

/// What a year planner does in one step: Good Friday is excepted, and Sunday goes to the first of January.
void ChangeTwiceInOneStep(ToolsWorld& calendars) {
  const std::vector<planning::CalendarKey> keys{{978, 2028}};
  calendars.windows.Actions().Add(
      Origin::kYearPlanner, planning::ActionCalls::Of(keys, [&] {
        calendars.Call("CldIUMain", {{"ID1", 978}, {"Year1", 2028}, {"TID1", 2}, {"ID2", 2}, {"Day1", 2}});
        calendars.ExceptGoodFriday();
      }));
  calendars.Refresh();
}

TEST(HistoryTools, UndoAllThatWasDoneInOneStepOnceThatIsConfirmed) {
  RunInFreshThread([] {
    ToolsWorld calendars;
    ChangeTwiceInOneStep(calendars);
    calendars.Answer("cmdOk");
    calendars.Tools().ClickTool("ID_Undo");
    EXPECT_THAT(calendars.asked,
                ElementsAre("Undo in EUR 2028: Excepted Friday 14 April 2028: Audit, and the 1 "
                            "other change that was made in the same step?"));
    EXPECT_EQ(calendars.EntryCount(), 8U) << "six were there";
    EXPECT_EQ(calendars.StoredName(), "Good Friday");
    EXPECT_EQ(calendars.NameOnShow(), "Good Friday");
    EXPECT_EQ(calendars.windows.Actions().Newest(Origin::kYearPlanner), nullptr);
  });
}

TEST(HistoryTools, UndoNothingOfAStepThatIsNotConfirmed) {
  RunInFreshThread([] {
    ToolsWorld calendars;
    ChangeTwiceInOneStep(calendars);
    calendars.Answer("cmdCancel");
    calendars.Tools().ClickTool("ID_Undo");
    EXPECT_EQ(calendars.EntryCount(), 6U);
    EXPECT_EQ(calendars.windows.Actions().Newest(Origin::kYearPlanner)->Count(), 2U);
  });
}

TEST(HistoryTools, UndoAStepWholeAlsoBehindAnotherThatWasUndone) {
  RunInFreshThread([] {
    ToolsWorld calendars;
    ChangeTwiceInOneStep(calendars);
    const std::vector<planning::CalendarKey> keys{{978, 2028}};
    calendars.windows.Actions().Add(
        Origin::kYearPlanner, planning::ActionCalls::Of(keys, [&] {
          calendars.Call("CldIUMain", {{"ID1", 978}, {"Year1", 2028}, {"TID1", 2}, {"ID2", 2}, {"Day1", 9}});
        }));
    calendars.Refresh();
    for (int i = 0; i < 2; ++i) {
      calendars.Answer("cmdOk");
      calendars.Tools().ClickTool("ID_Undo");
    }
    EXPECT_THAT(calendars.asked, ElementsAre(HasSubstr("9 January 2028?"), HasSubstr("the 1 other change")));
    EXPECT_EQ(calendars.EntryCount(), 10U) << "seven were there";
    EXPECT_EQ(calendars.StoredName(), "Good Friday");
  });
}

TEST(HistoryTools, UndoTheRestOfAStepOfWhichAPartWasUndoneElsewhere) {
  RunInFreshThread([] {
    ToolsWorld calendars;
    ChangeTwiceInOneStep(calendars);
    ASSERT_EQ(planning::UndoEntry(planning::LoadEntry(5)->entry).kind, planning::UndoOutcome::Kind::kDone);
    calendars.Refresh();
    calendars.Answer("cmdOk");
    calendars.Tools().ClickTool("ID_Undo");
    EXPECT_THAT(calendars.asked, ElementsAre("Undo in EUR 2028: Excepted Friday 14 April 2028: Audit?"));
    EXPECT_EQ(calendars.StoredName(), "Good Friday");
  });
}

TEST(HistoryTools, UndoALaterChangeAloneAndNoStepBeforeIt) {
  RunInFreshThread([] {
    ToolsWorld calendars;
    ChangeTwiceInOneStep(calendars);
    calendars.AssignGoodFriday();
    calendars.Refresh();
    calendars.Answer("cmdOk");
    calendars.Tools().ClickTool("ID_Undo");
    EXPECT_THAT(calendars.asked,
                ElementsAre("Undo in EUR 2028: Assigned Good Friday to Friday 14 April 2028?"));
    EXPECT_EQ(calendars.EntryCount(), 8U) << "seven were there";
  });
}

TEST(HistoryTools, SayWhyNothingWasUndone) {
  RunInFreshThread([] {
    ToolsWorld calendars;
    calendars.ExceptGoodFriday();
    calendars.Refresh();
    calendars.ActAs("anna");
    calendars.AssignGoodFriday();
    calendars.ActAs("memory");
    calendars.Answer("cmdOk");
    calendars.Answer("cmdOk");
    calendars.Tools().ClickTool("ID_Undo");
    ASSERT_EQ(calendars.asked.size(), 2U);
    EXPECT_THAT(
        calendars.asked[1],
        ::testing::ContainsRegex("The newest change of EUR 2028 is \"Assigned Good Friday to Friday 14 "
                                 "April 2028\" .anna, ....-..-.. ... ..:..:..."));
    EXPECT_EQ(calendars.EntryCount(), 6U);
  });
}

TEST(HistoryTools, SayThatThereIsNothingToUndoAnyMore) {
  RunInFreshThread([] {
    ToolsWorld calendars;
    calendars.ExceptGoodFriday();
    calendars.Refresh();
    calendars.ActAs("otto");
    calendars.Answer("cmdOk");
    calendars.Tools().ClickTool("ID_Undo");
    EXPECT_THAT(calendars.asked, ElementsAre("There is no change of EUR 2028 of yours to undo."));
    EXPECT_FALSE(calendars.Tools().ToolEnabled("ID_Undo"));
  });
}

TEST(HistoryTools, LeaveTheDaysOnShowWhenTheHistoryCannotBeRead) {
  RunInFreshThread([] {
    ToolsWorld calendars;
    calendars.world.database->AddProcedure(
        "CldGetHistory", {},
        [](auto&, const auto&) -> platform::CallOutcome { throw platform::Failure(1, "no history"); });
    calendars.Refresh();
    EXPECT_THAT(calendars.SeenByOperator(), IsEmpty());
    EXPECT_TRUE(calendars.Tools().ToolEnabled("ID_Undo"));
    calendars.Tools().ClickTool("ID_Undo");
    EXPECT_THAT(calendars.SeenByOperator(), ElementsAre(HasSubstr("no history")));
  });
}

TEST(HistoryTools, UndoAllOrNothingAndShowWhichWhicheverCallFails) {
  testing::FailEachCall<ToolsWorld>(
      {.arrange =
           [](ToolsWorld& calendars) {
             calendars.ExceptGoodFriday();
             calendars.Refresh();
             calendars.AnswerAll();
           },
       .act = [](ToolsWorld& calendars) { calendars.Calendars().PressShortcut("Ctrl+Z"); },
       .look =
           [](ToolsWorld& calendars) {
             EXPECT_EQ(calendars.NameOnShow(), calendars.StoredName());
             if (calendars.StoredName() != "Good Friday") {
               calendars.AnswerAll();
               calendars.Calendars().PressShortcut("Ctrl+Z");
             }
             EXPECT_EQ(calendars.StoredName(), "Good Friday");
           }},
      40);
}

TEST(HistoryTools, NameNothingWhileTheHistoryCannotBeReadAndSayNothingOfIt) {
  testing::FailEachCall<ToolsWorld>(
      {.arrange = [](ToolsWorld& calendars) { calendars.Tools().ClickTool("ID_Refresh"); },
       .act = [](ToolsWorld& calendars) { calendars.Rest(); },
       .look =
           [](ToolsWorld& calendars) {
             // Without the name of the asker, which the gateway passes over, no change is one's own.
             const bool is_known = !testing::IsPassedOver(calendars.world.faults.FailedCall());
             EXPECT_TRUE(calendars.Tools().ToolEnabled("ID_Undo") || !is_known);
             EXPECT_THAT(calendars.Tools().ToolDescription("ID_Undo"),
                         ::testing::StartsWith("Undoes your last change of this calendar"));
             calendars.Refresh();
             EXPECT_EQ(calendars.Tools().ToolDescription("ID_Undo"),
                       "Undoes your last change of this calendar: Created the calendar EUR 2028");
           },
       .is_silent = [](const std::string&) { return true; },
       .most_told = 0},
      20);
}

}  // namespace
}  // namespace ferrowind
