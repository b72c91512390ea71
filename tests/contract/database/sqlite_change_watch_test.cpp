// A watch of a file that is locked, taken away or replaced while it is watched.

#include <chrono>
#include <filesystem>

#include <gmock/gmock.h>

#include "ferrowind/adapters/sqlite/database_handle.h"

#include "tests/contract/database/procedure_caller.h"
#include "tests/contract/database/sqlite_database.h"
#include "tests/contract/database/watch_looks.h"

namespace ferrowind::contract {
namespace {

using ::testing::HasSubstr;

class SqliteChangeWatch : public ::testing::Test {
 protected:
  void SetUp() override { ASSERT_TRUE(watch_->Look()) << "the first look that reaches the database"; }

  int CreateCalendar(int year) {
    return ProcedureCaller(database_).Return("CldIUMain", {{"ID1", 978}, {"Year1", year}});
  }

  SqliteDatabase database_;
  std::unique_ptr<platform::ChangeWatch> watch_ = database_.Engine().Watch(database_.ConnectionString());
};

/// A backup that took the file's place would otherwise take over the changes of the old one.
TEST_F(SqliteChangeWatch, LeavesNothingBesideTheFile) {
  ASSERT_EQ(CreateCalendar(2028), 0);
  EXPECT_TRUE(watch_->Look());
  EXPECT_FALSE(std::filesystem::exists(database_.Path() + "-wal"));
}

TEST_F(SqliteChangeWatch, DoesNotWaitForWhomeverHasLockedTheFileAndTellsOfTheChangeAfterwards) {
  ASSERT_EQ(CreateCalendar(2028), 0);
  {
    sqlite::DatabaseHandle other(database_.Path(), std::chrono::milliseconds(0));
    other.Execute("PRAGMA locking_mode = EXCLUSIVE; BEGIN IMMEDIATE; UPDATE CldSetting SET FirstDay = 2");
    const auto start = std::chrono::steady_clock::now();
    EXPECT_FALSE(watch_->Look());
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(1));
    other.Execute("COMMIT");
  }
  EXPECT_TRUE(watch_->Look());
}

/// Traces that are as old as can be still tell of a change that follows.
TEST_F(SqliteChangeWatch, TellsOfAChangeAfterALongTimeWithoutAny) {
  std::filesystem::last_write_time(database_.Path(),
                                   std::filesystem::file_time_type::clock::now() - std::chrono::hours(1));
  EXPECT_FALSE(watch_->Look());
  EXPECT_FALSE(watch_->Look());
  ASSERT_EQ(CreateCalendar(2028), 0);
  EXPECT_TRUE(watch_->Look());
  EXPECT_FALSE(watch_->Look());
}

/// Others may have written the file, by a checkpoint or a setting of theirs.
TEST_F(SqliteChangeWatch, TellsNothingOfAFileThatWasWrittenWithoutACall) {
  std::filesystem::last_write_time(database_.Path(), std::filesystem::file_time_type::clock::now());
  EXPECT_FALSE(watch_->Look());
}

TEST_F(SqliteChangeWatch, TellsOfChangesInAFileThatWasPutInThePlaceOfTheOld) {
  SqliteDatabase backup;
  std::filesystem::rename(backup.Path(), database_.Path());
  EXPECT_TRUE(watch_->Look()) << "the backup";
  EXPECT_FALSE(watch_->Look());
  ASSERT_EQ(CreateCalendar(2028), 0);
  EXPECT_TRUE(watch_->Look());
}

TEST_F(SqliteChangeWatch, FollowsALinkToTheFileAndToAnotherOne) {
  const std::string link = database_.Path() + ".link";
  std::filesystem::create_symlink(database_.Path(), link);
  const auto watch = database_.Engine().Watch("sqlite:" + link);
  const auto long_ago = std::filesystem::file_time_type::clock::now() - std::chrono::hours(1);
  std::filesystem::last_write_time(database_.Path(), long_ago);
  EXPECT_TRUE(watch->Look());
  EXPECT_FALSE(watch->Look());
  {
    // Keeps the change in the log beside the file: the file itself stays as it is.
    sqlite::DatabaseHandle other(database_.Path(), std::chrono::milliseconds(0));
    other.Execute("SELECT count(*) FROM CldCalendar");
    ASSERT_EQ(CreateCalendar(2028), 0);
    ASSERT_EQ(std::filesystem::last_write_time(database_.Path()), long_ago);
    EXPECT_TRUE(watch->Look());
  }
  EXPECT_FALSE(watch->Look());
  SqliteDatabase other;
  std::filesystem::remove(link);
  EXPECT_THAT(FailureTextOf([&] { static_cast<void>(watch->Look()); }), HasSubstr("there is no such file"));
  std::filesystem::create_symlink(other.Path(), link);
  EXPECT_TRUE(watch->Look());
  EXPECT_FALSE(watch->Look());
}

TEST_F(SqliteChangeWatch, SaysThatTheFileIsMissingAndTellsWhenItIsBack) {
  const std::string elsewhere = database_.Path() + ".away";
  std::filesystem::rename(database_.Path(), elsewhere);
  EXPECT_THAT(FailureTextOf([&] { static_cast<void>(watch_->Look()); }), HasSubstr("there is no such file"));
  EXPECT_FALSE(std::filesystem::exists(database_.Path())) << "a look makes no file";
  std::filesystem::rename(elsewhere, database_.Path());
  EXPECT_TRUE(watch_->Look());
  EXPECT_FALSE(watch_->Look());
}

}  // namespace
}  // namespace ferrowind::contract
