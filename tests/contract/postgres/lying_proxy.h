#pragma once

#include <atomic>
#include <chrono>
#include <cstddef>
#include <functional>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace ferrowind::contract {

/// A message of the server by the framing of its protocol.
struct ServerMessage {
  char type = '\0';
  std::string body;

  /// With its type and length in front.
  [[nodiscard]] std::string Bytes() const;
};

/// What the client is told in place of a message.
struct Told {
  enum class Then {
    kGoOn,
    kClose,
    /// The bytes come again and again, for as long as the client listens, or until `longest` has passed.
    kRepeat,
  };

  std::string bytes;
  Then then = Then::kGoOn;
  bool is_lie = false;
  std::chrono::milliseconds longest = std::chrono::seconds(15);
};

/// Asked for every message of the server, which `number` counts from 0 over all connections.
using Teller = std::function<Told(std::size_t number, const ServerMessage& message)>;

/// Stands between clients and the server on the loopback interface, passes on what clients say, and tells
/// them what the teller makes of the server's messages. Clients must not use TLS.
class LyingProxy {
 public:
  /// Where it is found: on the loopback interface, or at a socket of the local machine, as `Host` and `Port`
  /// tell a client.
  enum class Place { kLoopback, kLocalSocket };

  LyingProxy(const std::string& server_port, Teller teller, Place place = Place::kLoopback);
  LyingProxy(const LyingProxy&) = delete;
  LyingProxy& operator=(const LyingProxy&) = delete;
  /// Cuts what is still connected.
  ~LyingProxy();

  /// As a connection string writes it.
  [[nodiscard]] std::string Host() const { return host_; }
  [[nodiscard]] std::string Port() const { return port_; }

 private:
  void ListenOnLoopback();
  void ListenAtLocalSocket();
  void Accept();
  void Serve(int client);
  [[nodiscard]] Told Ask(const ServerMessage& message);

  Teller teller_;
  std::mutex teller_use_;
  std::size_t count_ = 0;
  std::atomic<bool> is_ending_ = false;
  int server_port_;
  int listener_;
  std::string host_;
  std::string port_;
  std::vector<std::thread> connections_;
  std::thread acceptor_;
};

}  // namespace ferrowind::contract
