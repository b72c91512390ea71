#include "ferrowind/adapters/postgres/silent_servers.h"

#include <algorithm>
#include <cstdint>
#include <utility>

#include "ferrowind/adapters/postgres/postgres_failure.h"

namespace ferrowind::postgres {
namespace {

using std::chrono::milliseconds;
using std::chrono::seconds;
using Clock = SilentServers::Clock;

constexpr seconds kPause{5};
/// What a call may take that tries, and one in between. Nobody notices either.
constexpr milliseconds kTryTime{250};
constexpr milliseconds kLookTime{20};

/// Until `next_try`, at which a call tries again.
platform::Failure StillSilent(const std::string& database, Clock::time_point next_try) {
  const auto left = std::chrono::ceil<seconds>(next_try - Clock::now()).count();
  return SilentServer(database, std::max<std::int64_t>(1, left));
}

}  // namespace

ConnectionHandle SilentServers::Connect(const std::string& text, const ConnectionUri& uri,
                                        milliseconds time) {
  auto silence = TakeSilence(text, uri);
  if (!silence) return ConnectFirst(text, uri, time);
  return TryAgain(text, uri, std::move(*silence), {.of_try = kTryTime, .of_look = kLookTime});
}

std::optional<Clock::time_point> SilentServers::GoOnTrying(const std::string& text,
                                                           const ConnectionUri& uri) {
  try {
    auto silence = TakeSilence(text, uri);
    if (!silence) return std::nullopt;
    static_cast<void>(TryAgain(text, uri, std::move(*silence),
                               {.of_try = milliseconds::zero(), .of_look = milliseconds::zero()}));
  } catch (const platform::Failure&) {
    // What stands in the way of a call, its failure tells.
  }
  return NextTry(text);
}

void SilentServers::LetTry(const std::string& text) {
  const std::lock_guard lock(mutex_);
  const auto found = silences_.find(text);
  if (found == silences_.end() || found->second.is_being_tried) return;
  found->second = {.attempt = nullptr, .next_try = Clock::now()};
}

std::optional<SilentServers::Silence> SilentServers::TakeSilence(const std::string& text,
                                                                 const ConnectionUri& uri) {
  const std::lock_guard lock(mutex_);
  const auto found = silences_.find(text);
  if (found == silences_.end()) return std::nullopt;
  if (found->second.is_being_tried) {
    throw StillSilent("The database " + uri.ValueOf("dbname"), found->second.next_try);
  }
  Silence silence = std::move(found->second);
  found->second = {.attempt = nullptr, .next_try = silence.next_try, .is_being_tried = true};
  return silence;
}

ConnectionHandle SilentServers::ConnectFirst(const std::string& text, const ConnectionUri& uri,
                                             milliseconds time) {
  auto attempt = std::make_unique<ConnectionAttempt>(uri, dead_, time);
  try {
    if (attempt->GoOn(Clock::now() + time)) return attempt->Take();
  } catch (const platform::Failure&) {
    if (attempt->WasSilent()) Remember(text, nullptr, Clock::now() + kPause);
    throw;
  }
  const std::string database = attempt->DatabaseName();
  const auto next_try = Clock::now() + kPause;
  Remember(text, std::move(attempt), next_try);
  throw StillSilent(database, next_try);
}

ConnectionHandle SilentServers::TryAgain(const std::string& text, const ConnectionUri& uri, Silence silence,
                                         Patience patience) {
  // Whatever ends the try without saying what became of it must not leave the server as one that is tried.
  struct Taken {
    ~Taken() {
      if (is_open) servers.PutBack(text);
    }
    SilentServers& servers;
    const std::string& text;
    bool is_open = true;
  };
  Taken taken{*this, text};
  const auto answered = [&] {
    taken.is_open = false;
    Answered(text);
  };
  const auto remember = [&](std::unique_ptr<ConnectionAttempt> attempt, Clock::time_point next_try) {
    taken.is_open = false;
    Remember(text, std::move(attempt), next_try);
  };
  const bool is_due = Clock::now() >= silence.next_try;
  const auto next_try = is_due ? Clock::now() + kPause : silence.next_try;
  const auto until = Clock::now() + (is_due ? patience.of_try : patience.of_look);
  const auto fresh = [&] { return std::make_unique<ConnectionAttempt>(uri, dead_, uri.CallTimeout()); };
  auto attempt = std::move(silence.attempt);
  if (attempt) {
    try {
      if (attempt->GoOn(until)) {
        answered();
        return attempt->Take();
      }
      // Where nobody is, the system asks ever more seldom.
      if (is_due && attempt->IsUnheard()) attempt.reset();
    } catch (const platform::Failure&) {
      // What is said of an old attempt need not be true any more.
      attempt.reset();
    }
  }
  if (!attempt && is_due) {
    attempt = fresh();
    try {
      if (attempt->GoOn(Clock::now() + patience.of_try)) {
        answered();
        return attempt->Take();
      }
    } catch (...) {
      if (attempt->WasSilent()) {
        remember(nullptr, next_try);
      } else {
        answered();
      }
      throw;
    }
  }
  const std::string database = attempt ? attempt->DatabaseName() : "The database " + uri.ValueOf("dbname");
  remember(std::move(attempt), next_try);
  throw StillSilent(database, next_try);
}

void SilentServers::PutBack(const std::string& text) {
  const std::lock_guard lock(mutex_);
  const auto found = silences_.find(text);
  if (found != silences_.end()) found->second.is_being_tried = false;
}

void SilentServers::FellSilent(const std::string& text) { Remember(text, nullptr, Clock::now()); }

void SilentServers::Answered(const std::string& text) {
  const std::lock_guard lock(mutex_);
  silences_.erase(text);
}

std::optional<Clock::time_point> SilentServers::NextTry(const std::string& text) {
  const std::lock_guard lock(mutex_);
  const auto found = silences_.find(text);
  if (found == silences_.end()) return std::nullopt;
  return found->second.next_try;
}

void SilentServers::Remember(const std::string& text, std::unique_ptr<ConnectionAttempt> attempt,
                             Clock::time_point next_try) {
  const std::lock_guard lock(mutex_);
  silences_[text] = {.attempt = std::move(attempt), .next_try = next_try};
}

}  // namespace ferrowind::postgres
