#include "ferrowind/adapters/sqlite/database_file.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ferrowind/adapters/sqlite/database_handle.h"
#include "ferrowind/adapters/sqlite/engine.h"
#include "ferrowind/adapters/sqlite/statement.h"
#include "ferrowind/platform/values/failure.h"

#include "tests/contract/database/procedure_caller.h"
#include "tests/contract/database/sqlite_database.h"

namespace ferrowind::sqlite {
namespace {

using contract::FailureTextOf;
using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

class DatabaseFileTest : public ::testing::Test {
 protected:
  [[nodiscard]] std::string Path() const { return folder_.File("calendars.db"); }

  [[nodiscard]] std::vector<std::string> FilesInFolder() const {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder_.Path())) {
      names.push_back(entry.path().filename().string());
    }
    std::sort(names.begin(), names.end());
    return names;
  }

  [[nodiscard]] std::string Ask(const std::string& question) const {
    const DatabaseHandle database(Path());
    Statement ask(database, question);
    return ask.Step() ? std::string(ask.Text(0)) : "no row";
  }

  contract::TemporaryFolder folder_;
};

TEST_F(DatabaseFileTest, ANewDatabaseIsSoundAndNothingLiesBesideIt) {
  CreateDatabase(Path());
  EXPECT_THAT(CheckDatabase(Path()), IsEmpty());
  EXPECT_THAT(FilesInFolder(), ElementsAre("calendars.db"));
}

TEST_F(DatabaseFileTest, ANewDatabaseKeepsAWriteAheadLogAndItsVersion) {
  CreateDatabase(Path());
  EXPECT_EQ(Ask("PRAGMA journal_mode"), "wal");
  EXPECT_EQ(Ask("PRAGMA user_version"), "8");
  EXPECT_EQ(Ask("PRAGMA application_id"), std::to_string(0x46657277));
}

TEST_F(DatabaseFileTest, ANewDatabaseHasCurrenciesAndTheBuiltInRuleOnly) {
  CreateDatabase(Path());
  EXPECT_EQ(Ask("SELECT count(*) > 150 FROM DicCcy"), "1");
  EXPECT_EQ(Ask("SELECT group_concat(ID2) FROM CldHoliday"), "1");
  EXPECT_EQ(Ask("SELECT count(*) FROM CldHolidayType"), "4");
  EXPECT_EQ(Ask("SELECT FirstDay FROM CldSetting"), "1");
}

TEST_F(DatabaseFileTest, WhatIsFilledInAppearsWithTheDatabase) {
  std::string place;
  CreateDatabase(Path(), [&](const std::string& connection_string) {
    place = connection_string;
    EXPECT_FALSE(std::filesystem::exists(Path()));
    Engine engine;
    EXPECT_EQ(
        engine.Connect(connection_string)->Call("CldIUMain", {978, 2026, {}, {}, {}, {}, {}}).return_value,
        0);
  });
  EXPECT_THAT(place, HasSubstr("sqlite:" + folder_.Path()));
  EXPECT_EQ(Ask("SELECT count(*) FROM CldDay"), "365");
  EXPECT_THAT(FilesInFolder(), ElementsAre("calendars.db"));
}

TEST_F(DatabaseFileTest, AFillingThatFailsLeavesNoDatabase) {
  EXPECT_THROW(CreateDatabase(Path(), [](const std::string&) { throw std::runtime_error("no"); }),
               std::runtime_error);
  EXPECT_THAT(FilesInFolder(), IsEmpty());
}

TEST_F(DatabaseFileTest, AFillingThatKeepsAConnectionIsRefused) {
  Engine engine;
  std::unique_ptr<platform::Connection> kept;
  EXPECT_THAT(FailureTextOf([&] {
                CreateDatabase(Path(), [&](const std::string& connection_string) {
                  kept = engine.Connect(connection_string);
                  (void)kept->Call("CldIUMain", {978, 2026, {}, {}, {}, {}, {}});
                });
              }),
              HasSubstr("cannot be created"));
  EXPECT_FALSE(std::filesystem::exists(Path()));
}

TEST_F(DatabaseFileTest, AFileThatExistsIsNamedAndStaysAsItIs) {
  std::ofstream(Path()) << "notes";
  EXPECT_THAT(FailureTextOf([&] { CreateDatabase(Path()); }), AllOf(HasSubstr(Path()), HasSubstr("already")));
  EXPECT_EQ(std::filesystem::file_size(Path()), 5U);
  EXPECT_THAT(FilesInFolder(), ElementsAre("calendars.db"));
}

TEST_F(DatabaseFileTest, AnEmptyFileIsReplaced) {
  std::ofstream(Path()).flush();
  CreateDatabase(Path());
  EXPECT_THAT(CheckDatabase(Path()), IsEmpty());
}

TEST_F(DatabaseFileTest, OfTwoCreationsInThePlaceOfAnEmptyFileOneSaysThatTheOtherIsAtWork) {
  std::ofstream(Path()).flush();
  std::string second;
  CreateDatabase(Path(), [&](const std::string& first) {
    second = FailureTextOf([&] { CreateDatabase(Path()); });
    DatabaseHandle(PathIn(first)).Execute("UPDATE CldSetting SET FirstDay = 5");
  });
  EXPECT_THAT(second, AllOf(HasSubstr(Path()), HasSubstr("another program is creating it just now")));
  EXPECT_EQ(Ask("SELECT FirstDay FROM CldSetting"), "5");
  EXPECT_THAT(FilesInFolder(), ElementsAre("calendars.db"));
}

TEST_F(DatabaseFileTest, OfTwoCreationsWhereNoFileWasTheLaterSaysThatThereIsOne) {
  EXPECT_THAT(FailureTextOf([&] {
                CreateDatabase(Path(), [&](const std::string& /*unfinished*/) { CreateDatabase(Path()); });
              }),
              AllOf(HasSubstr(Path()), HasSubstr("there is a file already")));
  EXPECT_THAT(CheckDatabase(Path()), IsEmpty());
}

TEST_F(DatabaseFileTest, ADirectoryInTheWayIsNamedAndStays) {
  std::filesystem::create_directory(Path());
  EXPECT_THAT(FailureTextOf([&] { CreateDatabase(Path()); }), HasSubstr(Path()));
  EXPECT_TRUE(std::filesystem::is_directory(Path()));
}

TEST_F(DatabaseFileTest, AMissingFolderIsNamed) {
  const std::string path =
      folder_.File(std::filesystem::path("missing/calendars.db").make_preferred().string());
  EXPECT_THAT(FailureTextOf([&] { CreateDatabase(path); }),
              AllOf(HasSubstr(path), HasSubstr("No such file or directory")));
}

TEST_F(DatabaseFileTest, WhatIsLeftOfADatabaseThatIsGoneIsNamedAndStays) {
  for (const std::string companion : {"-wal", "-shm", "-journal"}) {
    std::ofstream(Path() + companion) << "left";
    EXPECT_THAT(FailureTextOf([&] { CreateDatabase(Path()); }), HasSubstr(Path() + companion));
    EXPECT_EQ(std::filesystem::file_size(Path() + companion), 4U);
    EXPECT_FALSE(std::filesystem::exists(Path()));
    std::filesystem::remove(Path() + companion);
  }
}

TEST_F(DatabaseFileTest, AnUnusablePathIsRefused) {
  EXPECT_THROW(CreateDatabase(""), platform::Failure);
  EXPECT_THROW(CreateDatabase(std::string("a\0b", 3)), platform::Failure);
  EXPECT_THROW((void)CheckDatabase(""), platform::Failure);
  EXPECT_THROW((void)CheckDatabase(Path()), platform::Failure);
}

}  // namespace
}  // namespace ferrowind::sqlite
