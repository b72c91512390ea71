// That an undertaking of many calls waits for another program as long as it may in all, and not once a call.

#include <chrono>

#include <gtest/gtest.h>

#include "ferrowind/adapters/sqlite/database_handle.h"
#include "ferrowind/adapters/sqlite/wait_budget.h"
#include "ferrowind/platform/values/failure.h"

#include "tests/contract/database/sqlite_database.h"

namespace ferrowind::contract {
namespace {

using std::chrono::milliseconds;

constexpr milliseconds kBudget{120};

class SqliteWaitBudget : public ::testing::Test {
 protected:
  /// Asks for a new calendar, which must fail, since another program writes.
  void FailCall() {
    EXPECT_THROW((void)engine_.Connect(database_.ConnectionString())
                     ->Call("CldIUMain", {978, 2026, {}, {}, {}, {}, {}}),
                 platform::Failure);
  }

  SqliteDatabase database_;
  std::shared_ptr<sqlite::WaitBudget> budget_ = std::make_shared<sqlite::WaitBudget>(kBudget);
  sqlite::Engine engine_{budget_};
  sqlite::DatabaseHandle other_{database_.Path()};
};

TEST_F(SqliteWaitBudget, IsSpentByTheFirstCallThatMeetsALockAndNotAgainByTheNext) {
  other_.Execute("BEGIN IMMEDIATE");
  FailCall();
  EXPECT_EQ(budget_->Left(), milliseconds(0));
  FailCall();
  EXPECT_EQ(budget_->Left(), milliseconds(0));
  EXPECT_FALSE(budget_->WaitAMoment(0)) << "the call would have waited";
}

TEST_F(SqliteWaitBudget, IsThereAgainForTheNextUndertaking) {
  other_.Execute("BEGIN IMMEDIATE");
  FailCall();
  budget_->Renew();
  EXPECT_EQ(budget_->Left(), kBudget);
  FailCall();
  EXPECT_EQ(budget_->Left(), milliseconds(0));
}

TEST_F(SqliteWaitBudget, CoversTheDictionaryToo) {
  other_.Execute("PRAGMA locking_mode = EXCLUSIVE; BEGIN EXCLUSIVE");
  EXPECT_THROW((void)engine_.ReadDictionary(database_.ConnectionString(), "Ccy"), platform::Failure);
  EXPECT_EQ(budget_->Left(), milliseconds(0));
}

TEST_F(SqliteWaitBudget, IsLeftAloneByCallsThatMeetNoLock) {
  (void)engine_.Connect(database_.ConnectionString())->Call("CldAllInfo", {});
  EXPECT_EQ(budget_->Left(), kBudget);
}

TEST_F(SqliteWaitBudget, SpentItStillLetsCallsThrough) {
  other_.Execute("BEGIN IMMEDIATE");
  FailCall();
  other_.Execute("ROLLBACK");
  EXPECT_EQ(engine_.Connect(database_.ConnectionString())
                ->Call("CldIUMain", {978, 2026, {}, {}, {}, {}, {}})
                .return_value,
            0);
}

}  // namespace
}  // namespace ferrowind::contract
