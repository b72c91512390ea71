#pragma once

#include <string>
#include <string_view>

namespace ferrowind::postgres {

/// Why no connection was made. libpq keeps the server's number of it to itself, so it is read out of the
/// text, for which the connection must be set to tell everything (`PQERRORS_VERBOSE`) as soon as it is begun.
struct ConnectionRefusal {
  /// On one line, as it would be without being set so.
  std::string text;
  /// The server's own number; empty when the server said nothing, or what spoke was libpq.
  std::string sqlstate;

  /// The server, or the pool in front of it, has no connection left: a little later there may be one.
  [[nodiscard]] bool IsFull() const;
  /// Another server that the connection string names may do instead, as libpq has it: this one is not there,
  /// not ready, or not of the wanted kind.
  [[nodiscard]] bool IsForOthers() const;
  /// A pool does not pass on "options".
  [[nodiscard]] bool IsOfOptions() const;
};

/// `message` is libpq's, of several lines.
[[nodiscard]] ConnectionRefusal RefusalIn(std::string_view message);

}  // namespace ferrowind::postgres
