#pragma once

#include <chrono>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "ferrowind/adapters/postgres/connection_uri.h"
#include "ferrowind/adapters/postgres/silent_servers.h"
#include "ferrowind/platform/database/silence_watch.h"

namespace ferrowind::postgres {

/// A watch of what `SilentServers` knows of one connection string.
class SilenceProbe : public platform::SilenceWatch {
 public:
  /// Of the server that `uri` (connection_uri.h) names.
  SilenceProbe(const std::string& uri, std::shared_ptr<SilentServers> servers)
      : connection_string_(uri), uri_(uri), servers_(std::move(servers)) {}

  [[nodiscard]] std::optional<std::chrono::milliseconds> Look() override;
  void TryNow() override { servers_->LetTry(connection_string_); }

 private:
  std::string connection_string_;
  ConnectionUri uri_;
  std::shared_ptr<SilentServers> servers_;
};

}  // namespace ferrowind::postgres
