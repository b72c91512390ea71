#include "ferrowind/platform/database/engine_command.h"

#include <memory>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/failure_of.h"
#include "tests/unit/platform/database/small_engine.h"

namespace ferrowind::platform {
namespace {

using ::ferrowind::testing::FailureOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

constexpr const char* kConnectionString = "small:calendars";

std::shared_ptr<RecordSet> OneRow(const Value& value) {
  return std::make_shared<RecordSet>(std::vector<std::string>{"F"}, std::vector<std::vector<Value>>{{value}});
}

class EngineCommandTest : public ::testing::Test {
 protected:
  EngineCommandTest() {
    engines_.Register("small", engine_);
    command_ = factory_.CreateCommand();
  }

  /// Runs a whole command, and drops it.
  void RunCommand(const char* connection_string = kConnectionString) {
    command_ = factory_.CreateCommand();
    command_->SetText("CldGetMain");
    command_->SetConnection(connection_string);
    command_->RefreshParameters();
    (void)command_->Execute(kUnspecified);
    command_.reset();
  }

  /// Brings the command to where its parameters can be set.
  void Prepare() {
    command_->SetType(kStoredProcedureCommand);
    command_->SetText("CldGetMain");
    command_->SetConnection(kConnectionString);
    command_->SetCursorLocation(kClientSideCursor);
    command_->RefreshParameters();
  }

  std::shared_ptr<SmallEngine> engine_ = std::make_shared<SmallEngine>();
  EngineRegistry engines_;
  EngineCommandFactory factory_{engines_};
  std::unique_ptr<Command> command_;
};

TEST_F(EngineCommandTest, RefusesACommandTypeThatIsNoStoredProcedure) {
  EXPECT_EQ(FailureOf([&] { command_->SetType(1); }).Number(), failure_number::kInvalidArgument);
}

TEST_F(EngineCommandTest, RefusesACursorThatIsNotClientSide) {
  EXPECT_EQ(FailureOf([&] { command_->SetCursorLocation(2); }).Number(), failure_number::kInvalidArgument);
}

TEST_F(EngineCommandTest, RefusesParticularOptionsAndDoesNotCall) {
  Prepare();
  EXPECT_EQ(FailureOf([&] { (void)command_->Execute(0); }).Number(), failure_number::kInvalidArgument);
  EXPECT_THAT(engine_->called, IsEmpty());
}

TEST_F(EngineCommandTest, ConnectsToTheEngineOfTheConnectionString) {
  command_->SetConnection(kConnectionString);
  EXPECT_THAT(engine_->connected_to, ElementsAre(kConnectionString));
}

TEST_F(EngineCommandTest, ClosesItsConnectionWhenItIsDropped) {
  Prepare();
  EXPECT_EQ(engine_->open_connections, 1);
  command_.reset();
  EXPECT_EQ(engine_->open_connections, 0);
}

TEST_F(EngineCommandTest, EachCommandConnectsAnew) {
  RunCommand();
  RunCommand();
  EXPECT_THAT(engine_->connected_to, ElementsAre(kConnectionString, kConnectionString));
}

TEST_F(EngineCommandTest, CommandsShareAConnectionWhileSomebodyAsksForThat) {
  auto outer = factory_.ShareConnections();
  RunCommand();
  auto inner = factory_.ShareConnections();
  RunCommand();
  inner.reset();
  RunCommand();
  EXPECT_THAT(engine_->connected_to, ElementsAre(kConnectionString));
  EXPECT_THAT(engine_->called, ElementsAre("CldGetMain", "CldGetMain", "CldGetMain"));
  EXPECT_EQ(engine_->open_connections, 1);
  outer.reset();
  EXPECT_EQ(engine_->open_connections, 0);
  RunCommand();
  EXPECT_EQ(engine_->connected_to.size(), 2U);
}

TEST_F(EngineCommandTest, EachDatabaseHasASharedConnectionOfItsOwn) {
  const auto shared = factory_.ShareConnections();
  RunCommand("small:one");
  RunCommand("small:two");
  RunCommand("small:one");
  EXPECT_THAT(engine_->connected_to, ElementsAre("small:one", "small:two"));
}

TEST_F(EngineCommandTest, ASharedConnectionThatHasFailedIsReplaced) {
  const auto shared = factory_.ShareConnections();
  RunCommand();
  command_ = factory_.CreateCommand();
  Prepare();
  command_->SetText("CldNothing");
  EXPECT_EQ(FailureOf([&] { command_->RefreshParameters(); }).Number(), failure_number::kInvalidArgument);
  command_.reset();
  EXPECT_EQ(engine_->open_connections, 0);
  RunCommand();
  EXPECT_THAT(engine_->connected_to, ElementsAre(kConnectionString, kConnectionString));
}

TEST_F(EngineCommandTest, ACommandKeepsItsConnectionWhenNobodySharesAnyMore) {
  auto shared = factory_.ShareConnections();
  command_ = factory_.CreateCommand();
  Prepare();
  shared.reset();
  EXPECT_EQ(engine_->open_connections, 1);
  (void)command_->Execute(kUnspecified);
  EXPECT_THAT(engine_->called, ElementsAre("CldGetMain"));
}

TEST_F(EngineCommandTest, NeedsAConnectionToAskForParametersAndToExecute) {
  EXPECT_EQ(FailureOf([&] { command_->RefreshParameters(); }).Number(), failure_number::kObjectNotSet);
  EXPECT_EQ(FailureOf([&] { (void)command_->Execute(kUnspecified); }).Number(),
            failure_number::kObjectNotSet);
}

TEST_F(EngineCommandTest, RefusesRecordSetsOfWhichOneIsMissing) {
  engine_->outcome.record_sets = {OneRow(1), nullptr, OneRow(3)};
  Prepare();
  const Failure failure = FailureOf([&] { (void)command_->Execute(kUnspecified); });
  EXPECT_EQ(failure.Number(), failure_number::kObjectNotSet);
  EXPECT_EQ(failure.Description(), "The engine gave nothing for record set 2 of CldGetMain");
}

TEST_F(EngineCommandTest, PassesOnTheFailureOfAnUnknownProcedure) {
  command_->SetText("CldNone");
  command_->SetConnection(kConnectionString);
  EXPECT_THAT(FailureOf([&] { command_->RefreshParameters(); }).Description(), HasSubstr("CldNone"));
}

TEST_F(EngineCommandTest, CallsTheProcedureWithConvertedInputsInTheOrderOfTheirPositions) {
  Prepare();
  command_->SetParameter("@Name1", 7);
  command_->SetParameter("@ID1", "978");
  EXPECT_EQ(command_->Execute(kUnspecified), nullptr);
  EXPECT_THAT(engine_->called, ElementsAre("CldGetMain"));
  EXPECT_THAT(engine_->inputs, ElementsAre(Value(std::int16_t{978}), Value("7")));
}

TEST_F(EngineCommandTest, PassesAnInputThatWasNotSetAsEmpty) {
  Prepare();
  command_->SetParameter("@ID1", 978);
  (void)command_->Execute(kUnspecified);
  EXPECT_THAT(engine_->inputs, ElementsAre(Value(std::int16_t{978}), Value()));
}

TEST_F(EngineCommandTest, FindsParametersWithoutRegardToCase) {
  Prepare();
  command_->SetParameter("@id1", 978);
  EXPECT_EQ(command_->ParameterAt(1), Value(std::int16_t{978}));
}

TEST_F(EngineCommandTest, NamesAnUnknownParameterAndTheProcedure) {
  Prepare();
  for (const char* name : {"@Year1", "ID1", "@RETURN_VALUE"}) {
    const Failure failure = FailureOf([&] { command_->SetParameter(name, 1); });
    EXPECT_EQ(failure.Number(), failure_number::kUnknownField);
    EXPECT_THAT(failure.Description(), HasSubstr(name));
    EXPECT_THAT(failure.Description(), HasSubstr("CldGetMain"));
  }
}

TEST_F(EngineCommandTest, KeepsTheOldValueOfAParameterWhenTheNewOneDoesNotFit) {
  Prepare();
  command_->SetParameter("@ID1", 978);
  EXPECT_EQ(FailureOf([&] { command_->SetParameter("@ID1", 40000); }).Number(), failure_number::kOverflow);
  EXPECT_EQ(command_->ParameterAt(1), Value(std::int16_t{978}));
}

TEST_F(EngineCommandTest, RefreshingTheParametersEmptiesTheirValues) {
  Prepare();
  command_->SetParameter("@ID1", 978);
  command_->RefreshParameters();
  EXPECT_TRUE(command_->ParameterAt(1).IsEmpty());
}

TEST_F(EngineCommandTest, HandsOutTheReturnValueAtPositionZero) {
  Prepare();
  engine_->outcome.return_value = 5;
  EXPECT_TRUE(command_->ParameterAt(0).IsEmpty());
  (void)command_->Execute(kUnspecified);
  EXPECT_EQ(command_->ParameterAt(0), Value(5));
}

TEST_F(EngineCommandTest, HasNoParameterOutsideTheDeclaredPositions) {
  Prepare();
  for (const std::int32_t position : {-1, 3}) {
    EXPECT_EQ(FailureOf([&] { (void)command_->ParameterAt(position); }).Number(),
              failure_number::kSubscriptOutOfRange);
  }
}

TEST_F(EngineCommandTest, WalksOverTheRecordSetsInTheirOrder) {
  Prepare();
  engine_->outcome.record_sets = {OneRow(1), OneRow(2)};
  const auto first = command_->Execute(kUnspecified);
  ASSERT_NE(first, nullptr);
  EXPECT_EQ(first->State(), kStateOpen);
  EXPECT_EQ((*first->CloneDetached(kUnspecified))["F"], Value(1));
  const auto second = first->NextRecordSet();
  ASSERT_NE(second, nullptr);
  EXPECT_EQ((*second->CloneDetached(kUnspecified))["F"], Value(2));
  EXPECT_EQ(second->NextRecordSet(), nullptr);
}

TEST_F(EngineCommandTest, RefusesToCloneWithAParticularLock) {
  Prepare();
  engine_->outcome.record_sets = {OneRow(1)};
  const auto result = command_->Execute(kUnspecified);
  EXPECT_EQ(FailureOf([&] { (void)result->CloneDetached(1); }).Number(), failure_number::kInvalidArgument);
}

TEST_F(EngineCommandTest, ADetachedCopyOutlivesTheCommandAndItsConnection) {
  Prepare();
  engine_->outcome.record_sets = {OneRow("kept")};
  auto result = command_->Execute(kUnspecified);
  const auto copy = result->CloneDetached(kUnspecified);
  result.reset();
  command_.reset();
  engine_->outcome = {};
  EXPECT_EQ((*copy)["F"], Value("kept"));
}

}  // namespace
}  // namespace ferrowind::platform
