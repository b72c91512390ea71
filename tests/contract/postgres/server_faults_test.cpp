// A system call that goes wrong, whichever it is, while a command works on a server: what the command says is
// so, and the database is sound, with the command's work in it or without.

#include <chrono>
#include <cstddef>
#include <cstdio>
#include <functional>
#include <memory>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ferrowind/adapters/postgres/database_content.h"
#include "ferrowind/adapters/postgres/database_objects.h"
#include "ferrowind/adapters/postgres/engine.h"
#include "ferrowind/adapters/sqlite/database_content.h"
#include "ferrowind/adapters/sqlite/engine.h"
#include "ferrowind/platform/database/engine_registry.h"

#include "host/admin/command_line.h"
#include "tests/contract/database/sqlite_database.h"
#include "tests/contract/faults/content_text.h"
#include "tests/contract/faults/fault_trial.h"
#include "tests/contract/postgres/postgres_database.h"
#include "tests/contract/postgres/postgres_server.h"

namespace ferrowind::contract {
namespace {

using ::testing::AnyOf;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

/// As many as a test of every day has time for, of a call and of a command that takes a second.
constexpr std::size_t kMostFaults = 6;
constexpr std::size_t kMostFaultsOfALongCommand = 3;

/// Until nothing works on the database any more: what a command has left behind may not have ended yet.
void AwaitQuiet(const std::string& database) {
  const std::string others = "SELECT count(*)::text FROM pg_stat_activity WHERE datname = '" + database + "'";
  for (int i = 0; i < 1000 && postgres_server::Ask("postgres", others) != "0"; ++i) {
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
  }
  ASSERT_EQ(postgres_server::Ask("postgres", others), "0");
}

/// A database of a trial: an empty one, or like another one, with which nobody works.
class OwnDatabase {
 public:
  OwnDatabase() : name_(postgres_server::CreateEmptyDatabase()) {}
  explicit OwnDatabase(const std::string& original) : name_(postgres_server::CreateDatabaseLike(original)) {}
  OwnDatabase(const OwnDatabase&) = delete;
  OwnDatabase& operator=(const OwnDatabase&) = delete;
  ~OwnDatabase() { postgres_server::DropDatabase(name_); }

  [[nodiscard]] const std::string& Name() const { return name_; }
  [[nodiscard]] std::string Uri() const { return postgres_server::SuperuserUri(name_); }

 private:
  std::string name_;
};

class ServerFaults : public ::testing::Test {
 protected:
  using Arguments = std::vector<std::string>;

  ServerFaults() {
    // Each command is a program of its own, which leaves no session for the next one.
    engines_.Register(postgres::Engine::kScheme,
                      std::make_shared<postgres::Engine>(std::chrono::milliseconds(0)));
    engines_.Register(sqlite::Engine::kScheme, std::make_shared<sqlite::Engine>());
  }

  /// Tells what a command that is done has printed, and why one that is not is not.
  WorkEnd Command(const Arguments& arguments) const {
    std::ostringstream out;
    std::ostringstream errors;
    const bool is_done = host::RunCommandLine(arguments, engines_, out, errors) == host::ExitStatus::kDone;
    // There is no room for a year of days.
    const std::string printed = std::to_string(std::hash<std::string>()(out.str()));
    return {is_done, is_done ? printed : errors.str()};
  }
  void Do(const Arguments& arguments) const {
    const WorkEnd end = Command(arguments);
    ASSERT_TRUE(end.is_done) << end.text;
  }

  /// Plays the command of each trial, which `command` makes from its number, once for each fault, with the
  /// calls that the trial 0 makes. `look` is told the trial and how it ended, and says what must hold then.
  void PlayFaults(const std::function<Arguments(int trial)>& command,
                  const std::function<void(int trial, const TrialEnd& end)>& look, std::size_t most) {
    const auto calls = CallsOf([&] { return Command(command(0)); });
    const auto faults = FaultsIn(calls, most);
    int trial = 0;
    int fired = 0;
    int done = 0;
    for (const Fault& fault : faults) {
      SCOPED_TRACE(fault.name);
      const Arguments arguments = command(++trial);
      const TrialEnd end = RunTrial([&] { return Command(arguments); }, fault.call, fault.way);
      fired += end.has_fired ? 1 : 0;
      done += end.is_done ? 1 : 0;
      if (!end.is_done && !end.was_killed) {
        EXPECT_NE(end.text, "") << "it failed without a word";
      }
      look(trial, end);
      if (HasFailure()) return;
    }
    std::printf("%zu calls, %zu faults, of which %d came and %d did no harm to the work\n", calls.size(),
                faults.size(), fired, done);
    // What a call brings, and so how many there are, depends on the time: the last faults may be too late.
    EXPECT_GE(3 * fired, static_cast<int>(faults.size()));
  }

  static void ExpectToldTruly(const TrialEnd& end, bool is_there) {
    ASSERT_TRUE(is_there || !end.is_done) << "what was acknowledged is not there";
    if (!is_there || end.is_done || end.was_killed) return;
    EXPECT_THAT(end.text,
                AnyOf(HasSubstr("has done all of its work or nothing"), HasSubstr("It is not known whether")))
        << "it is there";
  }

  /// For a command that changes the database of this test: a trial's own part of it, which `count` counts
  /// as 0 or 1.
  void PlayFaultsOfChanges(const std::function<Arguments(int trial)>& command,
                           const std::function<std::string(int trial)>& count) {
    PlayFaults(
        command,
        [&](int trial, const TrialEnd& end) {
          AwaitQuiet(database_.Name());
          const int found = std::stoi(postgres_server::Ask(database_.Name(), count(trial)));
          ASSERT_LE(found, 1);
          ExpectToldTruly(end, found == 1);
        },
        kMostFaults);
    EXPECT_THAT(postgres::CheckDatabase(Uri()), IsEmpty());
  }

  void PlayFaultsOfReading(const Arguments& arguments) {
    const std::string truth = Command(arguments).text;
    PlayFaults([&](int /*trial*/) { return arguments; },
               [&](int /*trial*/, const TrialEnd& end) {
                 if (end.is_done) {
                   EXPECT_EQ(end.text, truth);
                 }
               },
               kMostFaults);
  }

  /// For a command whose trials need a database each, which `make` makes. `is_done` looks there for its work.
  void PlayFaultsOnOwn(const std::function<std::unique_ptr<OwnDatabase>()>& make,
                       const std::function<Arguments(const std::string& uri)>& command,
                       const std::function<bool(const OwnDatabase& database)>& is_done) {
    std::unique_ptr<OwnDatabase> own;
    PlayFaults(
        [&](int /*trial*/) {
          own = make();
          return command(own->Uri());
        },
        [&](int /*trial*/, const TrialEnd& end) {
          AwaitQuiet(own->Name());
          ExpectToldTruly(end, is_done(*own));
        },
        kMostFaultsOfALongCommand);
  }

  /// For a command that makes a calendar database of an empty one. `look` looks into what was made.
  void PlayFaultsOfCreation(const std::function<Arguments(const std::string& uri)>& command,
                            const std::function<void(const std::string& uri)>& look) {
    PlayFaultsOnOwn([] { return std::make_unique<OwnDatabase>(); }, command,
                    [&](const OwnDatabase& made) {
                      const std::string schemas =
                          "SELECT count(*)::text FROM pg_namespace WHERE nspname = 'ferrowind'";
                      if (postgres_server::Ask(made.Name(), schemas) == "0") return false;
                      EXPECT_THAT(postgres::CheckDatabase(made.Uri()), IsEmpty());
                      look(made.Uri());
                      return true;
                    });
  }

  [[nodiscard]] std::string Uri() const { return postgres_server::SuperuserUri(database_.Name()); }

  PostgresDatabase database_;
  TemporaryFolder folder_;
  platform::EngineRegistry engines_;
};

/// Of the trials, each of which has one of its own.
int YearOf(int trial) { return 1950 + trial; }

TEST_F(ServerFaults, ACreatedCalendarIsAcknowledgedOrUndone) {
  PlayFaultsOfChanges(
      [&](int trial) {
        return Arguments{"call", Uri(), "CldIUMain", "ID1=" + std::to_string(trial % 2 == 0 ? 978 : 840),
                         "Year1=" + std::to_string(YearOf(trial / 2))};
      },
      [&](int trial) {
        return "SELECT (count(*) / 365)::text FROM ferrowind.CldDay WHERE ID1 = " +
               std::to_string(trial % 2 == 0 ? 978 : 840) +
               " AND Year1 = " + std::to_string(YearOf(trial / 2));
      });
}

TEST_F(ServerFaults, AnAddedRuleIsAcknowledgedOrUndone) {
  const auto name = [](int trial) { return "Feast " + std::to_string(trial); };
  PlayFaultsOfChanges(
      [&](int trial) {
        return Arguments{"call", Uri(), "CldIUCelebrate", "Name1=" + name(trial), "TID1=2", "WD=3"};
      },
      [&](int trial) {
        return "SELECT count(*)::text FROM ferrowind.CldHoliday WHERE Name1 = '" + name(trial) + "'";
      });
}

TEST_F(ServerFaults, WhatIsReadIsWholeOrAFailure) {
  Do({"call", Uri(), "CldIUMain", "ID1=978", "Year1=2026"});
  PlayFaultsOfReading({"call", Uri(), "CldAllInfo"});
  PlayFaultsOfReading({"call", Uri(), "CldGetMain", "ID1=978", "Year1=2026"});
}

TEST_F(ServerFaults, AnAppliedPlanIsAcknowledgedOrUndone) {
  Do({"book", "set", Uri(), "EUR", FERROWIND_BOOKS "/EUR.txt"});
  AwaitQuiet(database_.Name());
  PlayFaultsOnOwn(
      [&] { return std::make_unique<OwnDatabase>(database_.Name()); },
      [](const std::string& uri) {
        return Arguments{"apply", uri, "EUR", "2028", "--yes"};
      },
      [](const OwnDatabase& own) {
        EXPECT_THAT(postgres::CheckDatabase(own.Uri()), IsEmpty());
        const std::string closed = postgres_server::Ask(
            own.Name(), "SELECT count(*)::text FROM ferrowind.CldDay WHERE ID1 = 978 AND TID1 <> 1");
        EXPECT_TRUE(closed == "0" || std::stoi(closed) > 104) << "a part of it is there: " << closed;
        return closed != "0";
      });
}

TEST_F(ServerFaults, ANewDatabaseIsThereWholeOrNotAtAll) {
  PlayFaultsOfCreation(
      [](const std::string& uri) {
        return Arguments{"init", uri, "--empty"};
      },
      [](const std::string& /*uri*/) {});
}

TEST_F(ServerFaults, ACopyIsThereWholeOrNotAtAll) {
  const std::string file = folder_.Path() + "/a.db";
  Do({"init", "sqlite:" + file, "--empty"});
  Do({"call", "sqlite:" + file, "CldIUMain", "ID1=978", "Year1=2026"});
  const std::string original = TextOf(*sqlite::OpenContent(file));
  PlayFaultsOfCreation(
      [&](const std::string& uri) {
        return Arguments{"copy", "sqlite:" + file, uri};
      },
      [&](const std::string& uri) { EXPECT_TRUE(TextOf(*postgres::OpenContent(uri)) == original); });
}

}  // namespace
}  // namespace ferrowind::contract
