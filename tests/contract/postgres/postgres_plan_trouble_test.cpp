// A plan and its undoing, interrupted at every step: all of it is done, or nothing.

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <functional>
#include <random>
#include <string>
#include <thread>

#include <gmock/gmock.h>

#include "ferrowind/platform/values/conversion.h"
#include "ferrowind/platform/values/failure.h"

#include "tests/contract/database/procedure_caller.h"
#include "tests/contract/postgres/cutting_proxy.h"
#include "tests/contract/postgres/postgres_database.h"
#include "tests/contract/postgres/postgres_server.h"

namespace ferrowind::contract {
namespace {

using ::testing::AnyOf;
using ::testing::Gt;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

constexpr const char* kEverything = R"sql(
SELECT concat(
  (SELECT string_agg(d::text, ',' ORDER BY d) FROM ferrowind.CldDay d),
  (SELECT string_agg(h::text, ',' ORDER BY h) FROM ferrowind.CldHoliday h),
  (SELECT string_agg(c::text, ',' ORDER BY c) FROM ferrowind.CldCalendar c),
  (SELECT string_agg(h::text, ',' ORDER BY EntryID) FROM ferrowind.CldHistory h),
  (SELECT string_agg(r::text, ',' ORDER BY EntryID, RowNumber) FROM ferrowind.CldHistoryRow r)))sql";

class PostgresPlanTrouble : public ::testing::Test {
 protected:
  std::string Ask(const std::string& query) { return postgres_server::Ask(database_.Name(), query); }
  std::string Fingerprint() {
    return platform::ToText((*caller_.Call("CldGetFingerprint", {{"ID1", 978}, {"Year1", 2026}})
                                  .record_sets.at(0))["Fingerprint"]);
  }
  int LastEntry() {
    return platform::ToInt32(Ask("SELECT coalesce(max(EntryID), 0)::text FROM ferrowind.CldHistory"));
  }

  /// Adds two rules and gives them, an exception and an ordinary working day to days of the euro's 2026.
  Arguments Plan(int number) {
    const std::string own = std::to_string(number);
    return {
        {"ID1", 978},
        {"Year1", 2026},
        {"Expected", Fingerprint()},
        {"Days", R"([{"Name1": "Point )" + own + R"(", "TID1": 4, "Dates": ["2026-04-03"], "DayComment": ")" +
                     own + R"("}, {"Name1": "Weekday )" + own +
                     R"(", "TID1": 2, "Dates": ["2026-01-03", "2026-01-10"], "DayComment": ")" + own +
                     R"("}, {"TID1": 1, "Dates": ["2026-05-01"], "DayComment": ")" + own +
                     R"("}, {"TID1": 1, "Dates": ["2026-05-02"]}])"}};
  }
  int Apply(int number) { return caller_.Return("CldApplyPlan", Plan(number)); }

  /// Makes the server end the connection of a call at the `number`th statement that the call runs on a table,
  /// in front of it and behind it; 0 for none.
  void KillAt(int number) {
    database_.Execute("UPDATE public.Killer SET At = " + std::to_string(number) +
                      "; ALTER SEQUENCE public.Step RESTART");
  }
  void PrepareKiller() {
    database_.Execute(R"sql(
CREATE TABLE public.Killer (At integer);
INSERT INTO public.Killer VALUES (0);
CREATE SEQUENCE public.Step;
CREATE FUNCTION public.Kill() RETURNS trigger LANGUAGE plpgsql SECURITY DEFINER AS $$
BEGIN
  IF nextval('public.Step') = (SELECT At FROM public.Killer) THEN
    PERFORM pg_terminate_backend(pg_backend_pid());
    PERFORM pg_sleep(60);
  END IF;
  RETURN NULL;
END $$;
DO $$
DECLARE
  name text;
  moment text;
BEGIN
  FOREACH name IN ARRAY ARRAY['CldDay', 'CldHoliday', 'CldCalendar', 'CldHistory', 'CldHistoryRow'] LOOP
    FOREACH moment IN ARRAY ARRAY['BEFORE', 'AFTER'] LOOP
      EXECUTE format('CREATE TRIGGER A%s %1$s INSERT OR UPDATE OR DELETE ON ferrowind.%s FOR EACH STATEMENT'
        ' EXECUTE FUNCTION public.Kill()', moment, name);
    END LOOP;
  END LOOP;
END $$)sql");
  }

  /// Kills the call at its first step, its second, and so on, until it gets through. How many steps it has.
  int KillEverywhere(const std::string& procedure, const Arguments& arguments) {
    for (int step = 1; step < 200; ++step) {
      const std::string before = Ask(kEverything);
      KillAt(step);
      int value = -1;
      const std::string failure = FailureTextOf([&] { value = caller_.Return(procedure, arguments); });
      KillAt(0);
      if (failure.empty()) {
        EXPECT_EQ(value, 0);
        EXPECT_NE(Ask(kEverything), before);
        return step - 1;
      }
      EXPECT_THAT(failure, HasSubstr(procedure + " was interrupted"));
      EXPECT_EQ(Ask(kEverything), before) << "killed at step " << step;
      if (HasFailure()) break;
    }
    return 0;
  }

  /// Cuts the connection of the call behind its login and at many a byte from there on. `arguments` makes the
  /// arguments of a call, before each; `is_whole` says whether what the last call was to do is done, in
  /// whole, and fails the test when it is in part.
  void CutEverywhere(CuttingProxy::Direction direction, const std::string& procedure,
                     const std::function<Arguments()>& arguments, const std::function<bool()>& is_whole) {
    const auto connect = [&](CuttingProxy& proxy) {
      return database_.Engine().Connect(postgres_server::Uri(postgres_server::kOperator,
                                                             postgres_server::kOperatorPassword,
                                                             database_.Name(), proxy.Port()) +
                                        "?sslmode=disable&gssencmode=disable&keep_sessions=no");
    };
    const auto call = [&](CuttingProxy& proxy, const Arguments& given) {
      return CallOver(*connect(proxy), procedure, given).return_value;
    };
    std::size_t login = 0;
    {
      CuttingProxy proxy(postgres_server::Port(), direction, CuttingProxy::kNever);
      connect(proxy).reset();
      login = proxy.Passed();
    }
    std::size_t whole = 0;
    {
      CuttingProxy proxy(postgres_server::Port(), direction, CuttingProxy::kNever);
      ASSERT_EQ(call(proxy, arguments()), 0);
      whole = proxy.Passed();
      ASSERT_TRUE(is_whole());
    }
    ASSERT_GT(whole, login);
    int kept = 0;
    int undone = 0;
    constexpr std::size_t kStride = 13;
    for (std::size_t limit = login - login / 10; limit < whole && !HasFailure(); limit += kStride) {
      SCOPED_TRACE("cut after " + std::to_string(limit) + " of " + std::to_string(whole) + " bytes");
      const Arguments given = arguments();
      CuttingProxy proxy(postgres_server::Port(), direction, limit);
      int value = -1;
      const std::string failure = FailureTextOf([&] { value = call(proxy, given); });
      AwaitEndOfCalls();
      const bool is_done = is_whole();
      if (failure.empty()) {
        EXPECT_EQ(value, 0);
        EXPECT_TRUE(is_done);
      }
      ++(is_done ? kept : undone);
    }
    EXPECT_THAT(undone, Gt(0)) << "no cut came before the end of the work";
    if (direction == CuttingProxy::Direction::kToClient) {
      EXPECT_THAT(kept, Gt(0)) << "the last answers are lost when the work is done";
    }
    EXPECT_TRUE(database_.IsSound());
  }

  /// The server may still be at work for a client that is gone.
  void AwaitEndOfCalls() {
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(20);
    while (Ask("SELECT count(*)::text FROM pg_stat_activity WHERE usename = '" +
               std::string(postgres_server::kOperator) + "' AND state IS DISTINCT FROM 'idle'") != "0") {
      ASSERT_LT(std::chrono::steady_clock::now(), end) << "a call does not end";
    }
  }

  PostgresDatabase database_;
  ProcedureCaller caller_{database_};
};

TEST_F(PostgresPlanTrouble, APlanThatIsKilledAtAnyStepLeavesNothing) {
  PrepareKiller();
  EXPECT_GT(KillEverywhere("CldApplyPlan", Plan(1)), 10) << "a new calendar";
  EXPECT_GT(KillEverywhere("CldApplyPlan", Plan(2)), 10) << "a calendar that is there";
  EXPECT_EQ(Ask("SELECT count(*) FROM ferrowind.CldHistory"), "2");
}

TEST_F(PostgresPlanTrouble, AnUndoThatIsKilledAtAnyStepLeavesEverythingAsItWas) {
  ASSERT_EQ(Apply(1), 0);
  ASSERT_EQ(Apply(2), 0);
  const auto planned = LastEntry();
  PrepareKiller();
  EXPECT_GT(KillEverywhere("CldUndo", {{"EntryID", planned}}), 10) << "days and rules";
  EXPECT_GT(KillEverywhere("CldUndo", {{"EntryID", planned - 1}}), 10) << "a calendar goes";
  const auto removal = LastEntry();
  EXPECT_GT(KillEverywhere("CldUndo", {{"EntryID", removal}}), 10) << "a calendar comes back";
  EXPECT_EQ(Ask("SELECT count(*) FROM ferrowind.CldHistory"), "5");
}

TEST_F(PostgresPlanTrouble, APlanThatIsCutAnywhereIsDoneWhollyOrNotAtAll) {
  for (const auto direction : {CuttingProxy::Direction::kToServer, CuttingProxy::Direction::kToClient}) {
    int number = 1000 * (direction == CuttingProxy::Direction::kToServer ? 1 : 2);
    CutEverywhere(
        direction, "CldApplyPlan", [&] { return Plan(++number); },
        [&] {
          const std::string own = std::to_string(number);
          const std::string traces =
              Ask("SELECT concat_ws(' ', (SELECT count(*) FROM ferrowind.CldDay WHERE Comment = '" + own +
                  "'), (SELECT count(*) FROM ferrowind.CldHoliday WHERE Name1 LIKE '% " + own +
                  "'), (SELECT count(*) FROM ferrowind.CldHistory WHERE Parameters ->> 'Days' LIKE '%Point " +
                  own + "%'), (SELECT count(*) FROM ferrowind.CldDay WHERE Comment IS NOT NULL))");
          EXPECT_THAT(traces, AnyOf("4 2 1 4", "0 0 0 4", "0 0 0 0"));
          return traces == "4 2 1 4";
        });
  }
}

TEST_F(PostgresPlanTrouble, AnUndoThatIsCutAnywhereIsDoneWhollyOrNotAtAll) {
  ASSERT_EQ(Apply(1), 0);
  const std::string before = Fingerprint();
  int number = 1;
  std::string planned;
  for (const auto direction : {CuttingProxy::Direction::kToServer, CuttingProxy::Direction::kToClient}) {
    CutEverywhere(
        direction, "CldUndo",
        [&]() -> Arguments {
          if (Fingerprint() == before) {
            EXPECT_EQ(Apply(++number), 0);
            planned = Fingerprint();
          }
          return {{"EntryID", LastEntry()}};
        },
        [&] {
          const std::string now = Fingerprint();
          EXPECT_THAT(now, AnyOf(before, planned));
          EXPECT_EQ(Ask("SELECT count(*) FROM ferrowind.CldHoliday WHERE Name1 LIKE '% " +
                        std::to_string(number) + "'"),
                    now == before ? "0" : "2");
          return now == before;
        });
  }
}

TEST_F(PostgresPlanTrouble, NoTextForDaysOrRulesMakesTheServerFail) {
  std::mt19937 random(20261122);
  const auto pick = [&](std::size_t count) { return random() % count; };
  const std::string days = platform::ToText(Plan(1).at(3).second);
  const std::string rules =
      R"([{"Name1": "A", "TID1": 2, "Expression": "weekday Saturday", "Comment": "c"}, {"Name1":
    "B \u00e9", "TID1": 4, "Expression": "easter-2", "MovedName": null}])";
  const std::string pieces[] = {"{",          "}",    "[",         "]",        ",",
                                ":",          "\"",   "\\",        "\\u0000",  "\\ud800",
                                "\\u00e9",    "null", "1e999999",  "-1",       "1E400000",
                                "2026-02-30", "true", "\"Name1\"", "\"TID1\"", "\"\\u0054ID1\"",
                                "9",          "\n",   "'",         "\xC3\xA9"};
  ProcedureCaller steady(database_, 1000);
  for (int round = 0; round < 1500; ++round) {
    std::string text = round % 2 == 0 ? days : rules;
    for (std::size_t change = 0; change <= pick(3); ++change) {
      // In front of a character, not within one.
      std::size_t place = pick(text.size());
      while ((text[place] & 0xC0) == 0x80) --place;
      std::size_t end = std::min(text.size(), place + pick(4));
      while (end < text.size() && (text[end] & 0xC0) == 0x80) ++end;
      text.replace(place, end - place, pieces[pick(std::size(pieces))]);
    }
    int value = -1;
    const std::string failure = FailureTextOf([&] {
      value = round % 2 == 0
                  ? steady.Return("CldApplyPlan",
                                  {{"ID1", 978}, {"Year1", 2026}, {"Expected", "none"}, {"Days", text}})
                  : steady.Return("CldIUBook", {{"ID1", 978},
                                                {"Expected", "none"},
                                                {"Publisher", "P"},
                                                {"Document", "D"},
                                                {"Rules", text}});
    });
    ASSERT_THAT(failure, IsEmpty()) << text;
    ASSERT_THAT(value, AnyOf(7, 8)) << text;
  }
  EXPECT_EQ(LastEntry(), 0);
}

}  // namespace
}  // namespace ferrowind::contract
