// That a host learns how each use of a database ended.

#include "host/desktop/watched_engine.h"

#include <memory>
#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "ferrowind/platform/database/engine_registry.h"
#include "ferrowind/platform/values/record_set.h"

#include "host/session/procedure_session.h"
#include "tests/unit/host/recording_engine.h"

namespace ferrowind::host {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

class RecordingObserver : public DatabaseObserver {
 public:
  void DatabaseAnswered() override { events.emplace_back("answered"); }
  void DatabaseFailed(const platform::Failure& failure) override { events.push_back(failure.Description()); }

  std::vector<std::string> events;
};

/// Cannot be used at all.
class BrokenEngine : public platform::Engine {
 public:
  std::unique_ptr<platform::Connection> Connect(const std::string&) override { Fail(); }
  std::shared_ptr<platform::RecordSet> ReadDictionary(const std::string&, const std::string&) override {
    Fail();
  }

 private:
  [[noreturn]] static void Fail() { throw platform::Failure(4712, "No way"); }
};

class WatchedEngineTest : public ::testing::Test {
 protected:
  /// Calls through the component's gateway.
  ProcedureOutcome Call(const std::shared_ptr<platform::Engine>& engine, const std::string& procedure) {
    platform::EngineRegistry engines;
    engines.Register("test", std::make_shared<WatchedEngine>(engine, observer_));
    ProcedureOutcome outcome;
    RunWithDatabase(engines, "test:", [&] { outcome = CallProcedure(procedure, {}); });
    return outcome;
  }

  std::shared_ptr<RecordingEngine> engine_ = std::make_shared<RecordingEngine>();
  RecordingObserver observer_;
};

TEST_F(WatchedEngineTest, ACallIsMadeAsWithoutAWatchAndIsAnAnswerWhateverItReturns) {
  engine_->procedures["CldAllInfo"] = {RecordingEngine::Inputs({}), {0, {}}};
  engine_->procedures["CldIUMain"] = {RecordingEngine::Inputs({}), {6, {}}};
  EXPECT_EQ(Call(engine_, "CldAllInfo").return_value, 0);
  EXPECT_EQ(Call(engine_, "CldIUMain").return_value, 6);
  EXPECT_THAT(engine_->calls, ElementsAre("CldAllInfo", "CldIUMain"));
  EXPECT_THAT(observer_.events, ElementsAre("answered", "answered"));
}

TEST_F(WatchedEngineTest, AFailureIsToldAndStaysTheCallers) {
  const auto outcome = Call(engine_, "CldNothing");
  EXPECT_EQ(outcome.return_value, -1);
  ASSERT_TRUE(outcome.failure.has_value());
  EXPECT_THAT(observer_.events, ElementsAre(outcome.failure->Description()));
  EXPECT_THAT(observer_.events.front(), HasSubstr("CldNothing"));
}

TEST_F(WatchedEngineTest, AConnectionThatIsNotMadeIsTold) {
  EXPECT_EQ(Call(std::make_shared<BrokenEngine>(), "CldAllInfo").return_value, -1);
  EXPECT_THAT(observer_.events, ElementsAre("No way"));
}

TEST_F(WatchedEngineTest, ADictionaryIsAnAnswerAndItsFailureIsTold) {
  engine_->dictionary = std::make_shared<platform::RecordSet>(
      std::vector<std::string>{"CcyID"}, std::vector<std::vector<platform::Value>>{{platform::Value(840)}});
  WatchedEngine watched(engine_, observer_);
  EXPECT_THAT(observer_.events, IsEmpty());
  EXPECT_EQ(watched.ReadDictionary("test:", "Ccy")->RowCount(), 1U);
  EXPECT_THAT(observer_.events, ElementsAre("answered"));
  WatchedEngine broken(std::make_shared<BrokenEngine>(), observer_);
  EXPECT_THROW((void)broken.ReadDictionary("test:", "Ccy"), platform::Failure);
  EXPECT_THAT(observer_.events, ElementsAre("answered", "No way"));
}

}  // namespace
}  // namespace ferrowind::host
