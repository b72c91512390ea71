// What is waited for at all is waited for without an end.

#include "ferrowind/adapters/postgres/socket_wait.h"

#include <poll.h>

namespace ferrowind::postgres {

bool AwaitSocket(int socket, short events, std::chrono::steady_clock::time_point until) {
  constexpr int kForEver = -1;
  constexpr int kNotAtAll = 0;
  pollfd waited{socket, events, 0};
  return poll(&waited, 1, until > std::chrono::steady_clock::now() ? kForEver : kNotAtAll) > 0;
}

}  // namespace ferrowind::postgres
