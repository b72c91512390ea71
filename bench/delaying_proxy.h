#pragma once

#include <chrono>
#include <string>
#include <thread>

namespace ferrowind::bench {

/// A server's way over a network: passes on what clients and the server send each other on the loopback
/// interface, each byte after a delay, however many bytes are under way.
class DelayingProxy {
 public:
  /// Stands before the server at `server_port` until destroyed. Throws std::runtime_error when it cannot.
  DelayingProxy(const std::string& server_port, std::chrono::microseconds delay);
  DelayingProxy(const DelayingProxy&) = delete;
  DelayingProxy& operator=(const DelayingProxy&) = delete;
  ~DelayingProxy();

  [[nodiscard]] std::string Port() const { return port_; }

 private:
  int listener_ = -1;
  /// Readable once the proxy is to end.
  int end_reader_ = -1;
  int end_writer_ = -1;
  std::string port_;
  std::thread thread_;
};

}  // namespace ferrowind::bench
