// What a procedure call does when a step of it fails.
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "ferrowind/data/error_reporting.h"
#include "ferrowind/data/exec_proc.h"

#include "tests/support/component_world.h"
#include "tests/support/run_in_fresh_thread.h"

namespace ferrowind {
namespace {

using headless::CommandStep;
using headless::FaultPlan;
using platform::Failure;
using platform::ParameterType;
using platform::Value;
using testing::ComponentWorld;
using testing::NumberedMessage;
using testing::RunInFreshThread;

constexpr const char* kProcedure = "CldGetMain";

void AnswerWith(ComponentWorld& component, std::int32_t return_value) {
  component.world.commands.Answer(kProcedure)
      .Takes("@ID1", ParameterType::kInt32)
      .Returns(return_value)
      .Gives({"a"}, {{1}})
      .Gives({"b"}, {{2}});
}

struct Outcome {
  std::string failed_call;
  std::int32_t result;
  bool is_pending;
  /// -1 where the list that was passed stayed as it was.
  std::int32_t result_count;
};

Outcome OutcomeOfFailureAt(int call, std::int32_t return_value) {
  Outcome outcome;
  RunInFreshThread([&] {
    ComponentWorld component;
    AnswerWith(component, return_value);
    SourceValues params;
    params.Add("ID1", 978);
    auto results = std::make_shared<SourceValues>();
    results->Add("old", "kept");
    component.world.faults.FailAtCall(call);
    const std::int32_t result = ExecProc(kProcedure, &params, results);
    component.world.faults.Disarm();
    outcome = {component.world.faults.FailedCall(), result, Module().pending_failure_count == 1,
               results->Values("old") ? -1 : results->Count()};
    if (outcome.is_pending) {
      EXPECT_EQ(Module().pending_failures[0].number, FaultPlan::kFaultNumber);
      EXPECT_EQ(Module().pending_failures[0].description, "Planned fault in " + outcome.failed_call);
    }
  });
  return outcome;
}

void ExpectOutcomes(std::int32_t return_value, const std::vector<Outcome>& expected) {
  for (std::size_t i = 0; i < expected.size(); ++i) {
    const Outcome outcome = OutcomeOfFailureAt(static_cast<int>(i) + 1, return_value);
    SCOPED_TRACE(expected[i].failed_call + " as call " + std::to_string(i + 1));
    EXPECT_EQ(outcome.failed_call, expected[i].failed_call);
    EXPECT_EQ(outcome.result, expected[i].result);
    EXPECT_EQ(outcome.is_pending, expected[i].is_pending);
    EXPECT_EQ(outcome.result_count, expected[i].result_count);
  }
  const Outcome none = OutcomeOfFailureAt(static_cast<int>(expected.size()) + 1, return_value);
  EXPECT_EQ(none.failed_call, "") << "there is one more call that can fail";
}

TEST(ExecProcFailure, EachStepThatFailsHasItsOwnConsequence) {
  ExpectOutcomes(0, {
                        {"command.Create", -1, true, -1},
                        {"command.SetType", -1, true, -1},
                        {"command.SetText", -1, true, -1},
                        {"dictionary.dic_ConnectionString", -1, true, -1},
                        {"command.SetConnection", -1, true, -1},
                        {"command.SetCursorLocation", -1, true, -1},
                        {"command.RefreshParameters", -1, true, -1},
                        {"services.TraceMessage", -1, true, -1},
                        {"command.SetParameter", 0, false, 2},
                        {"services.TraceMessage", 0, false, 2},
                        {"command.Execute", -1, true, -1},
                        {"command.ParameterAt", -1, true, -1},
                        {"services.TraceMessage", 0, true, -1},
                        {"cursor.State", 0, true, -1},
                        {"cursor.CloneDetached", 0, false, 1},
                        {"cursor.NextRecordSet", 0, false, 1},
                        {"cursor.CloneDetached", 0, false, 1},
                        {"cursor.NextRecordSet", 0, false, 2},
                    });
}

TEST(ExecProcFailure, BehindTheReturnValueKeepsTheReturnValue) {
  constexpr int kTraceOfTheReturnValue = 13;
  const Outcome outcome = OutcomeOfFailureAt(kTraceOfTheReturnValue, 5);
  EXPECT_EQ(outcome.failed_call, "services.TraceMessage");
  EXPECT_EQ(outcome.result, 5);
  EXPECT_TRUE(outcome.is_pending);
}

TEST(ExecProcFailure, AReturnValueThatIsNoNumberIsMinusOne) {
  RunInFreshThread([] {
    ComponentWorld component;
    component.world.commands.Answer("P").Returns("text");
    std::shared_ptr<SourceValues> results;
    EXPECT_EQ(ExecProc("P", nullptr, results), -1);
    EXPECT_EQ(Module().pending_failures[0].number, 13);
  });
}

/// A host's own way to its database, which goes wrong in ways that no failure tells of.
class OddCommands : public platform::CommandFactory {
 public:
  std::function<void()> before_none = [] {};
  [[nodiscard]] std::unique_ptr<platform::Command> CreateCommand() override {
    before_none();
    return nullptr;
  }
};

std::string PendingOfOddCommands(OddCommands& commands) {
  std::string pending;
  RunInFreshThread([&] {
    ComponentWorld component;
    const platform::Platform odd{component.world.objects, commands,
                                 component.world.toolkit, component.world.locale,
                                 component.world.clock,   ""};
    const InSurroundings surroundings(odd);
    std::shared_ptr<SourceValues> results;
    EXPECT_EQ(ExecProc("P", nullptr, results), -1);
    pending = Module().pending_failures[0].description;
  });
  return pending;
}

TEST(ExecProcFailure, WhatIsThrownAndNoExceptionIsMinusOneAsAnyFailure) {
  OddCommands commands;
  commands.before_none = [] { throw 42; };
  EXPECT_EQ(PendingOfOddCommands(commands), "Internal error: an exception that tells nothing of itself");
}

TEST(ExecProcFailure, SurroundingsWithoutACommandAreMinusOne) {
  OddCommands commands;
  EXPECT_EQ(PendingOfOddCommands(commands), "The surroundings gave no command");
}

TEST(ExecProcFailure, AnUnknownProcedureIsPending) {
  RunInFreshThread([] {
    ComponentWorld component;
    std::shared_ptr<SourceValues> results;
    EXPECT_EQ(ExecProc("NoSuchProcedure", nullptr, results), -1);
    EXPECT_EQ(Module().pending_failure_count, 1);
    EXPECT_EQ(Module().pending_failures[0].description, "There is no procedure NoSuchProcedure");
    EXPECT_EQ(results, nullptr);
  });
}

TEST(ExecProcFailure, WithoutADictionaryObjectTheNextReportShowsThatFirst) {
  RunInFreshThread([] {
    ComponentWorld component;
    Module().dictionary.reset();
    std::shared_ptr<SourceValues> results;
    EXPECT_EQ(ExecProc("CldAllInfo", nullptr, results), -1);
    ShowErrorMessage(6);
    EXPECT_EQ(component.SeenByOperator(),
              (std::vector<std::string>{R"(services.ReportError(91, "There is no dictionary object"))",
                                        NumberedMessage("Can't load relation currency to calendars")}));
  });
}

TEST(ExecProcFailure, OnAThreadThatWasNotStartedIsMinusOne) {
  RunInFreshThread([] {
    std::shared_ptr<SourceValues> results;
    EXPECT_EQ(ExecProc("CldAllInfo", nullptr, results), -1);
    EXPECT_EQ(Module().pending_failures[0].number, 91);
  });
}

TEST(ExecProcFailure, IsKeptAndNotShown) {
  RunInFreshThread([] {
    ComponentWorld component;
    component.world.commands.FailAt(CommandStep::kExecute, Failure(-2147217865, "Invalid object name"));
    component.world.commands.Answer("P");
    std::shared_ptr<SourceValues> results;
    ExecProc("P", nullptr, results);
    EXPECT_TRUE(component.SeenByOperator().empty());
    EXPECT_EQ(Module().pending_failures[0].number, -2147217865);
    EXPECT_EQ(Module().pending_failures[0].description, "Invalid object name");
  });
}

TEST(ExecProcFailure, OfTwoCallsInARowOnlyTheSecondStaysPending) {
  RunInFreshThread([] {
    ComponentWorld component;
    component.world.commands.Answer("P");
    std::shared_ptr<SourceValues> results;
    component.world.commands.FailAt(CommandStep::kExecute, Failure(1, "first"));
    ExecProc("P", nullptr, results);
    component.world.commands.FailAt(CommandStep::kExecute, Failure(2, "second"));
    ExecProc("P", nullptr, results);
    ShowPendingFailures();
    EXPECT_EQ(component.world.services->Reports(), (std::vector<headless::ReportedError>{{2, "second"}}));
  });
}

TEST(ExecProcFailure, IsForgottenByTheNextCallThatSucceeds) {
  RunInFreshThread([] {
    ComponentWorld component;
    component.world.commands.Answer("P");
    component.world.commands.FailAt(CommandStep::kExecute, Failure(1, "first"));
    std::shared_ptr<SourceValues> results;
    ExecProc("P", nullptr, results);
    ASSERT_EQ(Module().pending_failure_count, 1);
    ExecProc("P", nullptr, results);
    EXPECT_EQ(Module().pending_failure_count, 0);
  });
}

TEST(ExecProcFailure, IsForgottenByTheNextCallThatReturnsNonZero) {
  RunInFreshThread([] {
    ComponentWorld component;
    component.world.commands.Answer("P").Returns(2);
    component.world.commands.FailAt(CommandStep::kExecute, Failure(1, "first"));
    std::shared_ptr<SourceValues> results;
    ExecProc("P", nullptr, results);
    EXPECT_EQ(ExecProc("P", nullptr, results), 2);
    EXPECT_EQ(Module().pending_failure_count, 0);
  });
}

TEST(ExecProcFailure, OfNumberZeroIsNotKept) {
  RunInFreshThread([] {
    ComponentWorld component;
    component.world.commands.Answer("P");
    component.world.commands.FailAt(CommandStep::kExecute, Failure(0, "no number"));
    std::shared_ptr<SourceValues> results;
    EXPECT_EQ(ExecProc("P", nullptr, results), -1);
    EXPECT_EQ(Module().pending_failure_count, 0);
  });
}

TEST(ExecProcFailure, IsKeptForItsOwnThreadAlone) {
  RunInFreshThread([] {
    ComponentWorld component;
    std::shared_ptr<SourceValues> results;
    ExecProc("NoSuchProcedure", nullptr, results);
    RunInFreshThread([] { EXPECT_EQ(Module().pending_failure_count, 0); });
    EXPECT_EQ(Module().pending_failure_count, 1);
  });
}

}  // namespace
}  // namespace ferrowind
