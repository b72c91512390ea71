#pragma once

#include <chrono>
#include <string>
#include <string_view>
#include <vector>

namespace ferrowind::odbc {

/// The keyword that only this adapter knows: for how many seconds a call may wait for the server.
inline constexpr const char* kCallTimeout = "CallTimeout";

/// A connection string "KEYWORD=VALUE;KEYWORD={VALUE};...", as ODBC has it: keywords without regard to case,
/// braces around a value that has a semicolon or a brace in it, in which "}" is written "}}".
class ConnectionString {
 public:
  /// A text that is not of that form is a failure that quotes nothing of it, for it may hold a password in
  /// any place.
  explicit ConnectionString(const std::string& text);

  /// The value of `keyword`; empty when there is none. Of several the first one counts.
  [[nodiscard]] std::string ValueOf(std::string_view keyword) const;
  /// What the driver is given: all but the keyword of this adapter's own, and what calls need of it.
  [[nodiscard]] std::string ForDriver() const;
  /// "The database NAME at HOST:PORT" for messages, as far as the text says.
  [[nodiscard]] std::string DatabaseName() const;
  /// How long a call may wait for the server; 5 seconds when the text does not say.
  [[nodiscard]] std::chrono::milliseconds CallTimeout() const { return call_timeout_; }

 private:
  struct Attribute {
    std::string keyword;
    std::string value;
    /// Both as they were written.
    std::string written;
  };
  [[nodiscard]] const Attribute* Find(std::string_view keyword) const;

  std::vector<Attribute> attributes_;
  std::chrono::milliseconds call_timeout_ = std::chrono::seconds(5);
};

}  // namespace ferrowind::odbc
