// What the gateway says, and what the tables hold, when the server is in trouble.

#include <array>
#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "ferrowind/adapters/postgres/server_connection.h"
#include "ferrowind/platform/database/engine_registry.h"
#include "ferrowind/platform/values/failure.h"

#include "host/session/procedure_session.h"
#include "tests/contract/database/procedure_caller.h"
#include "tests/contract/postgres/cutting_proxy.h"
#include "tests/contract/postgres/postgres_database.h"
#include "tests/contract/postgres/postgres_server.h"

namespace ferrowind::contract {
namespace {

using ::testing::AllOf;
using ::testing::AnyOf;
using ::testing::Gt;
using ::testing::HasSubstr;
using ::testing::Lt;
using ::testing::Not;

/// A call through the component's gateway.
host::ProcedureOutcome Gateway(const std::string& uri, const std::string& procedure,
                               const SourceValues& values) {
  platform::EngineRegistry engines;
  engines.Register(postgres::Engine::kScheme, std::make_shared<postgres::Engine>());
  host::ProcedureOutcome outcome;
  host::RunWithDatabase(engines, uri, [&] { outcome = host::CallProcedure(procedure, values); });
  return outcome;
}

struct Calendar {
  int currency;
  int year;
};

host::ProcedureOutcome CreateCalendar(const std::string& uri, const Calendar& calendar) {
  SourceValues values;
  values.Add("ID1", calendar.currency);
  values.Add("Year1", calendar.year);
  return Gateway(uri, "CldIUMain", values);
}

void ExpectFailedCall(const host::ProcedureOutcome& outcome, const std::string& mention) {
  EXPECT_EQ(outcome.return_value, -1);
  ASSERT_TRUE(outcome.failure.has_value());
  EXPECT_NE(outcome.failure->Number(), 0);
  EXPECT_THAT(outcome.failure->Description(),
              AllOf(HasSubstr(mention), Not(HasSubstr(postgres_server::kOperatorPassword)),
                    Not(HasSubstr("postgresql://"))));
}

TEST(PostgresTrouble, AStoppedServerFailsTheCallAndTheNextCallAfterItsStartWorks) {
  PostgresDatabase database;
  ASSERT_EQ(CreateCalendar(database.ConnectionString(), {978, 2025}).return_value, 0);
  postgres_server::Control("stop");
  const auto outcome = CreateCalendar(database.ConnectionString(), {978, 2026});
  postgres_server::Control("start");
  ExpectFailedCall(outcome, "cannot be connected to");
  EXPECT_EQ(CreateCalendar(database.ConnectionString(), {978, 2025}).return_value, 6)
      << "what was done is kept";
  EXPECT_EQ(CreateCalendar(database.ConnectionString(), {978, 2026}).return_value, 0);
}

TEST(PostgresTrouble, AServerRestartedDuringAConnectionFailsItsCallAndKeepsNothingOfIt) {
  PostgresDatabase database;
  const auto connection = database.Engine().Connect(database.ConnectionString());
  static_cast<void>(connection->DescribeProcedure("CldIUMain"));
  postgres_server::Control("restart");
  const std::string failure = FailureTextOf([&] {
    static_cast<void>(
        connection->Call("CldIUMain", {platform::Value(978), platform::Value(2026), {}, {}, {}, {}, {}}));
  });
  EXPECT_THAT(failure, AllOf(HasSubstr("CldIUMain was interrupted"), HasSubstr("PostgreSQL")));
  EXPECT_EQ(CreateCalendar(database.ConnectionString(), {978, 2026}).return_value, 0);
}

TEST(PostgresTrouble, AWrongPasswordIsRefusedAndNotRepeated) {
  PostgresDatabase database;
  const std::string wrong = "wrong-secret-word";
  const auto outcome =
      CreateCalendar(postgres_server::Uri(postgres_server::kOperator, wrong, database.Name()), {978, 2026});
  ExpectFailedCall(outcome, "password authentication failed");
  EXPECT_THAT(outcome.failure->Description(), Not(HasSubstr(wrong)));
}

TEST(PostgresTrouble, ADatabaseThatDoesNotExistIsNamed) {
  PostgresDatabase database;
  ExpectFailedCall(CreateCalendar(postgres_server::OperatorUri("no_such_database"), {978, 2026}),
                   "no_such_database");
}

TEST(PostgresTrouble, TlsThatTheServerDoesNotHaveIsAClearFailure) {
  PostgresDatabase database;
  ExpectFailedCall(CreateCalendar(database.ConnectionString() + "?sslmode=require", {978, 2026}), "SSL");
}

TEST(PostgresTrouble, AServerWithoutFreeConnectionsFailsTheCallUntilThereIsOne) {
  PostgresDatabase database;
  std::vector<std::unique_ptr<platform::Connection>> connections;
  std::string failure;
  for (int i = 0; i < 100 && failure.empty(); ++i) {
    failure =
        FailureTextOf([&] { connections.push_back(database.Engine().Connect(database.ConnectionString())); });
  }
  EXPECT_THAT(failure, AnyOf(HasSubstr("connection slots"), HasSubstr("too many clients")));
  ExpectFailedCall(CreateCalendar(database.ConnectionString(), {978, 2026}), "cannot be connected to");
  connections.clear();
  // The server notices the end of a connection when its process does.
  int return_value = -1;
  for (int i = 0; i < 200 && return_value == -1; ++i) {
    return_value = CreateCalendar(database.ConnectionString(), {978, 2026}).return_value;
  }
  EXPECT_EQ(return_value, 0);
}

TEST(PostgresTrouble, ACalendarThatIsLockedForLongIsAClearFailure) {
  PostgresDatabase database;
  ASSERT_EQ(CreateCalendar(database.ConnectionString(), {978, 2026}).return_value, 0);
  postgres::ServerConnection locker(postgres_server::SuperuserUri(database.Name()));
  locker.RunScript("BEGIN; LOCK TABLE ferrowind.CldCalendar IN ACCESS EXCLUSIVE MODE");
  ExpectFailedCall(CreateCalendar(database.ConnectionString(), {978, 2026}), "is locked by another program");
  locker.RunScript("ROLLBACK");
  EXPECT_EQ(CreateCalendar(database.ConnectionString(), {978, 2026}).return_value, 6);
}

/// The `number`th of the calendars that can be created.
Calendar NthCalendar(std::size_t number) {
  constexpr std::array<int, 6> kCurrencies = {978, 840, 826, 392, 756, 36};
  constexpr std::size_t kYears = 1101;
  return {kCurrencies.at(number / kYears), 1900 + static_cast<int>(number % kYears)};
}

/// Cuts the connection of a creating call after every number of bytes, from none to all that the call sends
/// in `direction`. It ends with the call, since what makes a kept session ready for the next one is no part
/// of it.
void CutEverywhere(CuttingProxy::Direction direction) {
  PostgresDatabase database;
  const auto through = [&](CuttingProxy& proxy) {
    return postgres_server::Uri(postgres_server::kOperator, postgres_server::kOperatorPassword,
                                database.Name(), proxy.Port()) +
           "?sslmode=disable&gssencmode=disable&keep_sessions=no";
  };
  // Open all the while, since a new connection costs the server more than a call.
  const auto uncut_connection = database.Engine().Connect(database.ConnectionString());
  std::size_t calendars = 0;
  std::size_t whole = 0;
  {
    CuttingProxy uncut(postgres_server::Port(), direction, CuttingProxy::kNever);
    const auto outcome = CreateCalendar(through(uncut), NthCalendar(calendars++));
    ASSERT_EQ(outcome.return_value, 0) << (outcome.failure ? outcome.failure->Description() : "");
    whole = uncut.Passed();
  }
  ASSERT_GT(whole, 500U);
  std::size_t done_though_failed = 0;
  std::size_t done = 0;
  for (std::size_t limit = 0; limit <= whole && !::testing::Test::HasFailure(); ++limit) {
    SCOPED_TRACE("cut after " + std::to_string(limit) + " of " + std::to_string(whole) + " bytes");
    const Calendar calendar = NthCalendar(calendars++);
    CuttingProxy proxy(postgres_server::Port(), direction, limit);
    const auto outcome = CreateCalendar(through(proxy), calendar);
    // The server may still be at work for a client that is gone; creating the calendar waits for that.
    const int again =
        CallOver(*uncut_connection, "CldIUMain", {{"ID1", calendar.currency}, {"Year1", calendar.year}})
            .return_value;
    if (outcome.return_value == 0) {
      ++done;
      EXPECT_EQ(again, 6);
    } else {
      ExpectFailedCall(outcome, "The ");
      EXPECT_THAT(outcome.failure->Description(),
                  AnyOf(HasSubstr("cannot be connected to"), HasSubstr("was disconnected")));
      EXPECT_THAT(again, AnyOf(0, 6));
      if (again == 6) ++done_though_failed;
    }
  }
  EXPECT_EQ(CreateCalendar(database.ConnectionString(), NthCalendar(calendars++)).return_value, 0);
  // Only the last message of either side can be lost without the call failing: the client's farewell.
  EXPECT_THAT(done, AllOf(Gt(0U), Lt(10U)));
  // The server's last answers, whose loss leaves the work done. A cut on the way there may take with it what
  // the server has received and not yet read, so nothing need be done then.
  EXPECT_THAT(done_though_failed, Lt(whole / 4));
  if (direction == CuttingProxy::Direction::kToClient) EXPECT_THAT(done_though_failed, Gt(0U));
  EXPECT_EQ(postgres_server::Ask(database.Name(), "SELECT count(*)::int8 FROM ferrowind.CldCalendar"),
            std::to_string(calendars))
      << "the next call always did what the cut one had not done";
  EXPECT_EQ(postgres_server::Ask(database.Name(), "SELECT count(*) FROM ferrowind.CldHistory"),
            std::to_string(calendars))
      << "each was created by one call";
  EXPECT_TRUE(database.IsSound()) << "every calendar has all its days";
}

TEST(PostgresTrouble, ACallWhoseAnswersAreCutAnywhereFailsAndIsDoneWhollyOrNotAtAll) {
  CutEverywhere(CuttingProxy::Direction::kToClient);
}

TEST(PostgresTrouble, ACallThatIsCutAnywhereOnItsWayFailsAndIsDoneWhollyOrNotAtAll) {
  CutEverywhere(CuttingProxy::Direction::kToServer);
}

}  // namespace
}  // namespace ferrowind::contract
