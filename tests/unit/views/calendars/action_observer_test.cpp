// What a host's observer is told of the operator's actions in the Calendars window, and that nothing else is
// done for it.
#include <functional>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ferrowind/adapters/headless/headless_button.h"
#include "ferrowind/adapters/headless/headless_text_box.h"

#include "tests/support/recording_action_observer.h"
#include "tests/unit/views/calendars/calendars_world.h"

namespace ferrowind {
namespace {

using headless::CommandStep;
using headless::HeadlessButton;
using headless::HeadlessForm;
using headless::HeadlessTextBox;
using testing::CalendarsWorld;
using testing::Date;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using testing::RecordingActionObserver;
using testing::Rows;
using testing::RunInFreshThread;

using Scene = std::function<void(CalendarsWorld& calendars)>;

/// What is told from when EUR 2026 is on show.
std::vector<std::string> ToldAtEuro(const Scene& scene) {
  RecordingActionObserver observer;
  RunInFreshThread([&] {
    CalendarsWorld calendars(&observer);
    calendars.OpenAt("K978_2026");
    observer.events.clear();
    scene(calendars);
  });
  return observer.events;
}

Rows DaysWithASecondSaturday() {
  auto days = CalendarsWorld::UsualDays();
  days[1] = CalendarsWorld::Day(Date(2026, 1, 2), 2, "Saturday");
  return days;
}

void AssignTheRule(CalendarsWorld& calendars, const std::string& tool) {
  calendars.AnswerAllInfoWithARule();
  calendars.world.toolkit.ScriptModal("fmEnterHolidays", [&](HeadlessForm& form) {
    calendars.AnswerDays(DaysWithASecondSaturday());
    form.Part<headless::HeadlessGrid>("gexHolidays").ClickRow(1);
    form.Part<HeadlessButton>("cmdAction5").Click();
  });
  calendars.ChooseForDay(1, tool);
}

void CreateCalendar(CalendarsWorld& calendars, const std::string& year, const std::string& button) {
  calendars.world.toolkit.ScriptModal("fmSelectYear", [&](HeadlessForm& form) {
    form.Part<HeadlessTextBox>("txtYear").ReplaceText(year);
    form.Part<HeadlessButton>(button).Click();
    if (form.IsShown()) form.Part<HeadlessButton>("cmdCancel").Click();
  });
  calendars.Click("ID_New");
}

void ExceptWithMessage(CalendarsWorld& calendars, const std::string& button) {
  calendars.world.toolkit.ScriptModal(
      "fmExceptMess", [button](HeadlessForm& form) { form.Part<HeadlessButton>(button).Click(); });
  calendars.ChooseForDay(2, "ID_Except2");
}

// Except
// ----------------------------------------------------------------------------------------------------------

TEST(CalendarsActions, ExceptIsTheDayItsWriteAndTheDaysReadAgain) {
  EXPECT_THAT(ToldAtEuro([](CalendarsWorld& calendars) { calendars.ChooseForDay(5, "ID_Except"); }),
              ElementsAre("began except EUR 2026 2026-04-03", "write 0", "read 0", "days 0", "ended"));
}

TEST(CalendarsActions, ARefusedExceptIsToldWithTheReturnValue) {
  EXPECT_THAT(ToldAtEuro([](CalendarsWorld& calendars) {
                calendars.AnswerStoring(5);
                calendars.ChooseForDay(5, "ID_Except");
              }),
              ElementsAre("began except EUR 2026 2026-04-03", "write 5", "read 0", "days 0", "ended"));
}

TEST(CalendarsActions, AFailedExceptIsToldWithItsFailureAlthoughTheReadAfterItSucceeds) {
  EXPECT_THAT(ToldAtEuro([](CalendarsWorld& calendars) {
                calendars.world.commands.FailAt(CommandStep::kExecute, {8, "It is read-only"});
                calendars.ChooseForDay(5, "ID_Except");
              }),
              ElementsAre("began except EUR 2026 2026-04-03", "write -1 It is read-only", "read 0", "days 0",
                          "ended"));
}

TEST(CalendarsActions, TheMessageOfAnExceptionIsAskedForBeforeTheActionBegins) {
  EXPECT_THAT(ToldAtEuro([](CalendarsWorld& calendars) { ExceptWithMessage(calendars, "cmdExcept"); }),
              ElementsAre("began except EUR 2026 2026-01-02", "write 0", "read 0", "days 0", "ended"));
  EXPECT_THAT(ToldAtEuro([](CalendarsWorld& calendars) { ExceptWithMessage(calendars, "cmdCancel"); }),
              IsEmpty());
}

// Assign
// ----------------------------------------------------------------------------------------------------------

TEST(CalendarsActions, AnAssignmentLastsUntilItsDaysAreOnShow) {
  EXPECT_THAT(
      ToldAtEuro([](CalendarsWorld& calendars) { AssignTheRule(calendars, "ID_AssignMany"); }),
      ElementsAre("began open rules EUR 2026 2026-01-01", "read 0", "ended",
                  "began assign EUR 2026 [Saturday]", "write Saturday 0", "read 0", "days 1", "ended"));
}

TEST(CalendarsActions, AnAssignmentToOneDayNamesTheDay) {
  EXPECT_THAT(ToldAtEuro([](CalendarsWorld& calendars) { AssignTheRule(calendars, "ID_AssignSingle"); }),
              ::testing::Contains("began assign EUR 2026 2026-01-01 [Saturday]"));
}

TEST(CalendarsActions, RulesThatCannotBeReadAreTold) {
  EXPECT_THAT(ToldAtEuro([](CalendarsWorld& calendars) {
                calendars.world.commands.FailAt(CommandStep::kExecute, {14, "The file is away"});
                calendars.ChooseForDay(1, "ID_AssignMany");
              }),
              ElementsAre("began open rules EUR 2026 2026-01-01", "read -1 The file is away", "ended"));
}

// Reading
// ---------------------------------------------------------------------------------------------------------

TEST(CalendarsActions, TheStartTellsOfADictionaryThatFails) {
  RecordingActionObserver observer;
  RunInFreshThread([&] {
    CalendarsWorld calendars(&observer);
    calendars.world.dictionary->SetTable("Ccy", nullptr);
    EXPECT_FALSE(calendars.Start());
  });
  ASSERT_EQ(observer.events.size(), 3u);
  EXPECT_EQ(observer.events[0], "began open");
  EXPECT_THAT(observer.events[1], ::testing::StartsWith("read -1 "));
  EXPECT_EQ(observer.events[2], "ended");
}

TEST(CalendarsActions, TheStartTellsOfCalendarsThatCannotBePutIntoTheTree) {
  RecordingActionObserver observer;
  RunInFreshThread([&] {
    CalendarsWorld calendars(&observer);
    calendars.AnswerAllInfo({{111, 2026}});
    EXPECT_FALSE(calendars.Start());
  });
  EXPECT_THAT(observer.events,
              ElementsAre("began open", "read 0", ::testing::HasSubstr("read -1 "), "ended"));
}

TEST(CalendarsActions, RefreshTellsEachRead) {
  EXPECT_THAT(ToldAtEuro([](CalendarsWorld& calendars) { calendars.Click("ID_Refresh"); }),
              ElementsAre("began refresh EUR 2026", "read 0", "read 0", "days 0", "ended"));
}

TEST(CalendarsActions, ChoosingACalendarTellsOfItsDays) {
  EXPECT_THAT(ToldAtEuro([](CalendarsWorld& calendars) { calendars.Tree().ClickNode("K978_2027"); }),
              ElementsAre("began show EUR 2027", "read 0", "ended"));
  EXPECT_THAT(ToldAtEuro([](CalendarsWorld& calendars) { calendars.Tree().ClickNode("K392"); }),
              ElementsAre("began show JPY", "ended"));
}

TEST(CalendarsActions, AnAnswerWithoutDaysIsTold) {
  EXPECT_THAT(ToldAtEuro([](CalendarsWorld& calendars) {
                calendars.DaysAnswer();
                calendars.Tree().ClickNode("K978_2027");
              }),
              ElementsAre("began show EUR 2027", "read 0",
                          "read -1 The answer of the database lacks the days", "ended"));
}

// New calendar
// ----------------------------------------------------------------------------------------------------

TEST(CalendarsActions, ANewCalendarLastsUntilItIsOnShow) {
  EXPECT_THAT(ToldAtEuro([](CalendarsWorld& calendars) { CreateCalendar(calendars, "2027", "cmdCreate"); }),
              // The node that is chosen unfolds its currency, which shows the days for the first time.
              ElementsAre("began create EUR 2027", "write 0", "read 0", "began show EUR 2027", "read 0",
                          "ended", "read 0", "days 0", "ended"));
}

TEST(CalendarsActions, AYearThatIsNoneAndACancelAreNoActions) {
  EXPECT_THAT(ToldAtEuro([](CalendarsWorld& calendars) { CreateCalendar(calendars, "soon", "cmdCreate"); }),
              IsEmpty());
  EXPECT_THAT(ToldAtEuro([](CalendarsWorld& calendars) { CreateCalendar(calendars, "2027", "cmdCancel"); }),
              IsEmpty());
}

// What stays as without an observer
// -------------------------------------------------------------------------------

void DoEverything(CalendarsWorld& calendars) {
  calendars.OpenAt("K978_2026");
  calendars.Click("ID_Refresh");
  calendars.Click("ID_Expand");
  calendars.ChooseForDay(5, "ID_Except");
  ExceptWithMessage(calendars, "cmdExcept");
  CreateCalendar(calendars, "2027", "cmdCreate");
  AssignTheRule(calendars, "ID_AssignMany");
  calendars.world.commands.FailAt(CommandStep::kExecute, {8, "It is read-only"});
  calendars.ChooseForDay(5, "ID_Except");
}

std::vector<std::string> CallsOfEverything(platform::ActionObserver* observer) {
  std::vector<std::string> calls;
  RunInFreshThread([&] {
    CalendarsWorld calendars(observer);
    DoEverything(calendars);
    calls = calendars.world.log.Calls();
  });
  return calls;
}

TEST(CalendarsActions, TheCallsOfTheComponentAreTheSameWithAnObserver) {
  RecordingActionObserver observer;
  const auto calls = CallsOfEverything(nullptr);
  EXPECT_EQ(CallsOfEverything(&observer), calls);
  EXPECT_FALSE(observer.events.empty());
  testing::ThrowingActionObserver throwing;
  EXPECT_EQ(CallsOfEverything(&throwing), calls);
}

}  // namespace
}  // namespace ferrowind
