// The rights of a new database, and the links of POSIX in its way.
#include <filesystem>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include "ferrowind/adapters/sqlite/database_file.h"

#include "tests/contract/database/procedure_caller.h"
#include "tests/contract/database/sqlite_database.h"

namespace ferrowind::sqlite {
namespace {

using contract::FailureTextOf;
using ::testing::HasSubstr;

class DatabaseFilePosixTest : public ::testing::Test {
 protected:
  [[nodiscard]] std::string Path() const { return folder_.File("calendars.db"); }

  contract::TemporaryFolder folder_;
};

TEST_F(DatabaseFilePosixTest, ANewDatabaseIsItsOwnersOnly) {
  CreateDatabase(Path());
  struct stat status {};
  ASSERT_EQ(stat(Path().c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 0777U, 0600U);
}

TEST_F(DatabaseFilePosixTest, ALinkInTheWayIsNamedAndStays) {
  std::filesystem::create_symlink("/nowhere", Path());
  EXPECT_THAT(FailureTextOf([&] { CreateDatabase(Path()); }), HasSubstr(Path()));
  EXPECT_TRUE(std::filesystem::is_symlink(Path()));
}

TEST_F(DatabaseFilePosixTest, ALinkThatIsLeftOfADatabaseThatIsGoneIsNamed) {
  for (const std::string companion : {"-wal", "-shm", "-journal"}) {
    std::filesystem::create_symlink("/nowhere", Path() + companion);
    EXPECT_THAT(FailureTextOf([&] { CreateDatabase(Path()); }), HasSubstr(Path() + companion));
    std::filesystem::remove(Path() + companion);
  }
}

}  // namespace
}  // namespace ferrowind::sqlite
