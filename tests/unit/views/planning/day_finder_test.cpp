// Finding days in a Calendars window, by what stands in them and by their date.

#include <gmock/gmock.h>

#include "tests/support/fault_scenario.h"
#include "tests/unit/views/planning/memory_calendars.h"

namespace ferrowind {
namespace {

using headless::HeadlessButton;
using headless::HeadlessDropDownList;
using headless::HeadlessForm;
using headless::HeadlessLabel;
using headless::HeadlessTextBox;
using platform::Date;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using testing::MemoryCalendars;
using testing::RunInFreshThread;
using ::testing::SizeIs;

/// A test of one window with the days of EUR 2028 on show and the bar open.
void WithOpenBar(const std::function<void(MemoryCalendars&)>& body) {
  RunInFreshThread([&] {
    MemoryCalendars calendars;
    calendars.OpenAt(2028);
    calendars.Form().PressShortcut("Ctrl+F");
    body(calendars);
  });
}

void Type(MemoryCalendars& calendars, const std::string& text) {
  calendars.Part<HeadlessTextBox>("txtFind").ReplaceText(text);
}

void ChooseKind(MemoryCalendars& calendars, const std::string& kind) {
  calendars.Part<HeadlessDropDownList>("cboFind").ChooseByOperator(kind);
}

TEST(DayFinder, IsNotThereUntilItIsAskedFor) {
  RunInFreshThread([] {
    MemoryCalendars calendars;
    calendars.OpenAt(2028);
    EXPECT_FALSE(calendars.IsShown("pnlFind"));
    calendars.Form().PressShortcut("Ctrl+F");
    EXPECT_TRUE(calendars.IsShown("pnlFind"));
    EXPECT_EQ(calendars.Form().FocusedControl(), "txtFind");
    EXPECT_THAT(calendars.Dates(), SizeIs(366)) << "nothing is left out yet";
    EXPECT_EQ(calendars.LabelText("lblFound"), "366 of 366 days");
  });
}

TEST(DayFinder, LeavesOutTheDaysThatHaveNotWhatIsTyped) {
  WithOpenBar([](MemoryCalendars& calendars) {
    Type(calendars, "good");
    EXPECT_THAT(calendars.Dates(), ElementsAre("2028-04-14"));
    EXPECT_EQ(calendars.LabelText("lblFound"), "1 of 366 days");
    EXPECT_EQ(calendars.CurrentDate(), "2028-04-14") << "what was found can be worked on at once";
    Type(calendars, "nothing of the kind");
    EXPECT_THAT(calendars.Dates(), IsEmpty());
    EXPECT_EQ(calendars.LabelText("lblFound"), "0 of 366 days");
    Type(calendars, "");
    EXPECT_THAT(calendars.Dates(), SizeIs(366));
  });
}

TEST(DayFinder, FindsDaysByWeekdayAndMonthAndTypeInAnyOrder) {
  WithOpenBar([](MemoryCalendars& calendars) {
    Type(calendars, "april wednesday");
    EXPECT_THAT(calendars.Dates(), ElementsAre("2028-04-05", "2028-04-12", "2028-04-19", "2028-04-26"));
    Type(calendars, "holiday POINT");
    EXPECT_THAT(calendars.Dates(), ElementsAre("2028-04-14"));
    Type(calendars, "2028-12-3");
    EXPECT_THAT(calendars.Dates(), ElementsAre("2028-12-30", "2028-12-31"));
  });
}

TEST(DayFinder, FindsDaysByTheirKind) {
  WithOpenBar([](MemoryCalendars& calendars) {
    calendars.Assign(1, 1, Date(2028, 5, 2));
    calendars.Tools().ClickTool("ID_Refresh");
    ChooseKind(calendars, "Holidays");
    EXPECT_THAT(calendars.Dates(), ElementsAre("2028-04-14"));
    ChooseKind(calendars, "Exceptions");
    EXPECT_THAT(calendars.Dates(), ElementsAre("2028-05-02"));
    Type(calendars, "april");
    EXPECT_THAT(calendars.Dates(), IsEmpty()) << "both are asked for";
    ChooseKind(calendars, "All days");
    EXPECT_THAT(calendars.Dates(), SizeIs(30));
  });
}

TEST(DayFinder, FindsTheDaysThatOneHasChangedOneself) {
  RunInFreshThread([] {
    MemoryCalendars calendars;
    calendars.ActAs("bob");
    calendars.Assign(4, 3, Date(2028, 6, 1));
    calendars.ActAs("anna");
    calendars.Assign(1, 1, Date(2028, 6, 2));
    calendars.Assign(4, 3, Date(2027, 6, 3));
    calendars.OpenAt(2028);
    calendars.Form().PressShortcut("Ctrl+F");
    ChooseKind(calendars, "Changes of mine");
    EXPECT_THAT(calendars.Dates(), ElementsAre("2028-06-02"));
  });
}

TEST(DayFinder, BringsAllDaysBackByEscAndKeepsTheFoundOneCurrent) {
  WithOpenBar([](MemoryCalendars& calendars) {
    Type(calendars, "good");
    calendars.Form().PressEscape();
    EXPECT_FALSE(calendars.IsShown("pnlFind"));
    EXPECT_THAT(calendars.Dates(), SizeIs(366));
    EXPECT_EQ(calendars.CurrentDate(), "2028-04-14");
    EXPECT_EQ(calendars.Form().FocusedControl(), "gexCalendar");
    calendars.Form().PressShortcut("Ctrl+F");
    EXPECT_THAT(calendars.Dates(), SizeIs(366)) << "the next search begins anew";
  });
}

TEST(DayFinder, StillLeavesDaysOutWhenTheyAreReadAnew) {
  WithOpenBar([](MemoryCalendars& calendars) {
    Type(calendars, "good");
    calendars.Assign(4, 3, Date(2028, 6, 1));
    calendars.Tools().ClickTool("ID_Refresh");
    EXPECT_THAT(calendars.Dates(), ElementsAre("2028-04-14", "2028-06-01"));
    EXPECT_EQ(calendars.LabelText("lblFound"), "2 of 366 days");
    calendars.Tree().ClickNode("K978_2027");
    EXPECT_THAT(calendars.Dates(), IsEmpty());
  });
}

TEST(DayFinder, DoesNothingWithoutACalendar) {
  RunInFreshThread([] {
    MemoryCalendars calendars;
    calendars.Open();
    calendars.Form().PressShortcut("Ctrl+F");
    calendars.Form().PressShortcut("Ctrl+D");
    EXPECT_FALSE(calendars.IsShown("pnlFind"));
  });
}

// Going to a date
// -------------------------------------------------------------------------------------------------------

class GoToDate {
 public:
  explicit GoToDate(HeadlessForm& form) : form_(form) {}
  void Type(const std::string& text) { form_.Part<HeadlessTextBox>("txtDate").ReplaceText(text); }
  [[nodiscard]] std::string Meaning() { return form_.Part<HeadlessLabel>("lblMeaning").Text(); }
  void Go() { form_.PressEnter(); }
  void Cancel() { form_.PressEscape(); }
  [[nodiscard]] bool IsShown() const { return form_.IsShown(); }

 private:
  HeadlessForm& form_;
};

/// Presses Ctrl+D with the days of EUR 2028 on show.
void WithDialog(
    const std::function<void(GoToDate&)>& in_dialog, const std::function<void(MemoryCalendars&)>& behind,
    const std::function<void(MemoryCalendars&)>& before = [](auto&) {}) {
  RunInFreshThread([&] {
    MemoryCalendars calendars;
    calendars.OpenAt(2028);
    before(calendars);
    int shown = 0;
    calendars.world.toolkit.ScriptModal("fmGoToDate", [&](HeadlessForm& form) {
      ++shown;
      GoToDate dialog(form);
      in_dialog(dialog);
    });
    calendars.Form().PressShortcut("Ctrl+D");
    EXPECT_EQ(shown, 1);
    behind(calendars);
  });
}

TEST(GoingToADate, MakesTheDayCurrent) {
  WithDialog(
      [](GoToDate& dialog) {
        dialog.Type("05-02");
        EXPECT_EQ(dialog.Meaning(), "Tuesday 2 May 2028");
        dialog.Go();
      },
      [](MemoryCalendars& calendars) {
        EXPECT_EQ(calendars.CurrentDate(), "2028-05-02");
        EXPECT_EQ(calendars.Form().FocusedControl(), "gexCalendar");
      });
}

TEST(GoingToADate, SaysWhyATextIsNoDateAndStaysOpen) {
  WithDialog(
      [](GoToDate& dialog) {
        dialog.Type("Easter");
        EXPECT_EQ(dialog.Meaning(), "This is no date. Write one such as 2028-12-31.");
        dialog.Go();
        EXPECT_TRUE(dialog.IsShown());
        dialog.Cancel();
      },
      [](MemoryCalendars& calendars) { EXPECT_EQ(calendars.CurrentDate(), ""); });
}

TEST(GoingToADate, ShowsTheCalendarOfAnotherYear) {
  WithDialog(
      [](GoToDate& dialog) {
        dialog.Type("2027-03-04");
        dialog.Go();
      },
      [](MemoryCalendars& calendars) {
        EXPECT_EQ(calendars.Tree().Selected(), "K978_2027");
        EXPECT_EQ(calendars.CurrentDate(), "2027-03-04");
      });
}

TEST(GoingToADate, NamesAYearWithoutACalendar) {
  WithDialog(
      [](GoToDate& dialog) {
        dialog.Type("2031-03-04");
        dialog.Go();
        EXPECT_TRUE(dialog.IsShown());
        EXPECT_EQ(dialog.Meaning(), "EUR has no calendar for 2031.");
        dialog.Cancel();
      },
      [](MemoryCalendars& calendars) { EXPECT_EQ(calendars.Tree().Selected(), "K978_2028"); });
}

TEST(GoingToADate, EndsASearchThatLeavesTheDayOut) {
  WithDialog(
      [](GoToDate& dialog) {
        dialog.Type("2028-05-02");
        dialog.Go();
      },
      [](MemoryCalendars& calendars) {
        EXPECT_EQ(calendars.CurrentDate(), "2028-05-02");
        EXPECT_FALSE(calendars.IsShown("pnlFind"));
      },
      [](MemoryCalendars& calendars) {
        calendars.Form().PressShortcut("Ctrl+F");
        Type(calendars, "good");
      });
}

TEST(GoingToADate, OpensTheGroupThatTheDayIsIn) {
  WithDialog(
      [](GoToDate& dialog) {
        dialog.Type("2028-05-02");
        dialog.Go();
      },
      [](MemoryCalendars& calendars) { EXPECT_EQ(calendars.CurrentDate(), "2028-05-02"); },
      [](MemoryCalendars& calendars) {
        if (!calendars.Grid().GroupByBoxVisible()) calendars.Grid().ToggleGroupByBox();
        calendars.Grid().DragHeaderToGroups("MonthName");
        calendars.Tools().ClickTool("ID_CollapseGrid");
        ASSERT_EQ(calendars.Grid().RowCount(), 12);
      });
}

TEST(GoingToADate, TellsOfTheFailureAtAnyCallOfLookingForAnotherYear) {
  testing::FailEachCall<MemoryCalendars>(
      {.arrange =
           [](MemoryCalendars& calendars) {
             if (!calendars.window) calendars.OpenAt(2028);
             if (calendars.world.toolkit.WaitingScripts() > 0) return;
             calendars.world.toolkit.ScriptModal("fmGoToDate", [](HeadlessForm& form) {
               GoToDate dialog(form);
               dialog.Type("2040-05-02");
               dialog.Go();
               EXPECT_TRUE(dialog.IsShown());
               dialog.Cancel();
             });
           },
       .act = [](MemoryCalendars& calendars) { calendars.Form().PressShortcut("Ctrl+D"); },
       .look = [](MemoryCalendars& calendars) { EXPECT_THAT(calendars.Dates(), SizeIs(366)); }},
      8);
}

TEST(DayFinder, WorksAsEverAfterAnyFailure) {
  testing::FailEachCall<MemoryCalendars>(
      {.arrange =
           [](MemoryCalendars& calendars) {
             if (!calendars.window) calendars.OpenAt(2028);
             if (calendars.world.toolkit.WaitingScripts() > 0) return;
             calendars.world.toolkit.ScriptModal("fmGoToDate", [](HeadlessForm& form) {
               GoToDate dialog(form);
               dialog.Type("2027-03-04");
               dialog.Go();
               if (dialog.IsShown()) dialog.Cancel();
             });
           },
       .act =
           [](MemoryCalendars& calendars) {
             calendars.Form().PressShortcut("Ctrl+F");
             ChooseKind(calendars, "Changes of mine");
             calendars.Form().PressShortcut("Ctrl+D");
           },
       .look =
           [](MemoryCalendars& calendars) {
             calendars.Tree().ClickNode("K978_2028");
             calendars.Form().PressShortcut("Ctrl+F");
             ChooseKind(calendars, "All days");
             Type(calendars, "good");
             EXPECT_THAT(calendars.Dates(), ElementsAre("2028-04-14"));
             calendars.Form().PressEscape();
             EXPECT_THAT(calendars.Dates(), SizeIs(366));
           },
       // The Calendars window says nothing of some of the calls that it reads the other year by.
       .is_silent = [](const std::string&) { return true; },
       .most_told = 2},
      40);
}

}  // namespace
}  // namespace ferrowind
