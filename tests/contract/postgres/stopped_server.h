#pragma once

#include <vector>

#include <sys/types.h>

namespace ferrowind::contract {

/// While it lives, the server of the test does nothing, as if its machine had died without a word: what it
/// was sent stays where it is.
class StoppedServer {
 public:
  enum class Extent {
    kAll,
    /// What is connected works on; nobody else gets in, and no cancel gets through.
    kNewConnections,
  };

  explicit StoppedServer(Extent extent = Extent::kAll);
  StoppedServer(const StoppedServer&) = delete;
  StoppedServer& operator=(const StoppedServer&) = delete;
  /// Lets it go on.
  ~StoppedServer();

 private:
  std::vector<pid_t> stopped_;
};

}  // namespace ferrowind::contract
