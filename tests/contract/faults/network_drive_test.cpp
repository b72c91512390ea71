// A file system that can neither rename without replacing nor lock a file that is open for reading alone.

#include <filesystem>
#include <fstream>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ferrowind/adapters/sqlite/database_file.h"
#include "ferrowind/adapters/sqlite/database_handle.h"

#include "tests/contract/database/procedure_caller.h"
#include "tests/contract/database/sqlite_database.h"
#include "tests/contract/faults/failing_calls.h"

namespace ferrowind::contract {
namespace {

using ::testing::HasSubstr;
using ::testing::IsEmpty;

class NetworkDrive : public ::testing::Test {
 protected:
  NetworkDrive() { failing_calls::BehaveAsNetworkDrive(true); }
  ~NetworkDrive() override { failing_calls::BehaveAsNetworkDrive(false); }

  [[nodiscard]] std::string Path() const { return folder_.Path() + "/calendars.db"; }
  [[nodiscard]] std::ptrdiff_t CountOfFiles() const {
    return std::distance(std::filesystem::directory_iterator(folder_.Path()), {});
  }

  TemporaryFolder folder_;
};

TEST_F(NetworkDrive, TakesANewDatabaseUnderOneName) {
  sqlite::CreateDatabase(Path());
  EXPECT_THAT(sqlite::CheckDatabase(Path()), IsEmpty());
  EXPECT_EQ(std::filesystem::hard_link_count(Path()), 1U);
  EXPECT_EQ(CountOfFiles(), 1);
}

TEST_F(NetworkDrive, OfTwoCreationsTheLaterSaysThatThereIsAFile) {
  EXPECT_EQ(FailureTextOf([&] {
              sqlite::CreateDatabase(Path(), [&](const std::string& /*unfinished*/) {
                EXPECT_EQ(FailureTextOf([&] { sqlite::CreateDatabase(Path()); }), "");
                sqlite::DatabaseHandle(Path()).Execute("UPDATE CldSetting SET FirstDay = 5");
              });
            }),
            "The database " + Path() + " cannot be created: there is a file already");
  EXPECT_EQ(CountOfFiles(), 1);
}

TEST_F(NetworkDrive, LetsANewDatabaseTakeThePlaceOfAnEmptyFile) {
  std::ofstream(Path()).flush();
  std::string second;
  sqlite::CreateDatabase(Path(), [&](const std::string& /*unfinished*/) {
    second = FailureTextOf([&] { sqlite::CreateDatabase(Path()); });
  });
  EXPECT_THAT(second, HasSubstr("another program is creating it just now"));
  EXPECT_THAT(sqlite::CheckDatabase(Path()), IsEmpty());
  EXPECT_EQ(CountOfFiles(), 1);
}

}  // namespace
}  // namespace ferrowind::contract
