#include "ferrowind/adapters/postgres/connection_attempt.h"

#include <algorithm>
#include <charconv>
#include <thread>
#include <utility>

#include <poll.h>

#include "ferrowind/adapters/postgres/postgres_failure.h"
#include "ferrowind/adapters/postgres/socket_wait.h"

namespace ferrowind::postgres {
namespace {

using std::chrono::milliseconds;
using std::chrono::seconds;
using Clock = ConnectionAttempt::Clock;

/// After which a server that has no connection free is asked again. Calls last milliseconds.
constexpr milliseconds kPauseOfFullServer{300};

Clock::duration TimeIn(const std::string& connect_timeout) {
  int count = 0;
  const char* const end = connect_timeout.data() + connect_timeout.size();
  const auto read = std::from_chars(connect_timeout.data(), end, count);
  // As libpq has it: nothing and less is no end.
  if (read.ptr != end || count <= 0) return Clock::duration::max();
  return seconds(count);
}

/// libpq would print notices.
void DropNotice(void* /*context*/, const PGresult* /*notice*/) {}

/// The end of `time` that begins now.
Clock::time_point EndOf(Clock::duration time) {
  const auto now = Clock::now();
  return time > Clock::time_point::max() - now ? Clock::time_point::max() : now + time;
}

/// Whether the connection was lost while libpq looked what kind of server it is, which every server answers.
bool IsOfWrongKind(ConnStatusType before) {
  return before == CONNECTION_CHECK_WRITABLE || before == CONNECTION_CHECK_STANDBY ||
         before == CONNECTION_CHECK_TARGET || before == CONNECTION_CONSUME;
}

}  // namespace

ConnectionAttempt::ConnectionAttempt(const ConnectionUri& uri, DeadPlaces& dead, milliseconds time)
    : dead_(dead),
      places_(PlacesOf(uri)),
      database_("The database " + uri.ValueOf("dbname")),
      time_for_each_(TimeIn(uri.ValueOf("connect_timeout"))),
      shared_end_(EndOf(time)) {
  dead_.PutLast(places_);
}

bool ConnectionAttempt::GoOn(Clock::time_point until) {
  for (;;) {
    if (!connection_) {
      if (begins_at_ > until) {
        std::this_thread::sleep_until(until);
        return false;
      }
      std::this_thread::sleep_until(begins_at_);
      Begin();
      continue;
    }
    const bool is_reading = waits_for_ == PGRES_POLLING_READING;
    if (!AwaitSocket(PQsocket(connection_.get()), static_cast<short>(is_reading ? POLLIN : POLLOUT),
                     std::min(until, place_end_))) {
      if (Clock::now() < place_end_) return false;
      was_silent_ = true;
      dead_.Add(places_[place_].name);
      reasons_ +=
          (reasons_.empty() ? "" : "; ") + std::string("no answer from ") + NameOfServer(connection_.get());
      MoveOn();
      continue;
    }
    const ConnStatusType before = PQstatus(connection_.get());
    waits_for_ = PQconnectPoll(connection_.get());
    if (waits_for_ == PGRES_POLLING_OK) return true;
    if (waits_for_ != PGRES_POLLING_FAILED) continue;
    if (IsOfWrongKind(before)) {
      reasons_ += (reasons_.empty() ? "" : "; ") + RefusalIn(PQerrorMessage(connection_.get())).text;
      MoveOn();
    } else {
      Refused();
    }
  }
}

ConnectionHandle ConnectionAttempt::Take() {
  PQsetErrorVerbosity(connection_.get(), PQERRORS_DEFAULT);
  dead_.Remove(places_[place_].name);
  return std::move(connection_);
}

bool ConnectionAttempt::IsUnheard() const {
  return !connection_ || PQstatus(connection_.get()) == CONNECTION_STARTED;
}

std::string ConnectionAttempt::DatabaseName() const {
  if (places_.size() > 1 || !connection_) return database_;
  return NameOfDatabase(connection_.get());
}

void ConnectionAttempt::Begin() {
  const auto now = Clock::now();
  const auto places_left = static_cast<Clock::rep>(places_.size() - place_);
  // The last one has all that is left, which is its user's to say.
  const auto share = places_left == 1
                         ? Clock::duration::max()
                         : std::max<Clock::duration>(milliseconds(1), (shared_end_ - now) / places_left);
  place_end_ = EndOf(std::min(share, time_for_each_));
  waits_for_ = PGRES_POLLING_WRITING;
  const ConnectionArguments arguments(places_[place_].settings);
  connection_.reset(PQconnectStartParams(arguments.Keywords(), arguments.Values(), 0));
  if (!connection_) throw NoMemoryForConnection();
  PQsetErrorVerbosity(connection_.get(), PQERRORS_VERBOSE);
  // From the beginning: whatever answers may send them before it is known.
  PQsetNoticeReceiver(connection_.get(), DropNotice, nullptr);
  if (PQstatus(connection_.get()) == CONNECTION_BAD) Refused();
}

void ConnectionAttempt::Refused() {
  const ConnectionRefusal refusal = RefusalIn(PQerrorMessage(connection_.get()));
  if (refusal.IsFull() && !has_asked_again_) {
    has_asked_again_ = true;
    connection_.reset();
    begins_at_ = Clock::now() + kPauseOfFullServer;
    return;
  }
  refuses_options_ = refuses_options_ || refusal.IsOfOptions();
  reasons_ += (reasons_.empty() ? "" : "; ") + refusal.text;
  if (!refusal.IsForOthers()) throw Failed();
  dead_.Add(places_[place_].name);
  MoveOn();
}

void ConnectionAttempt::MoveOn() {
  if (place_ + 1 == places_.size()) throw Failed();
  ++place_;
  connection_.reset();
}

platform::Failure ConnectionAttempt::Failed() const {
  return refuses_options_ ? OptionsRefused(DatabaseName(), reasons_)
                          : ConnectFailure(DatabaseName(), reasons_);
}

}  // namespace ferrowind::postgres
