// The commands of the Calendars window that change a calendar.
#include <string>
#include <utility>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ferrowind/adapters/headless/headless_button.h"
#include "ferrowind/adapters/headless/headless_text_box.h"

#include "tests/unit/views/calendars/calendars_world.h"

namespace ferrowind {
namespace {

using headless::HeadlessButton;
using headless::HeadlessForm;
using headless::HeadlessTextBox;
using testing::CalendarsWorld;
using testing::Date;
using ::testing::ElementsAre;
using testing::ExpectDaysAsked;
using testing::ExpectInOrder;
using testing::FakeHolidaysWindow;
using testing::RunInFreshThread;
using testing::Value;
using Parameters = std::vector<std::pair<std::string, Value>>;

constexpr std::int32_t kRowOfGoodFriday = 5;

void ScriptExceptDialog(CalendarsWorld& calendars, const std::string& text, const std::string& button) {
  calendars.world.toolkit.ScriptModal("fmExceptMess", [text, button](HeadlessForm& form) {
    if (!text.empty()) form.Part<HeadlessTextBox>("txtMessage").TypeText(text);
    form.Part<HeadlessButton>(button).Click();
  });
}

void ScriptYearDialog(CalendarsWorld& calendars, const std::string& year, const std::string& button) {
  calendars.world.toolkit.ScriptModal("fmSelectYear", [year, button](HeadlessForm& form) {
    form.Part<HeadlessTextBox>("txtYear").ReplaceText(year);
    form.Part<HeadlessButton>(button).Click();
  });
}

// Excepting a day
// -----------------------------------------------------------------------------------------------

TEST(ExceptDay, SendsItsParametersInOrderWithTheirTypesAndNoComment) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.OpenAt("K978_2026");
    calendars.ChooseForDay(kRowOfGoodFriday, "ID_Except");
    ASSERT_EQ(calendars.CallsOf("CldIUMain").size(), 1u);
    EXPECT_EQ(calendars.CallsOf("CldIUMain")[0].parameters, (Parameters{{"@TID1", 1},
                                                                        {"@ID1", 978},
                                                                        {"@ID2", 1},
                                                                        {"@Year1", 2026},
                                                                        {"@Day1", 93},
                                                                        {"@ODate", Date(2026, 4, 3)}}));
    EXPECT_FALSE(calendars.world.log.Contains(R"(toolkit.CreateForm(fmExceptMess))"));
  });
}

TEST(ExceptDay, ShowsTheDaysAgain) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.OpenAt("K978_2026");
    calendars.ChooseForDay(kRowOfGoodFriday, "ID_Except");
    ExpectInOrder(calendars.world.log, {R"(command.SetText("CldIUMain"))", R"(command.SetText("CldGetMain"))",
                                        "gexCalendar.Rebind()"});
    ExpectDaysAsked(calendars.CallsOf("CldGetMain").back(), 978, 2026);
    EXPECT_EQ(calendars.Grid().CurrentRow(), kRowOfGoodFriday);
  });
}

TEST(ExceptDay, TwiceSendsTheSameTwice) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.OpenAt("K978_2026");
    calendars.ChooseForDay(2, "ID_Except");
    calendars.ChooseForDay(2, "ID_Except");
    const auto calls = calendars.CallsOf("CldIUMain");
    ASSERT_EQ(calls.size(), 2u);
    EXPECT_EQ(calls[0].parameters, calls[1].parameters);
  });
}

TEST(ExceptDay, DoesNotExamineTheAnswerAndShowsTheDaysAsTheyAre) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.OpenAt("K978_2026");
    calendars.AnswerStoring(5);
    calendars.ChooseForDay(1, "ID_Except");
    EXPECT_TRUE(calendars.SeenByOperator().empty());
    EXPECT_EQ(calendars.CallsOf("CldGetMain").size(), 2u);
  });
}

TEST(ExceptDay, ThatFailsIsNotShownAndShowsTheDaysAsTheyAre) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.OpenAt("K978_2026");
    calendars.world.commands.FailAt(headless::CommandStep::kExecute, platform::Failure(5, "locked"));
    calendars.ChooseForDay(1, "ID_Except");
    EXPECT_TRUE(calendars.SeenByOperator().empty());
    EXPECT_EQ(calendars.CallsOf("CldGetMain").size(), 2u);
  });
}

TEST(ExceptDay, TakesTheYearOfTheNodeEvenForADateOfAnother) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.OpenAt("K978_2027");
    calendars.ChooseForDay(1, "ID_Except");
    EXPECT_EQ(calendars.CallsOf("CldIUMain").at(0).Parameter("@Year1"), Value(2027));
    EXPECT_EQ(calendars.CallsOf("CldIUMain").at(0).Parameter("@ODate"), Value(Date(2026, 1, 1)));
  });
}

TEST(ExceptDay, OnARowWithoutADateIsReportedAndStoresNothing) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.AnswerDays({{Value(), 1, "", "", "", Value(), 1}});
    calendars.OpenAt("K978_2026");
    calendars.ChooseForDay(1, "ID_Except");
    EXPECT_TRUE(calendars.CallsOf("CldIUMain").empty());
    EXPECT_EQ(calendars.world.services->Reports(),
              (std::vector<headless::ReportedError>{{94, "Invalid use of Null"}}));
  });
}

// Days of another calendar than the selected one
// --------------------------------------------------------------------------------

/// The window shows EUR 2026 and stands on USD 2026, whose days could not be read.
void FailToShowTheDollar(CalendarsWorld& calendars) {
  calendars.OpenAt("K978_2026");
  calendars.DaysAnswer().Returns(5);
  calendars.SelectNode("K840_2026");
  ASSERT_EQ(calendars.Tree().Selected(), "K840_2026");
  ASSERT_EQ(calendars.Grid().RowCount(), 5);
  calendars.world.log.Clear();
}

TEST(DayCommands, OnDaysOfAnotherCalendarThanTheSelectedOneChangeNothingAndSayWhy) {
  for (const char* tool : {"ID_Except", "ID_Except2", "ID_AssignSingle", "ID_AssignMany"}) {
    RunInFreshThread([tool] {
      CalendarsWorld calendars;
      FailToShowTheDollar(calendars);
      calendars.UseFakeHolidaysWindow();
      calendars.ChooseForDay(kRowOfGoodFriday, tool);
      EXPECT_TRUE(calendars.CallsOf("CldIUMain").empty()) << tool;
      EXPECT_TRUE(calendars.world.log.StartingWith("holidays.").empty()) << tool;
      EXPECT_FALSE(calendars.world.log.Contains(R"(toolkit.CreateForm(fmExceptMess))")) << tool;
      ASSERT_EQ(calendars.world.services->Reports().size(), 1u) << tool;
      EXPECT_THAT(calendars.world.services->Reports()[0].description,
                  ::testing::HasSubstr("The days on show are not those of the selected calendar"));
    });
  }
}

TEST(DayCommands, WorkAgainOnceTheDaysOfTheSelectedCalendarAreOnShow) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    FailToShowTheDollar(calendars);
    calendars.AnswerDays(CalendarsWorld::UsualDays());
    calendars.Click("ID_Refresh");
    calendars.ChooseForDay(kRowOfGoodFriday, "ID_Except");
    ASSERT_EQ(calendars.CallsOf("CldIUMain").size(), 1u);
    EXPECT_EQ(calendars.CallsOf("CldIUMain")[0].Parameter("@ID1"), Value(840));
  });
}

TEST(DayCommands, ThatWereBegunOnOneCalendarDoNotEndOnAnother) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.OpenAt("K978_2026");
    calendars.Tree().ToggleNode("K840");
    calendars.world.toolkit.ScriptModal("fmExceptMess", [&](HeadlessForm& form) {
      calendars.Tree().Select("K840_2026");
      form.Part<HeadlessButton>("cmdExcept").Click();
    });
    calendars.ChooseForDay(2, "ID_Except2");
    EXPECT_TRUE(calendars.CallsOf("CldIUMain").empty());
    EXPECT_EQ(calendars.world.services->Reports().size(), 1u);
  });
}

// Excepting a day with a message
// --------------------------------------------------------------------------------

TEST(ExceptDayWithMessage, SendsTheMessageAsTheLastParameter) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.OpenAt("K840_2026");
    ScriptExceptDialog(calendars, "  Year-end processing ", "cmdExcept");
    calendars.ChooseForDay(2, "ID_Except2");
    ASSERT_EQ(calendars.CallsOf("CldIUMain").size(), 1u);
    EXPECT_EQ(calendars.CallsOf("CldIUMain")[0].parameters,
              (Parameters{{"@TID1", 1},
                          {"@ID1", 840},
                          {"@ID2", 1},
                          {"@Year1", 2026},
                          {"@Day1", 2},
                          {"@ODate", Date(2026, 1, 2)},
                          {"@Comment", "Year-end processing"}}));
    EXPECT_EQ(calendars.CallsOf("CldGetMain").size(), 2u);
  });
}

TEST(ExceptDayWithMessage, AnEmptyMessageSendsNoCommentAtAll) {
  for (const char* text : {"", "   "}) {
    RunInFreshThread([text] {
      CalendarsWorld calendars;
      calendars.OpenAt("K978_2026");
      ScriptExceptDialog(calendars, text, "cmdExcept");
      calendars.ChooseForDay(2, "ID_Except2");
      ASSERT_EQ(calendars.CallsOf("CldIUMain").size(), 1u);
      EXPECT_TRUE(calendars.world.log.Containing("@Comment").empty());
    });
  }
}

TEST(ExceptDayWithMessage, CancelledCallsNothingAndChangesNothing) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.OpenAt("K978_2026");
    ScriptExceptDialog(calendars, "typed", "cmdCancel");
    calendars.ChooseForDay(2, "ID_Except2");
    EXPECT_TRUE(calendars.world.log.StartingWith("command.").empty());
    EXPECT_EQ(calendars.world.toolkit.WaitingScripts(), 0u);
  });
}

TEST(ExceptDayWithMessage, AsksBeforeItTakesTheDay) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.OpenAt("K978_2026");
    calendars.world.toolkit.ScriptModal("fmExceptMess", [&](HeadlessForm& form) {
      calendars.Grid().SetCurrentRow(3);
      form.Part<HeadlessButton>("cmdExcept").Click();
    });
    calendars.ChooseForDay(2, "ID_Except2");
    EXPECT_EQ(calendars.CallsOf("CldIUMain").at(0).Parameter("@ODate"), Value(Date(2026, 1, 3)));
  });
}

// Assigning holidays
// --------------------------------------------------------------------------------------------

TEST(AssignHolidays, OpensTheHolidaysWindowForTheDayInTheModeOfTheTool) {
  const std::pair<const char*, const char*> tools[] = {{"ID_AssignSingle", "holidays.Init(0, 2026, 978, 93)"},
                                                       {"ID_AssignMany", "holidays.Init(1, 2026, 978, 93)"}};
  for (const auto& expected : tools) {
    RunInFreshThread([&expected] {
      const auto& [tool, init] = expected;
      CalendarsWorld calendars;
      calendars.OpenAt("K978_2026");
      const auto& holidays = calendars.UseFakeHolidaysWindow();
      calendars.ChooseForDay(kRowOfGoodFriday, tool);
      EXPECT_THAT(calendars.world.log.StartingWith("holidays."), ElementsAre(init, "holidays.ShowModal()"));
      EXPECT_EQ(holidays.headers, calendars.holiday_headers);
    });
  }
}

TEST(AssignHolidays, ShowsTheDaysAgainOnlyWhenTheCalendarWasChanged) {
  for (const std::int32_t result : {0, 1, 2}) {
    RunInFreshThread([result] {
      CalendarsWorld calendars;
      calendars.OpenAt("K978_2026");
      calendars.UseFakeHolidaysWindow().result = result;
      calendars.ChooseForDay(1, "ID_AssignSingle");
      EXPECT_EQ(calendars.CallsOf("CldGetMain").size(), result == 1 ? 2u : 1u);
    });
  }
}

TEST(AssignHolidays, UnloadsAWindowThatIsNotReadyWithoutShowingIt) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.OpenAt("K978_2026");
    auto& holidays = calendars.UseFakeHolidaysWindow();
    holidays.is_ready = false;
    holidays.result = 1;
    calendars.ChooseForDay(1, "ID_AssignMany");
    EXPECT_THAT(calendars.world.log.StartingWith("holidays."),
                ElementsAre("holidays.Init(1, 2026, 978, 1)", "holidays.Unload()"));
    EXPECT_EQ(calendars.CallsOf("CldGetMain").size(), 1u);
  });
}

TEST(AssignHolidays, ForgetsTheWindowInEveryCase) {
  for (const bool is_ready : {true, false}) {
    RunInFreshThread([is_ready] {
      CalendarsWorld calendars;
      calendars.OpenAt("K978_2026");
      calendars.UseFakeHolidaysWindow().is_ready = is_ready;
      calendars.ChooseForDay(1, "ID_AssignMany");
      EXPECT_EQ(calendars.window->holidays.use_count(), 1);
      EXPECT_TRUE(calendars.window->ForceClosing());
      EXPECT_FALSE(calendars.world.log.Contains("holidays.ForceClosing()"));
    });
  }
}

TEST(AssignHolidays, OnARowWithoutADateForgetsTheWindowAndIsReported) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.AnswerDays({{Value(), 1, "", "", "", Value(), 1}});
    calendars.OpenAt("K978_2026");
    calendars.UseFakeHolidaysWindow();
    calendars.ChooseForDay(1, "ID_AssignSingle");
    EXPECT_EQ(calendars.window->created_holidays_windows, 1);
    EXPECT_TRUE(calendars.world.log.StartingWith("holidays.").empty());
    EXPECT_EQ(calendars.window->holidays.use_count(), 1);
    EXPECT_EQ(calendars.world.services->Reports().size(), 1u);
  });
}

TEST(AssignHolidays, OpensTheRealHolidaysWindowModally) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.OpenAt("K978_2026");
    calendars.AnswerAllInfoWithARule();
    bool was_shown = false;
    calendars.world.toolkit.ScriptModal("fmEnterHolidays", [&](HeadlessForm& form) {
      was_shown = true;
      EXPECT_TRUE(form.CloseByOperator());
    });
    calendars.ChooseForDay(1, "ID_AssignMany");
    EXPECT_TRUE(was_shown);
    EXPECT_TRUE(calendars.SeenByOperator().empty());
  });
}

TEST(AssignHolidays, PlaysTheAnimationWhileTheRulesAreStored) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.OpenAt("K978_2026");
    calendars.AnswerAllInfoWithARule();
    calendars.world.toolkit.ScriptModal("fmEnterHolidays", [](HeadlessForm& form) {
      form.Part<headless::HeadlessGrid>("gexHolidays").ClickRow(1);
      form.Part<HeadlessButton>("cmdAction5").Click();
    });
    calendars.ChooseForDay(1, "ID_AssignMany");
    ExpectInOrder(calendars.world.log, {"anim.Play()", R"(command.SetText("CldIUMain"))", "anim.Stop()",
                                        "fmEnterHolidays.Unload()", R"(command.SetText("CldGetMain"))"});
    EXPECT_FALSE(calendars.Animation().IsPlaying());
  });
}

// New calendar
// --------------------------------------------------------------------------------------------------

TEST(NewCalendar, OpensTheDialogForTheSelectedCurrency) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.OpenAt("K840");
    std::string caption;
    calendars.world.toolkit.ScriptModal("fmSelectYear", [&](HeadlessForm& form) {
      caption = form.Caption();
      form.Part<HeadlessButton>("cmdCreate").Click();
    });
    calendars.Click("ID_New");
    EXPECT_EQ(caption, "Select year USD currency");
    EXPECT_EQ(calendars.CallsOf("CldIUMain").at(0).parameters, (Parameters{{"@ID1", 840}, {"@Year1", 2026}}));
  });
}

TEST(NewCalendar, OpensTheDialogForTheCurrencyOfTheSelectedCalendar) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.OpenAt("K978_2027");
    std::string caption;
    calendars.world.toolkit.ScriptModal("fmSelectYear", [&](HeadlessForm& form) {
      caption = form.Caption();
      form.Part<HeadlessButton>("cmdCreate").Click();
    });
    calendars.Click("ID_New");
    EXPECT_EQ(caption, "Select year EUR currency");
    EXPECT_EQ(calendars.CallsOf("CldIUMain").at(0).Parameter("@ID1"), Value(978));
  });
}

TEST(NewCalendar, ReloadsTheTreeSelectsTheNewCalendarAndShowsItsDays) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.OpenAt("K392");
    calendars.AnswerAllInfo({{978, 2026}, {392, 2028}});
    ScriptYearDialog(calendars, "2028", "cmdCreate");
    calendars.Click("ID_New");
    EXPECT_EQ(calendars.Tree().Selected(), "K392_2028");
    EXPECT_TRUE(calendars.Tree().Expanded("K392"));
    ExpectDaysAsked(calendars.CallsOf("CldGetMain").back(), 392, 2028);
    EXPECT_TRUE(calendars.Grid().Enabled());
    ExpectInOrder(calendars.world.log,
                  {"fmSelectYear.Unload()", "anim.Play()", "toolkit.LockUpdates(sssp)", "tvCalendar.Clear()",
                   R"(tvCalendar.Select("K392_2028"))", "anim.Stop()"});
    EXPECT_EQ(calendars.world.toolkit.LockedElement(), "");
  });
}

TEST(NewCalendar, ThatWasNotStoredLeavesTheSelectionWhereTheReloadPutIt) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.OpenAt("K978_2026");
    calendars.AnswerStoring(6);
    ScriptYearDialog(calendars, "2050", "cmdCreate");
    calendars.Click("ID_New");
    EXPECT_EQ(calendars.Tree().Selected(), std::nullopt);
    EXPECT_FALSE(calendars.Grid().Enabled());
    EXPECT_EQ(calendars.world.toolkit.BeepCount(), 1);
    EXPECT_TRUE(calendars.SeenByOperator().empty());
  });
}

TEST(NewCalendar, OfTheYearZeroSelectsTheFirstNode) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.OpenAt("K840");
    ScriptYearDialog(calendars, "0", "cmdCreate");
    calendars.Click("ID_New");
    EXPECT_EQ(calendars.Tree().Selected(), "K978");
  });
}

TEST(NewCalendar, CancelledStoresNothingAndDoesNotReload) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.OpenAt("K978_2026");
    ScriptYearDialog(calendars, "2050", "cmdCancel");
    calendars.Click("ID_New");
    EXPECT_TRUE(calendars.world.log.StartingWith("command.").empty());
    EXPECT_FALSE(calendars.world.log.Contains("tvCalendar.Clear()"));
    EXPECT_EQ(calendars.Tree().Selected(), "K978_2026");
  });
}

TEST(NewCalendar, WithoutASelectedNodeDoesNothing) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.Open();
    calendars.Click("ID_New");
    EXPECT_THAT(calendars.world.log.Calls(), ElementsAre(R"(operator.ssatb.ClickTool("ID_New"))"));
  });
}

}  // namespace
}  // namespace ferrowind
