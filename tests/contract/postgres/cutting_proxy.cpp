#include "tests/contract/postgres/cutting_proxy.h"

#include <algorithm>
#include <array>
#include <stdexcept>

#include <arpa/inet.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

namespace ferrowind::contract {
namespace {

sockaddr_in Loopback(int port) {
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_port = htons(static_cast<std::uint16_t>(port));
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  return address;
}

bool SendAll(int socket, const char* bytes, std::size_t size) {
  while (size > 0) {
    const ssize_t sent = send(socket, bytes, size, MSG_NOSIGNAL);
    if (sent <= 0) return false;
    bytes += sent;
    size -= static_cast<std::size_t>(sent);
  }
  return true;
}

}  // namespace

CuttingProxy::CuttingProxy(const std::string& server_port, Direction direction, std::size_t limit)
    : direction_(direction), limit_(limit), listener_(socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
  sockaddr_in address = Loopback(0);
  socklen_t size = sizeof(address);
  if (listener_ < 0 || bind(listener_, reinterpret_cast<sockaddr*>(&address), size) != 0 ||
      listen(listener_, 1) != 0 ||
      getsockname(listener_, reinterpret_cast<sockaddr*>(&address), &size) != 0) {
    throw std::runtime_error("the proxy cannot listen");
  }
  port_ = std::to_string(ntohs(address.sin_port));
  const int server = std::stoi(server_port);
  thread_ = std::thread([this, server] { Serve(server); });
}

CuttingProxy::~CuttingProxy() {
  if (thread_.joinable()) thread_.join();
  close(listener_);
}

std::size_t CuttingProxy::Passed() {
  if (thread_.joinable()) thread_.join();
  return passed_;
}

void CuttingProxy::Serve(int server_port) {
  const int client = accept4(listener_, nullptr, nullptr, SOCK_CLOEXEC);
  const int server = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
  const sockaddr_in address = Loopback(server_port);
  bool is_open =
      client >= 0 && connect(server, reinterpret_cast<const sockaddr*>(&address), sizeof(address)) == 0;
  std::array<char, 4096> buffer{};
  while (is_open && passed_ < limit_) {
    std::array<pollfd, 2> sockets = {{{client, POLLIN, 0}, {server, POLLIN, 0}}};
    if (poll(sockets.data(), sockets.size(), -1) <= 0) break;
    for (const auto& ready : sockets) {
      if (ready.revents == 0 || !is_open) continue;
      const bool from_client = ready.fd == client;
      const bool counts = from_client == (direction_ == Direction::kToServer);
      const std::size_t room = counts ? std::min(buffer.size(), limit_ - passed_) : buffer.size();
      const ssize_t size = room == 0 ? 0 : recv(ready.fd, buffer.data(), room, 0);
      is_open =
          size > 0 && SendAll(from_client ? server : client, buffer.data(), static_cast<std::size_t>(size));
      if (is_open && counts) passed_ += static_cast<std::size_t>(size);
    }
  }
  if (client >= 0) close(client);
  close(server);
}

}  // namespace ferrowind::contract
