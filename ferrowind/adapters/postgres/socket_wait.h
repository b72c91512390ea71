#pragma once

#include <chrono>

namespace ferrowind::postgres {

/// Waits until `socket` is ready for one of `events` (as poll takes them) or has an error, but not beyond
/// `until`; a time that is over looks once. False when nothing came. A negative `socket` is never ready.
[[nodiscard]] bool AwaitSocket(int socket, short events, std::chrono::steady_clock::time_point until);

}  // namespace ferrowind::postgres
