#include "bench/delaying_proxy.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <deque>
#include <list>
#include <stdexcept>
#include <vector>

#include <netinet/in.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

namespace ferrowind::bench {
namespace {

using Clock = std::chrono::steady_clock;

sockaddr_in Loopback(int port) {
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_port = htons(static_cast<std::uint16_t>(port));
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  return address;
}

void SendAtOnce(int socket) {
  const int on = 1;
  setsockopt(socket, IPPROTO_TCP, TCP_NODELAY, &on, sizeof(on));
}

/// What goes from one socket to another.
class Stream {
 public:
  Stream(int from, int to) : from_(from), to_(to) {}

  [[nodiscard]] int From() const { return from_; }
  [[nodiscard]] bool IsReading() const { return is_reading_; }
  [[nodiscard]] bool IsDone() const { return !is_reading_ && under_way_.empty(); }
  [[nodiscard]] Clock::time_point NextDue() const {
    return under_way_.empty() ? Clock::time_point::max() : under_way_.front().due;
  }

  void Read(Clock::duration delay) {
    std::array<char, 65536> buffer;
    const ssize_t size = recv(from_, buffer.data(), buffer.size(), 0);
    is_reading_ = size > 0;
    under_way_.push_back({Clock::now() + delay,
                          std::string(buffer.data(), static_cast<std::size_t>(std::max<ssize_t>(size, 0)))});
  }

  void SendDue() {
    while (!under_way_.empty() && under_way_.front().due <= Clock::now()) {
      const std::string bytes = std::move(under_way_.front().bytes);
      under_way_.pop_front();
      if (bytes.empty()) {
        shutdown(to_, SHUT_WR);
        continue;
      }
      for (std::size_t sent = 0; sent < bytes.size();) {
        const ssize_t size = send(to_, bytes.data() + sent, bytes.size() - sent, MSG_NOSIGNAL);
        // Who has gone hears no more; what it sent itself still arrives.
        if (size <= 0) return;
        sent += static_cast<std::size_t>(size);
      }
    }
  }

 private:
  /// Nothing but its due time for the end of the stream.
  struct Chunk {
    Clock::time_point due;
    std::string bytes;
  };

  int from_;
  int to_;
  bool is_reading_ = true;
  std::deque<Chunk> under_way_;
};

/// A client and the server.
class Link {
 public:
  Link(int client, int server) : streams_{Stream(client, server), Stream(server, client)} {}
  Link(const Link&) = delete;
  Link& operator=(const Link&) = delete;
  ~Link() {
    for (const auto& stream : streams_) close(stream.From());
  }

  [[nodiscard]] std::array<Stream, 2>& Streams() { return streams_; }
  [[nodiscard]] bool IsDone() const { return streams_[0].IsDone() && streams_[1].IsDone(); }

 private:
  std::array<Stream, 2> streams_;
};

class Server {
 public:
  Server(int listener, int end, int server_port, Clock::duration delay)
      : listener_(listener), end_(end), server_port_(server_port), delay_(delay) {}

  void Run() {
    while (Wait()) {
      for (auto& link : links_) {
        for (auto& stream : link.Streams()) stream.SendDue();
      }
      links_.remove_if([](const Link& link) { return link.IsDone(); });
    }
  }

 private:
  /// Takes in what arrives until something is due. Returns false once the proxy is to end.
  bool Wait() {
    std::vector<pollfd> sockets = {{end_, POLLIN, 0}, {listener_, POLLIN, 0}};
    std::vector<Stream*> streams;
    auto due = Clock::time_point::max();
    for (auto& link : links_) {
      for (auto& stream : link.Streams()) {
        due = std::min(due, stream.NextDue());
        if (!stream.IsReading()) continue;
        sockets.push_back({stream.From(), POLLIN, 0});
        streams.push_back(&stream);
      }
    }
    timespec patience{};
    if (due != Clock::time_point::max()) {
      const auto left = std::max(due - Clock::now(), Clock::duration::zero());
      patience.tv_nsec = std::chrono::duration_cast<std::chrono::nanoseconds>(left).count();
    }
    if (ppoll(sockets.data(), sockets.size(), due == Clock::time_point::max() ? nullptr : &patience,
              nullptr) < 0) {
      return false;
    }
    if (sockets[0].revents != 0) return false;
    for (std::size_t i = 0; i < streams.size(); ++i) {
      if (sockets[i + 2].revents != 0) streams[i]->Read(delay_);
    }
    if (sockets[1].revents != 0) Accept();
    return true;
  }

  void Accept() {
    const int client = accept4(listener_, nullptr, nullptr, SOCK_CLOEXEC);
    if (client < 0) return;
    const int server = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    const sockaddr_in address = Loopback(server_port_);
    if (connect(server, reinterpret_cast<const sockaddr*>(&address), sizeof(address)) != 0) {
      close(client);
      close(server);
      return;
    }
    SendAtOnce(client);
    SendAtOnce(server);
    links_.emplace_back(client, server);
  }

  int listener_;
  int end_;
  int server_port_;
  Clock::duration delay_;
  std::list<Link> links_;
};

}  // namespace

DelayingProxy::DelayingProxy(const std::string& server_port, std::chrono::microseconds delay)
    : listener_(socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
  sockaddr_in address = Loopback(0);
  socklen_t size = sizeof(address);
  std::array<int, 2> end{};
  if (listener_ < 0 || bind(listener_, reinterpret_cast<sockaddr*>(&address), size) != 0 ||
      listen(listener_, 64) != 0 ||
      getsockname(listener_, reinterpret_cast<sockaddr*>(&address), &size) != 0 || pipe(end.data()) != 0) {
    throw std::runtime_error("the proxy cannot listen");
  }
  end_reader_ = end[0];
  end_writer_ = end[1];
  port_ = std::to_string(ntohs(address.sin_port));
  const int server = std::stoi(server_port);
  thread_ = std::thread([this, server, delay] { Server(listener_, end_reader_, server, delay).Run(); });
}

DelayingProxy::~DelayingProxy() {
  close(end_writer_);
  thread_.join();
  close(end_reader_);
  close(listener_);
}

}  // namespace ferrowind::bench
