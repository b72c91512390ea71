// The window that tells who changed what, and puts changes back.
#include "ferrowind/views/planning/fm_history.h"

#include <gmock/gmock.h>

#include "ferrowind/views/planning/fm_calendar_then.h"

#include "tests/unit/views/planning/history_world.h"

namespace ferrowind {
namespace {

using headless::HeadlessTable;
using planning::CalendarKey;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using testing::HistoryWorld;
using ::testing::IsEmpty;
using testing::RunInFreshThread;
using ::testing::SizeIs;
using ::testing::StartsWith;

constexpr const char* kAssigned = "Assigned Good Friday to Friday 14 April 2028";
constexpr const char* kCreated = "Created the calendar EUR 2028";

TEST(HistoryWindow, TellsWhoChangedWhatTheNewestFirst) {
  RunInFreshThread([] {
    HistoryWorld history;
    history.OpenHistory();
    EXPECT_TRUE(history.History().IsShown());
    EXPECT_THAT(history.Sentences(),
                ElementsAre(kAssigned, kCreated, "Added the rule Good Friday", "Added the rule Sunday"));
    const auto newest = history.Entries().Texts("4");
    EXPECT_THAT(newest[0], ::testing::MatchesRegex("....-..-.. ... ..:..:.."));
    EXPECT_EQ(history.Entries().Cell("4", "When").order, 4) << "a locale's dates are in no order as texts";
    EXPECT_EQ(newest[1], "anna");
    EXPECT_EQ(newest[2], "EUR 2028");
    EXPECT_EQ(history.Entries().CurrentRow(), "4");
    EXPECT_FALSE(history.ButtonOf("cmdOlder").Visible());
  });
}

TEST(HistoryWindow, ShowsWhatTheCurrentChangeReplaced) {
  RunInFreshThread([] {
    HistoryWorld history;
    history.OpenHistory();
    EXPECT_THAT(history.LabelText("lblTold"), StartsWith(std::string(kAssigned) + " \u2014 anna, "));
    EXPECT_THAT(history.Changes(), ElementsAre("Friday 14 April 2028 | Working day | Good Friday"));
    history.Entries().ClickRow("1");
    EXPECT_THAT(history.LabelText("lblTold"), StartsWith("Added the rule Sunday \u2014 memory, "));
    EXPECT_THAT(history.Changes(),
                ElementsAre("Rule Sunday: name |  | Sunday", "Rule Sunday: type |  | weekday",
                            "Rule Sunday: weekday |  | Sunday"));
  });
}

TEST(HistoryWindow, ShowsOneCalendarADayOrOnesOwnChanges) {
  RunInFreshThread([] {
    HistoryWorld history;
    history.OpenHistory({978, 2028});
    EXPECT_EQ(history.Chosen("cmbCalendar"), "EUR 2028");
    EXPECT_THAT(history.Sentences(), ElementsAre(kAssigned, kCreated));
    history.Choose("cmbPerson", "Me");
    EXPECT_THAT(history.Sentences(), ElementsAre(kCreated));
    history.Choose("cmbCalendar", "All");
    EXPECT_THAT(history.Sentences(), SizeIs(3));
    history.Choose("cmbPerson", "Everybody");
    history.OpenHistory({978, 2028, 104});
    EXPECT_EQ(history.Chosen("cmbCalendar"), "EUR, Thursday 13 April 2028");
    EXPECT_THAT(history.Sentences(), ElementsAre(kCreated));
    history.OpenHistory({978, 2028});
    EXPECT_THAT(history.Sentences(), SizeIs(2));
    EXPECT_EQ(history.world.toolkit.CountOfForms("fmHistory"), 1U);
  });
}

TEST(HistoryWindow, SaysThatNothingWasChanged) {
  RunInFreshThread([] {
    HistoryWorld history;
    history.OpenHistory({840, 2030});
    EXPECT_EQ(history.Chosen("cmbCalendar"), "USD 2030");
    EXPECT_THAT(history.Sentences(), IsEmpty());
    EXPECT_EQ(history.Entries().EmptyText(), "Nothing was changed.");
    EXPECT_EQ(history.LabelText("lblTold"), "");
    for (const char* button : {"cmdUndo", "cmdRedo", "cmdThen"}) {
      EXPECT_FALSE(history.ButtonOf(button).Enabled()) << button;
    }
  });
}

TEST(HistoryWindow, GoesOnToOlderChanges) {
  RunInFreshThread([] {
    HistoryWorld history;
    for (int i = 0; i < 120; ++i) history.AssignGoodFriday();
    history.OpenHistory();
    EXPECT_THAT(history.Sentences(), SizeIs(100));
    history.Entries().ClickRow("30");
    history.ButtonOf("cmdOlder").Click();
    EXPECT_THAT(history.Sentences(), SizeIs(124));
    EXPECT_EQ(history.Entries().CurrentRow(), "30");
    EXPECT_FALSE(history.ButtonOf("cmdOlder").Visible());
  });
}

TEST(HistoryWindow, UndoesAndRedoesTheCurrentChange) {
  RunInFreshThread([] {
    HistoryWorld history;
    PlanningWindows::Changed told;
    const auto listening = history.windows.OnChanged([&](const auto& changed) { told = changed; });
    history.OpenHistory({978, 2028});
    auto& undo = history.ButtonOf("cmdUndo");
    auto& redo = history.ButtonOf("cmdRedo");
    EXPECT_EQ(undo.Caption(), std::string("Undo: ") + kAssigned);
    EXPECT_EQ(redo.Caption(), "Redo");
    EXPECT_FALSE(redo.Enabled());
    undo.Click();
    EXPECT_THAT(told, ElementsAre(CalendarKey(978, 2028)));
    EXPECT_THAT(history.Sentences(), ElementsAre(std::string("Undid: ") + kAssigned,
                                                 std::string(kAssigned) + " (undone)", kCreated));
    // The change that the operator looked at is still current.
    EXPECT_EQ(history.Entries().CurrentRow(), "4");
    EXPECT_EQ(history.Entries().Cell("4", "Change").tone, platform::CellTone::kQuiet);
    EXPECT_FALSE(undo.Enabled());
    EXPECT_EQ(redo.Caption(), std::string("Redo: ") + kAssigned);
    redo.Click();
    EXPECT_EQ(history.Sentences().front(), std::string("Redid: ") + kAssigned);
    EXPECT_EQ(history.Entries().Cell("5", "Change").text, std::string("Undid: ") + kAssigned + " (redone)");
    EXPECT_TRUE(undo.Enabled());
    EXPECT_FALSE(redo.Enabled());
    EXPECT_EQ(history.world.toolkit.BeepCount(), 0);
  });
}

TEST(HistoryWindow, UndoesAndRedoesByTheUsualKeys) {
  RunInFreshThread([] {
    HistoryWorld history;
    history.OpenHistory({978, 2028});
    history.History().PressShortcut("Ctrl+Shift+Z");
    EXPECT_THAT(history.Sentences(), SizeIs(2));
    history.History().PressShortcut("Ctrl+Z");
    EXPECT_EQ(history.Sentences().front(), std::string("Undid: ") + kAssigned);
    history.History().PressShortcut("Ctrl+Z");
    EXPECT_THAT(history.Sentences(), SizeIs(3));
    history.History().PressShortcut("Ctrl+Shift+Z");
    EXPECT_EQ(history.Sentences().front(), std::string("Redid: ") + kAssigned);
    history.History().PressShortcut("Ctrl+W");
    EXPECT_FALSE(history.History().IsShown());
  });
}

TEST(HistoryWindow, SaysWhyAChangeCannotBeUndone) {
  RunInFreshThread([] {
    HistoryWorld history;
    history.ExceptGoodFriday();
    bool was_told = false;
    const auto listening = history.windows.OnChanged([&](const auto&) { was_told = true; });
    history.OpenHistory({978, 2028});
    history.Entries().ClickRow("4");
    history.ButtonOf("cmdUndo").Click();
    EXPECT_TRUE(history.History().Part<headless::HeadlessLabel>("lblRemark").Visible());
    EXPECT_THAT(
        history.LabelText("lblRemark"),
        HasSubstr("The newest change of EUR 2028 is \"Excepted Friday 14 April 2028: Audit\" (memory, "));
    EXPECT_EQ(history.world.toolkit.BeepCount(), 1);
    EXPECT_FALSE(was_told);
    history.Entries().ClickRow("5");
    EXPECT_FALSE(history.History().Part<headless::HeadlessLabel>("lblRemark").Visible());
  });
}

TEST(HistoryWindow, OffersNothingToUndoForACallThatLeftEverythingAsItWas) {
  RunInFreshThread([] {
    HistoryWorld history;
    history.AssignGoodFriday();
    history.OpenHistory();
    EXPECT_THAT(history.Changes(), IsEmpty());
    EXPECT_FALSE(history.ButtonOf("cmdUndo").Enabled());
    EXPECT_FALSE(history.ButtonOf("cmdRedo").Enabled());
  });
}

TEST(HistoryWindow, ShortensWhatAButtonHasNoRoomFor) {
  RunInFreshThread([] {
    HistoryWorld history;
    std::string name;
    for (int i = 0; i < 30; ++i) name += "\u00e9";
    history.Call("CldIUCelebrate", {{"Name1", name}, {"TID1", 2}, {"WD", 1}});
    history.OpenHistory();
    EXPECT_EQ(history.ButtonOf("cmdUndo").Caption(), "Undo: Added the rule " + name.substr(0, 32) + "\u2026");
  });
}

TEST(HistoryWindow, ReadsTheHistoryAnewWhenAnotherWindowHasChangedSomething) {
  RunInFreshThread([] {
    HistoryWorld history;
    history.OpenHistory();
    history.ExceptGoodFriday();
    history.windows.TellChanged({{978, 2028}});
    EXPECT_EQ(history.Sentences().front(), "Excepted Friday 14 April 2028: Audit");
    history.ExceptGoodFriday();
    history.History().Part<headless::HeadlessToolBar>("tbHistory").ClickTool("ID_Refresh");
    EXPECT_THAT(history.Sentences(), SizeIs(6));
  });
}

TEST(HistoryWindow, ShowsTheCalendarAsAChangeLeftIt) {
  RunInFreshThread([] {
    HistoryWorld history;
    history.ExceptGoodFriday();
    history.OpenHistory();
    history.Entries().DoubleClickRow("4");
    auto& then = history.world.toolkit.FormNamed("fmCalendarThen");
    EXPECT_TRUE(then.IsShown());
    EXPECT_EQ(then.Caption(), "EUR 2028 as of " + history.Entries().Texts("4")[0]);
    EXPECT_THAT(then.Part<headless::HeadlessLabel>("lblThen").Text(),
                StartsWith(std::string("EUR 2028 as it was after: ") + kAssigned + " \u2014 anna, "));
    auto& days = then.Part<HeadlessTable>("tblDays");
    EXPECT_EQ(days.RowCount(), 366U);
    EXPECT_THAT(days.Texts("2028-04-14"), ElementsAre("Friday 14 April 2028", "Good Friday", ""));
    EXPECT_THAT(days.Texts("2028-04-13"), ElementsAre("Thursday 13 April 2028", "Working day", ""));
    EXPECT_EQ(days.Cell("2028-04-13", "Day").tone, platform::CellTone::kQuiet);
    history.Entries().ClickRow("5");
    history.ButtonOf("cmdThen").Click();
    EXPECT_THAT(
        history.world.toolkit.FormNamed("fmCalendarThen").Part<HeadlessTable>("tblDays").Texts("2028-04-14"),
        ElementsAre("Friday 14 April 2028", "Working day by exception", "Audit"));
    auto& later = history.world.toolkit.FormNamed("fmCalendarThen");
    EXPECT_TRUE(later.IsShown());
    later.PressShortcut("Ctrl+W");
    EXPECT_FALSE(later.IsShown());
    EXPECT_TRUE(then.IsShown());
    then.PressEscape();
    EXPECT_FALSE(then.IsShown());
  });
}

TEST(HistoryWindow, SaysThatThereWasNoCalendarThen) {
  RunInFreshThread([] {
    HistoryWorld history;
    history.Call("CldUndo", {{"EntryID", 4}});
    history.Call("CldUndo", {{"EntryID", 3}});
    history.windows.OpenCalendarThen(6);
    EXPECT_EQ(history.world.toolkit.FormNamed("fmCalendarThen").Part<HeadlessTable>("tblDays").EmptyText(),
              "There was no such calendar then.");
    EXPECT_THROW(history.windows.OpenCalendarThen(1), platform::Failure);
  });
}

TEST(HistoryWindow, OffersNoCalendarForARule) {
  RunInFreshThread([] {
    HistoryWorld history;
    history.OpenHistory();
    history.Entries().ClickRow("1");
    EXPECT_FALSE(history.ButtonOf("cmdThen").Enabled());
    history.Entries().DoubleClickRow("1");
    EXPECT_EQ(history.world.toolkit.CountOfForms("fmCalendarThen"), 0U);
  });
}

TEST(HistoryWindow, IsClosedByEscapeAndByItsButton) {
  RunInFreshThread([] {
    HistoryWorld history;
    history.OpenHistory();
    history.History().PressEscape();
    EXPECT_FALSE(history.History().IsShown());
    history.OpenHistory();
    EXPECT_EQ(history.world.toolkit.CountOfForms("fmHistory"), 2U);
    history.ButtonOf("cmdClose").Click();
    EXPECT_TRUE(history.windows.CloseAll());
  });
}

TEST(HistoryWindow, MayBeDroppedAtAnyMoment) {
  RunInFreshThread([] {
    HistoryWorld history;
    auto windows = std::make_unique<PlanningWindows>(history.platform, history.tables);
    windows->OpenHistory({978, 2028});
    const auto listening = windows->OnChanged([&](const auto&) { EXPECT_TRUE(windows->CloseAll()); });
    history.ButtonOf("cmdUndo").Click();
    EXPECT_THAT(history.SeenByOperator(), IsEmpty());
  });
}

}  // namespace
}  // namespace ferrowind
