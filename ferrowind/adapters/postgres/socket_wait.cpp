#include "ferrowind/adapters/postgres/socket_wait.h"

#include <algorithm>
#include <cerrno>

#include <poll.h>

namespace ferrowind::postgres {

bool AwaitSocket(int socket, short events, std::chrono::steady_clock::time_point until) {
  using std::chrono::milliseconds;
  // A wait of poll is no longer than this, so that no time is too large for it.
  constexpr milliseconds kLongest = std::chrono::hours(1);
  for (;;) {
    const auto left = until - std::chrono::steady_clock::now();
    const auto wait = std::clamp(std::chrono::ceil<milliseconds>(left), milliseconds::zero(), kLongest);
    pollfd waited{socket, events, 0};
    const int ready = poll(&waited, 1, static_cast<int>(wait.count()));
    if (ready > 0) return true;
    // Whoever uses the socket learns from it what is wrong.
    if (ready < 0 && errno != EINTR) return true;
    if (wait >= left) return false;
  }
}

}  // namespace ferrowind::postgres
