#include "tests/contract/postgres/lying_proxy.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <optional>
#include <stdexcept>
#include <string_view>
#include <utility>

#include <arpa/inet.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/time.h>
#include <sys/un.h>
#include <unistd.h>

namespace ferrowind::contract {
namespace {

using std::chrono::milliseconds;
using std::chrono::steady_clock;

/// A lie may leave both sides waiting for each other; then the proxy ends what no deadline of the test's
/// subject would.
constexpr milliseconds kQuietBehindALie{60};
constexpr int kLookPause = 20;

constexpr std::size_t kLengthBytes = 4;
constexpr std::size_t kHeader = 1 + kLengthBytes;

sockaddr_in Loopback(int port) {
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_port = htons(static_cast<std::uint16_t>(port));
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  return address;
}

/// Closed when it goes.
class Socket {
 public:
  explicit Socket(int descriptor) : descriptor_(descriptor) {
    const int yes = 1;
    setsockopt(descriptor_, IPPROTO_TCP, TCP_NODELAY, &yes, sizeof yes);
    const timeval longest{10, 0};
    setsockopt(descriptor_, SOL_SOCKET, SO_SNDTIMEO, &longest, sizeof longest);
  }
  Socket(const Socket&) = delete;
  Socket& operator=(const Socket&) = delete;
  ~Socket() { close(descriptor_); }

  [[nodiscard]] int Descriptor() const { return descriptor_; }

  /// False when the other side takes no more.
  [[nodiscard]] bool Send(std::string_view bytes) const {
    while (!bytes.empty()) {
      const ssize_t sent = send(descriptor_, bytes.data(), bytes.size(), MSG_NOSIGNAL);
      if (sent <= 0) return false;
      bytes.remove_prefix(static_cast<std::size_t>(sent));
    }
    return true;
  }

 private:
  int descriptor_;
};

std::uint32_t LengthIn(std::string_view bytes) {
  std::uint32_t length = 0;
  for (std::size_t i = 1; i < kHeader; ++i) length = length << 8 | static_cast<unsigned char>(bytes[i]);
  return length;
}

/// Takes the next whole message off the front of what came.
std::optional<ServerMessage> TakeMessage(std::string& came) {
  if (came.size() < kHeader) return std::nullopt;
  const std::size_t size = 1 + LengthIn(came);
  if (came.size() < size) return std::nullopt;
  ServerMessage message{came.front(), came.substr(kHeader, size - kHeader)};
  came.erase(0, size);
  return message;
}

}  // namespace

std::string ServerMessage::Bytes() const {
  const auto length = static_cast<std::uint32_t>(body.size() + kLengthBytes);
  std::string bytes{type};
  for (int shift = 24; shift >= 0; shift -= 8) bytes += static_cast<char>(length >> shift & 0xFF);
  return bytes + body;
}

LyingProxy::LyingProxy(const std::string& server_port, Teller teller, Place place)
    : teller_(std::move(teller)),
      server_port_(std::stoi(server_port)),
      listener_(socket(place == Place::kLoopback ? AF_INET : AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
  if (place == Place::kLoopback) {
    ListenOnLoopback();
  } else {
    ListenAtLocalSocket();
  }
  acceptor_ = std::thread([this] { Accept(); });
}

void LyingProxy::ListenOnLoopback() {
  sockaddr_in address = Loopback(0);
  socklen_t size = sizeof address;
  auto* const any = reinterpret_cast<sockaddr*>(&address);
  if (bind(listener_, any, size) != 0 || listen(listener_, 5) != 0 ||
      getsockname(listener_, any, &size) != 0) {
    throw std::runtime_error("the proxy cannot listen");
  }
  host_ = "127.0.0.1";
  port_ = std::to_string(ntohs(address.sin_port));
}

/// At a name without a file: NUL stands in front of it, for which clients write an @.
void LyingProxy::ListenAtLocalSocket() {
  const std::string name = "ferrowind-lies-" + std::to_string(getpid());
  host_ = "%40" + name;
  port_ = "5432";
  const std::string path = '\0' + name + "/.s.PGSQL." + port_;
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  path.copy(std::data(address.sun_path), std::size(address.sun_path));
  const auto size = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + path.size());
  if (bind(listener_, reinterpret_cast<const sockaddr*>(&address), size) != 0 || listen(listener_, 5) != 0) {
    throw std::runtime_error("the proxy cannot listen");
  }
}

LyingProxy::~LyingProxy() {
  is_ending_ = true;
  shutdown(listener_, SHUT_RDWR);
  acceptor_.join();
  for (std::thread& connection : connections_) connection.join();
  close(listener_);
}

void LyingProxy::Accept() {
  while (!is_ending_) {
    const int client = accept4(listener_, nullptr, nullptr, SOCK_CLOEXEC);
    if (client >= 0) connections_.emplace_back([this, client] { Serve(client); });
  }
}

Told LyingProxy::Ask(const ServerMessage& message) {
  const std::lock_guard use(teller_use_);
  return teller_(count_++, message);
}

void LyingProxy::Serve(int accepted) {
  const Socket client(accepted);
  const Socket server(socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0));
  const sockaddr_in address = Loopback(server_port_);
  if (connect(server.Descriptor(), reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0) return;
  std::array<char, 65536> buffer{};
  std::string came;
  bool has_lied = false;
  auto last_word = steady_clock::now();
  while (!is_ending_) {
    std::array<pollfd, 2> sockets = {{{client.Descriptor(), POLLIN, 0}, {server.Descriptor(), POLLIN, 0}}};
    const int ready = poll(sockets.data(), sockets.size(), kLookPause);
    if (ready < 0) return;
    if (ready > 0) last_word = steady_clock::now();
    if (has_lied && steady_clock::now() - last_word > kQuietBehindALie) return;
    if (sockets[0].revents != 0) {
      const ssize_t size = recv(client.Descriptor(), buffer.data(), buffer.size(), 0);
      if (size <= 0 || !server.Send({buffer.data(), static_cast<std::size_t>(size)})) return;
    }
    if (sockets[1].revents == 0) continue;
    const ssize_t size = recv(server.Descriptor(), buffer.data(), buffer.size(), 0);
    if (size <= 0) return;
    came.append(buffer.data(), static_cast<std::size_t>(size));
    std::string told;
    while (const auto message = TakeMessage(came)) {
      const Told answer = Ask(*message);
      has_lied = has_lied || answer.is_lie;
      told += answer.bytes;
      if (answer.then == Told::Then::kGoOn) continue;
      static_cast<void>(client.Send(told));
      const auto end = steady_clock::now() + answer.longest;
      while (answer.then == Told::Then::kRepeat && !is_ending_ && steady_clock::now() < end) {
        if (!client.Send(answer.bytes)) return;
      }
      return;
    }
    if (!client.Send(told)) return;
  }
}

}  // namespace ferrowind::contract
