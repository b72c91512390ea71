#pragma once

#include <cstdint>
#include <optional>

namespace ferrowind::postgres {

/// How many bytes have come over `socket` since it was connected, read or not yet. Nothing where the system
/// does not count them, as it does for TCP alone.
[[nodiscard]] std::optional<std::uint64_t> ReceivedBytes(int socket);

}  // namespace ferrowind::postgres
