#pragma once

#include <memory>
#include <string>
#include <utility>

#include "ferrowind/adapters/postgres/server_connection.h"
#include "ferrowind/platform/database/engine.h"

namespace ferrowind::postgres {

/// An engine whose every connection is the one given, whatever the connection string, and whose calls are
/// part of the transaction that is open there. Lets work that knows only engines take part in a creation that
/// happens whole or not at all.
class TransactionEngine : public platform::Engine {
 public:
  /// Only one of the connections made here is used at a time.
  explicit TransactionEngine(std::shared_ptr<ServerConnection> connection)
      : connection_(std::move(connection)) {}

  [[nodiscard]] std::unique_ptr<platform::Connection> Connect(const std::string& connection_string) override;
  [[nodiscard]] std::shared_ptr<platform::RecordSet> ReadDictionary(const std::string& connection_string,
                                                                    const std::string& name) override;
  /// Null: nobody follows a creation.
  [[nodiscard]] std::unique_ptr<platform::ChangeWatch> Watch(const std::string& connection_string) override;

 private:
  std::shared_ptr<ServerConnection> connection_;
};

}  // namespace ferrowind::postgres
