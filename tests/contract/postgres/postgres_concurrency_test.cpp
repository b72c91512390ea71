// Operators who do the same thing at the same time.

#include <algorithm>
#include <atomic>
#include <functional>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include <gmock/gmock.h>

#include "ferrowind/adapters/postgres/server_connection.h"
#include "ferrowind/platform/values/failure.h"

#include "tests/contract/database/procedure_caller.h"
#include "tests/contract/postgres/postgres_database.h"
#include "tests/contract/postgres/postgres_server.h"

namespace ferrowind::contract {
namespace {

using platform::Value;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr int kOperators = 8;

/// What each operator's call gave, sorted; -1 for a call that failed, whose text is added to `failures`.
std::vector<int> AllAtOnce(const std::function<int(int)>& call, std::vector<std::string>& failures) {
  std::vector<int> values(kOperators);
  std::vector<std::string> texts(kOperators);
  std::atomic<int> waiting = kOperators;
  std::vector<std::thread> threads;
  for (int i = 0; i < kOperators; ++i) {
    threads.emplace_back([&, i] {
      const auto place = static_cast<std::size_t>(i);
      --waiting;
      while (waiting > 0) std::this_thread::yield();
      values[place] = -1;
      texts[place] = FailureTextOf([&] { values[place] = call(i); });
    });
  }
  for (auto& thread : threads) thread.join();
  for (const auto& text : texts) {
    if (!text.empty()) failures.push_back(text);
  }
  std::sort(values.begin(), values.end());
  return values;
}

TEST(PostgresConcurrency, OneOfThoseWhoAddARuleOfTheSameNameDoesAndTheOthersAreTold) {
  PostgresDatabase database;
  std::vector<std::string> failures;
  const std::vector<std::string> names = {"größe ", "GRÖßE", "größe  ", "größE"};
  for (int round = 0; round < 5; ++round) {
    const auto values = AllAtOnce(
        [&](int i) {
          const std::string name =
              " " + std::to_string(round) + names[static_cast<std::size_t>(i) % names.size()];
          return ProcedureCaller(database).Return("CldIUCelebrate",
                                                  {{"Name1", name}, {"TID1", 2}, {"WD", 1}});
        },
        failures);
    EXPECT_THAT(values, ElementsAre(0, 2, 2, 2, 2, 2, 2, 2));
  }
  EXPECT_THAT(failures, IsEmpty());
  EXPECT_TRUE(database.IsSound());
}

TEST(PostgresConcurrency, OneOfThoseWhoCreateTheSameCalendarDoesAndTheOthersAreTold) {
  PostgresDatabase database;
  std::vector<std::string> failures;
  for (int year = 2020; year < 2025; ++year) {
    EXPECT_THAT(AllAtOnce(
                    [&](int) {
                      return ProcedureCaller(database).Return("CldIUMain", {{"ID1", 978}, {"Year1", year}});
                    },
                    failures),
                ElementsAre(0, 6, 6, 6, 6, 6, 6, 6));
  }
  EXPECT_THAT(failures, IsEmpty());
  EXPECT_TRUE(database.IsSound());
}

TEST(PostgresConcurrency, MixedCallsOnOneCalendarAllSucceedWithoutADeadlock) {
  PostgresDatabase database;
  ProcedureCaller caller(database);
  ASSERT_EQ(caller.Return("CldIUMain", {{"ID1", 978}, {"Year1", 2026}}), 0);
  for (int weekday = 1; weekday <= 7; ++weekday) {
    ASSERT_EQ(caller.Return("CldIUCelebrate",
                            {{"Name1", "Rule " + std::to_string(weekday)}, {"TID1", 2}, {"WD", weekday}}),
              0);
  }
  std::vector<std::string> failures;
  for (int round = 0; round < 10; ++round) {
    const auto values = AllAtOnce(
        [&](int i) {
          ProcedureCaller own(database);
          const int rule = 2 + (i + round) % 7;
          if (i % 4 == 0) return own.Return("CldIUCelebrate", {{"ID2", rule}, {"Del", 4}});
          if (i % 4 == 1) {
            return own.Return("CldIUMain", {{"ID1", 978}, {"Year1", 2026}, {"TID1", 2}, {"ID2", rule}});
          }
          if (i % 4 == 2) {
            return own.Return("CldIUMain",
                              {{"ID1", 978}, {"Year1", 2026}, {"TID1", 1}, {"ID2", 1}, {"Day1", 1 + i * 7}});
          }
          return own.Return("CldIUCelebrate", {{"Name1", "Rule " + std::to_string(rule - 1)},
                                               {"TID1", 2},
                                               {"WD", 1 + (rule + round) % 7},
                                               {"ID2", rule}});
        },
        failures);
    EXPECT_THAT(values, ElementsAre(0, 0, 0, 0, 0, 0, 0, 0));
  }
  EXPECT_THAT(failures, IsEmpty());
  EXPECT_TRUE(database.IsSound());
}

TEST(PostgresConcurrency, TwoRulesThatTakeEachOthersNamesDoNotDeadlock) {
  PostgresDatabase database;
  ProcedureCaller caller(database);
  for (const std::string name : {"A", "B"}) {
    ASSERT_EQ(caller.Return("CldIUCelebrate", {{"Name1", name}, {"TID1", 2}, {"WD", 1}}), 0);
  }
  std::vector<std::string> failures;
  const auto values = AllAtOnce(
      [&](int i) {
        return ProcedureCaller(database).Return(
            "CldIUCelebrate",
            {{"Name1", i % 2 == 0 ? "B" : "A"}, {"TID1", 2}, {"WD", 1}, {"ID2", i % 2 == 0 ? 2 : 3}});
      },
      failures);
  EXPECT_THAT(values, ::testing::Each(2));
  EXPECT_THAT(failures, IsEmpty());
}

/// A call of the operator in a thread of its own, while another one holds its locks.
class WaitingCall {
 public:
  WaitingCall(PostgresDatabase& database, std::function<int(ProcedureCaller&)> call)
      : thread_([this, &database, call = std::move(call)] {
          ProcedureCaller caller(database);
          return_value_ = call(caller);
          has_ended_ = true;
        }) {
    // Until it waits for a lock, or has gone through without.
    while (!has_ended_ &&
           postgres_server::Ask(database.Name(),
                                "SELECT count(*) FROM pg_stat_activity WHERE wait_event_type = 'Lock' AND "
                                "datname = current_database()") == "0") {
      std::this_thread::yield();
    }
  }
  [[nodiscard]] bool HasEnded() const { return has_ended_; }
  [[nodiscard]] int Return() {
    thread_.join();
    return return_value_;
  }

 private:
  std::atomic<bool> has_ended_ = false;
  std::atomic<int> return_value_ = -1;
  std::thread thread_;
};

class PostgresRemovedRule : public ::testing::Test {
 protected:
  PostgresRemovedRule() : other_(database_.ConnectionString()) {
    ProcedureCaller caller(database_);
    EXPECT_EQ(caller.Return("CldIUMain", {{"ID1", 978}, {"Year1", 2026}}), 0);
    EXPECT_EQ(caller.Return("CldIUCelebrate", {{"Name1", "Sunday"}, {"TID1", 2}, {"WD", 1}}), 0);
  }
  [[nodiscard]] std::string DaysWithTheRule() const {
    return postgres_server::Ask(database_.Name(), "SELECT count(*) FROM ferrowind.CldDay WHERE ID2 = 2");
  }

  PostgresDatabase database_;
  /// Another operator's, in whose transaction calls stay unfinished.
  postgres::ServerConnection other_;
};

int AssignSunday(ProcedureCaller& caller) {
  return caller.Return("CldIUMain", {{"ID1", 978}, {"Year1", 2026}, {"TID1", 2}, {"ID2", 2}});
}

TEST_F(PostgresRemovedRule, IsNotAssignedByACallThatBeganBeforeItsRemovalEnded) {
  other_.RunScript("BEGIN; CALL ferrowind.CldIUCelebrate(\"ID2\" => 2, \"Del\" => 2::smallint)");
  WaitingCall assignment(database_, AssignSunday);
  other_.RunScript("COMMIT");
  EXPECT_EQ(assignment.Return(), 4);
  EXPECT_EQ(DaysWithTheRule(), "0");
}

TEST_F(PostgresRemovedRule, IsAssignedWhenItsRemovalComesToNothing) {
  other_.RunScript("BEGIN; CALL ferrowind.CldIUCelebrate(\"ID2\" => 2, \"Del\" => 2::smallint)");
  WaitingCall assignment(database_, AssignSunday);
  EXPECT_FALSE(assignment.HasEnded());
  other_.RunScript("ROLLBACK");
  EXPECT_EQ(assignment.Return(), 0);
  EXPECT_EQ(DaysWithTheRule(), "52");
}

TEST_F(PostgresRemovedRule, IsRemovedOnlyWhenItsAssignmentHasEnded) {
  other_.RunScript("BEGIN; CALL ferrowind.CldIUMain(978, 2026, 2, 2)");
  WaitingCall removal(database_, [](ProcedureCaller& caller) {
    return caller.Return("CldIUCelebrate", {{"ID2", 2}, {"Del", 2}});
  });
  EXPECT_FALSE(removal.HasEnded());
  other_.RunScript("COMMIT");
  EXPECT_EQ(removal.Return(), 0);
  EXPECT_EQ(DaysWithTheRule(), "52");
}

TEST_F(PostgresRemovedRule, KeepsNobodyFromExceptingDays) {
  other_.RunScript("BEGIN; CALL ferrowind.CldIUCelebrate(\"ID2\" => 2, \"Del\" => 2::smallint)");
  EXPECT_EQ(ProcedureCaller(database_).Return(
                "CldIUMain", {{"ID1", 978}, {"Year1", 2026}, {"TID1", 1}, {"ID2", 1}, {"Day1", 1}}),
            0);
  other_.RunScript("ROLLBACK");
}

TEST_F(PostgresRemovedRule, IsAssignedByManyAtATime) {
  EXPECT_EQ(ProcedureCaller(database_).Return("CldIUMain", {{"ID1", 840}, {"Year1", 2026}}), 0);
  other_.RunScript("BEGIN; CALL ferrowind.CldIUMain(840, 2026, 2, 2)");
  ProcedureCaller caller(database_);
  EXPECT_EQ(AssignSunday(caller), 0);
  other_.RunScript("ROLLBACK");
}

}  // namespace
}  // namespace ferrowind::contract
