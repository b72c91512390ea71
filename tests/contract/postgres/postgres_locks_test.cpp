// What an operator and a reader can do to an administrator with the rights that they have: keep locks, and
// keep connections.

#include <chrono>
#include <memory>
#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "ferrowind/adapters/content/content_copy.h"
#include "ferrowind/adapters/content/database_status.h"
#include "ferrowind/adapters/postgres/database_content.h"
#include "ferrowind/adapters/postgres/database_objects.h"
#include "ferrowind/adapters/postgres/server_connection.h"
#include "ferrowind/adapters/sqlite/database_content.h"
#include "ferrowind/adapters/sqlite/database_file.h"
#include "ferrowind/platform/values/failure.h"

#include "tests/contract/database/old_version.h"
#include "tests/contract/database/procedure_caller.h"
#include "tests/contract/database/sqlite_database.h"
#include "tests/contract/postgres/postgres_database.h"
#include "tests/contract/postgres/postgres_server.h"

namespace ferrowind::contract {
namespace {

using postgres::ServerConnection;
using ::testing::AllOf;
using ::testing::Ge;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

/// A login that does its worst, and what it does in a transaction that it then leaves open.
struct Attacker {
  std::string name;
  std::string role;
  std::string statement;
};

void PrintTo(const Attacker& attacker, std::ostream* stream) { *stream << attacker.name; }

const Attacker kOperator = {"locking_operator", "ferrowind_operator", "CALL ferrowind.CldIUMain(978, 2027)"};
const Attacker kReader = {"locking_reader", "ferrowind_reader", "SELECT * FROM ferrowind.CalendarDay"};

/// A server on which nothing waits for ever, so that a test ends in which somebody does.
void EndLongStatements(const std::string& database) {
  postgres_server::Execute("postgres", "ALTER DATABASE " + database + " SET statement_timeout = '30s'");
}

/// A database as an older version made it.
class OldDatabase {
 public:
  OldDatabase() : name_(postgres_server::CreateEmptyDatabase()) {
    postgres_server::Execute(name_, "BEGIN;" + OldVersionScript(3, "postgres") + "COMMIT");
    EndLongStatements(name_);
  }
  OldDatabase(const OldDatabase&) = delete;
  OldDatabase& operator=(const OldDatabase&) = delete;
  ~OldDatabase() { postgres_server::DropDatabase(name_); }

  [[nodiscard]] const std::string& Name() const { return name_; }
  [[nodiscard]] std::string Uri() const { return postgres_server::SuperuserUri(name_); }

 private:
  std::string name_;
};

class PostgresRowLocks : public ::testing::Test {};

class PostgresLocks : public ::testing::TestWithParam<Attacker> {
 protected:
  PostgresLocks() {
    EndLongStatements(database_.Name());
    postgres_server::Execute(
        "postgres", "CREATE ROLE " + GetParam().name + " LOGIN PASSWORD 'sesame' IN ROLE " + GetParam().role);
  }
  ~PostgresLocks() override { postgres_server::Execute("postgres", "DROP ROLE " + GetParam().name); }

  [[nodiscard]] static std::string AttackersUri(const std::string& database) {
    return postgres_server::Uri(GetParam().name, "sesame", database) + "?application_name=their%20tool";
  }
  [[nodiscard]] std::string Uri() const { return postgres_server::SuperuserUri(database_.Name()); }

  [[nodiscard]] static std::unique_ptr<ServerConnection> LeaveTransactionOpen(const std::string& database) {
    auto connection = std::make_unique<ServerConnection>(AttackersUri(database));
    connection->RunScript("BEGIN; " + GetParam().statement);
    return connection;
  }

  /// That a failure says who is in the way, and what to do about it.
  [[nodiscard]] static ::testing::Matcher<std::string> Names(const ServerConnection& attacker) {
    const std::string process = std::to_string(PQbackendPID(attacker.Get()));
    return AllOf(HasSubstr(GetParam().name + " (application \"their tool\", process " + process +
                           ") keeps the tables locked, in a transaction that is "),
                 HasSubstr(" s old; SELECT pg_terminate_backend(" + process + ") ends that. "),
                 HasSubstr("is locked by another program"));
  }

  PostgresDatabase database_;
};

INSTANTIATE_TEST_SUITE_P(Logins, PostgresLocks, ::testing::Values(kOperator, kReader),
                         [](const auto& test) { return test.param.name; });

void CopyNewFileTo(const std::string& uri) {
  const TemporaryFolder folder;
  const std::string path = folder.Path() + "/new.db";
  sqlite::CreateDatabase(path);
  const auto source = sqlite::OpenContent(path);
  postgres::FillDatabase(uri, [&](content::Target& target) { content::CopyContent(*source, target); });
}

TEST_P(PostgresLocks, TheyHoldNoAdvisoryLockThatAnUpgradeOrACheckWaitsFor) {
  const OldDatabase old;
  ServerConnection attacker(AttackersUri(old.Name()));
  attacker.RunScript("SELECT pg_advisory_lock(4266537), pg_advisory_lock(0)");
  EXPECT_EQ(postgres::UpgradeDatabase(old.Uri()).from, 3);
  EXPECT_THAT(postgres::CheckDatabase(old.Uri()), IsEmpty());
}

TEST_P(PostgresLocks, TheyMayNotTakeTheLocksOfAdministrators) {
  for (const char* const lock :
       {"ferrowind.SchemaVersion IN ACCESS SHARE", "ferrowind.SchemaVersion IN SHARE UPDATE EXCLUSIVE",
        "ferrowind.CldDay IN ACCESS SHARE", "ferrowind.CldDay IN ACCESS EXCLUSIVE",
        "ferrowind.CalendarDay IN ROW SHARE", "ferrowind.DictionaryCcy IN ROW SHARE"}) {
    ServerConnection attacker(AttackersUri(database_.Name()));
    EXPECT_THAT(
        FailureTextOf([&] { attacker.RunScript(std::string("BEGIN; LOCK TABLE ") + lock + " MODE"); }),
        HasSubstr("does not permit"))
        << lock;
  }
}

TEST_P(PostgresLocks, AnUpgradeNamesThemWhenTheyLeaveATransactionOpen) {
  const OldDatabase old;
  auto attacker = LeaveTransactionOpen(old.Name());
  EXPECT_THAT(FailureTextOf([&] { postgres::UpgradeDatabase(old.Uri()); }),
              AllOf(HasSubstr("the database is as it was"), Names(*attacker)));
  attacker.reset();
  EXPECT_EQ(postgres::UpgradeDatabase(old.Uri()).from, 3);
}

TEST_P(PostgresLocks, AnUpgradeThatHasNothingToDoDoesNotWaitForThem) {
  const auto attacker = LeaveTransactionOpen(database_.Name());
  const auto outcome = postgres::UpgradeDatabase(Uri());
  EXPECT_EQ(outcome.from, outcome.to);
}

TEST_P(PostgresLocks, ACopyNamesThemWhenTheyLeaveATransactionOpen) {
  auto attacker = LeaveTransactionOpen(database_.Name());
  EXPECT_THAT(FailureTextOf([&] { CopyNewFileTo(Uri()); }), Names(*attacker));
  attacker.reset();
  CopyNewFileTo(Uri());
  EXPECT_TRUE(database_.IsSound());
}

TEST_F(PostgresRowLocks, ACallThatWaitsInVainNamesWhoIsInTheWayAndNobodyWhoWaits) {
  PostgresDatabase database;
  postgres_server::Execute("postgres", "CREATE ROLE anna LOGIN PASSWORD 'sesame' IN ROLE ferrowind_operator");
  {
    ServerConnection anna(postgres_server::Uri("anna", "sesame", database.Name()) +
                          "?application_name=their%20tool");
    anna.RunScript("BEGIN; CALL ferrowind.CldIUMain(978, 2027)");
    ServerConnection waiting(postgres_server::SuperuserUri(database.Name()));
    ASSERT_EQ(PQsendQuery(waiting.Get(), "CALL ferrowind.CldIUMain(978, 2027)"), 1);
    const std::string process = std::to_string(PQbackendPID(anna.Get()));
    const std::string failure = FailureTextOf([&] {
      static_cast<void>(ProcedureCaller(database).Return("CldIUMain", {{"ID1", 978}, {"Year1", 2027}}));
    });
    EXPECT_THAT(failure, AllOf(HasSubstr("anna (application \"their tool\", process " + process +
                                         ") keeps the tables locked"),
                               HasSubstr("is locked by another program"),
                               Not(HasSubstr(std::to_string(PQbackendPID(waiting.Get()))))));
  }
  postgres_server::Execute("postgres", "DROP ROLE anna");
}

TEST_P(PostgresLocks, NobodyWhoOnlyReadsWaitsForThem) {
  const auto attacker = LeaveTransactionOpen(database_.Name());
  EXPECT_TRUE(database_.IsSound());
  EXPECT_EQ(postgres::ReadStatus(Uri()).calendars, 0);
  EXPECT_EQ(postgres::OpenContent(Uri())->CountRows(content::Tables().front()), 184);
}

/// As many connections as the login gets, up to `most`.
std::vector<std::unique_ptr<ServerConnection>> Connections(const std::string& uri, std::size_t most) {
  std::vector<std::unique_ptr<ServerConnection>> connections;
  try {
    while (connections.size() < most) connections.push_back(std::make_unique<ServerConnection>(uri));
  } catch (const platform::Failure&) {
    // No more are to be had.
  }
  return connections;
}

TEST_P(PostgresLocks, TheirConnectionsAreToldAndKeepNobodyOutOnceTheyHaveALimit) {
  constexpr std::size_t kMoreThanThereAre = 200;
  const auto share = [&](const std::string& whose) {
    for (const content::ConnectionShare& share : postgres::ReadStatus(Uri()).connections) {
      if (share.whose == whose) return share;
    }
    return content::ConnectionShare();
  };
  const auto call = [&] {
    return FailureTextOf([&] {
      ProcedureCaller(database_).Return("CldIUMain", {{"ID1", 978}, {"Year1", 2026}});
    });
  };
  {
    const auto taken = Connections(AttackersUri(database_.Name()), kMoreThanThereAre);
    EXPECT_THAT(call(), HasSubstr("cannot be connected to"));
    const content::ConnectionShare told = share(GetParam().role);
    EXPECT_THAT(told.without_limit, HasSubstr(GetParam().name));
    EXPECT_EQ(told.limit, std::nullopt);
    EXPECT_THAT(told.connections, Ge(static_cast<std::int64_t>(taken.size())));
    EXPECT_THAT(share("all").connections, Ge(share("all").limit.value_or(1)));
  }
  postgres_server::Execute("postgres", "ALTER ROLE " + GetParam().name + " CONNECTION LIMIT 5");
  const auto taken = Connections(AttackersUri(database_.Name()), kMoreThanThereAre);
  EXPECT_LE(taken.size(), 5U);
  EXPECT_EQ(call(), "");
  EXPECT_THAT(share(GetParam().role).without_limit, ::testing::Not(HasSubstr(GetParam().name)));
}

class PostgresPreparedLocks : public ::testing::Test {
 protected:
  PostgresPreparedLocks() { Allow("2"); }
  ~PostgresPreparedLocks() override { Allow("0"); }

  static void Allow(const std::string& count) {
    postgres_server::Execute("postgres", "ALTER SYSTEM SET max_prepared_transactions = " + count);
    postgres_server::Control("restart");
  }
};

TEST_F(PostgresPreparedLocks, ATransactionThatIsPreparedIsNamedWithWhatEndsIt) {
  PostgresDatabase database;
  database.Execute("BEGIN; SELECT * FROM ferrowind.CalendarDay; PREPARE TRANSACTION 'left ''behind'''");
  const std::string uri = postgres_server::SuperuserUri(database.Name());
  EXPECT_THAT(
      FailureTextOf([&] { CopyNewFileTo(uri); }),
      AllOf(HasSubstr("The prepared transaction 'left ''behind''' of postgres keeps the tables locked"),
            HasSubstr("ROLLBACK PREPARED 'left ''behind''' ends that")));
  database.Execute("ROLLBACK PREPARED 'left ''behind'''");
  CopyNewFileTo(uri);
}

}  // namespace
}  // namespace ferrowind::contract
