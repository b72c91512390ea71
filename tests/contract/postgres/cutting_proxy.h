#pragma once

#include <cstddef>
#include <limits>
#include <string>
#include <thread>

namespace ferrowind::contract {

/// Stands between one client and the server on the loopback interface, and cuts the connection, both ways,
/// once it has passed on so many bytes in one direction. Serves a single connection.
class CuttingProxy {
 public:
  enum class Direction { kToServer, kToClient };
  static constexpr std::size_t kNever = std::numeric_limits<std::size_t>::max();

  CuttingProxy(const std::string& server_port, Direction direction, std::size_t limit);
  CuttingProxy(const CuttingProxy&) = delete;
  CuttingProxy& operator=(const CuttingProxy&) = delete;
  /// Waits for the connection to have ended.
  ~CuttingProxy();

  [[nodiscard]] std::string Port() const { return port_; }
  /// The bytes that went in the proxy's direction. Waits for the connection to have ended.
  [[nodiscard]] std::size_t Passed();

 private:
  void Serve(int server_port);

  Direction direction_;
  std::size_t limit_;
  std::size_t passed_ = 0;
  int listener_ = -1;
  std::string port_;
  std::thread thread_;
};

}  // namespace ferrowind::contract
