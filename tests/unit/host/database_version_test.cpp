#include "host/delivery/database_version.h"

#include <fstream>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ferrowind/adapters/sqlite/database_file.h"
#include "ferrowind/adapters/sqlite/database_handle.h"

#include "tests/contract/database/procedure_caller.h"
#include "tests/contract/database/sqlite_database.h"
#include "tests/contract/database/version_1/version_1.h"

namespace ferrowind::host {
namespace {

using contract::FailureTextOf;
using ::testing::AllOf;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

class DatabaseVersionTest : public ::testing::Test {
 protected:
  void MakeOldDatabase() {
    std::ofstream(path_).close();
    sqlite::DatabaseHandle(path_).Execute(contract::VersionOneScript("sqlite").c_str());
  }
  void MakeNewerDatabase() {
    sqlite::CreateDatabase(path_);
    sqlite::DatabaseHandle(path_).Execute("PRAGMA user_version = 99");
  }

  contract::TemporaryFolder folder_;
  std::string path_ = folder_.Path() + "/own.db";
  std::string url_ = "sqlite:" + path_;
};

TEST_F(DatabaseVersionTest, TheProgramsOwnDatabaseIsUpgraded) {
  MakeOldDatabase();
  UpgradeOwnDatabase(url_);
  EXPECT_THAT(sqlite::CheckDatabase(path_), IsEmpty());
  UpgradeOwnDatabase(url_);
  EXPECT_EQ(sqlite::ReadSchemaVersion(path_), 3);
}

TEST_F(DatabaseVersionTest, TheProgramsOwnDatabaseThatIsNewerIsToldAndStays) {
  MakeNewerDatabase();
  EXPECT_THAT(
      FailureTextOf([&] { UpgradeOwnDatabase(url_); }),
      AllOf(HasSubstr("own.db has the schema version 99"), HasSubstr("newer version of this program")));
  EXPECT_EQ(sqlite::ReadSchemaVersion(path_), 99);
}

TEST_F(DatabaseVersionTest, AnotherOlderDatabaseIsToldHowToUpgradeAndStays) {
  MakeOldDatabase();
  EXPECT_THAT(FailureTextOf([&] { RequireThisVersion(url_); }),
              AllOf(HasSubstr("own.db has the schema version 1"), HasSubstr("ferrowindctl upgrade")));
  EXPECT_EQ(sqlite::ReadSchemaVersion(path_), 1);
}

TEST_F(DatabaseVersionTest, AnotherNewerDatabaseIsTold) {
  MakeNewerDatabase();
  EXPECT_THAT(FailureTextOf([&] { RequireThisVersion(url_); }), HasSubstr("newer version of this program"));
}

TEST_F(DatabaseVersionTest, WhatCannotBeReadIsLeftToTheWindows) {
  for (const auto& url :
       {url_, "sqlite:" + folder_.Path(), std::string("postgresql://host.invalid/calendars"),
        std::string("other:thing"), std::string()}) {
    UpgradeOwnDatabase(url);
    RequireThisVersion(url);
  }
  std::ofstream(path_) << std::string(5000, 'x');
  UpgradeOwnDatabase(url_);
  RequireThisVersion(url_);
}

TEST_F(DatabaseVersionTest, ADatabaseOfThisVersionIsNotSpokenOf) {
  sqlite::CreateDatabase(path_);
  RequireThisVersion(url_);
  UpgradeOwnDatabase(url_);
}

}  // namespace
}  // namespace ferrowind::host
