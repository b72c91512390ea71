// A system call that goes wrong, whichever it is, in a command on a file: what the command says is so, and
// the database is sound, with the command's work in it or without.

#include <cstddef>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ferrowind/adapters/sqlite/database_content.h"
#include "ferrowind/adapters/sqlite/database_file.h"
#include "ferrowind/adapters/sqlite/database_handle.h"
#include "ferrowind/adapters/sqlite/engine.h"
#include "ferrowind/adapters/sqlite/write_ahead_log.h"
#include "ferrowind/platform/database/engine_registry.h"

#include "host/admin/command_line.h"
#include "tests/contract/database/file_bytes.h"
#include "tests/contract/database/old_version.h"
#include "tests/contract/database/procedure_caller.h"
#include "tests/contract/database/sqlite_database.h"
#include "tests/contract/faults/content_text.h"
#include "tests/contract/faults/fault_trial.h"

namespace ferrowind::contract {
namespace {

using ::testing::HasSubstr;
using ::testing::IsEmpty;

/// As many as a test of every day has time for.
constexpr std::size_t kMostFaults = 40;
/// Of a command that takes a second.
constexpr std::size_t kMostFaultsOfALongCommand = 5;
constexpr std::size_t kAllFaultsOfAShortWork = 200;

class FileFaults : public ::testing::Test {
 protected:
  FileFaults() { engines_.Register("sqlite", std::make_shared<sqlite::Engine>()); }

  [[nodiscard]] std::string Path(const std::string& name = "a.db") const {
    return folder_.Path() + "/" + name;
  }
  [[nodiscard]] std::string Url(const std::string& name = "a.db") const { return "sqlite:" + Path(name); }

  WorkEnd Command(const std::vector<std::string>& arguments) const {
    std::ostringstream out;
    std::ostringstream errors;
    const auto status = host::RunCommandLine(arguments, engines_, out, errors);
    return {status == host::ExitStatus::kDone, errors.str()};
  }
  void Do(const std::vector<std::string>& arguments) const {
    const WorkEnd end = Command(arguments);
    ASSERT_TRUE(end.is_done) << end.text;
  }

  /// Every file of the folder as it is now is what `Restore` brings back.
  void Remember() {
    remembered_.clear();
    for (const auto& entry : std::filesystem::directory_iterator(folder_.Path())) {
      remembered_.emplace_back(entry.path().string(), ReadFile(entry.path().string()));
    }
  }
  void Restore() const {
    for (const auto& entry : std::filesystem::directory_iterator(folder_.Path())) {
      std::filesystem::remove(entry.path());
    }
    for (const auto& [path, bytes] : remembered_) WriteFile(path, bytes);
  }

  [[nodiscard]] std::string Content(const std::string& name = "a.db") const {
    return TextOf(*sqlite::OpenContent(Path(name)));
  }

  [[nodiscard]] bool IsUnfinishedFileLeft() const {
    for (const auto& entry : std::filesystem::directory_iterator(folder_.Path())) {
      if (entry.path().string().find(".creating-") != std::string::npos) return true;
    }
    return false;
  }

  /// Plays `work` on the files that are there now, once for each fault. `look` is told how it ended, and says
  /// what must hold then.
  template <typename Look>
  void PlayFaults(const Work& work, const Look& look, std::size_t most = kMostFaults) {
    Remember();
    const auto calls = CallsOf(work);
    const auto faults = FaultsIn(calls, most);
    int fired = 0;
    int done = 0;
    for (const Fault& fault : faults) {
      SCOPED_TRACE(fault.name);
      Restore();
      const TrialEnd end = RunTrial(work, fault.call, fault.way);
      fired += end.has_fired ? 1 : 0;
      done += end.is_done ? 1 : 0;
      if (!end.is_done && !end.was_killed) {
        EXPECT_NE(end.text, "") << "it failed without a word";
      }
      look(end);
      const bool could_tidy_up = !end.was_killed && fault.name.find("unlink") == std::string::npos;
      EXPECT_FALSE(could_tidy_up && IsUnfinishedFileLeft());
      if (HasFatalFailure()) return;
    }
    std::printf("%zu calls, %zu faults, of which %d came and %d did no harm to the work\n", calls.size(),
                faults.size(), fired, done);
    EXPECT_GT(fired, static_cast<int>(faults.size()) / 2);
  }

  /// As above, for a command that changes the database a.db, which is there.
  void PlayFaultsOfChange(const std::vector<std::string>& arguments) {
    const std::string before = Content();
    Remember();
    Do(arguments);
    const std::string after = Content();
    ASSERT_NE(before, after);
    Restore();
    PlayFaults([&] { return Command(arguments); },
               [&](const TrialEnd& end) {
                 ASSERT_THAT(sqlite::CheckDatabase(Path()), IsEmpty());
                 const std::string now = Content();
                 ASSERT_TRUE(now == before || now == after) << "a part of it is there";
                 ASSERT_TRUE(now == after || !end.is_done) << "what was acknowledged is not there";
                 ASSERT_TRUE(now == before || end.is_done || end.was_killed)
                     << "it is there, although the command says: " << end.text;
               });
  }

  /// For a command that makes the database a.db, which is not there.
  void PlayFaultsOfCreation(const std::vector<std::string>& arguments, std::size_t most = kMostFaults) {
    Remember();
    Do(arguments);
    const std::string made = Content();
    Restore();
    PlayFaults([&] { return Command(arguments); },
               [&](const TrialEnd& end) {
                 const bool is_there = std::filesystem::exists(Path());
                 ASSERT_TRUE(is_there || !end.is_done) << "what was acknowledged is not there";
                 if (!is_there) return;
                 ASSERT_THAT(sqlite::CheckDatabase(Path()), IsEmpty());
                 ASSERT_TRUE(Content() == made) << "a part of it is there";
               },
               most);
  }

  TemporaryFolder folder_;
  platform::EngineRegistry engines_;
  std::vector<std::pair<std::string, std::string>> remembered_;
};

TEST_F(FileFaults, AChangingCallIsAcknowledgedOrUndone) {
  sqlite::CreateDatabase(Path());
  PlayFaultsOfChange({"call", Url(), "CldIUMain", "ID1=978", "Year1=2026"});
}

TEST_F(FileFaults, AChangeOfAFileThatIsOffTheLogIsAcknowledgedOrUndone) {
  sqlite::CreateDatabase(Path());
  sqlite::DatabaseHandle(Path()).Execute("PRAGMA journal_mode = DELETE");
  const std::vector<std::string> change = {"call", Url(), "CldIUMain", "ID1=978", "Year1=2026"};
  const std::string before = Content();
  PlayFaults([&] { return Command(change); },
             [&](const TrialEnd& end) {
               ASSERT_FALSE(std::filesystem::exists(Path("a.db-journal")));
               const std::string now = Content();
               if (end.is_done) {
                 ASSERT_NE(now, before);
               }
               // Where the log is not back, that is all that is wrong.
               for (const auto& problem : sqlite::CheckDatabase(Path())) {
                 ASSERT_THAT(problem, HasSubstr("the journal mode delete"));
                 ASSERT_EQ(now, before);
               }
             });
}

TEST_F(FileFaults, TheLogIsOnWhereverItIsSaidToBe) {
  sqlite::CreateDatabase(Path());
  sqlite::DatabaseHandle(Path()).Execute("PRAGMA journal_mode = DELETE");
  PlayFaults(
      [&]() -> WorkEnd {
        sqlite::DatabaseHandle database(Path());
        sqlite::RequireWriteAheadLog(database);
        return {true, {}};
      },
      [&](const TrialEnd& end) {
        if (!end.is_done) return;
        ASSERT_THAT(sqlite::CheckDatabase(Path()), IsEmpty());
      },
      kAllFaultsOfAShortWork);
}

TEST_F(FileFaults, AnAppliedPlanIsAcknowledgedOrUndone) {
  Do({"init", Url(), "--empty"});
  Do({"book", "set", Url(), "EUR", FERROWIND_BOOKS "/EUR.txt"});
  PlayFaultsOfChange({"apply", Url(), "EUR", "2028", "--yes"});
}

TEST_F(FileFaults, ANewDatabaseIsThereWholeOrNotAtAll) { PlayFaultsOfCreation({"init", Url(), "--empty"}); }

TEST_F(FileFaults, ANewDatabaseWithCalendarsIsThereWholeOrNotAtAll) {
  PlayFaultsOfCreation({"init", Url(), "--year", "2026"}, kMostFaultsOfALongCommand);
}

TEST_F(FileFaults, ACopyIsThereWholeOrNotAtAll) {
  Do({"init", Url("original.db"), "--empty"});
  Do({"call", Url("original.db"), "CldIUMain", "ID1=978", "Year1=2026"});
  PlayFaultsOfCreation({"copy", Url("original.db"), Url()});
}

TEST_F(FileFaults, AnUpgradeIsAcknowledgedOrCanBeMadeAgain) {
  WriteFile(Path(), "");
  sqlite::DatabaseHandle(Path()).Execute(
      (OldVersionScript(3, "sqlite") +
       "INSERT INTO CldHoliday (ID2, Name1, TID1, WD) VALUES (2, 'Sunday', 2, 1); PRAGMA journal_mode = WAL")
          .c_str());
  Remember();
  Do({"upgrade", Url()});
  const std::string after = Content();
  Restore();
  PlayFaults(
      [&] {
        return Command({"upgrade", Url()});
      },
      [&](const TrialEnd& end) {
        const auto version = sqlite::ReadSchemaVersion(Path());
        if (end.is_done) {
          ASSERT_NE(version, 3);
        }
        if (version == 3) Do({"upgrade", Url()});
        ASSERT_THAT(sqlite::CheckDatabase(Path()), IsEmpty());
        ASSERT_TRUE(Content() == after) << "a part of it is there";
      });
}

}  // namespace
}  // namespace ferrowind::contract
