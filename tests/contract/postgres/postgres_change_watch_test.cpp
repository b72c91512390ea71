// Watches of a database on a server that stops, cuts connections, refuses them or never answers.

#include <chrono>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <thread>

#include <arpa/inet.h>
#include <gmock/gmock.h>
#include <sys/socket.h>
#include <unistd.h>

#include "ferrowind/platform/values/failure.h"

#include "tests/contract/database/procedure_caller.h"
#include "tests/contract/database/watch_looks.h"
#include "tests/contract/postgres/postgres_database.h"
#include "tests/contract/postgres/postgres_server.h"
#include "tests/contract/postgres/stopped_server.h"

namespace ferrowind::contract {
namespace {

using ::testing::AllOf;
using ::testing::HasSubstr;
using ::testing::Not;

int CreateCalendar(PostgresDatabase& database, int year) {
  return ProcedureCaller(database).Return("CldIUMain", {{"ID1", 978}, {"Year1", year}});
}

/// The description of the first failure of a look within some seconds.
std::string FailureOfLooks(platform::ChangeWatch& watch) {
  std::string failure;
  for (int i = 0; i < 500 && failure.empty(); ++i) {
    failure = FailureTextOf([&] { static_cast<void>(watch.Look()); });
    std::this_thread::sleep_for(std::chrono::milliseconds(20));
  }
  return failure;
}

/// A port on which connections are taken and nothing is ever said.
class SilentServer {
 public:
  SilentServer() {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof address;
    auto* const any = reinterpret_cast<sockaddr*>(&address);
    if (bind(listener_, any, size) != 0 || listen(listener_, 5) != 0 ||
        getsockname(listener_, any, &size) != 0) {
      throw std::runtime_error("no port to listen on");
    }
    port_ = std::to_string(ntohs(address.sin_port));
  }
  SilentServer(const SilentServer&) = delete;
  SilentServer& operator=(const SilentServer&) = delete;
  ~SilentServer() { close(listener_); }

  [[nodiscard]] const std::string& Port() const { return port_; }
  /// From now on the port refuses everybody.
  void Refuse() const { shutdown(listener_, SHUT_RDWR); }

 private:
  int listener_ = socket(AF_INET, SOCK_STREAM, 0);
  std::string port_;
};

TEST(PostgresChangeWatch, GoesOnAfterARestartOfTheServer) {
  PostgresDatabase database;
  const auto watch = database.Engine().Watch(database.ConnectionString());
  ASSERT_TRUE(SeesAChange(*watch));
  postgres_server::Control("stop");
  EXPECT_THAT(FailureOfLooks(*watch), HasSubstr("was disconnected"));
  EXPECT_FALSE(SeesAChange(*watch, kAMoment));
  postgres_server::Control("start");
  EXPECT_TRUE(SeesAChange(*watch)) << "nobody knows what happened meanwhile";
  EXPECT_FALSE(SeesAChange(*watch, kAMoment));
  ASSERT_EQ(CreateCalendar(database, 2028), 0);
  EXPECT_TRUE(SeesAChange(*watch));
}

TEST(PostgresChangeWatch, GoesOnAfterItsConnectionWasCut) {
  PostgresDatabase database;
  const auto watch = database.Engine().Watch(database.ConnectionString());
  ASSERT_TRUE(SeesAChange(*watch));
  database.Execute("SELECT pg_terminate_backend(pid) FROM pg_stat_activity WHERE query LIKE 'LISTEN %'");
  EXPECT_THAT(FailureOfLooks(*watch), HasSubstr("was disconnected"));
  ASSERT_EQ(CreateCalendar(database, 2028), 0);
  EXPECT_TRUE(SeesAChange(*watch)) << "of what was done while it was away";
  ASSERT_EQ(CreateCalendar(database, 2029), 0);
  EXPECT_TRUE(SeesAChange(*watch));
}

TEST(PostgresChangeWatch, SaysThatAPasswordIsWrongWithoutItAndDoesNotHammerTheServer) {
  PostgresDatabase database;
  const std::string wrong = "wrong-secret-word";
  const auto watch =
      database.Engine().Watch(postgres_server::Uri(postgres_server::kOperator, wrong, database.Name()));
  EXPECT_THAT(FailureOfLooks(*watch),
              AllOf(HasSubstr("password authentication failed"), Not(HasSubstr(wrong))));
  for (int i = 0; i < 100; ++i) EXPECT_FALSE(watch->Look()) << "a second try would fail";
}

TEST(PostgresChangeWatch, RefusesAConnectionStringThatIsNone) {
  EXPECT_THROW(static_cast<void>(postgres::Engine().Watch("postgresql://u@v@host/calendars")),
               platform::Failure);
}

TEST(PostgresChangeWatch, NeverWaitsForAServerThatDoesNotAnswer) {
  const SilentServer server;
  const auto watch = postgres::Engine().Watch(
      postgres_server::Uri("anna", "secret", "calendars", server.Port()) + "?sslmode=disable");
  for (int i = 0; i < 20; ++i) {
    const auto start = std::chrono::steady_clock::now();
    EXPECT_FALSE(watch->Look());
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(500));
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
  }
}

TEST(PostgresChangeWatch, TellsOfAChangeAfterTheServerWasSilent) {
  PostgresDatabase database;
  const std::string uri = database.ConnectionString() + "?call_timeout=1";
  const auto watch = database.Engine().Watch(uri);
  ASSERT_TRUE(SeesAChange(*watch));
  {
    const StoppedServer stopped;
    EXPECT_THAT(FailureTextOf([&] { static_cast<void>(database.Engine().Connect(uri)); }),
                HasSubstr("does not answer"));
    EXPECT_FALSE(SeesAChange(*watch, kAMoment));
  }
  EXPECT_TRUE(SeesAChange(*watch)) << "nobody knows whether the connection outlived that";
  ASSERT_EQ(CreateCalendar(database, 2028), 0);
  EXPECT_TRUE(SeesAChange(*watch));
}

/// Of a server with which calls have a second.
class PostgresSilenceWatch : public ::testing::Test {
 protected:
  using Left = std::optional<std::chrono::milliseconds>;

  void Call() {
    failure_ = FailureTextOf([&] { static_cast<void>(database_.Engine().Connect(uri_)); });
  }
  /// No look waits.
  Left Look() {
    const auto start = std::chrono::steady_clock::now();
    const Left left = watch_->Look();
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(200));
    return left;
  }
  /// Looks as a window does, until there is nothing to tell any more or the time is over.
  bool SeesAnAnswerWithin(std::chrono::milliseconds time) {
    const auto end = std::chrono::steady_clock::now() + time;
    while (std::chrono::steady_clock::now() < end) {
      if (!Look()) return true;
      std::this_thread::sleep_for(std::chrono::milliseconds(100));
    }
    return false;
  }

  PostgresDatabase database_;
  std::string uri_ = database_.ConnectionString() + "?call_timeout=1";
  std::unique_ptr<platform::SilenceWatch> watch_ = database_.Engine().WatchSilence(uri_);
  std::string failure_;
};

TEST_F(PostgresSilenceWatch, TellsNothingWhileCallsAreAnswered) {
  EXPECT_EQ(Look(), std::nullopt);
  Call();
  EXPECT_EQ(failure_, "");
  EXPECT_EQ(Look(), std::nullopt);
}

TEST_F(PostgresSilenceWatch, CountsDownAndNoticesTheAnswerWithoutACall) {
  {
    const StoppedServer stopped;
    EXPECT_EQ(Look(), std::nullopt) << "nobody has asked the server anything";
    Call();
    EXPECT_THAT(failure_, HasSubstr("does not answer"));
    const Left first = Look();
    ASSERT_TRUE(first);
    EXPECT_LE(*first, std::chrono::seconds(5));
    std::this_thread::sleep_for(std::chrono::milliseconds(1100));
    const Left second = Look();
    ASSERT_TRUE(second);
    EXPECT_LE(*second, *first - std::chrono::seconds(1));
    EXPECT_FALSE(SeesAnAnswerWithin(std::chrono::milliseconds(4500))) << "beyond the next try";
    EXPECT_GT(*Look(), std::chrono::seconds(3)) << "which was made";
  }
  EXPECT_TRUE(SeesAnAnswerWithin(std::chrono::seconds(3))) << "long before the next try";
  Call();
  EXPECT_EQ(failure_, "");
}

TEST_F(PostgresSilenceWatch, TriesAtOnceWhenItIsAskedTo) {
  const StoppedServer stopped;
  Call();
  watch_->TryNow();
  EXPECT_GT(*Look(), std::chrono::milliseconds(4900));
  std::this_thread::sleep_for(std::chrono::milliseconds(600));
  EXPECT_LT(*Look(), std::chrono::milliseconds(4500));
  watch_->TryNow();
  EXPECT_GT(*Look(), std::chrono::milliseconds(4900));
}

TEST_F(PostgresSilenceWatch, AServerThatRefusesIsNotSilent) {
  const SilentServer server;
  uri_ =
      postgres_server::Uri("anna", "secret", "calendars", server.Port()) + "?sslmode=disable&call_timeout=1";
  watch_ = database_.Engine().WatchSilence(uri_);
  Call();
  ASSERT_TRUE(Look());
  server.Refuse();
  watch_->TryNow();
  EXPECT_TRUE(SeesAnAnswerWithin(std::chrono::seconds(2)));
}

}  // namespace
}  // namespace ferrowind::contract
