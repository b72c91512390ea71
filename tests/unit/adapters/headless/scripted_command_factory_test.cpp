#include "ferrowind/adapters/headless/scripted_command_factory.h"

#include <gmock/gmock.h>

namespace ferrowind::headless {
namespace {

using platform::Command;
using platform::Failure;
using platform::ParameterType;
using platform::Value;
using testing::ElementsAre;

class ScriptedCommands : public testing::Test {
 protected:
  /// A command of that procedure with its parameters refreshed.
  [[nodiscard]] std::unique_ptr<Command> Prepared(const std::string& procedure) {
    auto command = factory.CreateCommand();
    command->SetType(platform::kStoredProcedureCommand);
    command->SetText(procedure);
    command->SetConnection("scripted:");
    command->SetCursorLocation(platform::kClientSideCursor);
    command->RefreshParameters();
    return command;
  }
  /// The whole of a call, as far as it comes.
  void CallOnce() {
    const auto command = Prepared("CldGetMain");
    command->SetParameter("@ID1", 978);
    command->SetParameter("@Year1", 2026);
    auto cursor = command->Execute(platform::kUnspecified);
    static_cast<void>(command->ParameterAt(0));
    static_cast<void>(cursor->State());
    static_cast<void>(cursor->CloneDetached(platform::kUnspecified));
    cursor = cursor->NextRecordSet();
  }
  void ScriptGetMain() {
    factory.Answer("CldGetMain")
        .Takes("@ID1", ParameterType::kInt32)
        .Takes("@Year1", ParameterType::kInt32)
        .Gives({"Day1"}, {{1}, {2}});
  }

  CallLog log;
  ScriptedCommandFactory factory{log};
};

TEST_F(ScriptedCommands, AnswerAndAreRecordedStepByStep) {
  ScriptGetMain();
  CallOnce();
  EXPECT_THAT(
      log.Calls(),
      ElementsAre("command.Create()", "command.SetType(4)", "command.SetText(\"CldGetMain\")",
                  "command.SetConnection(\"scripted:\")", "command.SetCursorLocation(3)",
                  "command.RefreshParameters()", "command.SetParameter(\"@ID1\", 978)",
                  "command.SetParameter(\"@Year1\", 2026)", "command.Execute(-1)", "command.ParameterAt(0)",
                  "cursor.State()", "cursor.CloneDetached(-1)", "cursor.NextRecordSet()"));
}

TEST_F(ScriptedCommands, KeepTheParametersOfEachCall) {
  ScriptGetMain();
  CallOnce();
  ASSERT_EQ(factory.Calls().size(), 1U);
  const ExecutedCall call = factory.CallsOf("CldGetMain").at(0);
  EXPECT_EQ(call.connection_string, "scripted:");
  EXPECT_EQ(call.Parameter("@ID1"), Value(978));
  EXPECT_TRUE(call.HasParameter("@Year1"));
  EXPECT_FALSE(call.HasParameter("@Comment"));
  EXPECT_TRUE(factory.CallsOf("CldIUMain").empty());
}

TEST_F(ScriptedCommands, GiveReturnValueAndRecordSetsInOrder) {
  factory.Answer("Two").Returns(5).Gives({"A"}, {{1}}).Gives({"B"}, {{2}});
  const auto command = Prepared("Two");
  EXPECT_EQ(command->ParameterAt(0), Value());
  auto cursor = command->Execute(platform::kUnspecified);
  EXPECT_EQ(command->ParameterAt(0), Value(5));
  EXPECT_EQ(cursor->State(), platform::kStateOpen);
  EXPECT_EQ((*cursor->CloneDetached(platform::kUnspecified))["A"], Value(1));
  cursor = cursor->NextRecordSet();
  EXPECT_EQ((*cursor->CloneDetached(platform::kUnspecified))["B"], Value(2));
  EXPECT_EQ(cursor->NextRecordSet(), nullptr);
}

TEST_F(ScriptedCommands, UseUpTheirAnswersAndRepeatTheLast) {
  factory.Answer("P").Returns(1);
  factory.Answer("P").Returns(2);
  for (const int expected : {1, 2, 2}) {
    const auto command = Prepared("P");
    EXPECT_EQ(command->Execute(platform::kUnspecified), nullptr);
    EXPECT_EQ(command->ParameterAt(0), Value(expected));
  }
}

TEST_F(ScriptedCommands, DoNotKnowAProcedureWithoutAnAnswer) {
  EXPECT_THROW(static_cast<void>(Prepared("Unknown")), Failure);
  factory.Answer("Known");
  factory.Forget("Known");
  EXPECT_THROW(static_cast<void>(Prepared("Known")), Failure);
}

TEST_F(ScriptedCommands, RefuseAParameterThatIsNotDeclared) {
  ScriptGetMain();
  const auto command = Prepared("CldGetMain");
  EXPECT_THROW(command->SetParameter("@Comment", "x"), Failure);
  EXPECT_THROW(command->SetParameter("@RETURN_VALUE", 1), Failure);
  EXPECT_THROW(command->SetParameter("@ID1", "many"), Failure);
  EXPECT_NO_THROW(command->SetParameter("@id1", "978"));
}

TEST_F(ScriptedCommands, CanGiveAClosedRecordSet) {
  factory.Answer("Closed").Gives({"A"}, {}).Closed();
  const auto command = Prepared("Closed");
  EXPECT_EQ(command->Execute(platform::kUnspecified)->State(), platform::kStateClosed);
}

TEST_F(ScriptedCommands, FailAtEveryStepThatATestChoosesOnce) {
  for (const CommandStep step :
       {CommandStep::kCreate, CommandStep::kSetType, CommandStep::kSetText, CommandStep::kSetConnection,
        CommandStep::kSetCursorLocation, CommandStep::kRefreshParameters, CommandStep::kSetParameter,
        CommandStep::kExecute, CommandStep::kParameterAt, CommandStep::kState, CommandStep::kClone,
        CommandStep::kNextRecordSet}) {
    ScriptGetMain();
    factory.FailAt(step, Failure(42, "scripted"));
    EXPECT_THROW(CallOnce(), Failure) << static_cast<int>(step);
    EXPECT_NO_THROW(CallOnce()) << static_cast<int>(step);
  }
}

TEST_F(ScriptedCommands, FailAtTheNthTimeOfAStep) {
  ScriptGetMain();
  factory.FailAt(CommandStep::kSetParameter, Failure(42, "scripted"), 2);
  EXPECT_THROW(CallOnce(), Failure);
  EXPECT_TRUE(log.Contains("command.SetParameter(\"@Year1\", 2026)"));
  EXPECT_FALSE(log.Contains("command.Execute(-1)"));
}

class PlannedFailures : public ScriptedCommands {
 protected:
  PlannedFailures() { ScriptGetMain(); }
  /// The number of the failure that ends a call; 0 for none.
  std::int32_t FailureOfCall() {
    try {
      CallOnce();
    } catch (const Failure& failure) {
      return failure.Number();
    }
    return 0;
  }
};

TEST_F(PlannedFailures, OfTheSameStepCountIndependently) {
  factory.FailAt(CommandStep::kExecute, Failure(42, "first"), 2);
  factory.FailAt(CommandStep::kExecute, Failure(43, "second"), 3);
  const std::vector<std::int32_t> failures = {FailureOfCall(), FailureOfCall(), FailureOfCall(),
                                              FailureOfCall()};
  EXPECT_THAT(failures, ElementsAre(0, 42, 43, 0));
}

TEST_F(PlannedFailures, OfTheSameTimeFailOneAfterTheOther) {
  factory.FailAt(CommandStep::kExecute, Failure(42, "first"));
  factory.FailAt(CommandStep::kExecute, Failure(43, "second"));
  const std::vector<std::int32_t> failures = {FailureOfCall(), FailureOfCall(), FailureOfCall()};
  EXPECT_THAT(failures, ElementsAre(42, 43, 0));
}

}  // namespace
}  // namespace ferrowind::headless
