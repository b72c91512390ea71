// What a server, a driver or its absence can do to a call by ODBC.

#include <memory>
#include <string>
#include <thread>
#include <vector>

#include <gmock/gmock.h>

#include "ferrowind/adapters/odbc/engine.h"
#include "ferrowind/platform/values/failure.h"

#include "tests/contract/database/procedure_caller.h"
#include "tests/contract/odbc/odbc_calls.h"
#include "tests/contract/odbc/odbc_database.h"
#include "tests/contract/odbc/odbc_server.h"
#include "tests/contract/postgres/postgres_server.h"

namespace ferrowind::contract {
namespace {

using platform::Value;
using ::testing::AllOf;
using ::testing::AnyOf;
using ::testing::HasSubstr;
using ::testing::Not;

TEST(OdbcTrouble, AWrongPasswordIsRefusedAndNotRepeated) {
  OdbcDatabase database;
  EXPECT_THAT(ConnectFailureOf(odbc_server::ConnectionString(postgres_server::kOperator, "wrong-secret-word",
                                                             database.Name())),
              AllOf(HasSubstr("password authentication failed"), Not(HasSubstr("wrong-secret-word"))));
}

TEST(OdbcTrouble, ADatabaseThatDoesNotExistIsNamed) {
  OdbcDatabase database;
  EXPECT_THAT(ConnectFailureOf(odbc_server::OperatorConnectionString("no_such_database")),
              HasSubstr("database \"no_such_database\" does not exist"));
}

TEST(OdbcTrouble, ADriverThatIsNotInstalledIsSaidToBe) {
  for (const std::string text : {"Driver={No Such Driver};Server=localhost;PWD=s3cret", "DSN=NoSuchSource",
                                 "Driver=/no/such/file.so;PWD=s3cret", "FileDSN=/no/such/file"}) {
    EXPECT_THAT(ConnectFailureOf(text),
                AllOf(HasSubstr("is not installed here"), HasSubstr("(ODBC IM"), Not(HasSubstr("s3cret"))))
        << text;
  }
}

TEST(OdbcTrouble, GarbageIsNoConnectionString) {
  for (const std::string text : {"s3cret", "Driver", "Driver={s3cret", "DSN=x;s3cret;", "Driver={a}s3cret"}) {
    EXPECT_THAT(ConnectFailureOf(text), AllOf(HasSubstr("is not understood"), Not(HasSubstr("s3cret"))))
        << text;
  }
}

TEST(OdbcTrouble, AnOperatorIsRefusedWhatIsAnAdministratorsAndTheConnectionGoesOn) {
  OdbcDatabase database;
  const auto connection = database.Engine().Connect(database.ConnectionString());
  const auto inputs = connection->DescribeProcedure("CldIUCurrency").size() - 1;
  EXPECT_THAT(
      FailureTextOf(
          [&] { static_cast<void>(connection->Call("CldIUCurrency", std::vector<Value>(inputs))); }),
      AllOf(HasSubstr("CldIUCurrency failed"), HasSubstr("does not permit this"), HasSubstr("42501")));
  EXPECT_EQ(CreateYear(*connection, 2026), 0);
}

/// Adds a procedure that locks the calendars, and then waits for somebody to stop it.
void AddSleeper(OdbcDatabase& database) {
  database.Execute(
      "CREATE PROCEDURE ferrowind.LockAndSleep(INOUT \"RETURN_VALUE\" integer) LANGUAGE plpgsql AS $$ BEGIN "
      "LOCK TABLE ferrowind.CldCalendar; PERFORM pg_sleep(3600); \"RETURN_VALUE\" := 0; END $$");
}

std::string SleepFailureOf(OdbcDatabase& database, const std::string& more) {
  const auto connection =
      database.Engine().Connect(odbc_server::SuperuserConnectionString(database.Name()) + more);
  return FailureTextOf([&] { static_cast<void>(connection->Call("LockAndSleep", {})); });
}

TEST(OdbcTrouble, ACallThatTakesTooLongIsStoppedAndHasDoneNothing) {
  OdbcDatabase database;
  AddSleeper(database);
  EXPECT_THAT(SleepFailureOf(database, ";CallTimeout=1"),
              AllOf(HasSubstr("LockAndSleep took longer than a call may"), HasSubstr("(ODBC 57014: ")));
  EXPECT_EQ(CreateYear(database, 2026), 0) << "its lock has gone with it";
}

TEST(OdbcTrouble, ALockedCalendarIsAClearFailure) {
  OdbcDatabase database;
  AddSleeper(database);
  const std::string sleeping =
      " FROM pg_stat_activity WHERE datname = current_database() AND wait_event = 'PgSleep'";
  std::string failure_of_sleeper;
  std::thread sleeper([&] { failure_of_sleeper = SleepFailureOf(database, ";CallTimeout=600"); });
  while (postgres_server::Ask(database.Name(), "SELECT count(*)::integer" + sleeping) == "0") {
    std::this_thread::yield();
  }
  const std::string failure = FailureTextOf([&] { static_cast<void>(CreateYear(database, 2026)); });
  database.Execute("SELECT pg_cancel_backend(pid)" + sleeping);
  sleeper.join();
  EXPECT_THAT(failure, AllOf(HasSubstr("CldIUMain failed"), HasSubstr("is locked by another program"),
                             HasSubstr("(ODBC 55P03: ")));
  EXPECT_THAT(failure_of_sleeper, AllOf(HasSubstr("LockAndSleep failed"), HasSubstr("it was told to stop"),
                                        HasSubstr("(ODBC 57014: ")));
  EXPECT_EQ(CreateYear(database, 2026), 0);
}

TEST(OdbcTrouble, AServerWithoutFreeConnectionsFailsTheCallUntilThereIsOne) {
  OdbcDatabase database;
  std::vector<std::unique_ptr<platform::Connection>> connections;
  std::string failure;
  for (int i = 0; i < 100 && failure.empty(); ++i) {
    failure =
        FailureTextOf([&] { connections.push_back(database.Engine().Connect(database.ConnectionString())); });
  }
  EXPECT_THAT(failure, AllOf(HasSubstr("cannot be connected to"),
                             AnyOf(HasSubstr("connection slots"), HasSubstr("too many clients"))));
  ASSERT_FALSE(connections.empty());
  EXPECT_EQ(CreateYear(*connections.front(), 2026), 0);
}

TEST(OdbcTrouble, NoWatchIsOffered) {
  odbc::Engine engine;
  EXPECT_EQ(engine.Watch("DSN=Calendars"), nullptr);
  EXPECT_EQ(engine.WatchSilence("DSN=Calendars"), nullptr);
  EXPECT_THROW(static_cast<void>(engine.Watch("s3cret")), platform::Failure);
}

}  // namespace
}  // namespace ferrowind::contract
