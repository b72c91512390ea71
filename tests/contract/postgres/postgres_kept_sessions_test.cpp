// Sessions that are kept between calls: what they save, what ends them, and that no call is worse off for
// them.

#include <atomic>
#include <chrono>
#include <cstddef>
#include <cstdlib>
#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include <gmock/gmock.h>
#include <sys/wait.h>
#include <unistd.h>

#include "ferrowind/adapters/postgres/engine.h"
#include "ferrowind/platform/values/value.h"

#include "tests/contract/database/procedure_caller.h"
#include "tests/contract/postgres/postgres_database.h"
#include "tests/contract/postgres/postgres_server.h"

namespace ferrowind::contract {
namespace {

using std::chrono::milliseconds;
using std::chrono::seconds;
using ::testing::AnyOf;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

class PostgresKeptSessions : public ::testing::Test {
 protected:
  static void SetUpTestSuite() {
    database_ = std::make_unique<PostgresDatabase>();
    // What a procedure may leave on a session; the delivered ones leave nothing.
    database_->Execute(R"(
SET search_path = ferrowind;
CREATE SEQUENCE Counted;
-- Fails when it finds one of them.
CREATE PROCEDURE LeaveThings(INOUT "RETURN_VALUE" integer) LANGUAGE plpgsql AS $$
DECLARE
  found text := concat_ws(', ',
    CASE WHEN coalesce(current_setting('ferrowind.left', true), '') <> '' THEN 'a setting of a name of its own' END,
    CASE WHEN current_setting('statement_timeout') <> '0' THEN 'a setting' END,
    CASE WHEN current_user <> session_user THEN 'a role' END,
    (SELECT 'a prepared statement' FROM pg_prepared_statements),
    (SELECT 'a channel' FROM pg_listening_channels()),
    (SELECT 'a cursor' FROM pg_cursors WHERE is_holdable),
    (SELECT 'a temporary table' FROM pg_class WHERE relname = 'left_things' AND pg_table_is_visible(oid)));
BEGIN
  BEGIN
    PERFORM lastval();
    found := concat_ws(', ', NULLIF(found, ''), 'a number of a sequence');
  EXCEPTION WHEN object_not_in_prerequisite_state THEN NULL;
  END;
  IF found <> '' THEN
    RAISE EXCEPTION 'found %', found;
  END IF;
  "RETURN_VALUE" := 0;
  PERFORM set_config('ferrowind.left', 'left', false), set_config('statement_timeout', '77s', false),
    pg_advisory_lock(4711), nextval('ferrowind.counted');
  EXECUTE 'PREPARE left_statement AS SELECT 1';
  EXECUTE 'LISTEN left_channel';
  EXECUTE 'DECLARE left_cursor CURSOR WITH HOLD FOR SELECT 1';
  EXECUTE 'CREATE TEMPORARY TABLE left_things (n integer)';
  EXECUTE 'SET ROLE ferrowind_operator';
END $$;
CREATE PROCEDURE Subtract("First" integer, "Second" integer, INOUT "RETURN_VALUE" integer) LANGUAGE plpgsql AS $$
BEGIN "RETURN_VALUE" := "First" - "Second"; END $$;
GRANT EXECUTE ON PROCEDURE LeaveThings, Subtract TO ferrowind_operator;
GRANT USAGE ON SEQUENCE Counted TO ferrowind_operator)");
    database_->Execute("GRANT TEMPORARY ON DATABASE " + database_->Name() + " TO ferrowind_operator");
  }
  static void TearDownTestSuite() { database_.reset(); }
  ~PostgresKeptSessions() override { EndSessions(); }

  std::string Uri(const std::string& more = "") { return database_->ConnectionString() + more; }
  static int Return(postgres::Engine& engine, const std::string& uri, const std::string& procedure,
                    const Arguments& arguments = {}) {
    const auto connection = engine.Connect(uri);
    return CallOver(*connection, procedure, arguments).return_value;
  }
  static int Read(postgres::Engine& engine, const std::string& uri) {
    return Return(engine, uri, "CldAllInfo");
  }
  /// One that there is not yet.
  static int CreateCalendar(postgres::Engine& engine, const std::string& uri) {
    return Return(engine, uri, "CldIUMain", {{"ID1", 840}, {"Year1", NextYear()}});
  }
  static int NextYear() {
    static int year = 2000;
    return ++year;
  }
  static std::string FailureOfReading(postgres::Engine& engine, const std::string& uri) {
    return FailureTextOf([&] { static_cast<void>(Read(engine, uri)); });
  }
  /// The processes of the server that operators are connected to.
  std::string Processes() {
    return postgres_server::Ask(
        "postgres",
        "SELECT coalesce(string_agg(pid::text, ' ' ORDER BY pid), '') FROM pg_stat_activity"
        " WHERE datname = '" +
            database_->Name() + "' AND usename <> 'postgres'");
  }
  /// Whether they are gone within a few seconds.
  bool AreGone() {
    return Comes([&] { return Processes().empty(); });
  }
  static bool Comes(const std::function<bool()>& condition) {
    for (int i = 0; i < 100; ++i) {
      if (condition()) return true;
      std::this_thread::sleep_for(milliseconds(50));
    }
    return false;
  }
  void EndSessions() {
    postgres_server::Execute(
        "postgres", "SELECT pg_terminate_backend(pid, 5000) FROM pg_stat_activity WHERE datname = '" +
                        database_->Name() + "' AND usename <> 'postgres'");
  }

  static std::unique_ptr<PostgresDatabase> database_;
  postgres::Engine engine_;
};

std::unique_ptr<PostgresDatabase> PostgresKeptSessions::database_;

TEST_F(PostgresKeptSessions, ACallUsesTheSessionOfTheCallBeforeIt) {
  ASSERT_EQ(Read(engine_, Uri()), 0);
  const std::string process = Processes();
  ASSERT_THAT(process, Not(IsEmpty()));
  for (int i = 0; i < 4; ++i) EXPECT_EQ(CreateCalendar(engine_, Uri()), 0);
  EXPECT_EQ(engine_.ReadDictionary(Uri(), "Ccy")->Eof(), false);
  EXPECT_EQ(Processes(), process);
}

TEST_F(PostgresKeptSessions, TwoCallsAtOnceHaveASessionEach) {
  const auto one = engine_.Connect(Uri());
  const auto other = engine_.Connect(Uri());
  EXPECT_EQ(CallOver(*one, "CldAllInfo", {}).return_value, 0);
  EXPECT_EQ(CallOver(*other, "CldAllInfo", {}).return_value, 0);
  EXPECT_THAT(Processes(), HasSubstr(" "));
}

TEST_F(PostgresKeptSessions, NoneIsKeptWhereTheConnectionStringSaysSo) {
  ASSERT_EQ(Read(engine_, Uri("?keep_sessions=no")), 0);
  EXPECT_TRUE(AreGone());
}

TEST_F(PostgresKeptSessions, TheEngineClosesThemAtItsEnd) {
  {
    postgres::Engine engine;
    ASSERT_EQ(Read(engine, Uri()), 0);
    ASSERT_THAT(Processes(), Not(IsEmpty()));
  }
  EXPECT_TRUE(AreGone());
}

TEST_F(PostgresKeptSessions, AreClosedWhenTheirLifeIsOverThoughNoCallComes) {
  postgres::Engine engine(milliseconds(300));
  ASSERT_EQ(Read(engine, Uri()), 0);
  EXPECT_TRUE(AreGone());
}

TEST_F(PostgresKeptSessions, AreResetBetweenCalls) {
  ASSERT_EQ(Return(engine_, Uri(), "LeaveThings"), 0);
  const std::string process = Processes();
  EXPECT_TRUE(Comes([] {
    return postgres_server::Ask("postgres",
                                "SELECT count(*)::text FROM pg_locks WHERE locktype = 'advisory'") == "0";
  })) << "the reset does not wait for the next call";
  EXPECT_EQ(Return(engine_, Uri(), "LeaveThings"), 0) << "what the first call has left is gone";
  EXPECT_EQ(Processes(), process);
}

TEST_F(PostgresKeptSessions, AreResetBetweenTheCallsOfOneConnection) {
  const auto connection = engine_.Connect(Uri());
  ASSERT_EQ(CallOver(*connection, "LeaveThings", {}).return_value, 0);
  EXPECT_TRUE(Comes([] {
    return postgres_server::Ask("postgres",
                                "SELECT count(*)::text FROM pg_locks WHERE locktype = 'advisory'") == "0";
  })) << "the reset does not wait for the end of the connection";
  EXPECT_EQ(CallOver(*connection, "LeaveThings", {}).return_value, 0);
}

TEST_F(PostgresKeptSessions, OneThatTheServerEndsBetweenTheCallsOfOneConnectionCostsNone) {
  const auto connection = engine_.Connect(Uri());
  EXPECT_EQ(CallOver(*connection, "CldIUMain", {{"ID1", 978}, {"Year1", NextYear()}}).return_value, 0);
  EndSessions();
  EXPECT_EQ(CallOver(*connection, "CldIUMain", {{"ID1", 978}, {"Year1", NextYear()}}).return_value, 0);
}

TEST_F(PostgresKeptSessions, OneOnWhichACallHasFailedIsClosed) {
  EXPECT_THAT(FailureTextOf([&] { static_cast<void>(Return(engine_, Uri(), "CldNothing")); }),
              HasSubstr("CldNothing"));
  EXPECT_TRUE(AreGone());
}

TEST_F(PostgresKeptSessions, OneThatTheServerHasEndedCostsNoCall) {
  for (int i = 0; i < 4; ++i) {
    ASSERT_EQ(CreateCalendar(engine_, Uri()), 0);
    EndSessions();
  }
  postgres_server::Control("restart");
  EXPECT_EQ(CreateCalendar(engine_, Uri()), 0);
}

TEST_F(PostgresKeptSessions, OneThatDiesUnnoticedIsFoundByTheDescriptionAndCostsNoCall) {
  ASSERT_EQ(CreateCalendar(engine_, Uri()), 0);
  // Longer than descriptions are remembered.
  std::this_thread::sleep_for(milliseconds(1100));
  const auto connection = engine_.Connect(Uri());
  EndSessions();
  EXPECT_EQ(CallOver(*connection, "CldIUMain", {{"ID1", 840}, {"Year1", NextYear()}}).return_value, 0);
}

TEST_F(PostgresKeptSessions, AChangeThatIsCutIsNotRepeated) {
  ASSERT_EQ(CreateCalendar(engine_, Uri()), 0);
  const auto connection = engine_.Connect(Uri());
  static_cast<void>(connection->DescribeProcedure("CldIUMain"));
  EndSessions();
  EXPECT_THAT(FailureTextOf([&] {
                static_cast<void>(connection->Call(
                    "CldIUMain", {platform::Value(840), platform::Value(NextYear()), {}, {}, {}, {}, {}}));
              }),
              HasSubstr("it has done all of its work or nothing, so look before you call it again"));
  EXPECT_EQ(CreateCalendar(engine_, Uri()), 0);
}

TEST_F(PostgresKeptSessions, EachLoginHasItsOwn) {
  ASSERT_EQ(Read(engine_, Uri()), 0);
  const std::string wrong = postgres_server::Uri(postgres_server::kOperator, "wrong", database_->Name());
  EXPECT_THAT(FailureOfReading(engine_, wrong), HasSubstr("password authentication failed"));
  // What the connection string leaves out comes from the environment.
  std::string without_password = Uri();
  const auto at = without_password.find('@');
  without_password.erase(without_password.rfind(':', at), at - without_password.rfind(':', at));
  ASSERT_EQ(setenv("PGPASSWORD", postgres_server::kOperatorPassword, 1), 0);
  EXPECT_EQ(Read(engine_, without_password), 0);
  ASSERT_EQ(setenv("PGPASSWORD", "wrong", 1), 0);
  EXPECT_THAT(FailureOfReading(engine_, without_password), HasSubstr("password authentication failed"));
  unsetenv("PGPASSWORD");
}

TEST_F(PostgresKeptSessions, ALoginThatIsForbiddenEndsWithTheLifeOfItsSession) {
  postgres_server::Execute("postgres", "CREATE ROLE leaver LOGIN PASSWORD 'gone' IN ROLE ferrowind_operator");
  const std::string uri = postgres_server::Uri("leaver", "gone", database_->Name());
  postgres::Engine engine(seconds(2));
  ASSERT_EQ(Read(engine, uri), 0);
  postgres_server::Execute("postgres", "ALTER ROLE leaver PASSWORD 'new'");
  const auto begin = std::chrono::steady_clock::now();
  EXPECT_TRUE(Comes([&] { return !FailureOfReading(engine, uri).empty(); }))
      << "though it is used all the while";
  EXPECT_LT(std::chrono::steady_clock::now() - begin, seconds(4));
  EXPECT_THAT(FailureOfReading(engine, uri), HasSubstr("password authentication failed"));
  postgres_server::Execute("postgres", "DROP ROLE leaver");
}

TEST_F(PostgresKeptSessions, RightsThatAreTakenAwayAreGoneAtOnce) {
  ASSERT_EQ(Return(engine_, Uri(), "Subtract", {{"First", 1}, {"Second", 1}}), 0);
  database_->Execute("REVOKE EXECUTE ON PROCEDURE ferrowind.Subtract FROM ferrowind_operator, PUBLIC");
  EXPECT_THAT(FailureTextOf([&] {
                static_cast<void>(Return(engine_, Uri(), "Subtract", {{"First", 1}, {"Second", 1}}));
              }),
              HasSubstr("does not permit this"));
  database_->Execute("GRANT EXECUTE ON PROCEDURE ferrowind.Subtract TO ferrowind_operator");
}

TEST_F(PostgresKeptSessions, AProcedureThatIsDeclaredAnewGetsItsValuesByTheirNames) {
  ASSERT_EQ(Return(engine_, Uri(), "Subtract", {{"First", 7}, {"Second", 7}}), 0);
  database_->Execute(R"(
DROP PROCEDURE ferrowind.Subtract;
CREATE PROCEDURE ferrowind.Subtract("Second" integer, "First" integer, INOUT "RETURN_VALUE" integer) LANGUAGE plpgsql
AS $$ BEGIN "RETURN_VALUE" := "First" - "Second"; END $$;
GRANT EXECUTE ON PROCEDURE ferrowind.Subtract TO ferrowind_operator)");
  EXPECT_EQ(Return(engine_, Uri(), "Subtract", {{"First", 9}, {"Second", 4}}), 5);
  database_->Execute(R"(
DROP PROCEDURE ferrowind.Subtract;
CREATE PROCEDURE ferrowind.Subtract("Second" integer, "Third" integer, INOUT "RETURN_VALUE" integer) LANGUAGE plpgsql
AS $$ BEGIN "RETURN_VALUE" := 0; END $$;
GRANT EXECUTE ON PROCEDURE ferrowind.Subtract TO ferrowind_operator)");
  EXPECT_THAT(FailureTextOf([&] {
                static_cast<void>(Return(engine_, Uri(), "Subtract", {{"First", 9}, {"Second", 4}}));
              }),
              Not(IsEmpty()));
}

TEST_F(PostgresKeptSessions, OneWhoseServerTakesNoChangesAnyMoreIsNotUsedForThem) {
  const std::string uri = Uri("?target_session_attrs=read-write");
  ASSERT_EQ(CreateCalendar(engine_, uri), 0);
  std::this_thread::sleep_for(milliseconds(1100));
  const auto set = [](const std::string& what) {
    postgres_server::Execute("postgres", "ALTER SYSTEM " + what);
    postgres_server::Execute("postgres", "SELECT pg_reload_conf()");
    std::this_thread::sleep_for(milliseconds(200));
  };
  set("SET default_transaction_read_only = on");
  const std::string failure = FailureTextOf([&] { static_cast<void>(CreateCalendar(engine_, uri)); });
  set("RESET default_transaction_read_only");
  EXPECT_THAT(failure, HasSubstr("cannot be connected to")) << "another server was looked for";
  EXPECT_EQ(CreateCalendar(engine_, uri), 0);
}

TEST_F(PostgresKeptSessions, AChildProcessLeavesThemToItsParent) {
  ASSERT_EQ(Read(engine_, Uri()), 0);
  const std::string process = Processes();
  const pid_t child = fork();
  if (child == 0) {
    // Uses the engine, and destroys a copy of all that it keeps.
    int status = 1;
    try {
      auto inherited = std::make_unique<postgres::Engine>(std::chrono::minutes(1));
      status = Read(engine_, Uri()) == 0 && Read(*inherited, Uri()) == 0 ? 0 : 2;
      inherited.reset();
      engine_.~Engine();
    } catch (...) {
      status = 3;
    }
    _exit(status);
  }
  int status = -1;
  ASSERT_EQ(waitpid(child, &status, 0), child);
  EXPECT_EQ(status, 0);
  EXPECT_EQ(Read(engine_, Uri()), 0);
  EXPECT_TRUE(Comes([&] { return Processes() == process; })) << "the parent's is the one that is left";
}

/// Operators who create calendars one after the other, all over one engine.
class Operators {
 public:
  static constexpr int kCount = 16;

  Operators(postgres::Engine& engine, const std::string& uri) {
    for (int number = 0; number < kCount; ++number) {
      threads_.emplace_back([this, &engine, uri, number] { Work(engine, uri, number); });
    }
  }
  Operators(const Operators&) = delete;
  Operators& operator=(const Operators&) = delete;
  ~Operators() { Stop(); }

  void Stop() {
    is_over_ = true;
    for (auto& thread : threads_) {
      if (thread.joinable()) thread.join();
    }
  }
  [[nodiscard]] std::size_t Done() const { return done_; }
  [[nodiscard]] std::vector<int> TakeDoneYears() { return std::exchange(done_years_, {}); }
  [[nodiscard]] std::vector<std::string> Failures() {
    const std::lock_guard lock(mutex_);
    return failures_;
  }
  /// Until so many more calls are done.
  [[nodiscard]] bool Do(std::size_t more) const {
    const std::size_t wanted = done_ + more;
    for (int i = 0; i < 600 && done_ < wanted; ++i) std::this_thread::sleep_for(milliseconds(50));
    return done_ >= wanted;
  }

 private:
  void Work(postgres::Engine& engine, const std::string& uri, int number) {
    constexpr int kFirstYear = 1900;
    constexpr int kLastYear = 3000;
    for (int year = kFirstYear + number; year <= kLastYear && !is_over_; year += kCount) {
      const std::string failure = FailureTextOf([&] {
        const auto connection = engine.Connect(uri);
        static_cast<void>(CallOver(*connection, "CldIUMain", {{"ID1", 978}, {"Year1", year}}));
      });
      // As long as an operator takes at the least to read why.
      if (!failure.empty()) std::this_thread::sleep_for(milliseconds(100));
      const std::lock_guard lock(mutex_);
      if (failure.empty()) {
        done_years_.push_back(year);
        ++done_;
      } else {
        failures_.push_back(failure);
      }
    }
  }

  std::atomic<bool> is_over_ = false;
  std::atomic<std::size_t> done_ = 0;
  std::mutex mutex_;
  std::vector<int> done_years_;
  std::vector<std::string> failures_;
  std::vector<std::thread> threads_;
};

TEST_F(PostgresKeptSessions, OperatorsLoseNoAcknowledgedCallToCutsARestartAndANewPassword) {
  postgres_server::Execute("postgres", "CREATE ROLE many LOGIN PASSWORD 'old' IN ROLE ferrowind_operator");
  postgres::Engine engine(seconds(2));
  Operators operators(engine, postgres_server::Uri("many", "old", database_->Name()));
  ASSERT_TRUE(operators.Do(40));
  EXPECT_THAT(operators.Failures(), IsEmpty());
  EndSessions();
  EXPECT_TRUE(operators.Do(20));
  postgres_server::Control("restart");
  EXPECT_TRUE(operators.Do(20));
  // The two met what was under way or began meanwhile, and nothing behind that.
  const std::size_t failures = operators.Failures().size();
  EXPECT_TRUE(operators.Do(40));
  EXPECT_EQ(operators.Failures().size(), failures);
  for (const std::string& failure : operators.Failures()) {
    EXPECT_THAT(failure, AnyOf(HasSubstr("was interrupted"), HasSubstr("cannot be connected to"),
                               HasSubstr("is being stopped"), HasSubstr("was disconnected")));
  }
  postgres_server::Execute("postgres", "ALTER ROLE many PASSWORD 'new'");
  const auto changed = std::chrono::steady_clock::now();
  EXPECT_TRUE(Comes([&] {
    const auto failures = operators.Failures();
    return !failures.empty() && failures.back().find("password authentication failed") != std::string::npos;
  }));
  std::this_thread::sleep_until(changed + seconds(3));
  const std::size_t done = operators.Done();
  std::this_thread::sleep_for(milliseconds(500));
  EXPECT_EQ(operators.Done(), done) << "a session that logged in with the old password is still used";
  operators.Stop();
  std::string years;
  for (const int year : operators.TakeDoneYears()) years += "," + std::to_string(year);
  EXPECT_EQ(postgres_server::Ask(database_->Name(),
                                 "SELECT coalesce(string_agg(year::text, ' '), '') FROM unnest(ARRAY[" +
                                     years.substr(1) +
                                     "]) AS done(year) WHERE NOT EXISTS (SELECT FROM ferrowind.CldCalendar "
                                     "WHERE ID1 = 978 AND Year1 = year)"),
            "")
      << "are lost";
  postgres_server::Execute("postgres", "DROP ROLE many");
}

}  // namespace
}  // namespace ferrowind::contract
