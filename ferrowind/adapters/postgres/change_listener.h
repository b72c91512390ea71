#pragma once

#include <chrono>
#include <memory>
#include <string>
#include <utility>

#include <libpq-fe.h>

#include "ferrowind/adapters/postgres/connection_attempt.h"
#include "ferrowind/adapters/postgres/connection_handle.h"
#include "ferrowind/adapters/postgres/connection_uri.h"
#include "ferrowind/adapters/postgres/silent_servers.h"
#include "ferrowind/platform/database/change_watch.h"

namespace ferrowind::postgres {

/// A watch of a database on a server, by the notification that every changing call raises when it is done
/// (database/postgres/functions/history_entry.sql).
///
/// It keeps a connection of its own, which it opens, and opens again when it is lost, step by step from look
/// to look. What a look may wait for is the finding of a host's address, when it begins to connect.
class ChangeListener : public platform::ChangeWatch {
 public:
  /// Connects as `uri` (connection_uri.h) says, beginning with the first look.
  /// `servers` learns when the server answers.
  ChangeListener(const std::string& uri, std::shared_ptr<SilentServers> servers)
      : connection_string_(uri), uri_(uri), servers_(std::move(servers)) {}

  [[nodiscard]] bool Look() override;
  [[nodiscard]] std::chrono::milliseconds Pause() const override;

 private:
  using Clock = std::chrono::steady_clock;

  static constexpr std::chrono::milliseconds kFirstDelay = std::chrono::seconds(2);

  enum class Stage {
    kOff,
    kConnecting,
    /// The server has been asked to notify.
    kAsking,
    /// It has agreed, and its answer has not ended.
    kAgreed,
    kListening,
  };

  /// When calls find that the server does not answer, nobody knows whether the connection outlives that.
  void HeedSilence();
  void BeginToConnect();
  /// Goes on for as long as nothing is to be waited for. True once the connection stands.
  [[nodiscard]] bool GoOnConnecting();
  void AskToBeNotified();
  /// Whether the server has agreed.
  [[nodiscard]] bool IsAgreed();
  /// Whether a notification has come.
  [[nodiscard]] bool HasNews();
  void TakeWhatCame();
  /// Tries again after a while, the longer the more tries came to nothing.
  void GiveUp();

  std::string connection_string_;
  ConnectionUri uri_;
  std::shared_ptr<SilentServers> servers_;
  /// While it connects.
  std::unique_ptr<ConnectionAttempt> attempt_;
  ConnectionHandle connection_;
  Stage stage_ = Stage::kOff;
  bool was_silent_ = false;
  Clock::time_point next_try_ = Clock::time_point::min();
  /// When a connection that does not come about is given up.
  Clock::time_point deadline_;
  std::chrono::milliseconds next_delay_ = kFirstDelay;
};

}  // namespace ferrowind::postgres
