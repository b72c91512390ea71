#include "ferrowind/planning/database_call.h"

#include <gmock/gmock.h>

#include "ferrowind/data/run_handler.h"

#include "tests/unit/planning/planning_world.h"

namespace ferrowind::planning {
namespace {

using headless::CommandStep;
using platform::Failure;
using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using testing::RunInFreshThread;

TEST(DatabaseCall, GivesTheRecordSetsInTheirOrder) {
  RunInFreshThread([] {
    PlanningWorld component;
    component.world.commands.Answer("P").Gives({"A"}, {{1}}).Gives({"B"}, {});
    const CallAnswer answer = CallDatabase("Reading", "P", {}, 2);
    EXPECT_EQ(answer.return_value, 0);
    ASSERT_EQ(answer.record_sets.size(), 2U);
    EXPECT_EQ(answer.record_sets[0]->FieldName(0), "A");
    EXPECT_EQ(answer.record_sets[1]->FieldName(0), "B");
  });
}

TEST(DatabaseCall, RefusesAnotherReturnValueInWords) {
  RunInFreshThread([] {
    PlanningWorld component;
    component.world.commands.Answer("CldApplyPlan").Returns(8);
    try {
      (void)CallDatabase("Applying the plan of EUR 2028", "CldApplyPlan", {});
      FAIL() << "not refused";
    } catch (const Refusal& refusal) {
      EXPECT_EQ(refusal.ReturnValue(), return_value::kContentIsAnother);
      EXPECT_EQ(refusal.Description(),
                "Applying the plan of EUR 2028: it was changed meanwhile (CldApplyPlan returned 8)");
    }
  });
}

TEST(DatabaseCall, SaysEveryReturnValueInOtherWords) {
  RunInFreshThread([] {
    const PlanningWorld component;
    std::vector<std::string> seen;
    for (int value = 2; value <= 11; ++value) {
      const std::string text = Refusal("Doing", "P", value).Description();
      const std::string words = text.substr(0, text.find(" (P returned"));
      EXPECT_THAT(text, HasSubstr("(P returned " + std::to_string(value) + ")"));
      EXPECT_THAT(seen, ::testing::Not(::testing::Contains(words)));
      seen.push_back(words);
    }
  });
}

TEST(DatabaseCall, SaysWhichTextWasTooLong) {
  RunInFreshThread([] {
    PlanningWorld component;
    component.world.commands.Answer("P").Returns(7);
    SourceValues parameters;
    parameters.Add("Comment", std::string(4001, 'x'));
    try {
      (void)CallDatabase("Storing", "P", parameters);
      FAIL() << "not refused";
    } catch (const Refusal& refusal) {
      EXPECT_EQ(refusal.Description(),
                "Storing: The comment has 4001 characters; it may have 4000 at most (P returned 7)");
    }
  });
}

TEST(DatabaseCall, GivesReturnValuesThatTheCallerExpects) {
  RunInFreshThread([] {
    PlanningWorld component;
    component.world.commands.Answer("P").Returns(5);
    const CallAnswer answer = CallDatabase("Reading", "P", {}, 1, {return_value::kUnknownCalendar});
    EXPECT_EQ(answer.return_value, 5);
    EXPECT_TRUE(answer.record_sets.empty());
  });
}

TEST(DatabaseCall, PassesAFailureOnWithItsNumber) {
  RunInFreshThread([] {
    PlanningWorld component;
    component.world.commands.Answer("P");
    component.world.commands.FailAt(CommandStep::kExecute, Failure(1234, "The disk is full"));
    const Failure failure = testing::FailureOf([] { (void)CallDatabase("Reading EUR 2028", "P", {}); });
    EXPECT_EQ(failure.Number(), 1234);
    EXPECT_EQ(failure.Description(), "Reading EUR 2028: The disk is full");
  });
}

TEST(DatabaseCall, LeavesNothingToBeReportedBesideItsFailure) {
  RunInFreshThread([] {
    PlanningWorld component;
    component.world.commands.Answer("P");
    component.world.commands.FailAt(CommandStep::kExecute, Failure(-5, "line lost"));
    RunHandler([] { (void)CallDatabase("Reading", "P", {}); });
    EXPECT_THAT(component.SeenByOperator(), ElementsAre(HasSubstr("Reading: line lost")));
  });
}

TEST(DatabaseCall, TakesAnAnswerThatLacksAPartForAFailure) {
  RunInFreshThread([] {
    PlanningWorld component;
    component.world.commands.Answer("P").Gives({"A"}, {{1}});
    EXPECT_THAT(testing::FailureOf([] { (void)CallDatabase("Reading", "P", {}, 2); }).Description(),
                AllOf(HasSubstr("Reading: P gave only 1 of its 2 record sets")));
  });
}

}  // namespace
}  // namespace ferrowind::planning
