// What the gateway says, and what the tables hold, when the server is in trouble.

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
using ::testing::HasSubstr;
using ::testing::Not;

/// The distance between two places where a connection is cut: a prime, so that it meets every kind of place
/// within a message.
constexpr std::size_t kCutStep = 13;

/// A call through the component's gateway.
host::ProcedureOutcome Gateway(const std::string& uri, const std::string& procedure,
                               const SourceValues& values) {
  platform::EngineRegistry engines;
  engines.Register(postgres::Engine::kScheme, std::make_shared<postgres::Engine>());
  host::ProcedureOutcome outcome;
  host::RunWithDatabase(engines, uri, [&] { outcome = host::CallProcedure(procedure, values); });
  return outcome;
}

host::ProcedureOutcome CreateCalendar(const std::string& uri, int year) {
  SourceValues values;
  values.Add("ID1", 978);
  values.Add("Year1", year);
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
  ASSERT_EQ(CreateCalendar(database.ConnectionString(), 2025).return_value, 0);
  postgres_server::Control("stop");
  const auto outcome = CreateCalendar(database.ConnectionString(), 2026);
  postgres_server::Control("start");
  ExpectFailedCall(outcome, "cannot be connected to");
  EXPECT_EQ(CreateCalendar(database.ConnectionString(), 2025).return_value, 6) << "what was done is kept";
  EXPECT_EQ(CreateCalendar(database.ConnectionString(), 2026).return_value, 0);
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
  EXPECT_EQ(CreateCalendar(database.ConnectionString(), 2026).return_value, 0);
}

TEST(PostgresTrouble, AWrongPasswordIsRefusedAndNotRepeated) {
  PostgresDatabase database;
  const std::string wrong = "wrong-secret-word";
  const auto outcome =
      CreateCalendar(postgres_server::Uri(postgres_server::kOperator, wrong, database.Name()), 2026);
  ExpectFailedCall(outcome, "password authentication failed");
  EXPECT_THAT(outcome.failure->Description(), Not(HasSubstr(wrong)));
}

TEST(PostgresTrouble, ADatabaseThatDoesNotExistIsNamed) {
  PostgresDatabase database;
  ExpectFailedCall(CreateCalendar(postgres_server::OperatorUri("no_such_database"), 2026),
                   "no_such_database");
}

TEST(PostgresTrouble, TlsThatTheServerDoesNotHaveIsAClearFailure) {
  PostgresDatabase database;
  ExpectFailedCall(CreateCalendar(database.ConnectionString() + "?sslmode=require", 2026), "SSL");
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
  ExpectFailedCall(CreateCalendar(database.ConnectionString(), 2026), "cannot be connected to");
  connections.clear();
  // The server notices the end of a connection when its process does.
  int return_value = -1;
  for (int i = 0; i < 200 && return_value == -1; ++i) {
    return_value = CreateCalendar(database.ConnectionString(), 2026).return_value;
  }
  EXPECT_EQ(return_value, 0);
}

TEST(PostgresTrouble, ACalendarThatIsLockedForLongIsAClearFailure) {
  PostgresDatabase database;
  ASSERT_EQ(CreateCalendar(database.ConnectionString(), 2026).return_value, 0);
  postgres::ServerConnection locker(postgres_server::SuperuserUri(database.Name()));
  locker.RunScript("BEGIN; LOCK TABLE ferrowind.CldCalendar IN ACCESS EXCLUSIVE MODE");
  ExpectFailedCall(CreateCalendar(database.ConnectionString(), 2026), "is locked by another program");
  locker.RunScript("ROLLBACK");
  EXPECT_EQ(CreateCalendar(database.ConnectionString(), 2026).return_value, 6);
}

/// Cuts the connection of a creating call at every step of `direction`.
void CutEverywhere(CuttingProxy::Direction direction) {
  PostgresDatabase database;
  const auto through = [&](CuttingProxy& proxy) {
    return postgres_server::Uri(postgres_server::kOperator, postgres_server::kOperatorPassword,
                                database.Name(), proxy.Port()) +
           "?sslmode=disable&gssencmode=disable";
  };
  int year = 1900;
  std::size_t whole = 0;
  {
    CuttingProxy uncut(postgres_server::Port(), direction, CuttingProxy::kNever);
    ASSERT_EQ(CreateCalendar(through(uncut), year).return_value, 0);
    whole = uncut.Passed();
  }
  ASSERT_GT(whole, 500U);
  int done = 0;
  int failed = 0;
  for (std::size_t limit = 0; limit + 50 < whole; limit += kCutStep) {
    ++year;
    CuttingProxy proxy(postgres_server::Port(), direction, limit);
    const auto outcome = CreateCalendar(through(proxy), year);
    if (outcome.return_value == 0) {
      ++done;
    } else {
      ++failed;
      ExpectFailedCall(outcome, "The ");
    }
    // The server may still be at work for a client that is gone; creating the calendar waits for that.
    const int again = CreateCalendar(database.ConnectionString(), year).return_value;
    if (outcome.return_value == 0) {
      EXPECT_EQ(again, 6) << "cut after " << limit << " bytes";
    } else {
      EXPECT_THAT(again, AnyOf(0, 6)) << "cut after " << limit << " bytes";
    }
  }
  EXPECT_GT(failed, 30);
  EXPECT_EQ(postgres_server::Ask(database.Name(), "SELECT count(*)::int4 FROM ferrowind.CldCalendar"),
            std::to_string(1 + failed + done))
      << "the next call always did what the cut one had not done";
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
