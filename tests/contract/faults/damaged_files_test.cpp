// A calendar database that is damaged in a way that nobody foresaw: no command crashes, hangs or fails
// without a word on it, and where `check` finds nothing, every day on show is what it was.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <random>
#include <sstream>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ferrowind/adapters/sqlite/database_file.h"
#include "ferrowind/adapters/sqlite/engine.h"
#include "ferrowind/platform/database/engine_registry.h"
#include "ferrowind/platform/values/conversion.h"
#include "ferrowind/platform/values/failure.h"

#include "host/admin/command_line.h"
#include "host/delivery/database_version.h"
#include "tests/contract/database/file_bytes.h"
#include "tests/contract/database/procedure_caller.h"
#include "tests/contract/database/sqlite_database.h"
#include "tests/contract/faults/fault_trial.h"
#include "tests/contract/faults/file_damage.h"

namespace ferrowind::contract {
namespace {

constexpr std::uint32_t kSeed = 20261122;
/// How much is tried in a test of every day, and before a release.
struct Amount {
  int files = 0;
  std::size_t commands_for_each = 0;
};
constexpr Amount kOfADay = {150, 2};
constexpr Amount kOfARelease = {2000, 4};
/// In one process, so that a crash ends no more than these.
constexpr int kFilesOfATrial = 10;
constexpr std::int32_t kEuro = 978;

const Amount& ThisTime() { return std::getenv("FERROWIND_EVERY_FAULT") != nullptr ? kOfARelease : kOfADay; }

using Command = std::vector<std::string>;

class DamagedFiles : public ::testing::Test {
 protected:
  DamagedFiles() { engines_.Register("sqlite", std::make_shared<sqlite::Engine>()); }

  void SetUp() override {
    const std::vector<Command> making = {
        {"init", Url(), "--empty"},
        {"book", "set", Url(), "EUR", FERROWIND_BOOKS "/EUR.txt"},
        {"apply", Url(), "EUR", "2026..2027", "--yes"},
        {"call", Url(), "CldIUMain", "ID1=978", "Year1=2026", "TID1=1", "ID2=1", "Day1=360",
         "Comment=Stock-taking"},
        {"call", Url(), "CldIUMain", "ID1=840", "Year1=2026"},
    };
    for (const Command& command : making) {
      std::string errors;
      ASSERT_EQ(Run(command, errors), host::ExitStatus::kDone) << errors;
    }
    std::string list;
    ASSERT_EQ(Run({"export", Url(), "EUR", "2026", "--format", "json"}, list), host::ExitStatus::kDone)
        << list;
    WriteFile(List(), list);
    sound_ = ReadFile(Path());
    days_ = DaysOnShow();
    ASSERT_GT(days_.size(), 3 * 365U * 5U);
  }

  [[nodiscard]] std::string Path() const { return folder_.Path() + "/a.db"; }
  [[nodiscard]] std::string Url() const { return "sqlite:" + Path(); }
  /// The days of the sound database.
  [[nodiscard]] std::string List() const { return lists_.Path() + "/EUR.json"; }

  host::ExitStatus Run(const Command& command, std::string& text) const {
    std::ostringstream out;
    std::ostringstream errors;
    const auto status = host::RunCommandLine(command, engines_, out, errors);
    text = errors.str() + out.str();
    return status;
  }

  [[nodiscard]] std::vector<Command> Commands() const {
    return {
        {"status", Url()},
        {"copy", Url(), "sqlite:" + folder_.Path() + "/copy.db"},
        {"upgrade", Url()},
        {"init", Url()},
        {"plan", Url(), "EUR", "2026"},
        {"apply", Url(), "EUR", "2026..2028", "--yes"},
        {"review", Url()},
        {"why", Url(), "EUR", "2026-04-03"},
        {"history", Url()},
        {"undo", Url(), "3"},
        {"as-of", Url(), "EUR", "2026", "2030-01-01T00:00:00"},
        {"book", "show", Url(), "EUR"},
        {"book", "set", Url(), "EUR", FERROWIND_BOOKS "/USD.txt"},
        {"currency", "list", Url()},
        {"currency", "retire", Url(), "USD", "2029-12-31"},
        {"seal", Url()},
        {"export", Url(), "EUR", "2026-2027", "--format", "csv"},
        {"reconcile", Url(), "EUR", List()},
        {"import", Url(), "EUR", List(), "--yes"},
        {"date", "next", Url(), "EUR", "2026-12-24"},
        {"conventions", "list", Url()},
        {"book", "check", Url(), "EUR"},
        {"call", Url(), "CldAllInfo"},
        {"call", Url(), "CldGetMain", "ID1=978", "Year1=2026"},
        {"call", Url(), "CldIUMain", "ID1=978", "Year1=2026", "TID1=1", "ID2=1", "Day1=7"},
        {"call", Url(), "CldIUCelebrate", "Name1=Name", "TID1=2", "WD=3"},
    };
  }

  /// Date, type and rule of every day of all calendars that the database tells of.
  [[nodiscard]] std::string DaysOnShow() const {
    sqlite::Engine engine;
    const auto connection = engine.Connect(Url());
    std::string text;
    const auto all = CallOver(*connection, "CldAllInfo");
    for (const auto& set : all.record_sets) {
      for (const Row& row : RowsOf(*set)) {
        for (const auto& cell : row) text += platform::ToTextOrEmpty(cell) + "\t";
      }
    }
    for (const auto& [currency, year] :
         {std::pair(kEuro, 2026), std::pair(kEuro, 2027), std::pair(840, 2026)}) {
      const auto days = CallOver(*connection, "CldGetMain", {{"ID1", currency}, {"Year1", year}});
      if (days.return_value != 0) throw platform::Failure(days.return_value, "a calendar is not there");
      for (const Row& row : RowsOf(*days.record_sets.at(0))) {
        for (const auto& cell : row) text += platform::ToTextOrEmpty(cell) + "\t";
      }
    }
    return text;
  }

  /// What the desktop asks before its first window is on show.
  void StartDesktop() const {
    try {
      host::RequireThisVersion(Url());
    } catch (const platform::Failure& failure) {
      EXPECT_NE(failure.Description(), "");
    }
    try {
      sqlite::Engine engine;
      (void)engine.ReadDictionary(Url(), "Ccy");
      (void)engine.Watch(Url())->Look();
      for (const char* procedure : {"CldAllInfo", "CldGetCurrencies", "CldGetBook", "CldGetHistory"}) {
        (void)CallOver(*engine.Connect(Url()), procedure);
      }
      host::UpgradeOwnDatabase(engines_, Url());
    } catch (const platform::Failure& failure) {
      EXPECT_NE(failure.Description(), "");
    }
  }

  void Put(const std::string& bytes) const {
    for (const auto& entry : std::filesystem::directory_iterator(folder_.Path())) {
      std::filesystem::remove(entry.path());
    }
    WriteFile(Path(), bytes);
  }

  /// What is wrong with how the programs bear the file; empty when nothing is.
  [[nodiscard]] std::string FaultsWith(const DamagedBytes& damaged, std::size_t number) const {
    std::string faults;
    Put(damaged.bytes);
    NoteInTrial(damaged.what + ", check");
    std::string told;
    const bool is_in_order = Run({"check", Url()}, told) == host::ExitStatus::kDone;
    if (!is_in_order && told.empty()) faults += damaged.what + ": check says nothing\n";
    NoteInTrial(damaged.what + ", days on show");
    if (is_in_order) faults += FaultsOfUnnoticed(damaged);
    NoteInTrial(damaged.what + ", the desktop's start");
    StartDesktop();
    const auto commands = Commands();
    const std::size_t most = ThisTime().commands_for_each;
    for (std::size_t i = 0; i < most; ++i) {
      const Command& command = commands[(number * most + i) % commands.size()];
      NoteInTrial(damaged.what + ", " + command[0] + " " + command[1] + " " +
                  (command.size() > 2 ? command[2] : ""));
      Put(damaged.bytes);
      const auto status = Run(command, told);
      if (told.empty()) faults += damaged.what + ": " + command[0] + " says nothing\n";
      if (is_in_order && status == host::ExitStatus::kDone && command[0] != "init" &&
          Run({"check", Url()}, told) != host::ExitStatus::kDone) {
        faults += damaged.what + ": after " + command[0] + " no more in order: " + told;
      }
    }
    return faults;
  }

  [[nodiscard]] std::string FaultsOfUnnoticed(const DamagedBytes& damaged) const {
    try {
      const std::string days = DaysOnShow();
      if (days == days_) return {};
      const auto at =
          std::mismatch(days.begin(), days.end(), days_.begin(), days_.end()).first - days.begin();
      const auto from = static_cast<std::size_t>(std::max<std::ptrdiff_t>(0, at - 60));
      return damaged.what + ": in order, but days are others: " + days.substr(from, 120) + " instead of " +
             days_.substr(from, 120) + "\n";
    } catch (const platform::Failure& failure) {
      return damaged.what + ": in order, but not on show: " + failure.Description() + "\n";
    }
  }

  TemporaryFolder folder_;
  TemporaryFolder lists_;
  platform::EngineRegistry engines_;
  std::string sound_;
  std::string days_;
};

TEST_F(DamagedFiles, CrashHangAndDeceiveNoCommandAndNotTheDesktop) {
  std::mt19937 random(kSeed);
  const int files = ThisTime().files;
  for (int first = 0; first < files; first += kFilesOfATrial) {
    std::vector<DamagedBytes> damaged;
    for (int i = 0; i < kFilesOfATrial; ++i) damaged.push_back(Damage(sound_, random));
    const TrialEnd end = RunTrial(
        [&]() -> WorkEnd {
          std::string faults;
          for (std::size_t i = 0; i < damaged.size(); ++i) {
            faults += FaultsWith(damaged[i], static_cast<std::size_t>(first) + i);
          }
          return {faults.empty() && !HasFailure(), faults};
        },
        0, failing_calls::Way::kError);
    EXPECT_TRUE(end.is_done) << end.text;
  }
}

}  // namespace
}  // namespace ferrowind::contract
