// What assigning rules would do, shown before the Holidays window does it.
#include <functional>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ferrowind/adapters/headless/headless_label.h"

#include "tests/support/fault_scenario.h"
#include "tests/unit/views/planning/planned_holidays.h"

namespace ferrowind {
namespace {

using headless::HeadlessButton;
using headless::HeadlessForm;
using headless::HeadlessLabel;
using headless::HeadlessTable;
using headless::HeadlessTextView;
using platform::CellMark;
using platform::Date;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using testing::PlannedHolidays;
using testing::RunInFreshThread;

/// The operator assigns the rule, and `look` is what they do in the preview.
void AssignAndLook(PlannedHolidays& holidays, const std::string& rule,
                   const std::function<void(HeadlessForm& preview)>& look) {
  holidays.world.toolkit.ScriptModal("fmAssignPreview", look);
  holidays.Show([&] { holidays.Assign(rule); });
}

void Click(HeadlessForm& form, const char* button) { form.Part<HeadlessButton>(button).Click(); }

TEST(AssignmentCheck, ShowsWhatARuleWouldDoAndAssignsItWhenConfirmed) {
  RunInFreshThread([] {
    PlannedHolidays holidays;
    ASSERT_TRUE(holidays.Init(kWholeCalendarMode));
    AssignAndLook(holidays, "Good Friday", [&](HeadlessForm& preview) {
      EXPECT_EQ(preview.Part<HeadlessLabel>("lblSummary").Text(), "1 rule for EUR 2028; 2 warnings.");
      auto& table = preview.Part<HeadlessTable>("tblPreview");
      EXPECT_THAT(table.Texts("0"), ElementsAre("Good Friday", "Monday 3 April 2028", "working day",
                                                "It is dated for 2026, on Friday 3 April 2026. The book of "
                                                "EUR has it on Friday 14 April 2028."));
      EXPECT_EQ(table.Cell("0", "Rule").mark, CellMark::kWarning);
      EXPECT_EQ(holidays.RuleOn(Date(2028, 4, 3)), std::nullopt);
      EXPECT_EQ(preview.FocusedControl(), "cmdCancel") << "Enter alone does not go past a warning";
      Click(preview, "cmdAssign");
    });
    EXPECT_EQ(holidays.RuleOn(Date(2028, 4, 3)), 5);
    EXPECT_EQ(holidays.window->Result(), 1);
  });
}

/// Assigns two rules to EUR 2028 in one step.
void AssignTwo(PlannedHolidays& holidays) {
  ASSERT_TRUE(holidays.Init(kWholeCalendarMode));
  holidays.world.toolkit.ScriptModal("fmAssignPreview",
                                     [](HeadlessForm& preview) { Click(preview, "cmdAssign"); });
  holidays.Show([&] {
    holidays.Grid().ClickRow(holidays.RowOf("Street fair"));
    holidays.Grid().ToggleRow(holidays.RowOf("Good Friday"));
    holidays.Form().Part<HeadlessButton>("cmdAction5").Click();
  });
}

TEST(AssignmentCheck, KeepsAnAssignmentOfSeveralRulesToBeUndoneInOneStep) {
  RunInFreshThread([] {
    PlannedHolidays holidays;
    const auto before = holidays.RuleOn(Date(2028, 7, 1));
    AssignTwo(holidays);
    ASSERT_EQ(holidays.RuleOn(Date(2028, 4, 3)), 5);
    ASSERT_EQ(holidays.RuleOn(Date(2028, 7, 1)), 6);
    const auto newest = planning::LoadHistory({}, std::nullopt, 1).entries.front().id;
    planning::ActionCalls* const action = holidays.windows.Actions().JointActionOf(newest);
    ASSERT_NE(action, nullptr);
    EXPECT_EQ(action->Count(), 2U);
    EXPECT_EQ(holidays.windows.Actions().Newest(planning::ActionStack::Origin::kYearPlanner), nullptr)
        << "a year planner undoes what was done in year planners";
    EXPECT_EQ(action->Undo().undone, 2U);
    EXPECT_EQ(holidays.RuleOn(Date(2028, 4, 3)), std::nullopt);
    EXPECT_EQ(holidays.RuleOn(Date(2028, 7, 1)), before);
  });
}

TEST(AssignmentCheck, AssignsAllTheSameWhenTheHistoryCannotBeRead) {
  RunInFreshThread([] {
    PlannedHolidays holidays;
    holidays.world.database->AddProcedure(
        "CldGetHistory", {},
        [](auto&, const auto&) -> platform::CallOutcome { throw platform::Failure(1, "no history"); });
    AssignTwo(holidays);
    EXPECT_EQ(holidays.RuleOn(Date(2028, 4, 3)), 5);
    EXPECT_EQ(holidays.RuleOn(Date(2028, 7, 1)), 6);
  });
}

TEST(AssignmentCheck, AssignsNothingAndLeavesTheWindowOpenWhenCancelled) {
  for (const bool by_escape : {false, true}) {
    RunInFreshThread([by_escape] {
      PlannedHolidays holidays;
      ASSERT_TRUE(holidays.Init(kWholeCalendarMode));
      holidays.world.toolkit.ScriptModal("fmAssignPreview", [=](HeadlessForm& preview) {
        by_escape ? preview.PressEscape() : Click(preview, "cmdCancel");
      });
      holidays.Show([&] {
        holidays.Assign("Good Friday");
        EXPECT_TRUE(holidays.Form().IsShown());
      });
      EXPECT_EQ(holidays.RuleOn(Date(2028, 4, 3)), std::nullopt);
      EXPECT_EQ(holidays.window->Result(), 0);
    });
  }
}

TEST(AssignmentCheck, TellsAllOfTheCurrentRuleAndBeginsWithTheFirstToLookAt) {
  RunInFreshThread([] {
    PlannedHolidays holidays;
    ASSERT_TRUE(holidays.Init(kWholeCalendarMode));
    holidays.world.toolkit.ScriptModal("fmAssignPreview", [](HeadlessForm& preview) {
      auto& table = preview.Part<HeadlessTable>("tblPreview");
      auto& details = preview.Part<HeadlessTextView>("txtDetails");
      EXPECT_EQ(table.CurrentRow(), "1");
      EXPECT_THAT(details.Text(), HasSubstr("Good Friday: Monday 3 April 2028\nThere now: working day\n"
                                            "It is dated for 2026"));
      table.ClickRow("0");
      EXPECT_EQ(details.Text(),
                "Saturday: every Saturday\nThere now: 0 days take it and 53 have it\nNothing changes.");
      EXPECT_EQ(table.Cell("0", "Rule").mark, CellMark::kKept);
      EXPECT_THAT(preview.Part<HeadlessLabel>("lblSummary").Text(),
                  HasSubstr("2 rules for EUR 2028; 1 changes nothing; "));
      Click(preview, "cmdCancel");
    });
    holidays.Show([&] {
      auto& grid = holidays.Grid();
      grid.ClickRow(holidays.RowOf("Saturday"));
      grid.ToggleRow(holidays.RowOf("Good Friday"));
      holidays.Form().Part<HeadlessButton>("cmdAction5").Click();
    });
  });
}

TEST(AssignmentCheck, CountsWeekdaysFromTheFirstOneOfTheDatabase) {
  RunInFreshThread([] {
    PlannedHolidays holidays;
    holidays.Tables().first_day = 2;
    ASSERT_TRUE(holidays.Init(kWholeCalendarMode));
    AssignAndLook(holidays, "Saturday", [](HeadlessForm& preview) {
      EXPECT_EQ(preview.Part<HeadlessTable>("tblPreview").Cell("0", "Day").text, "every Sunday");
      Click(preview, "cmdCancel");
    });
  });
}

TEST(AssignmentCheck, LooksAtTheDayThatTheWindowIsOpenFor) {
  RunInFreshThread([] {
    PlannedHolidays holidays;
    ASSERT_TRUE(holidays.Init(kSingleDayMode, Date(2028, 4, 12)));
    AssignAndLook(holidays, "Good Friday", [](HeadlessForm& preview) {
      EXPECT_THAT(preview.Part<HeadlessTable>("tblPreview").Cell("0", "Warnings").text,
                  HasSubstr("It goes to its own date, not to Wednesday 12 April 2028."));
      Click(preview, "cmdCancel");
    });
  });
}

TEST(AssignmentCheck, AssignsNothingWhereThePreviewCannotBeMadeAndSaysWhy) {
  RunInFreshThread([] {
    PlannedHolidays holidays;
    ASSERT_TRUE(holidays.Init(kWholeCalendarMode));
    holidays.world.toolkit.RemoveLayout("fmAssignPreview");
    holidays.Show([&] {
      holidays.Assign("Good Friday");
      EXPECT_TRUE(holidays.Form().IsShown());
    });
    EXPECT_EQ(holidays.RuleOn(Date(2028, 4, 3)), std::nullopt);
    EXPECT_EQ(holidays.world.log.StartingWith("services.ReportError(").size(), 1u);
  });
}

/// The window for EUR 2028 on show, without Good Friday on its day, and a preview that is always confirmed.
class ConfirmedAssignment : public PlannedHolidays {
 public:
  void Begin() {
    Tables().calendars.at({kEuro, 2028})[93] = {};
    if (!window || was_shown) {
      MakeWindow();
      ASSERT_TRUE(Init(kWholeCalendarMode));
      Form().Show();
    }
    was_shown = false;
  }
  void AssignGoodFriday() {
    if (world.toolkit.WaitingScripts() == 0) {
      world.toolkit.ScriptModal("fmAssignPreview", [this](HeadlessForm& preview) {
        was_shown = true;
        world.faults.Disarm();
        Click(preview, "cmdAssign");
      });
    }
    Assign("Good Friday");
  }
  [[nodiscard]] bool IsAssigned() { return RuleOn(Date(2028, 4, 3)).has_value(); }

  bool was_shown = false;
};

TEST(AssignmentCheck, AssignsNothingUnlessThePreviewWasShownWhicheverCallFails) {
  testing::FailEachCall<ConfirmedAssignment>(
      {.arrange = [](ConfirmedAssignment& holidays) { holidays.Begin(); },
       .act = [](ConfirmedAssignment& holidays) { holidays.AssignGoodFriday(); },
       .look =
           [](ConfirmedAssignment& holidays) {
             EXPECT_EQ(holidays.IsAssigned(), holidays.was_shown);
             EXPECT_EQ(holidays.Form().IsShown(), !holidays.was_shown);
             const bool has_failed = holidays.world.faults.HasFired();
             EXPECT_TRUE(holidays.was_shown || has_failed) << "it bears all failures before";
           }},
      30);
}

}  // namespace
}  // namespace ferrowind
