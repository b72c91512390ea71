#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "ferrowind/adapters/postgres/server_connection.h"

namespace ferrowind::postgres {

/// Statements that go to the server together and are answered together, in one round trip.
class Pipeline {
 public:
  /// `connection` must outlive the pipeline and is used by nothing else meanwhile.
  explicit Pipeline(ServerConnection& connection);
  Pipeline(const Pipeline&) = delete;
  Pipeline& operator=(const Pipeline&) = delete;
  ~Pipeline();

  /// Adds a statement, with the texts `parameters` for $1, $2, ... Its position in `Run`'s answer is
  /// returned.
  std::size_t Add(const std::string& sql, const std::vector<std::string>& parameters = {});

  /// Sends everything and waits for the answers, one for each statement. The first statement that fails is
  /// the failure; the server runs none behind it.
  [[nodiscard]] std::vector<QueryResult> Run();

 private:
  ServerConnection& connection_;
  std::size_t count_ = 0;
};

}  // namespace ferrowind::postgres
