#include "ferrowind/adapters/postgres/received_bytes.h"

#include <cstddef>

// Not <netinet/tcp.h>, whose tcp_info ends in front of what is asked for here.
#include <linux/tcp.h>
#include <netinet/in.h>
#include <sys/socket.h>

namespace ferrowind::postgres {

std::optional<std::uint64_t> ReceivedBytes(int socket) {
  tcp_info info{};
  socklen_t size = sizeof info;
  constexpr std::size_t kEnd = offsetof(tcp_info, tcpi_bytes_received) + sizeof info.tcpi_bytes_received;
  if (getsockopt(socket, IPPROTO_TCP, TCP_INFO, &info, &size) != 0 || size < kEnd) return std::nullopt;
  return info.tcpi_bytes_received;
}

}  // namespace ferrowind::postgres
