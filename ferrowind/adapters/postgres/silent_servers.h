#pragma once

#include <chrono>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <string>

#include "ferrowind/adapters/postgres/connection_attempt.h"
#include "ferrowind/adapters/postgres/connection_handle.h"
#include "ferrowind/adapters/postgres/connection_uri.h"
#include "ferrowind/adapters/postgres/dead_places.h"

namespace ferrowind::postgres {

/// Connects, and remembers which servers did not answer in time, so that only the first call waits for one
/// all of its time. While a server is silent, calls fail at once, but for a moment now and then in which it
/// is tried again; what that begins to connect is gone on with by the calls that follow, so that a slow
/// server gets through as well. Used by any thread.
class SilentServers {
 public:
  using Clock = std::chrono::steady_clock;

  /// A connection as `text`, which is read as `uri`, says. A server that does not answer in `time` is a
  /// failure that says when it is tried again; it waits that long only once.
  [[nodiscard]] ConnectionHandle Connect(const std::string& text, const ConnectionUri& uri,
                                         std::chrono::milliseconds time);

  /// For somebody who does not wait: makes the try that is due, and goes on with what was begun. When the
  /// next one is due; nothing for a server that answers, also if it lets nobody in.
  [[nodiscard]] std::optional<Clock::time_point> GoOnTrying(const std::string& text,
                                                            const ConnectionUri& uri);
  /// A silent server is tried again as soon as anybody asks, and from the beginning.
  void LetTry(const std::string& text);

  /// A statement was not answered in time. The next call looks whether there is a server at all.
  void FellSilent(const std::string& text);
  /// The server answers somebody.
  void Answered(const std::string& text);

  /// When a server that does not answer is tried again; nothing for one that answers, as far as is known.
  [[nodiscard]] std::optional<Clock::time_point> NextTry(const std::string& text);

  /// The servers that others are preferred to.
  [[nodiscard]] DeadPlaces& Dead() { return dead_; }

 private:
  struct Silence {
    /// Null when nothing is under way, and while a call goes on with it.
    std::unique_ptr<ConnectionAttempt> attempt;
    Clock::time_point next_try;
    bool is_being_tried = false;
  };
  /// How long somebody waits for what a server answers.
  struct Patience {
    /// For a try.
    std::chrono::milliseconds of_try;
    /// Between two tries, for what has come meanwhile.
    std::chrono::milliseconds of_look;
  };

  [[nodiscard]] ConnectionHandle ConnectFirst(const std::string& text, const ConnectionUri& uri,
                                              std::chrono::milliseconds time);
  /// Takes out what is known of a silence to go on with it; nothing for a server that answers. A failure
  /// while somebody else does so.
  [[nodiscard]] std::optional<Silence> TakeSilence(const std::string& text, const ConnectionUri& uri);
  [[nodiscard]] ConnectionHandle TryAgain(const std::string& text, const ConnectionUri& uri, Silence silence,
                                          Patience patience);
  void Remember(const std::string& text, std::unique_ptr<ConnectionAttempt> attempt,
                Clock::time_point next_try);
  /// Lets others try a server of whose try nothing is known.
  void PutBack(const std::string& text);

  DeadPlaces dead_;
  std::mutex mutex_;
  /// By connection string.
  std::map<std::string, Silence> silences_;
};

}  // namespace ferrowind::postgres
