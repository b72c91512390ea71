// What becomes of calls by ODBC whose server is stopped, started again, or silent.

#include <cstddef>
#include <cstdint>
#include <string>

#include <gmock/gmock.h>

#include "ferrowind/platform/values/failure.h"

#include "tests/contract/database/procedure_caller.h"
#include "tests/contract/odbc/odbc_calls.h"
#include "tests/contract/odbc/odbc_database.h"
#include "tests/contract/odbc/odbc_server.h"
#include "tests/contract/postgres/cutting_proxy.h"
#include "tests/contract/postgres/postgres_server.h"
#include "tests/contract/postgres/stopped_server.h"

namespace ferrowind::contract {
namespace {

using ::testing::AllOf;
using ::testing::AnyOf;
using ::testing::HasSubstr;
using ::testing::Not;

/// Cuts the connection of a call after ever more bytes in `direction`, the last time behind all of them.
void CutHereAndThere(CuttingProxy::Direction direction) {
  // Coprime to the lengths of messages, so that cuts are at all places of them in the end.
  constexpr std::size_t kStep = 37;
  OdbcDatabase database;
  std::int32_t year = 2000;
  const auto connection_string = [&](const CuttingProxy& proxy) {
    return odbc_server::OperatorConnectionString(database.Name(), proxy.Port()) +
           ";SSLmode=disable;pqopt={gssencmode=disable}";
  };
  std::size_t whole = 0;
  {
    CuttingProxy uncut(postgres_server::Port(), direction, CuttingProxy::kNever);
    ASSERT_EQ(CreateYear(*database.Engine().Connect(connection_string(uncut)), year), 0);
    whole = uncut.Passed();
  }
  ASSERT_GT(whole, 500U);
  std::string failure;
  for (std::size_t limit = 0; limit <= whole + kStep; limit += kStep) {
    SCOPED_TRACE("cut after " + std::to_string(limit) + " of " + std::to_string(whole) + " bytes");
    ++year;
    int first = -1;
    CuttingProxy proxy(postgres_server::Port(), direction, limit);
    failure = FailureTextOf(
        [&] { first = CreateYear(*database.Engine().Connect(connection_string(proxy)), year); });
    // The server may still be at work for a client that is gone; creating the calendar waits for that.
    const int again = CreateYear(database, year);
    if (failure.empty()) {
      EXPECT_EQ(first, 0);
      EXPECT_EQ(again, 6);
    } else {
      EXPECT_THAT(failure, AnyOf(HasSubstr("cannot be connected to"), HasSubstr("was interrupted"),
                                 HasSubstr("cannot be looked up"), HasSubstr("was disconnected")));
      EXPECT_THAT(again, AnyOf(0, 6));
    }
  }
  EXPECT_EQ(failure, "") << "cut behind all bytes";
  EXPECT_TRUE(database.IsSound()) << "every calendar has all its days";
}

TEST(OdbcLostServer, ACallWhoseAnswersAreCutFailsAndIsDoneWhollyOrNotAtAll) {
  CutHereAndThere(CuttingProxy::Direction::kToClient);
}

TEST(OdbcLostServer, ACallThatIsCutOnItsWayFailsAndIsDoneWhollyOrNotAtAll) {
  CutHereAndThere(CuttingProxy::Direction::kToServer);
}

TEST(OdbcLostServer, AStoppedServerFailsTheCallAndTheNextCallAfterItsStartWorks) {
  OdbcDatabase database;
  ASSERT_EQ(CreateYear(database, 2025), 0);
  postgres_server::Control("stop");
  const std::string failure = ConnectFailureOf(database.ConnectionString());
  postgres_server::Control("start");
  EXPECT_THAT(failure,
              AllOf(HasSubstr("The database " + database.Name()), HasSubstr("cannot be connected to"),
                    HasSubstr("(ODBC 08001: "), Not(HasSubstr(postgres_server::kOperatorPassword))));
  EXPECT_EQ(CreateYear(database, 2025), 6) << "what was done is kept";
  EXPECT_EQ(CreateYear(database, 2026), 0);
}

TEST(OdbcLostServer, AServerRestartedDuringAConnectionFailsItsCallAndKeepsNothingOfIt) {
  OdbcDatabase database;
  const auto connection = database.Engine().Connect(database.ConnectionString());
  static_cast<void>(connection->DescribeProcedure("CldIUMain"));
  postgres_server::Control("restart");
  const std::string failure = FailureTextOf([&] { static_cast<void>(CreateYear(*connection, 2026)); });
  EXPECT_THAT(failure, AllOf(HasSubstr("CldIUMain was interrupted"), HasSubstr("ODBC")));
  EXPECT_THROW(static_cast<void>(CreateYear(*connection, 2026)), platform::Failure) << "it stays lost";
  EXPECT_EQ(CreateYear(database, 2026), 0);
}

TEST(OdbcLostServer, ASilentServerIsNotWaitedForWithoutEnd) {
  OdbcDatabase database;
  std::string failure;
  {
    const StoppedServer silence;
    failure = ConnectFailureOf(database.ConnectionString() + ";CallTimeout=1");
  }
  EXPECT_THAT(failure, AllOf(HasSubstr("cannot be connected to"), HasSubstr("(ODBC 08001: ")));
  EXPECT_EQ(CreateYear(database, 2026), 0);
}

}  // namespace
}  // namespace ferrowind::contract
