#include "ferrowind/adapters/postgres/kept_sessions.h"

#include <algorithm>
#include <condition_variable>
#include <exception>
#include <iterator>
#include <mutex>
#include <string_view>
#include <thread>
#include <utility>
#include <vector>

#include <unistd.h>

#include "ferrowind/adapters/postgres/session_state.h"
#include "ferrowind/adapters/postgres/without_signals.h"

namespace ferrowind::postgres {
namespace {

using std::chrono::milliseconds;
using Clock = Session::Clock;

struct KeptSession {
  std::string login;
  std::unique_ptr<Session> session;
};

}  // namespace

/// The sessions, and the thread that closes them in time.
class KeptSessions::Store {
 public:
  explicit Store(milliseconds life) : life_(life) {}
  Store(const Store&) = delete;
  Store& operator=(const Store&) = delete;
  ~Store() {
    {
      const std::lock_guard lock(mutex_);
      is_ending_ = true;
    }
    changed_.notify_all();
    if (closing_.joinable()) closing_.join();
  }

  [[nodiscard]] bool IsOfThisProcess() const { return getpid() == process_; }
  [[nodiscard]] bool IsYoung(const Session& session) const { return Clock::now() < EndOf(session); }

  void Add(KeptSession kept) {
    const auto end = EndOf(*kept.session);
    bool is_first_to_end = false;
    {
      const std::lock_guard lock(mutex_);
      if (!closing_.joinable()) {
        const WithoutSignals in_the_thread;
        closing_ = std::thread([this] { CloseInTime(); });
      }
      kept_.push_back(std::move(kept));
      is_first_to_end = end < wakes_at_;
    }
    // Not for each call, which would take the time that a thread takes to wake.
    if (is_first_to_end) changed_.notify_all();
  }

  /// The one that was used last; null when there is none.
  [[nodiscard]] std::unique_ptr<Session> Remove(const std::string& login) {
    const std::lock_guard lock(mutex_);
    const auto found = std::find_if(kept_.rbegin(), kept_.rend(),
                                    [&](const KeptSession& kept) { return kept.login == login; });
    if (found == kept_.rend()) return nullptr;
    std::unique_ptr<Session> session = std::move(found->session);
    kept_.erase(std::prev(found.base()));
    return session;
  }

 private:
  [[nodiscard]] Clock::time_point EndOf(const Session& session) const { return session.logged_in + life_; }

  void CloseInTime() {
    std::unique_lock lock(mutex_);
    while (!is_ending_) {
      std::vector<KeptSession> over;
      auto next_end = Clock::time_point::max();
      for (KeptSession& kept : kept_) {
        if (IsYoung(*kept.session)) {
          next_end = std::min(next_end, EndOf(*kept.session));
        } else {
          over.push_back(std::move(kept));
        }
      }
      std::erase_if(kept_, [](const KeptSession& kept) { return kept.session == nullptr; });
      if (!over.empty()) {
        lock.unlock();
        over.clear();
        lock.lock();
        continue;
      }
      wakes_at_ = next_end;
      if (kept_.empty()) {
        changed_.wait(lock);
      } else {
        changed_.wait_until(lock, wakes_at_);
      }
      wakes_at_ = Clock::time_point::max();
    }
  }

  const milliseconds life_;
  const pid_t process_ = getpid();
  std::mutex mutex_;
  std::condition_variable changed_;
  bool is_ending_ = false;
  std::vector<KeptSession> kept_;
  /// Until when the thread waits, if nobody wakes it.
  Clock::time_point wakes_at_ = Clock::time_point::max();
  std::thread closing_;
};

std::string LoginOf(const std::string& connection_string) {
  constexpr std::string_view kHeeded[] = {"PG", "HOME=", "KRB5", "OPENSSL", "SSL"};
  std::string login = connection_string;
  for (char** variable = environ; variable != nullptr && *variable != nullptr; ++variable) {
    const std::string_view text = *variable;
    const bool is_heeded =
        std::any_of(std::begin(kHeeded), std::end(kHeeded),
                    [&](std::string_view beginning) { return text.starts_with(beginning); });
    if (is_heeded) login += '\0' + std::string(text);
  }
  return login + '\0' + std::to_string(geteuid());
}

KeptSessions::KeptSessions(milliseconds life) : store_(std::make_unique<Store>(life)) {}

KeptSessions::~KeptSessions() {
  // The thread is the parent's, and a farewell over the sessions would end them for it.
  if (!store_->IsOfThisProcess()) static_cast<void>(store_.release());
}

std::unique_ptr<Session> KeptSessions::Take(const std::string& login, milliseconds time) {
  if (!store_->IsOfThisProcess()) return nullptr;
  while (std::unique_ptr<Session> session = store_->Remove(login)) {
    if (!store_->IsYoung(*session)) continue;
    ServerConnection& connection = session->connection;
    session->is_being_reset = false;
    if (EndReset(connection, time) && SeemsAlive(connection)) return session;
    if (!connection.IsSilent()) continue;
    // The others are its too, and would be waited for one after the other.
    Close(login);
  }
  return nullptr;
}

void KeptSessions::Keep(const std::string& login, SessionKeeping keeping,
                        std::unique_ptr<Session> session) noexcept {
  try {
    if (!IsFit(*session, keeping)) return;
    if (!session->is_being_reset) session->is_being_reset = BeginReset(session->connection);
    if (!session->is_being_reset) return;
    session->was_kept = true;
    store_->Add({login, std::move(session)});
  } catch (const std::exception&) {
    // Without memory or a thread for it, it is closed.
  }
}

bool KeptSessions::IsFit(const Session& session, SessionKeeping keeping) const {
  if (!store_->IsOfThisProcess() || session.has_failed || !store_->IsYoung(session)) return false;
  return keeping == SessionKeeping::kAlways ||
         (keeping == SessionKeeping::kOfServers && session.is_direct == true);
}

void KeptSessions::Close(const std::string& login) {
  while (store_->Remove(login)) {
  }
}

}  // namespace ferrowind::postgres
