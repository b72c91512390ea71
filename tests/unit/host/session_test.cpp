#include <gmock/gmock.h>

#include "ferrowind/data/exec_proc.h"
#include "ferrowind/data/module_state.h"
#include "ferrowind/data/pending_failure.h"

#include "host/session/procedure_session.h"
#include "tests/unit/host/recording_engine.h"

namespace ferrowind::host {
namespace {

using platform::RecordSet;
using platform::Value;

class Session : public ::testing::Test {
 protected:
  Session() {
    engine_->procedures["GiveTwo"] = {
        RecordingEngine::Inputs({}),
        {0,
         {std::make_shared<RecordSet>(std::vector<std::string>{"A"}, std::vector<std::vector<Value>>{{1}}),
          std::make_shared<RecordSet>(std::vector<std::string>{"B"}, std::vector<std::vector<Value>>{})}}};
    engine_->procedures["ReturnSix"] = {RecordingEngine::Inputs({}), {6, {}}};
    engines_.Register("recording", engine_);
  }

  ProcedureOutcome Call(const std::string& procedure) {
    ProcedureOutcome outcome;
    RunWithDatabase(engines_, "recording:x", [&] { outcome = CallProcedure(procedure, {}); });
    return outcome;
  }

  std::shared_ptr<RecordingEngine> engine_ = std::make_shared<RecordingEngine>();
  platform::EngineRegistry engines_;
};

TEST_F(Session, GivesTheRecordSetsInOrder) {
  const ProcedureOutcome outcome = Call("GiveTwo");
  EXPECT_EQ(outcome.return_value, 0);
  EXPECT_FALSE(outcome.failure);
  ASSERT_EQ(outcome.record_sets.size(), 2U);
  EXPECT_EQ(outcome.record_sets[0]->FieldName(0), "A");
  EXPECT_EQ(outcome.record_sets[1]->FieldName(0), "B");
}

TEST_F(Session, GivesAReturnValueThatIsNotZeroWithoutAFailure) {
  const ProcedureOutcome outcome = Call("ReturnSix");
  EXPECT_EQ(outcome.return_value, 6);
  EXPECT_FALSE(outcome.failure);
  EXPECT_TRUE(outcome.record_sets.empty());
}

TEST_F(Session, GivesThePendingFailureOfAFailedCall) {
  const ProcedureOutcome outcome = Call("Unknown");
  EXPECT_EQ(outcome.return_value, kCallFailed);
  ASSERT_TRUE(outcome.failure);
  EXPECT_EQ(outcome.failure->Number(), 4711);
  EXPECT_EQ(outcome.failure->Description(), "No procedure Unknown");
}

TEST_F(Session, LeavesTheCallingThreadsStateAsItIs) {
  SetPendingFailure(13, "an earlier failure");
  Call("GiveTwo");
  EXPECT_EQ(Module().platform, nullptr);
  EXPECT_EQ(Module().dictionary, nullptr);
  EXPECT_EQ(Module().pending_failure_count, 1);
}

TEST_F(Session, PassesOnWhatTheWorkThrows) {
  EXPECT_THROW(RunWithDatabase(engines_, "recording:x", [] { throw platform::Failure(5, "x"); }),
               platform::Failure);
}

}  // namespace
}  // namespace ferrowind::host
