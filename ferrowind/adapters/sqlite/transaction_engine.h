#pragma once

#include <memory>
#include <string>

#include "ferrowind/adapters/sqlite/engine.h"
#include "ferrowind/adapters/sqlite/engine_connection.h"

namespace ferrowind::sqlite {

/// An engine whose calls are all part of one transaction on one database file, whatever the connection
/// string. Lets work that knows only engines change several things or none: what is not committed is undone.
class TransactionEngine : public Engine {
 public:
  /// Keeps other writers out of the file that `connection_string` names from now on. Fails as connections of
  /// `Engine` do.
  explicit TransactionEngine(const std::string& connection_string);

  /// Only one of the connections made here is used at a time.
  [[nodiscard]] std::unique_ptr<platform::Connection> Connect(const std::string& connection_string) override;

  /// Makes everything durable; when it fails, nothing is.
  void Commit();

 private:
  std::shared_ptr<EngineConnection> connection_;
};

}  // namespace ferrowind::sqlite
