// Database files that are not as they should be: the failure says what is wrong with which file, and nothing
// changes.

#include <chrono>
#include <filesystem>
#include <functional>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "ferrowind/adapters/sqlite/database_file.h"
#include "ferrowind/adapters/sqlite/database_handle.h"
#include "ferrowind/platform/values/failure.h"

#include "tests/contract/database/file_bytes.h"
#include "tests/contract/database/procedure_caller.h"
#include "tests/contract/database/sqlite_database.h"

namespace ferrowind::contract {
namespace {

using ::testing::AllOf;
using ::testing::HasSubstr;

const Arguments kNewCalendar = {{"ID1", 978}, {"Year1", 2026}};

/// Any other file in the place of a database.
class DatabaseAt : public DatabaseUnderTest {
 public:
  explicit DatabaseAt(std::string path) : path_(std::move(path)) {}
  [[nodiscard]] platform::Engine& Engine() override { return engine_; }
  [[nodiscard]] std::string ConnectionString() override { return "sqlite:" + path_; }

 private:
  std::string path_;
  sqlite::Engine engine_{std::chrono::milliseconds(50)};
};

/// What a call on the file fails with.
std::string FailureOfCall(const std::string& path, const std::string& procedure = "CldAllInfo",
                          const Arguments& arguments = {}) {
  return FailureTextOf([&] {
    DatabaseAt database(path);
    (void)ProcedureCaller(database).Call(procedure, arguments);
  });
}

/// What reading the dictionary of the file fails with.
std::string FailureOfDictionary(const std::string& path) {
  return FailureTextOf([&] { (void)sqlite::Engine().ReadDictionary("sqlite:" + path, "Ccy"); });
}

/// Runs `body` in another process, as a user without rights where this one may do anything, and returns what
/// `body` gave.
std::string TextFromOtherProcess(const std::function<std::string()>& body) {
  int pipe_ends[2];
  if (pipe(pipe_ends) != 0) return "no pipe";
  const pid_t child = fork();
  if (child == 0) {
    constexpr uid_t kNobody = 65534;
    if (geteuid() == 0 && (setgid(kNobody) != 0 || setuid(kNobody) != 0)) _exit(2);
    const std::string text = body();
    _exit(write(pipe_ends[1], text.data(), text.size()) == static_cast<ssize_t>(text.size()) ? 0 : 3);
  }
  close(pipe_ends[1]);
  std::string text;
  char part[512];
  for (ssize_t size = 0; (size = read(pipe_ends[0], part, sizeof part)) > 0;) {
    text.append(part, static_cast<std::size_t>(size));
  }
  close(pipe_ends[0]);
  int status = 0;
  waitpid(child, &status, 0);
  return status == 0 ? text : "the other process failed";
}

class SqliteTrouble : public ::testing::Test {
 protected:
  [[nodiscard]] std::string Path() const { return database_.Path(); }
  [[nodiscard]] std::string Folder() const { return std::filesystem::path(Path()).parent_path(); }

  SqliteDatabase database_;
};

TEST_F(SqliteTrouble, AMissingFileIsNamedAndNotCreated) {
  const std::string path = Folder() + "/missing.db";
  for (const auto& failure : {FailureOfCall(path), FailureOfDictionary(path)}) {
    EXPECT_THAT(failure, AllOf(HasSubstr(path), HasSubstr("there is no such file"), HasSubstr("SQLite 14")));
  }
  EXPECT_THAT(FailureOfCall(Folder() + "/no folder/a.db"), HasSubstr("there is no such file"));
  EXPECT_FALSE(std::filesystem::exists(path));
}

TEST_F(SqliteTrouble, ADirectoryIsNamed) {
  for (const auto& failure : {FailureOfCall(Folder()), FailureOfDictionary(Folder())}) {
    EXPECT_THAT(failure, AllOf(HasSubstr(Folder()), HasSubstr("it is a directory"), HasSubstr("SQLite")));
  }
}

TEST_F(SqliteTrouble, AFileThatIsNoDatabaseIsNamedAndStaysAsItIs) {
  const std::string path = Folder() + "/notes.txt";
  const std::string notes(5000, 'n');
  WriteFile(path, notes);
  for (const auto& failure : {FailureOfCall(path), FailureOfDictionary(path),
                              FailureTextOf([&] { (void)sqlite::CheckDatabase(path); })}) {
    EXPECT_THAT(failure, AllOf(HasSubstr(path), HasSubstr("is not a database"), HasSubstr("SQLite 26")));
  }
  EXPECT_EQ(ReadFile(path), notes);
}

TEST_F(SqliteTrouble, AnEmptyFileAndADatabaseOfSomethingElseAreNamed) {
  const std::string empty = Folder() + "/empty.db";
  WriteFile(empty, "");
  const std::string other = Folder() + "/other.db";
  WriteFile(other, "");
  sqlite::DatabaseHandle(other).Execute("CREATE TABLE Guest (Name TEXT)");
  for (const auto& path : {empty, other}) {
    for (const auto& failure : {FailureOfCall(path), FailureOfDictionary(path)}) {
      EXPECT_THAT(failure, AllOf(HasSubstr(path), HasSubstr("is not a calendar database")));
    }
  }
}

TEST_F(SqliteTrouble, AFileThatIsCutShortIsNamedAndStaysAsItIs) {
  const std::string whole = ReadFile(Path());
  for (const std::size_t size :
       {std::size_t{100}, std::size_t{4096}, whole.size() / 2, whole.size() - 4096}) {
    const std::string path = Folder() + "/short.db";
    WriteFile(path, whole.substr(0, size));
    for (const auto& failure : {FailureOfCall(path), FailureOfCall(path, "CldIUMain", kNewCalendar)}) {
      EXPECT_THAT(failure, AllOf(HasSubstr(path), HasSubstr("SQLite"))) << size;
      EXPECT_THAT(failure,
                  ::testing::AnyOf(HasSubstr("is damaged or cut short"), HasSubstr("is not a database")))
          << size;
    }
    EXPECT_EQ(ReadFile(path), whole.substr(0, size)) << size;
  }
}

TEST_F(SqliteTrouble, ADamagedFileNeverCrashesTheHostAndIsFoundDamaged) {
  ASSERT_EQ(ProcedureCaller(database_).Return("CldIUMain", kNewCalendar), 0);
  const std::string whole = ReadFile(Path());
  const std::string path = Folder() + "/damaged.db";
  int found = 0;
  for (std::size_t page = 1; page < whole.size() / 4096; ++page) {
    std::string damaged = whole;
    for (std::size_t i = 0; i < 64; ++i) damaged[page * 4096 + i] = static_cast<char>(i * 37 + page);
    WriteFile(path, damaged);
    (void)FailureOfCall(path);
    (void)FailureOfCall(path, "CldGetMain", kNewCalendar);
    std::vector<std::string> problems;
    const std::string failure = FailureTextOf([&] { problems = sqlite::CheckDatabase(path); });
    found += failure.empty() && problems.empty() ? 0 : 1;
  }
  EXPECT_EQ(found, static_cast<int>(whole.size() / 4096) - 1) << "every damaged page is found";
}

TEST_F(SqliteTrouble, AReadOnlyFileCanBeReadButNotWrittenAndIsNamed) {
  ASSERT_EQ(chmod(Folder().c_str(), 0777), 0);
  ASSERT_EQ(chmod(Path().c_str(), 0444), 0);
  const std::string before = ReadFile(Path());
  const std::string failure =
      TextFromOtherProcess([&] { return FailureOfCall(Path(), "CldIUMain", kNewCalendar); });
  EXPECT_THAT(failure, AllOf(HasSubstr(Path()), HasSubstr("is read-only"), HasSubstr("SQLite")));
  EXPECT_EQ(TextFromOtherProcess([&] { return FailureOfCall(Path()); }), "");
  EXPECT_EQ(ReadFile(Path()), before);
}

TEST_F(SqliteTrouble, AFileInAReadOnlyFolderIsNamed) {
  ASSERT_EQ(chmod(Path().c_str(), 0444), 0);
  ASSERT_EQ(chmod(Folder().c_str(), 0555), 0);
  const std::string failure =
      TextFromOtherProcess([&] { return FailureOfCall(Path(), "CldIUMain", kNewCalendar); });
  EXPECT_THAT(failure, AllOf(HasSubstr(Path()), HasSubstr("SQLite")));
  EXPECT_THAT(failure, ::testing::AnyOf(HasSubstr("is read-only"), HasSubstr("cannot be opened or created")));
  ASSERT_EQ(chmod(Folder().c_str(), 0755), 0);
}

TEST_F(SqliteTrouble, AFileThatTheUserMayNotReadIsNamed) {
  ASSERT_EQ(chmod(Folder().c_str(), 0755), 0);
  ASSERT_EQ(chmod(Path().c_str(), geteuid() == 0 ? 0600 : 0000), 0);
  EXPECT_THAT(
      TextFromOtherProcess([&] { return FailureOfCall(Path()); }),
      AllOf(HasSubstr(Path()), HasSubstr("cannot be opened: Permission denied"), HasSubstr("SQLite 14")));
}

TEST_F(SqliteTrouble, ADatabaseThatAnotherProgramWritesIsNamedAsLockedAndStaysReadable) {
  sqlite::DatabaseHandle other(Path());
  other.Execute("BEGIN IMMEDIATE; UPDATE CldSetting SET FirstDay = 3");
  EXPECT_THAT(FailureOfCall(Path(), "CldIUMain", kNewCalendar),
              AllOf(HasSubstr(Path()), HasSubstr("is locked by another program"), HasSubstr("SQLite 5")));
  EXPECT_EQ(FailureOfCall(Path()), "");
  other.Execute("ROLLBACK");
  EXPECT_EQ(FailureOfCall(Path(), "CldIUMain", kNewCalendar), "");
}

TEST_F(SqliteTrouble, ADatabaseThatAnotherProgramHasForItselfIsNamedAsLocked) {
  sqlite::DatabaseHandle other(Path());
  other.Execute("PRAGMA locking_mode = EXCLUSIVE; BEGIN EXCLUSIVE");
  for (const auto& failure : {FailureOfCall(Path()), FailureOfCall(Path(), "CldIUMain", kNewCalendar)}) {
    EXPECT_THAT(failure,
                AllOf(HasSubstr(Path()), HasSubstr("is locked by another program"), HasSubstr("SQLite 5")));
  }
}

TEST_F(SqliteTrouble, ACallWaitsForAnotherProgramThatIsDoneSoon) {
  int pipe_ends[2];
  ASSERT_EQ(pipe(pipe_ends), 0);
  const pid_t child = fork();
  if (child == 0) {
    sqlite::DatabaseHandle other(Path());
    other.Execute("BEGIN IMMEDIATE");
    (void)!write(pipe_ends[1], "x", 1);
    usleep(200'000);
    other.Execute("COMMIT");
    _exit(0);
  }
  char is_locked = 0;
  ASSERT_EQ(read(pipe_ends[0], &is_locked, 1), 1);
  EXPECT_EQ(ProcedureCaller(database_).Return("CldIUMain", kNewCalendar), 0);
  waitpid(child, nullptr, 0);
  close(pipe_ends[0]);
  close(pipe_ends[1]);
}

TEST_F(SqliteTrouble, AMissingTableIsNamedWithTheProcedureAndTheLine) {
  database_.Execute("PRAGMA foreign_keys = OFF; DROP TABLE CldSetting");
  EXPECT_THAT(FailureOfCall(Path()), AllOf(HasSubstr("CldAllInfo"), HasSubstr("no such table: CldSetting"),
                                           HasSubstr("line "), HasSubstr(Path())));
}

TEST_F(SqliteTrouble, ATextThatIsTooLongIsRefusedAndNothingIsStored) {
  ASSERT_EQ(ProcedureCaller(database_).Return("CldIUMain", kNewCalendar), 0);
  Arguments arguments = kNewCalendar;
  arguments.insert(arguments.end(),
                   {{"TID1", 1}, {"ID2", 1}, {"Day1", 1}, {"Comment", std::string(65U * 1024 * 1024, 'c')}});
  EXPECT_THAT(FailureOfCall(Path(), "CldIUMain", arguments),
              AllOf(HasSubstr(Path()), HasSubstr("A value is too long"), HasSubstr("SQLite 18")));
  const auto days = ProcedureCaller(database_).Call("CldGetMain", kNewCalendar);
  EXPECT_TRUE((*days.record_sets.at(0))["ID2"].IsEmpty());
}

TEST_F(SqliteTrouble, APathIsAPathAndNothingElse) {
  for (const std::string path : {":memory:", "file:calendars.db?mode=memory", "file::memory:?cache=shared"}) {
    EXPECT_THAT(FailureOfCall(path), HasSubstr("there is no such file")) << path;
  }
  EXPECT_THAT(FailureOfCall(""), HasSubstr("empty"));
  EXPECT_THAT(FailureOfCall(Path() + std::string("\0x", 2)), HasSubstr("NUL"));
}

TEST_F(SqliteTrouble, APathOfAnyCharactersIsOpened) {
  for (const std::string name :
       {"with blank.db", "50% ?mode=ro#x.db", "Größe 祝日.db", "it's; quoted\".db", "-wal"}) {
    const std::string path = Folder() + "/" + name;
    sqlite::CreateDatabase(path);
    EXPECT_EQ(FailureOfCall(path, "CldIUMain", kNewCalendar), "") << name;
    EXPECT_TRUE(std::filesystem::is_regular_file(path)) << name;
  }
}

TEST_F(SqliteTrouble, NoCallLeavesAConnectionOpen) {
  const auto open_files = [] {
    std::size_t count = 0;
    for ([[maybe_unused]] const auto& entry : std::filesystem::directory_iterator("/proc/self/fd")) ++count;
    return count;
  };
  const std::size_t before = open_files();
  (void)FailureOfCall(Path(), "CldIUMain", kNewCalendar);
  (void)FailureOfCall(Path(), "CldIUMain", kNewCalendar);
  (void)FailureOfCall(Path(), "NoSuchProcedure");
  (void)FailureOfCall(Folder() + "/missing.db");
  (void)FailureOfDictionary(Path());
  EXPECT_EQ(open_files(), before);
  EXPECT_FALSE(std::filesystem::exists(Path() + "-wal"));
}

TEST_F(SqliteTrouble, TheFilesBesideADatabaseAreItsOwnersOnlyToo) {
  const auto connection = database_.Engine().Connect(database_.ConnectionString());
  ASSERT_EQ(connection->Call("CldIUMain", {978, 2026, {}, {}, {}, {}, {}}).return_value, 0);
  for (const char* companion : {"", "-wal", "-shm"}) {
    struct stat status {};
    ASSERT_EQ(stat((Path() + companion).c_str(), &status), 0) << companion;
    EXPECT_EQ(status.st_mode & 0777U, 0600U) << companion;
  }
}

}  // namespace
}  // namespace ferrowind::contract
