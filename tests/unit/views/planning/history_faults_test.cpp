// The history and the calendar as it was, while their surroundings fail.
#include <cstddef>
#include <string>

#include <gmock/gmock.h>

#include "ferrowind/data/run_handler.h"

#include "tests/support/fault_scenario.h"
#include "tests/unit/views/planning/history_world.h"

namespace ferrowind {
namespace {

using headless::HeadlessTable;
using ::testing::AnyOf;
using ::testing::ElementsAre;
using testing::FailEachCall;
using testing::HistoryWorld;
using testing::IsPassedOverAtOpening;
using ::testing::SizeIs;
using ::testing::StartsWith;

constexpr const char* kCreated = "Created the calendar EUR 2028";

/// Counts how often the other windows are told of a change.
class WatchedHistory : public HistoryWorld {
 public:
  void Reopen() {
    EXPECT_TRUE(windows.CloseAll());
    OpenHistory();
  }
  void Require() {
    if (world.toolkit.CountOfForms("fmHistory") == 0) OpenHistory();
  }
  void Refresh() { History().Part<headless::HeadlessToolBar>("tbHistory").ClickTool("ID_Refresh"); }
  [[nodiscard]] std::size_t EntryCount() const { return world.database->History().size(); }

  int told = 0;

 private:
  platform::Subscription changed_ = windows.OnChanged([this](const auto&) { ++told; });
};

/// Without a parameter, or a record set, which the gateway passes over, the database was asked or has
/// answered something else, that nobody can tell from the right thing.
bool IsOtherQuestion(const WatchedHistory& history) {
  return testing::IsPassedOver(history.world.faults.FailedCall());
}

TEST(HistoryFaults, AtAnyCallOfOpeningGiveAWindowThatSaysNothingWrongOrAReport) {
  FailEachCall<WatchedHistory>(
      {.arrange = [](WatchedHistory& history) { EXPECT_TRUE(history.windows.CloseAll()); },
       .act =
           [](WatchedHistory& history) {
             RunHandler(history.platform, [&] { history.OpenHistory({978, 2028}); });
           },
       .look =
           [](WatchedHistory& history) {
             if (history.world.log.Contains("fmHistory.Show()") && history.Sentences().empty()) {
               EXPECT_NE(history.Entries().EmptyText(), "Nothing was changed.");
             }
             history.OpenHistory({978, 2028});
             ASSERT_TRUE(history.History().IsShown());
             EXPECT_EQ(history.Chosen("cmbCalendar"), "EUR 2028");
             EXPECT_THAT(history.Sentences(), ElementsAre(StartsWith("Assigned Good Friday"), kCreated));
           },
       .is_silent = IsPassedOverAtOpening},
      30);
}

TEST(HistoryFaults, AtAnyCallOfChoosingLeaveTheChoicesThatTheEntriesAreOf) {
  FailEachCall<WatchedHistory>({.arrange =
                                    [](WatchedHistory& history) {
                                      history.Require();
                                      history.Choose("cmbPerson", "Everybody");
                                      history.Choose("cmbCalendar", "All");
                                    },
                                .act =
                                    [](WatchedHistory& history) {
                                      history.Choose("cmbPerson", "Me");
                                      history.Choose("cmbCalendar", "EUR 2028");
                                    },
                                .look =
                                    [](WatchedHistory& history) {
                                      if (IsOtherQuestion(history)) return;
                                      // Two of the four are of the calendar, all but one of them are mine.
                                      std::size_t expected = history.Chosen("cmbCalendar") == "All" ? 4 : 2;
                                      if (history.Chosen("cmbPerson") == "Me") --expected;
                                      EXPECT_THAT(history.Sentences(), SizeIs(expected));
                                    }},
                               40);
}

/// More changes than stand on a page.
class LongHistory : public WatchedHistory {
 public:
  LongHistory() {
    for (int i = 0; i < 51; ++i) {
      ExceptGoodFriday();
      AssignGoodFriday();
    }
  }
};

TEST(HistoryFaults, AtAnyCallOfShowingOlderEntriesLeaveThoseOnShow) {
  FailEachCall<LongHistory>({.arrange = [](LongHistory& history) { history.Reopen(); },
                             .act = [](LongHistory& history) { history.ButtonOf("cmdOlder").Click(); },
                             .look =
                                 [](LongHistory& history) {
                                   if (IsOtherQuestion(history)) return;
                                   const std::size_t shown = history.Sentences().size();
                                   EXPECT_THAT(shown, AnyOf(100U, history.EntryCount()));
                                   EXPECT_EQ(history.ButtonOf("cmdOlder").Visible(), shown == 100U);
                                   if (shown == 100U) history.ButtonOf("cmdOlder").Click();
                                   EXPECT_THAT(history.Sentences(), SizeIs(history.EntryCount()));
                                 }},
                            10);
}

TEST(HistoryFaults, AtAnyCallOfLookingAtAChangeShowNothingOfAnother) {
  FailEachCall<WatchedHistory>(
      {.arrange =
           [](WatchedHistory& history) {
             history.Require();
             history.Entries().ClickRow("1");
           },
       .act = [](WatchedHistory& history) { history.Entries().ClickRow("4"); },
       .look =
           [](WatchedHistory& history) {
             const std::string told = history.LabelText("lblTold");
             EXPECT_TRUE(told.empty() || told.starts_with("Assigned Good Friday")) << told;
             if (told.empty()) {
               EXPECT_THAT(history.Changes(), SizeIs(0));
             }
             history.Entries().ClickRow("1");
             history.Entries().ClickRow("4");
             EXPECT_THAT(history.Changes(), ElementsAre("Friday 14 April 2028 | Working day | Good Friday"));
           }},
      10);
}

TEST(HistoryFaults, AtAnyCallOfShowingACalendarAsItWasReportItAndShowAllOfItTheNextTime) {
  const auto choose = [](WatchedHistory& history) {
    EXPECT_TRUE(history.windows.CloseAll());
    history.OpenHistory({978, 2028});
    history.Entries().ClickRow("4");
  };
  const auto show = [](WatchedHistory& history) { history.ButtonOf("cmdThen").Click(); };
  FailEachCall<WatchedHistory>({.arrange = choose,
                                .act = show,
                                .look =
                                    [&](WatchedHistory& history) {
                                      choose(history);
                                      show(history);
                                      auto& then = history.world.toolkit.FormNamed("fmCalendarThen");
                                      EXPECT_TRUE(then.IsShown());
                                      EXPECT_EQ(then.Part<headless::HeadlessTable>("tblDays").RowCount(),
                                                366U);
                                    },
                                .is_silent = IsPassedOverAtOpening},
                               5);
}

TEST(HistoryFaults, AtAnyCallOfUndoingAndRedoingTellTheOtherWindowsOfWhatIsDone) {
  std::size_t entries = 0;
  FailEachCall<WatchedHistory>({.arrange =
                                    [&](WatchedHistory& history) {
                                      if (history.world.toolkit.CountOfForms("fmHistory") == 0)
                                        history.OpenHistory({978, 2028});
                                      history.Entries().ClickRow("4");
                                      entries = history.EntryCount();
                                      history.told = 0;
                                    },
                                .act =
                                    [](WatchedHistory& history) {
                                      auto& undo = history.ButtonOf("cmdUndo");
                                      (undo.Enabled() ? undo : history.ButtonOf("cmdRedo")).Click();
                                    },
                                .look =
                                    [&](WatchedHistory& history) {
                                      if (history.EntryCount() != entries) {
                                        EXPECT_EQ(history.told, 1);
                                      }
                                      history.Refresh();
                                      EXPECT_THAT(history.Sentences(), ::testing::Contains(kCreated));
                                      EXPECT_NE(history.ButtonOf("cmdUndo").Enabled(),
                                                history.ButtonOf("cmdRedo").Enabled());
                                    }},
                               40);
}

TEST(CalendarThenFaults, AtAnyCallOfOpeningGiveTheWholeYearOrAReport) {
  FailEachCall<WatchedHistory>({.arrange = [](WatchedHistory& history) { history.Reopen(); },
                                .act = [](WatchedHistory& history) { history.Entries().DoubleClickRow("4"); },
                                .look =
                                    [](WatchedHistory& history) {
                                      history.Entries().DoubleClickRow("4");
                                      auto& then = history.world.toolkit.FormNamed("fmCalendarThen");
                                      ASSERT_TRUE(then.IsShown());
                                      EXPECT_EQ(then.Part<HeadlessTable>("tblDays").RowCount(), 366U);
                                    },
                                .is_silent = IsPassedOverAtOpening},
                               30);
}

TEST(CalendarThenFaults, AtAnyCallOfClosingLetTheWindowClose) {
  FailEachCall<WatchedHistory>(
      {.arrange = [](WatchedHistory& history) { history.windows.OpenCalendarThen(4); },
       .act =
           [](WatchedHistory& history) { history.world.toolkit.FormNamed("fmCalendarThen").PressEscape(); },
       .look =
           [](WatchedHistory& history) {
             EXPECT_FALSE(history.world.toolkit.FormNamed("fmCalendarThen").IsShown());
           }},
      4);
}

}  // namespace
}  // namespace ferrowind
