// What others may have put beside a database file: opening the database neither uses nor changes it.

#include <atomic>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>
#include <thread>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include "ferrowind/adapters/sqlite/database_content.h"
#include "ferrowind/adapters/sqlite/database_file.h"
#include "ferrowind/adapters/sqlite/database_handle.h"
#include "ferrowind/adapters/sqlite/engine.h"
#include "ferrowind/adapters/sqlite/files_beside.h"

#include "tests/contract/database/file_bytes.h"
#include "tests/contract/database/planting_files.h"
#include "tests/contract/database/procedure_caller.h"
#include "tests/contract/database/sqlite_database.h"

namespace ferrowind::contract {
namespace {

using ::testing::AllOf;
using ::testing::HasSubstr;

const Arguments kNewCalendar = {{"ID1", 978}, {"Year1", 2026}};

std::string BigEndian(std::uint32_t number) {
  std::string bytes;
  for (const unsigned shift : {24U, 16U, 8U, 0U}) bytes += static_cast<char>(number >> shift & 0xFFU);
  return bytes;
}

/// A journal by which SQLite leaves a database of `pages` pages as it is, and then deletes the file `victim`.
std::string JournalThatDeletes(const std::string& victim, std::uint32_t pages) {
  const std::string magic = "\xd9\xd5\x05\xf9\x20\xa1\x63\xd7";
  std::string journal =
      magic + BigEndian(0) + BigEndian(0) + BigEndian(pages) + BigEndian(512) + BigEndian(4096);
  journal.resize(512);
  std::uint32_t sum = 0;
  for (const char byte : victim) sum += static_cast<unsigned char>(byte);
  constexpr std::uint32_t kPageOfLocks = (1U << 30) / 4096 + 1;
  return journal + BigEndian(kPageOfLocks) + victim + BigEndian(static_cast<std::uint32_t>(victim.size())) +
         BigEndian(sum) + magic;
}

class SqliteFilesBeside : public ::testing::Test {
 protected:
  SqliteFilesBeside() { WriteFile(Victim(), "precious"); }

  [[nodiscard]] std::string Path() const { return database_.Path(); }
  [[nodiscard]] std::string Folder() const { return std::filesystem::path(Path()).parent_path(); }
  [[nodiscard]] std::string Victim() const { return Folder() + "/victim"; }

  void PlantJournal() const {
    const auto pages = static_cast<std::uint32_t>(std::filesystem::file_size(Path()) / 4096);
    WriteFile(Path() + "-journal", JournalThatDeletes(Victim(), pages));
  }

  /// What everything that opens the database fails with.
  [[nodiscard]] std::vector<std::string> FailuresOfAll(const std::string& path) {
    const std::string url = "sqlite:" + path;
    sqlite::Engine engine(std::chrono::milliseconds(50));
    return {
        FailureTextOf([&] { (void)engine.Connect(url)->DescribeProcedure("CldAllInfo"); }),
        FailureTextOf([&] {
          (void)engine.Connect(url)->Call("CldIUMain", {978, 2026, {}, {}, {}, {}, {}});
        }),
        FailureTextOf([&] { (void)engine.ReadDictionary(url, "Ccy"); }),
        FailureTextOf([&] { (void)engine.Watch(url)->Look(); }),
        FailureTextOf([&] { (void)sqlite::CheckDatabase(path); }),
        FailureTextOf([&] { (void)sqlite::UpgradeDatabase(path); }),
        FailureTextOf([&] { (void)sqlite::ReadSchemaVersion(path); }),
        FailureTextOf([&] { (void)sqlite::OpenContent(path); }),
        FailureTextOf([&] { (void)sqlite::ReadStatus(path); }),
        FailureTextOf([&] { sqlite::FillDatabase(path, [](content::Target&) {}); }),
    };
  }

  void ExpectAllRefuse(const std::string& path, const std::string& why) {
    for (const std::string& failure : FailuresOfAll(path)) {
      EXPECT_THAT(failure, AllOf(HasSubstr(path + " cannot be opened: beside it "), HasSubstr(why),
                                 HasSubstr("move it away"), HasSubstr("SQLite 14")));
    }
  }

  SqliteDatabase database_;
};

TEST_F(SqliteFilesBeside, AJournalIsRefusedAndDeletesNoOtherFile) {
  PlantJournal();
  const std::string journal = ReadFile(Path() + "-journal");
  const std::string before = ReadFile(Path());
  ExpectAllRefuse(Path(), Path() + "-journal, which these programs never leave");
  EXPECT_EQ(ReadFile(Victim()), "precious");
  EXPECT_EQ(ReadFile(Path() + "-journal"), journal);
  EXPECT_TRUE(ReadFile(Path()) == before);
  std::filesystem::remove(Path() + "-journal");
  EXPECT_EQ(ProcedureCaller(database_).Return("CldIUMain", kNewCalendar), 0);
}

TEST_F(SqliteFilesBeside, AJournalThatIsEmptyALinkOrAFolderIsRefused) {
  const std::string journal = Path() + "-journal";
  WriteFile(journal, "");
  ExpectAllRefuse(Path(), journal);
  std::filesystem::remove(journal);
  std::filesystem::create_symlink("/nowhere", journal);
  ExpectAllRefuse(Path(), journal);
  std::filesystem::remove(journal);
  std::filesystem::create_directory(journal);
  ExpectAllRefuse(Path(), journal);
}

TEST_F(SqliteFilesBeside, AJournalBesideTheFileThatALinkLeadsToIsRefused) {
  const std::string link = Folder() + "/link.db";
  std::filesystem::create_symlink(Path(), link);
  EXPECT_EQ(FailureTextOf([&] { (void)sqlite::CheckDatabase(link); }), "");
  PlantJournal();
  ExpectAllRefuse(link, Path() + "-journal");
  EXPECT_EQ(ReadFile(Victim()), "precious");
}

TEST_F(SqliteFilesBeside, AJournalThatComesBetweenOpeningAndUseIsRefused) {
  sqlite::DatabaseHandle database(Path());
  PlantJournal();
  EXPECT_THAT(FailureTextOf([&] { database.Execute("SELECT count(*) FROM CldDay"); }),
              HasSubstr(Path() + "-journal"));
  EXPECT_EQ(ReadFile(Victim()), "precious");
}

TEST_F(SqliteFilesBeside, AJournalThatComesAndGoesDeletesNoOtherFile) {
  const auto pages = static_cast<std::uint32_t>(std::filesystem::file_size(Path()) / 4096);
  WriteFile(Folder() + "/planted", JournalThatDeletes(Victim(), pages));
  std::atomic<bool> is_over = false;
  std::thread attacker([&] {
    while (!is_over) {
      (void)link((Folder() + "/planted").c_str(), (Path() + "-journal").c_str());
      (void)unlink((Path() + "-journal").c_str());
    }
  });
  int refused = 0;
  for (int i = 0; i < 500; ++i) {
    refused += FailureTextOf([&] { (void)sqlite::ReadSchemaVersion(Path()); }).empty() ? 0 : 1;
  }
  is_over = true;
  attacker.join();
  EXPECT_GT(refused, 0);
  EXPECT_EQ(ReadFile(Victim()), "precious");
}

TEST_F(SqliteFilesBeside, ALinkInThePlaceOfTheLogOrTheSharedMemoryIsRefused) {
  for (const std::string suffix : {"-wal", "-shm"}) {
    std::filesystem::create_symlink(Victim(), Path() + suffix);
    ExpectAllRefuse(Path(), Path() + suffix + " is a link");
    std::filesystem::remove(Path() + suffix);
    std::filesystem::create_hard_link(Victim(), Path() + suffix);
    ExpectAllRefuse(Path(), Path() + suffix + " is another name of some other file");
    std::filesystem::remove(Path() + suffix);
    std::filesystem::create_directory(Path() + suffix);
    ExpectAllRefuse(Path(), Path() + suffix + " is no file");
    std::filesystem::remove(Path() + suffix);
    EXPECT_EQ(ReadFile(Victim()), "precious");
  }
}

TEST_F(SqliteFilesBeside, ALogOrSharedMemoryThatIsThereOnlyWhileItIsOpenedIsRefused) {
  for (const std::string suffix : {"-wal", "-shm"}) {
    const PlantingFiles planting(Victim(), suffix);
    EXPECT_THAT(FailureTextOf([&] { (void)sqlite::ReadSchemaVersion(Path()); }),
                HasSubstr(Path() + " cannot be opened: "))
        << suffix;
    EXPECT_GT(PlantingFiles::Count(), 0) << suffix;
  }
  EXPECT_EQ(FailureTextOf([&] { (void)sqlite::ReadSchemaVersion(Path()); }), "");
}

TEST_F(SqliteFilesBeside, TheLogOfAnotherOpenConnectionIsUsed) {
  const auto connection = database_.Engine().Connect(database_.ConnectionString());
  ASSERT_EQ(connection->Call("CldIUMain", {978, 2026, {}, {}, {}, {}, {}}).return_value, 0);
  ASSERT_TRUE(std::filesystem::exists(Path() + "-wal"));
  const auto days = ProcedureCaller(database_).Call("CldGetMain", kNewCalendar);
  EXPECT_EQ(days.record_sets.at(0)->RowCount(), 365U);
}

TEST_F(SqliteFilesBeside, AFileThatAnotherToolTookOffTheLogGetsItBackWithTheNextChange) {
  database_.Execute("PRAGMA journal_mode = DELETE");
  EXPECT_EQ(ProcedureCaller(database_).Call("CldAllInfo").return_value, 0);
  EXPECT_EQ(ProcedureCaller(database_).Return("CldIUMain", kNewCalendar), 0);
  const std::string header = ReadFile(Path()).substr(18, 2);
  EXPECT_EQ(header, "\x02\x02") << "both versions of the format are those of a file with a log";
  EXPECT_FALSE(std::filesystem::exists(Path() + "-journal"));
}

class FilesBesideOwners : public ::testing::Test {
 protected:
  static sqlite::FileStatus Status(uid_t owner, gid_t group, mode_t mode) {
    return {.owner = owner,
            .group = group,
            .group_may_write = (mode & S_IWGRP) != 0,
            .others_may_write = (mode & S_IWOTH) != 0,
            .gives_group = (mode & S_ISGID) != 0};
  }

  static constexpr uid_t kOwner = 61001;
  static constexpr uid_t kOther = 61002;
  static constexpr gid_t kGroup = 62001;
  static constexpr gid_t kOtherGroup = 62002;
  const sqlite::FileStatus owners_only_ = Status(kOwner, kGroup, 0600);
  const sqlite::FileStatus groups_ = Status(kOwner, kGroup, 0660);
  const sqlite::FileStatus folder_ = Status(kOwner, kGroup, 02770);
};

TEST_F(FilesBesideOwners, TheDatabasesOwnerTheUserAndTheSuperuserAreTrusted) {
  for (const uid_t owner : {kOwner, geteuid(), uid_t{0}}) {
    EXPECT_TRUE(sqlite::IsOfAWriter(Status(owner, kOtherGroup, 0600), owners_only_, folder_)) << owner;
  }
}

TEST_F(FilesBesideOwners, AMemberOfAGroupThatMayWriteTheDatabaseIsTrusted) {
  const auto members_file = Status(kOther, kGroup, 0660);
  EXPECT_TRUE(sqlite::IsOfAWriter(members_file, groups_, folder_));
  EXPECT_FALSE(sqlite::IsOfAWriter(members_file, owners_only_, folder_));
  EXPECT_FALSE(sqlite::IsOfAWriter(Status(kOther, kOtherGroup, 0660), groups_, folder_));
}

TEST_F(FilesBesideOwners, TheGroupSaysNothingInAFolderThatGivesItToEverybodysFiles) {
  const auto members_file = Status(kOther, kGroup, 0660);
  EXPECT_FALSE(sqlite::IsOfAWriter(members_file, groups_, Status(kOwner, kGroup, 02777)));
  EXPECT_TRUE(sqlite::IsOfAWriter(members_file, groups_, Status(kOwner, kGroup, 01777)));
}

TEST_F(FilesBesideOwners, ADatabaseThatEverybodyMayWriteTrustsEverybody) {
  EXPECT_TRUE(sqlite::IsOfAWriter(Status(kOther, kOtherGroup, 0600), Status(kOwner, kGroup, 0666), folder_));
}

}  // namespace
}  // namespace ferrowind::contract
