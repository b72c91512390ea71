// A disk that fills up at any moment of a call: the call fails with that cause, or has done all of its work.

#include <filesystem>
#include <functional>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ferrowind/adapters/sqlite/database_file.h"
#include "ferrowind/platform/values/failure.h"

#include "tests/contract/database/failing_disk.h"
#include "tests/contract/database/procedure_caller.h"
#include "tests/contract/database/sqlite_database.h"

namespace ferrowind::contract {
namespace {

using ::testing::HasSubstr;

/// More writes than any of the calls makes.
constexpr int kEnoughWrites = 2000;

class SqliteFullDisk : public ::testing::Test {
 protected:
  /// The number of calendars.
  std::size_t Calendars() {
    return ProcedureCaller(database_).Call("CldAllInfo").record_sets.at(0)->RowCount();
  }

  FailingDisk disk_;
  SqliteDatabase database_;
};

TEST_F(SqliteFullDisk, ACallFailsWithThatCauseAndLeavesNothingOrIsWhollyThere) {
  ProcedureCaller caller(database_);
  int year = 1900;
  for (int writes = 0; writes < kEnoughWrites; ++writes) {
    const std::size_t before = Calendars();
    disk_.FillAfter(writes);
    const std::string failure = FailureTextOf([&] {
      EXPECT_EQ(caller.Return("CldIUMain", {{"ID1", 978}, {"Year1", year}}), 0);
    });
    const bool has_failed = disk_.HasFailed();
    disk_.MakeRoom();
    ASSERT_TRUE(database_.IsSound()) << "after " << writes << " writes";
    if (!has_failed) {
      EXPECT_EQ(failure, "");
      break;
    }
    if (failure.empty()) {
      // What failed came after the call was durable, as tidying up when the connection is closed does.
      EXPECT_EQ(Calendars(), before + 1);
      ++year;
      continue;
    }
    EXPECT_THAT(failure, HasSubstr("is full (SQLite "));
    EXPECT_THAT(failure, HasSubstr(database_.Path()));
    EXPECT_EQ(Calendars(), before);
  }
  EXPECT_FALSE(disk_.HasFailed()) << "the last call went through";
  EXPECT_GE(Calendars(), 1U);
}

TEST_F(SqliteFullDisk, AReadFailsWithThatCauseAndSucceedsWhenThereIsRoom) {
  ProcedureCaller caller(database_);
  disk_.FillAfter(0);
  EXPECT_THAT(FailureTextOf([&] { (void)caller.Call("CldAllInfo"); }),
              HasSubstr("The disk that holds the database " + database_.Path() + " is full (SQLite 4874:"));
  disk_.MakeRoom();
  EXPECT_FALSE(caller.Call("CldAllInfo").record_sets.empty());
}

TEST_F(SqliteFullDisk, ACreationFailsWithThatCauseAndLeavesNoFile) {
  const std::string path = database_.Path() + ".new";
  int tries = 0;
  for (int writes = 0; writes < kEnoughWrites; ++writes, ++tries) {
    disk_.FillAfter(writes);
    const std::string failure = FailureTextOf([&] { sqlite::CreateDatabase(path); });
    const bool has_failed = disk_.HasFailed();
    disk_.MakeRoom();
    if (failure.empty()) {
      EXPECT_EQ(sqlite::CheckDatabase(path).size(), 0U) << "after " << writes << " writes";
      if (!has_failed) break;
      // What failed came after the database was whole.
      std::filesystem::remove(path);
      continue;
    }
    EXPECT_THAT(failure, HasSubstr("is full (SQLite "));
    EXPECT_FALSE(std::filesystem::exists(path));
    const auto folder = std::filesystem::path(path).parent_path();
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
      EXPECT_EQ(entry.path().string().find(".creating-"), std::string::npos) << entry.path();
    }
  }
  EXPECT_GT(tries, 3);
  EXPECT_EQ(sqlite::CheckDatabase(path).size(), 0U);
}

}  // namespace
}  // namespace ferrowind::contract
