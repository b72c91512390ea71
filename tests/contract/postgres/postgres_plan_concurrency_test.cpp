// Operators who plan and undo at the same time.

#include <algorithm>
#include <atomic>
#include <chrono>
#include <functional>
#include <memory>
#include <string>
#include <thread>
#include <vector>

#include <gmock/gmock.h>

#include "ferrowind/adapters/postgres/server_connection.h"
#include "ferrowind/platform/values/conversion.h"
#include "ferrowind/platform/values/failure.h"

#include "tests/contract/database/procedure_caller.h"
#include "tests/contract/postgres/postgres_database.h"
#include "tests/contract/postgres/postgres_server.h"

namespace ferrowind::contract {
namespace {

using platform::Value;
using ::testing::AnyOf;
using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class PostgresPlanConcurrency : public ::testing::Test {
 protected:
  /// Runs `calls` at the same time. What each returned; -1 for one that failed, whose text is in `failures_`.
  std::vector<int> AtOnce(const std::vector<std::function<int(ProcedureCaller&)>>& calls) {
    std::vector<int> values(calls.size(), -1);
    std::vector<std::string> texts(calls.size());
    std::atomic<std::size_t> waiting = calls.size();
    std::vector<std::thread> threads;
    for (std::size_t i = 0; i < calls.size(); ++i) {
      threads.emplace_back([&, i] {
        // On connections that are open already, so that the calls themselves meet.
        ProcedureCaller caller(database_, 1000);
        texts[i] = FailureTextOf([&] { static_cast<void>(caller.Call("CldGetCurrencies")); });
        --waiting;
        while (waiting > 0) std::this_thread::yield();
        texts[i] += FailureTextOf([&] { values[i] = calls[i](caller); });
      });
    }
    for (auto& thread : threads) thread.join();
    for (const auto& text : texts) {
      if (!text.empty()) failures_.push_back(text);
    }
    return values;
  }

  /// Returns when a call waits for a lock, or after some seconds.
  void AwaitSomebodyWhoWaits() {
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(4);
    while (std::chrono::steady_clock::now() < end &&
           Ask("SELECT count(*)::text FROM pg_stat_activity WHERE wait_event_type = 'Lock'") == "0") {
    }
  }

  std::string Fingerprint(int currency, int year) {
    return platform::ToText((*ProcedureCaller(database_)
                                  .Call("CldGetFingerprint", {{"ID1", currency}, {"Year1", year}})
                                  .record_sets.at(0))["Fingerprint"]);
  }
  static int Apply(ProcedureCaller& caller, int currency, int year, const std::string& expected,
                   const std::string& days) {
    return caller.Return("CldApplyPlan",
                         {{"ID1", currency}, {"Year1", year}, {"Expected", expected}, {"Days", days}});
  }
  /// A plan of ten days and two rules, all of which tell the number.
  static std::string Plan(int year, int number) {
    const std::string own = std::to_string(number);
    std::string dates;
    for (int month = 1; month <= 9; ++month) {
      dates += (month == 1 ? "\"" : ", \"") + std::to_string(year) + "-0" + std::to_string(month) + "-05\"";
    }
    return R"([{"Name1": "Rule )" + own + R"(", "TID1": 4, "DayComment": ")" + own + R"(", "Dates": [)" +
           dates + R"(]}, {"Name1": "Shared", "TID1": 3, "DayComment": ")" + own + R"(", "Dates": [")" +
           std::to_string(year) + R"(-12-05"]}])";
  }
  std::string Ask(const std::string& query) { return postgres_server::Ask(database_.Name(), query); }

  PostgresDatabase database_;
  std::vector<std::string> failures_;
};

TEST_F(PostgresPlanConcurrency, OfThoseWhoApplyDifferentPlansToOneCalendarOneWinsAndNothingIsOfTheOthers) {
  for (int year = 2026; year < 2032; ++year) {
    SCOPED_TRACE(year);
    if (year % 2 == 0)
      ASSERT_EQ(ProcedureCaller(database_).Return("CldIUMain", {{"ID1", 978}, {"Year1", year}}), 0);
    const std::string expected = Fingerprint(978, year);
    std::vector<std::function<int(ProcedureCaller&)>> calls;
    for (int number = 0; number < 4; ++number) {
      calls.emplace_back([&, year, number](ProcedureCaller& caller) {
        return Apply(caller, 978, year, expected, Plan(year, 10 * year + number));
      });
    }
    auto values = AtOnce(calls);
    const auto winner = std::find(values.begin(), values.end(), 0) - values.begin();
    EXPECT_EQ(Ask("SELECT string_agg(DISTINCT Comment, ',') FROM ferrowind.CldDay WHERE Comment IS NOT NULL"
                  " AND Year1 = " +
                  std::to_string(year)),
              std::to_string(10 * year + winner));
    std::sort(values.begin(), values.end());
    EXPECT_THAT(values, ElementsAre(0, 8, 8, 8));
  }
  EXPECT_THAT(failures_, IsEmpty());
  EXPECT_EQ(Ask("SELECT count(*) FROM ferrowind.CldHoliday WHERE Name1 LIKE 'Rule%'"), "6") << "one a year";
  EXPECT_EQ(Ask("SELECT count(*) FROM ferrowind.CldHistory WHERE ProcedureName = 'CldApplyPlan'"), "6");
  EXPECT_TRUE(database_.IsSound());
}

TEST_F(PostgresPlanConcurrency, ACalendarIsCreatedEitherByAPlanOrByItself) {
  for (int year = 2026; year < 2036; ++year) {
    const auto values = AtOnce({
        [&](ProcedureCaller& caller) {
          return caller.Return("CldIUMain", {{"ID1", 978}, {"Year1", year}});
        },
        [&](ProcedureCaller& caller) { return Apply(caller, 978, year, "", Plan(year, year)); },
    });
    EXPECT_THAT(values, AnyOf(ElementsAre(0, 8), ElementsAre(6, 0))) << year;
  }
  EXPECT_THAT(failures_, IsEmpty());
  EXPECT_EQ(Ask("SELECT count(*) FROM ferrowind.CldCalendar"), "10");
  EXPECT_TRUE(database_.IsSound());
}

TEST_F(PostgresPlanConcurrency, AnAssignmentDuringAPlanIsBeforeOrBehindItAndNothingIsLost) {
  ASSERT_EQ(Apply(*std::make_unique<ProcedureCaller>(database_), 978, 2026, "", Plan(2026, 0)), 0);
  for (int round = 1; round <= 15; ++round) {
    const std::string expected = Fingerprint(978, 2026);
    const auto values = AtOnce({
        [&](ProcedureCaller& caller) { return Apply(caller, 978, 2026, expected, Plan(2026, round)); },
        [&](ProcedureCaller& caller) {
          return caller.Return("CldIUMain", {{"ID1", 978},
                                             {"Year1", 2026},
                                             {"TID1", 1},
                                             {"ID2", 1},
                                             {"Day1", 200 + round},
                                             {"Comment", "assigned " + std::to_string(round)}});
        },
    });
    EXPECT_THAT(values[0], AnyOf(0, 8)) << round;
    EXPECT_EQ(values[1], 0) << round;
    if (values[0] == 0)
      EXPECT_EQ(Ask("SELECT Comment FROM ferrowind.CldDay WHERE Day1 = 5"), std::to_string(round));
  }
  EXPECT_THAT(failures_, IsEmpty());
  EXPECT_EQ(Ask("SELECT count(*) FROM ferrowind.CldDay WHERE Comment LIKE 'assigned%'"), "15");
  EXPECT_TRUE(database_.IsSound());
}

TEST_F(PostgresPlanConcurrency, AnEntryIsUndoneOnceAndNotUnderAPlan) {
  for (int round = 1; round <= 10; ++round) {
    const std::string before = Fingerprint(978, 2026);
    ASSERT_EQ(Apply(*std::make_unique<ProcedureCaller>(database_), 978, 2026, before, Plan(2026, round)), 0);
    const std::string planned = Fingerprint(978, 2026);
    const auto entry = platform::ToInt32(Ask("SELECT max(EntryID)::text FROM ferrowind.CldHistory"));
    const auto undo = [&](ProcedureCaller& caller) { return caller.Return("CldUndo", {{"EntryID", entry}}); };
    const auto values = AtOnce({undo, undo, [&](ProcedureCaller& caller) {
                                  return Apply(caller, 978, 2026, planned, Plan(2026, 100 + round));
                                }});
    if (values[2] == 0) {
      EXPECT_EQ(values[0], 9);
      EXPECT_EQ(values[1], 9);
      EXPECT_EQ(Ask("SELECT Comment FROM ferrowind.CldDay WHERE Day1 = 5"), std::to_string(100 + round));
    } else {
      EXPECT_EQ(values[2], 8);
      EXPECT_EQ(values[0] + values[1], 9) << "one of them";
      EXPECT_EQ(Fingerprint(978, 2026), before);
    }
  }
  EXPECT_THAT(failures_, IsEmpty());
  EXPECT_TRUE(database_.IsSound());
}

TEST_F(PostgresPlanConcurrency, ARuleThatIsUndoneIsNotAssignedMeanwhile) {
  ASSERT_EQ(ProcedureCaller(database_).Return("CldIUMain", {{"ID1", 978}, {"Year1", 2026}}), 0);
  for (int round = 1; round <= 15; ++round) {
    ASSERT_EQ(ProcedureCaller(database_).Return(
                  "CldIUCelebrate", {{"Name1", "Rule " + std::to_string(round)}, {"TID1", 2}, {"WD", 1}}),
              0);
    const auto entry = platform::ToInt32(Ask("SELECT max(EntryID)::text FROM ferrowind.CldHistory"));
    const auto rule = platform::ToInt32(Ask("SELECT max(ID2)::text FROM ferrowind.CldHoliday"));
    const auto values = AtOnce({
        [&](ProcedureCaller& caller) {
          return caller.Return("CldUndo", {{"EntryID", entry}});
        },
        [&](ProcedureCaller& caller) {
          return caller.Return("CldIUMain",
                               {{"ID1", 978}, {"Year1", 2026}, {"TID1", 2}, {"ID2", rule}, {"Day1", round}});
        },
    });
    EXPECT_THAT(values, AnyOf(ElementsAre(0, 4), ElementsAre(9, 0))) << round;
  }
  EXPECT_THAT(failures_, IsEmpty());
  EXPECT_TRUE(database_.IsSound());
}

TEST_F(PostgresPlanConcurrency, ARuleThatGoesWhileItIsAssignedIsUnknown) {
  ProcedureCaller caller(database_);
  ASSERT_EQ(caller.Return("CldIUMain", {{"ID1", 978}, {"Year1", 2026}}), 0);
  ASSERT_EQ(caller.Return("CldIUCelebrate", {{"Name1", "Sunday"}, {"TID1", 2}, {"WD", 1}}), 0);
  postgres::ServerConnection undoing(postgres_server::SuperuserUri(database_.Name()));
  undoing.RunScript("BEGIN; CALL ferrowind.CldUndo(2)");
  int value = -1;
  std::string failure;
  std::thread assigning([&] {
    failure = FailureTextOf([&] {
      value = caller.Return("CldIUMain", {{"ID1", 978}, {"Year1", 2026}, {"TID1", 2}, {"ID2", 2}});
    });
  });
  AwaitSomebodyWhoWaits();
  undoing.RunScript("COMMIT");
  assigning.join();
  EXPECT_EQ(failure, "");
  EXPECT_EQ(value, 4);
}

TEST_F(PostgresPlanConcurrency, ACalendarThatGoesWhileItIsReadIsUnknownAndNotEmpty) {
  ProcedureCaller caller(database_);
  ASSERT_EQ(caller.Return("CldIUMain", {{"ID1", 978}, {"Year1", 2026}}), 0);
  postgres::ServerConnection undoing(postgres_server::SuperuserUri(database_.Name()));
  // The reader is let in where the days are, when the calendar has gone.
  undoing.RunScript("BEGIN; LOCK TABLE ferrowind.CldDay IN ACCESS EXCLUSIVE MODE; CALL ferrowind.CldUndo(1)");
  platform::CallOutcome outcome;
  std::string failure;
  std::thread reading([&] {
    failure = FailureTextOf([&] { outcome = caller.Call("CldGetMain", {{"ID1", 978}, {"Year1", 2026}}); });
  });
  AwaitSomebodyWhoWaits();
  undoing.RunScript("COMMIT");
  reading.join();
  EXPECT_EQ(failure, "");
  EXPECT_EQ(outcome.return_value, 5);
  EXPECT_THAT(outcome.record_sets, IsEmpty());
}

TEST_F(PostgresPlanConcurrency, ACurrencyThatEndsGetsNoCalendarBehindItsEnd) {
  for (int round = 0; round < 10; ++round) {
    const int year = 2030 + round;
    const auto values = AtOnce({
        [&](ProcedureCaller& caller) {
          return caller.Return("CldIUCurrency", {{"CcyID", 978},
                                                 {"Ccy", "EUR"},
                                                 {"CcyType", 0},
                                                 {"Name", "Euro"},
                                                 {"LastDay", platform::Date(year - 1, 12, 31)}});
        },
        [&](ProcedureCaller& caller) {
          return round % 2 == 0 ? caller.Return("CldIUMain", {{"ID1", 978}, {"Year1", year}})
                                : Apply(caller, 978, year, "", Plan(year, year));
        },
    });
    EXPECT_THAT(values, AnyOf(ElementsAre(0, 3), ElementsAre(9, 0))) << year;
    ProcedureCaller caller(database_);
    ASSERT_EQ(
        caller.Return("CldIUCurrency", {{"CcyID", 978}, {"Ccy", "EUR"}, {"CcyType", 0}, {"Name", "Euro"}}),
        0);
  }
  EXPECT_THAT(failures_, IsEmpty());
  EXPECT_TRUE(database_.IsSound());
}

TEST_F(PostgresPlanConcurrency, OfThoseWhoStoreABookOneWins) {
  for (int round = 0; round < 10; ++round) {
    const auto books = ProcedureCaller(database_).Call("CldGetBook", {{"ID1", 978}}).record_sets.at(0);
    const Value expected = books->RowCount() == 0 ? Value("") : (*books)["Fingerprint"];
    std::vector<std::function<int(ProcedureCaller&)>> calls;
    for (const std::string publisher : {"A", "B", "C"}) {
      calls.emplace_back([&, publisher](ProcedureCaller& caller) {
        return caller.Return("CldIUBook", {{"ID1", 978},
                                           {"Expected", expected},
                                           {"Publisher", publisher},
                                           {"Document", std::to_string(round)},
                                           {"Rules", R"([{"Name1": ")" + publisher +
                                                         R"(", "TID1": 3, "Expression": "01-01"}])"}});
      });
    }
    auto values = AtOnce(calls);
    std::sort(values.begin(), values.end());
    EXPECT_THAT(values, ElementsAre(0, 8, 8));
    EXPECT_EQ(Ask("SELECT ((SELECT Publisher FROM ferrowind.CldBook) = (SELECT Name1 FROM "
                  "ferrowind.CldRecurrence))::text"),
              "true");
  }
  EXPECT_THAT(failures_, IsEmpty());
}

/// Everybody who changes anything, in an order of their own, on few calendars and rules: none may wait for
/// another who waits for him.
TEST_F(PostgresPlanConcurrency, CallsOfEveryKindNeverMeetADeadlock) {
  for (const int currency : {978, 840}) {
    ASSERT_EQ(Apply(*std::make_unique<ProcedureCaller>(database_), currency, 2026, "", Plan(2026, 1)), 0);
  }
  std::vector<std::function<int(ProcedureCaller&)>> calls;
  for (int writer = 0; writer < 8; ++writer) {
    calls.emplace_back([this, writer](ProcedureCaller& caller) {
      for (int round = 0; round < 25; ++round) {
        const int currency = (writer + round) % 2 == 0 ? 978 : 840;
        switch ((writer + round) % 8) {
          case 0:
          case 1:
            static_cast<void>(Apply(caller, currency, 2026, Fingerprint(currency, 2026), Plan(2026, writer)));
            break;
          case 2:
          case 3: {
            const auto newest = caller.Call("CldGetHistory", {{"Count", 5}}).record_sets.at(0);
            const auto entries = ColumnOf(*newest, "EntryID");
            static_cast<void>(caller.Return(
                "CldUndo", {{"EntryID", entries[static_cast<std::size_t>(writer) % entries.size()]}}));
            break;
          }
          case 4:
            static_cast<void>(caller.Return(
                "CldIUMain",
                {{"ID1", currency}, {"Year1", 2026}, {"TID1", 1}, {"ID2", 1}, {"Day1", 5 + round}}));
            break;
          case 5:
            static_cast<void>(caller.Return("CldIUMain", {{"ID1", currency}, {"Year1", 2027 + round % 3}}));
            break;
          case 6:
            static_cast<void>(caller.Return(
                "CldIUCelebrate",
                {{"Name1", "Own " + std::to_string(writer % 3)}, {"TID1", 2}, {"WD", 1 + round % 7}}));
            break;
          default:
            static_cast<void>(caller.Return("CldIUCurrency", {{"CcyID", currency},
                                                              {"Ccy", currency == 978 ? "EUR" : "USD"},
                                                              {"CcyType", 0},
                                                              {"Name", "Name " + std::to_string(round)}}));
        }
      }
      return 0;
    });
  }
  EXPECT_THAT(AtOnce(calls), Each(0));
  EXPECT_THAT(failures_, IsEmpty());
  EXPECT_TRUE(database_.IsSound());
}

}  // namespace
}  // namespace ferrowind::contract
