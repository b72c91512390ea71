// A process that is killed in the middle of its calls leaves a sound database that holds every acknowledged
// call, and the call that it was in wholly or not at all.

#include <chrono>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <random>
#include <string>
#include <thread>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include "ferrowind/adapters/sqlite/database_file.h"
#include "ferrowind/platform/values/date.h"

#include "tests/contract/database/procedure_caller.h"
#include "tests/contract/database/sqlite_database.h"

namespace ferrowind::contract {
namespace {

using platform::Value;

constexpr int kRounds = 60;
constexpr int kFirstCalls = 9;
constexpr int kFirstYear = 1900;
constexpr int kLastYear = 3000;
/// Sunday; made by the test.
constexpr std::int32_t kSundayRule = 2;

/// The calls in their order: a year's calendar, then its Sundays, then an exception, then the next year.
int MakeCall(ProcedureCaller& caller, int number) {
  Arguments arguments = {{"ID1", 978}, {"Year1", kFirstYear + number / 3}};
  if (number % 3 == 1) arguments.insert(arguments.end(), {{"TID1", 2}, {"ID2", kSundayRule}});
  if (number % 3 == 2) {
    arguments.insert(arguments.end(), {{"TID1", 1}, {"ID2", 1}, {"Day1", 100}, {"Comment", "exception"}});
  }
  return caller.Return("CldIUMain", arguments);
}

/// Makes calls from `first` on and acknowledges each by a byte, until it is killed.
[[noreturn]] void CallUntilKilled(ProcedureCaller& caller, int first, int acknowledgements) {
  try {
    for (int number = first; kFirstYear + number / 3 <= kLastYear; ++number) {
      const char status = static_cast<char>(MakeCall(caller, number));
      if (write(acknowledgements, &status, 1) != 1) _exit(2);
    }
  } catch (...) {
    _exit(3);
  }
  pause();
  _exit(4);
}

/// False when the child is gone and all that it acknowledged is read.
bool ReadAcknowledgement(int pipe_end) {
  char status = 0;
  if (read(pipe_end, &status, 1) != 1) return false;
  EXPECT_EQ(status, 0) << "a call returned another value";
  return true;
}

/// How many of the calls are in the database, or -1 when one is there in part.
int CallsOfYear(ProcedureCaller& caller, int year) {
  const auto outcome = caller.Call("CldGetMain", {{"ID1", 978}, {"Year1", year}});
  if (outcome.return_value == 5) return 0;
  const auto rows = RowsOf(*outcome.record_sets.at(0));
  if (rows.size() != static_cast<std::size_t>(platform::DaysInYear(year))) return -1;
  int sundays = 0;
  int expected_sundays = 0;
  int exceptions = 0;
  for (const auto& row : rows) {
    const bool is_exception = row[5] == Value(1);
    exceptions += is_exception ? 1 : 0;
    if (is_exception && row[4] != Value("exception")) return -1;
    if (is_exception) continue;
    sundays += row[5] == Value(kSundayRule) ? 1 : 0;
    expected_sundays += row[0].If<platform::Date>()->Weekday() == 1 ? 1 : 0;
  }
  if (exceptions > 1 || (sundays != 0 && sundays != expected_sundays)) return -1;
  if (sundays == 0) return exceptions == 0 ? 1 : -1;
  return exceptions == 0 ? 2 : 3;
}

/// The number of the first call that is not there. All calls before `year` are, which is not looked at again.
int CallsFrom(ProcedureCaller& caller, int year) {
  int calls = CallsOfYear(caller, year);
  while (calls == 3) calls = CallsOfYear(caller, ++year);
  EXPECT_GE(calls, 0) << "a call of the year " << year << " is there in part";
  EXPECT_EQ(CallsOfYear(caller, year + 1), 0) << "calls of the year " << year << " are missing";
  return (year - kFirstYear) * 3 + calls;
}

TEST(SqliteKill, EveryAcknowledgedCallIsThereAndTheLastOneWhollyOrNotAtAll) {
  const auto seed = std::random_device()();
  RecordProperty("seed", std::to_string(seed));
  std::printf("The kill moments come from the seed %u\n", seed);
  std::mt19937 random(seed);
  SqliteDatabase database;
  ProcedureCaller caller(database);
  ASSERT_EQ(caller.Return("CldIUCelebrate", {{"Name1", "Sunday"}, {"TID1", 2}, {"WD", 1}}), 0);

  // A child is killed some calls after its start, at any moment of the call that it is then in or of the next
  // one.
  const auto start = std::chrono::steady_clock::now();
  int done = 0;
  for (; done < kFirstCalls; ++done) ASSERT_EQ(MakeCall(caller, done), 0);
  const auto time_of_a_call = std::chrono::duration_cast<std::chrono::microseconds>(
      (std::chrono::steady_clock::now() - start) / kFirstCalls);
  std::uniform_int_distribution<int> calls_before(0, 3);
  std::uniform_int_distribution<std::chrono::microseconds::rep> microseconds(0, 2 * time_of_a_call.count());
  for (int round = 0; round < kRounds; ++round) {
    int pipe_ends[2];
    ASSERT_EQ(pipe(pipe_ends), 0);
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) CallUntilKilled(caller, done, pipe_ends[1]);
    close(pipe_ends[1]);
    int acknowledged = done;
    for (int calls = calls_before(random); calls > 0 && ReadAcknowledgement(pipe_ends[0]); --calls)
      ++acknowledged;
    std::this_thread::sleep_for(std::chrono::microseconds(microseconds(random)));
    kill(child, SIGKILL);
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    ASSERT_TRUE(WIFSIGNALED(status)) << "the child ended by itself with " << WEXITSTATUS(status);

    while (ReadAcknowledgement(pipe_ends[0])) ++acknowledged;
    close(pipe_ends[0]);

    ASSERT_TRUE(database.IsSound()) << "round " << round;
    const int there = CallsFrom(caller, kFirstYear + done / 3);
    ASSERT_TRUE(there == acknowledged || there == acknowledged + 1)
        << "round " << round << ": " << acknowledged << " calls acknowledged, " << there
        << " in the database";
    done = there;
  }
  std::printf("%d calls in %d rounds\n", done, kRounds);
  EXPECT_GT(done, kFirstCalls + kRounds / 2) << "the children were killed before they had done anything";
}

TEST(SqliteKill, ACreationThatIsKilledLeavesAWholeDatabaseOrNone) {
  const auto seed = std::random_device()();
  std::printf("The kill moments come from the seed %u\n", seed);
  std::mt19937 random(seed);
  const TemporaryFolder folder;
  const auto path = [&](int round) { return folder.Path() + "/" + std::to_string(round) + ".db"; };

  const auto start = std::chrono::steady_clock::now();
  sqlite::CreateDatabase(path(0));
  const auto time =
      std::chrono::duration_cast<std::chrono::microseconds>(std::chrono::steady_clock::now() - start);
  std::uniform_int_distribution<std::chrono::microseconds::rep> microseconds(0, 3 * time.count() / 2);
  for (int round = 1; round <= 30; ++round) {
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
      sqlite::CreateDatabase(path(round));
      _exit(0);
    }
    std::this_thread::sleep_for(std::chrono::microseconds(microseconds(random)));
    kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
    if (std::filesystem::exists(path(round))) {
      EXPECT_THAT(sqlite::CheckDatabase(path(round)), ::testing::IsEmpty());
    } else {
      sqlite::CreateDatabase(path(round));
    }
  }
}

}  // namespace
}  // namespace ferrowind::contract
