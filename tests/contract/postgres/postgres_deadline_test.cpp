// That no call waits for a server longer than it may, whenever the server falls silent, and what is said
// then.

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <thread>
#include <utility>

#include <gmock/gmock.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include "ferrowind/adapters/content/content_table.h"
#include "ferrowind/adapters/postgres/content_target.h"
#include "ferrowind/adapters/postgres/row_stream.h"
#include "ferrowind/adapters/postgres/server_connection.h"

#include "tests/contract/database/procedure_caller.h"
#include "tests/contract/postgres/postgres_database.h"
#include "tests/contract/postgres/postgres_server.h"
#include "tests/contract/postgres/stopped_server.h"

namespace ferrowind::contract {
namespace {

using std::chrono::milliseconds;
using std::chrono::seconds;
using ::testing::AllOf;
using ::testing::Gt;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Lt;
using ::testing::Not;

/// What a loaded machine may add to a time.
constexpr milliseconds kSlack = seconds(2);
/// As far below any deadline as it can be told on a loaded machine.
constexpr milliseconds kAtOnce{700};

milliseconds Lasting(const std::function<void()>& work) {
  const auto begin = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration_cast<milliseconds>(std::chrono::steady_clock::now() - begin);
}

class PostgresDeadline : public ::testing::Test {
 protected:
  /// Of calls of one second.
  std::string Uri(const std::string& more = "") {
    return database_.ConnectionString() + "?call_timeout=1" + more;
  }
  std::string FailureOfReading(const std::string& uri) {
    return FailureTextOf([&] { static_cast<void>(Return(*database_.Engine().Connect(uri), "CldAllInfo")); });
  }
  static int Return(platform::Connection& connection, const std::string& procedure,
                    const Arguments& arguments = {}) {
    return CallOver(connection, procedure, arguments).return_value;
  }
  static int CreateCalendar(platform::Connection& connection, int year) {
    return Return(connection, "CldIUMain", {{"ID1", 978}, {"Year1", year}});
  }
  std::string FailureOfCreating(const std::string& uri, int year) {
    return FailureTextOf([&] { static_cast<void>(CreateCalendar(*database_.Engine().Connect(uri), year)); });
  }
  std::string Calendars() {
    return postgres_server::Ask(database_.Name(), "SELECT count(*)::text FROM ferrowind.CldCalendar");
  }

  PostgresDatabase database_;
};

TEST_F(PostgresDeadline, ASilentServerStopsOneCallForItsTimeAndNoneAfterIt) {
  {
    const StoppedServer stopped;
    std::string failure;
    EXPECT_THAT(Lasting([&] { failure = FailureOfReading(Uri()); }),
                AllOf(Gt(milliseconds(900)), Lt(seconds(1) + kSlack)));
    EXPECT_THAT(failure, AllOf(HasSubstr(database_.Name()), HasSubstr(" does not answer; calls fail at once"),
                               HasSubstr("after 5 seconds one tries again"),
                               Not(HasSubstr(postgres_server::kOperatorPassword))));
    for (int i = 0; i < 3; ++i) {
      EXPECT_THAT(Lasting([&] { failure = FailureOfReading(Uri()); }), Lt(kAtOnce));
      EXPECT_THAT(failure, HasSubstr(" does not answer; calls fail at once"));
    }
  }
  // What was begun to connect is answered now, and the next call but few uses it.
  std::string failure = "none yet";
  for (int i = 0; i < 50 && !failure.empty(); ++i) {
    EXPECT_THAT(Lasting([&] { failure = FailureOfReading(Uri()); }), Lt(kAtOnce));
    std::this_thread::sleep_for(milliseconds(50));
  }
  EXPECT_THAT(failure, IsEmpty());
}

TEST_F(PostgresDeadline, ASilentServerStopsACallWithAKeptSessionNoLongerAndNothingWasSentThatChanges) {
  ASSERT_THAT(FailureOfCreating(Uri(), 2026), IsEmpty());
  // Until the call asks for the procedure anew.
  std::this_thread::sleep_for(milliseconds(1100));
  {
    const StoppedServer stopped;
    std::string failure;
    EXPECT_THAT(Lasting([&] { failure = FailureOfCreating(Uri(), 2027); }),
                AllOf(Gt(milliseconds(900)), Lt(seconds(1) + kSlack)));
    EXPECT_THAT(failure, HasSubstr(" does not answer; calls fail at once"));
  }
  EXPECT_EQ(Calendars(), "1");
}

TEST_F(PostgresDeadline, AServerThatIsSilentForLongIsTriedAgainWithoutStoppingACall) {
  const StoppedServer stopped;
  static_cast<void>(FailureOfReading(Uri()));
  std::this_thread::sleep_for(milliseconds(5100));
  std::string failure;
  EXPECT_THAT(Lasting([&] { failure = FailureOfReading(Uri()); }), Lt(kAtOnce));
  EXPECT_THAT(failure, HasSubstr("after 5 seconds one tries again"));
}

TEST_F(PostgresDeadline, AServerThatFallsSilentInAStatementLeavesItUnknownWhetherItIsDone) {
  const auto connection = database_.Engine().Connect(Uri());
  static_cast<void>(connection->DescribeProcedure("CldIUMain"));
  std::string failure;
  {
    const StoppedServer stopped;
    EXPECT_THAT(Lasting([&] {
                  failure = FailureTextOf([&] { static_cast<void>(CreateCalendar(*connection, 2026)); });
                }),
                Lt(seconds(1) + kSlack));
    EXPECT_THAT(failure, HasSubstr("does not answer"));
    EXPECT_THAT(Lasting([&] { failure = FailureOfReading(Uri()); }), Lt(kAtOnce));
    EXPECT_THAT(failure, HasSubstr("calls fail at once"));
  }
}

TEST_F(PostgresDeadline, AServerThatFallsSilentInACommitLeavesItUnknownWhetherItIsStored) {
  postgres_server::Execute("postgres", "ALTER SYSTEM SET synchronous_standby_names = 'nobody'");
  postgres_server::Execute("postgres", "SELECT pg_reload_conf()");
  const auto connection = database_.Engine().Connect(database_.ConnectionString() + "?call_timeout=3");
  std::string failure;
  std::unique_ptr<StoppedServer> stopped;
  std::thread stopping([&] {
    std::this_thread::sleep_for(seconds(1));
    stopped = std::make_unique<StoppedServer>();
  });
  EXPECT_THAT(Lasting([&] {
                failure = FailureTextOf([&] { static_cast<void>(CreateCalendar(*connection, 2026)); });
              }),
              Lt(seconds(3) + kSlack));
  stopping.join();
  stopped.reset();
  postgres_server::Execute("postgres", "ALTER SYSTEM RESET synchronous_standby_names");
  postgres_server::Execute("postgres", "SELECT pg_reload_conf()");
  EXPECT_THAT(failure, AllOf(HasSubstr("it has done all of its work or nothing, so look before you call"),
                             HasSubstr("does not answer")));
  EXPECT_EQ(CreateCalendar(*database_.Engine().Connect(database_.ConnectionString()), 2026), 6)
      << "here it had done all";
}

TEST_F(PostgresDeadline, AChangeThatNoStandbyConfirmsIsToldAsStoredOnThisServerAlone) {
  postgres_server::Execute("postgres", "ALTER SYSTEM SET synchronous_standby_names = 'nobody'");
  postgres_server::Execute("postgres", "SELECT pg_reload_conf()");
  std::string failure;
  EXPECT_THAT(Lasting([&] { failure = FailureOfCreating(Uri(), 2026); }), Lt(seconds(1) + kSlack));
  EXPECT_THAT(FailureOfReading(Uri()), IsEmpty()) << "reading waits for no standby";
  postgres_server::Execute("postgres", "ALTER SYSTEM RESET synchronous_standby_names");
  postgres_server::Execute("postgres", "SELECT pg_reload_conf()");
  EXPECT_THAT(failure, AllOf(HasSubstr("The procedure CldIUMain has done its work"),
                             HasSubstr("stored on this server, not confirmed by its standby"),
                             HasSubstr("(PostgreSQL 01000: canceling wait for synchronous replication")));
  EXPECT_EQ(Calendars(), "1");
  EXPECT_TRUE(database_.IsSound());
}

TEST_F(PostgresDeadline, AnAdministratorWhoEndsTheWaitForAStandbyMakesNoSuccessOfIt) {
  postgres_server::Execute("postgres", "ALTER SYSTEM SET synchronous_standby_names = 'nobody'");
  postgres_server::Execute("postgres", "SELECT pg_reload_conf()");
  std::thread ending([&] {
    for (int i = 0; i < 100; ++i) {
      std::this_thread::sleep_for(milliseconds(50));
      const auto ended = postgres_server::Ask(
          "postgres",
          "SELECT pg_cancel_backend(pid)::text FROM pg_stat_activity WHERE wait_event = 'SyncRep'");
      if (!ended.empty()) break;
    }
  });
  postgres::ServerConnection administrator(postgres_server::SuperuserUri(database_.Name()));
  const std::string failure =
      FailureTextOf([&] { administrator.RunScript("CREATE TABLE public.kept (a integer)"); });
  ending.join();
  postgres_server::Execute("postgres", "ALTER SYSTEM RESET synchronous_standby_names");
  postgres_server::Execute("postgres", "SELECT pg_reload_conf()");
  EXPECT_THAT(failure, HasSubstr("stored on this server, not confirmed by its standby"));
  EXPECT_EQ(postgres_server::Ask(database_.Name(), "SELECT to_regclass('public.kept')::text"), "kept");
}

/// Calls that change calendars sleep, for longer than any test waits.
void MakeChangesLast(PostgresDatabase& database) {
  database.Execute(
      "CREATE FUNCTION public.Sleep() RETURNS trigger LANGUAGE plpgsql AS"
      " $$ BEGIN PERFORM pg_sleep(60); RETURN NULL; END $$;"
      "CREATE TRIGGER Sleeping BEFORE INSERT ON ferrowind.CldCalendar FOR EACH STATEMENT"
      " EXECUTE FUNCTION public.Sleep()");
}

TEST_F(PostgresDeadline, AStatementThatLastsTooLongIsToldToStopAndHasDoneNothing) {
  MakeChangesLast(database_);
  std::string failure;
  EXPECT_THAT(Lasting([&] { failure = FailureOfCreating(Uri(), 2026); }), Lt(seconds(1) + kSlack));
  EXPECT_THAT(
      failure,
      AllOf(HasSubstr("CldIUMain took longer than a call may, was told to stop, and has done nothing"),
            HasSubstr("57014")));
  EXPECT_EQ(postgres_server::Ask("postgres",
                                 "SELECT count(*)::text FROM pg_stat_activity WHERE query LIKE "
                                 "'%CldIUMain%' AND state = 'active' AND pid <> pg_backend_pid()"),
            "0");
  EXPECT_EQ(Calendars(), "0");
  EXPECT_THAT(FailureOfReading(Uri()), IsEmpty()) << "a server that answers is no silent one";
}

TEST_F(PostgresDeadline, ARequestToStopThatNobodyTakesIsNotWaitedFor) {
  MakeChangesLast(database_);
  const auto connection = database_.Engine().Connect(Uri());
  static_cast<void>(connection->DescribeProcedure("CldIUMain"));
  const StoppedServer stopped(StoppedServer::Extent::kNewConnections);
  std::string failure;
  EXPECT_THAT(Lasting([&] {
                failure = FailureTextOf([&] { static_cast<void>(CreateCalendar(*connection, 2026)); });
              }),
              Lt(seconds(1) + kSlack));
  EXPECT_THAT(failure, HasSubstr("does not answer"));
}

TEST_F(PostgresDeadline, EachOfTheCallsThatShareAConnectionHasAllOfItsTime) {
  const auto connection = database_.Engine().Connect(Uri());
  database_.Execute(
      "CREATE PROCEDURE ferrowind.ProbeSleep(INOUT \"RETURN_VALUE\" integer) LANGUAGE plpgsql SECURITY "
      "DEFINER AS"
      " $$ BEGIN PERFORM pg_sleep(0.4); \"RETURN_VALUE\" := 0; END $$;"
      "GRANT EXECUTE ON PROCEDURE ferrowind.ProbeSleep TO ferrowind_operator");
  for (int i = 0; i < 4; ++i) EXPECT_EQ(Return(*connection, "ProbeSleep"), 0);
}

/// Lets clients connect, and never says a word.
class MutePort {
 public:
  MutePort() : listener_(socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof(address);
    auto* const any = reinterpret_cast<sockaddr*>(&address);
    if (listener_ < 0 || bind(listener_, any, size) != 0 || listen(listener_, 16) != 0 ||
        getsockname(listener_, any, &size) != 0) {
      throw std::runtime_error("no port");
    }
    number_ = std::to_string(ntohs(address.sin_port));
  }
  MutePort(const MutePort&) = delete;
  MutePort& operator=(const MutePort&) = delete;
  ~MutePort() { close(listener_); }
  [[nodiscard]] const std::string& Number() const { return number_; }

 private:
  int listener_;
  std::string number_;
};

TEST_F(PostgresDeadline, TheSecondServerHasItsShareOfTheTimeAndIsTriedFirstFromThenOn) {
  const MutePort mute;
  const std::string two =
      Uri("&host=127.0.0.1,127.0.0.1&port=" + mute.Number() + "," + postgres_server::Port());
  EXPECT_THAT(Lasting([&] { EXPECT_THAT(FailureOfReading(two), IsEmpty()); }),
              AllOf(Gt(milliseconds(450)), Lt(seconds(1) + kSlack)));
  for (int i = 0; i < 3; ++i) {
    EXPECT_THAT(Lasting([&] { EXPECT_THAT(FailureOfReading(two), IsEmpty()); }), Lt(milliseconds(450)));
  }
}

TEST_F(PostgresDeadline, AServerThatDoesNotRunLeavesTheCallToTheNextOne) {
  EXPECT_THAT(FailureOfReading(Uri("&host=127.0.0.1,127.0.0.1&port=1," + postgres_server::Port())),
              IsEmpty());
  EXPECT_THAT(
      FailureOfReading(Uri("&host=127.0.0.1,127.0.0.1&port=1,2")),
      AllOf(HasSubstr("cannot be connected to"), HasSubstr("port 1 failed"), HasSubstr("port 2 failed")));
}

TEST_F(PostgresDeadline, AServerThatRefusesThePasswordIsAskedAlone) {
  const std::string wrong = postgres_server::Uri(postgres_server::kOperator, "wrong", database_.Name()) +
                            "?host=127.0.0.1,127.0.0.1&port=" + postgres_server::Port() + ",1";
  EXPECT_THAT(FailureOfReading(wrong),
              AllOf(HasSubstr("FATAL:  password authentication failed"), Not(HasSubstr("port 1 failed")),
                    Not(HasSubstr("LOCATION")), Not(HasSubstr("28P01"))));
}

TEST_F(PostgresDeadline, AFullServerIsAskedOnceMore) {
  const std::string one_connection =
      std::string("ALTER ROLE ") + postgres_server::kOperator + " CONNECTION LIMIT ";
  auto held = database_.Engine().Connect(database_.ConnectionString());
  postgres_server::Execute("postgres", one_connection + "1");
  std::string failure;
  EXPECT_THAT(Lasting([&] { failure = FailureOfReading(Uri()); }), Gt(milliseconds(250)));
  EXPECT_THAT(failure, HasSubstr("too many connections for role"));
  std::thread releasing([&] {
    std::this_thread::sleep_for(milliseconds(100));
    held.reset();
  });
  failure = FailureOfReading(Uri());
  releasing.join();
  postgres_server::Execute("postgres", one_connection + "-1");
  EXPECT_THAT(failure, IsEmpty());
}

TEST_F(PostgresDeadline, AnAdministratorsWorkLastsAsLongAsItLikesOnceConnected) {
  const std::string uri = postgres_server::SuperuserUri(database_.Name()) + "?call_timeout=1";
  {
    postgres::ServerConnection administrator(uri);
    EXPECT_THAT(Lasting([&] { administrator.RunScript("SELECT pg_sleep(1.5)"); }), Gt(milliseconds(1400)));
  }
  const StoppedServer stopped;
  std::string failure;
  EXPECT_THAT(
      Lasting([&] { failure = FailureTextOf([&] { postgres::ServerConnection administrator(uri); }); }),
      Lt(seconds(1) + kSlack));
  EXPECT_THAT(failure, HasSubstr("does not answer"));
}

TEST_F(PostgresDeadline, AnAdministratorsStatementEndsWhenItIsToldTo) {
  bool is_stopped = false;
  postgres::ServerConnection administrator(postgres_server::SuperuserUri(database_.Name()),
                                           [&] { return is_stopped; });
  is_stopped = true;
  std::string failure;
  EXPECT_THAT(
      Lasting([&] { failure = FailureTextOf([&] { administrator.RunScript("SELECT pg_sleep(60)"); }); }),
      Lt(seconds(1) + kSlack));
  EXPECT_THAT(failure, HasSubstr("was told to stop"));
  EXPECT_FALSE(administrator.IsAlive());
}

/// Whether the server waits, for a few seconds, in the middle of copying rows.
bool IsWaitingWhileItCopies() {
  return postgres_server::Ask("postgres",
                              "SELECT count(*)::text FROM pg_stat_activity"
                              " WHERE wait_event = 'PgSleep' AND query LIKE 'COPY%'") != "0";
}

TEST_F(PostgresDeadline, RowsThatDoNotComeAreNotWaitedForByAnAdministratorWhoIsToldToStop) {
  postgres::ServerConnection administrator(postgres_server::SuperuserUri(database_.Name()),
                                           IsWaitingWhileItCopies);
  EXPECT_THAT(FailureTextOf([&] {
                const postgres::RowStream rows(administrator, "SELECT 1 AS n FROM pg_sleep(5)", 1);
              }),
              HasSubstr("was told to stop"));
  EXPECT_FALSE(administrator.IsAlive());
}

TEST_F(PostgresDeadline, RowsThatTheServerDoesNotTakeAreNotWaitedForByAnAdministratorWhoIsToldToStop) {
  // More than the system keeps on the way.
  constexpr int kRows = 8000;
  const std::string comment(4000, 'x');
  postgres::ServerConnection administrator(postgres_server::SuperuserUri(database_.Name()),
                                           IsWaitingWhileItCopies);
  administrator.RunScript(
      "BEGIN; CREATE FUNCTION Wait() RETURNS trigger LANGUAGE plpgsql AS"
      " 'BEGIN PERFORM pg_sleep(5); RETURN NEW; END';"
      " CREATE TRIGGER Wait BEFORE INSERT ON ferrowind.CldHoliday FOR EACH ROW WHEN (NEW.ID2 = 1000)"
      " EXECUTE FUNCTION Wait()");
  postgres::ServerTarget target(administrator, postgres::ServerTarget::Kind::kNew);
  const content::Table& rules = content::TableNamed("CldHoliday");
  const auto writer = target.Writer(rules, 1);
  const auto column = [&](const char* name) {
    return static_cast<std::size_t>(std::find(rules.columns.begin(), rules.columns.end(), name) -
                                    rules.columns.begin());
  };
  EXPECT_THAT(FailureTextOf([&] {
                for (int i = 0; i < kRows; ++i) {
                  content::Row row(rules.columns.size());
                  row[column("ID2")] = 1000 + i;
                  row[column("Name1")] = "Rule " + std::to_string(i);
                  row[column("Comment")] = comment;
                  row[column("TID1")] = 2;
                  row[column("WD")] = 3;
                  writer->Add(row);
                }
              }),
              HasSubstr("was told to stop"));
  EXPECT_FALSE(administrator.IsAlive());
}

}  // namespace
}  // namespace ferrowind::contract
