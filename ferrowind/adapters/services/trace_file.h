#pragma once

#include <fstream>
#include <string>

#include "ferrowind/adapters/services/trace_sink.h"

namespace ferrowind {

/// Appends trace to a file, one line a text: the time in UTC, a blank, and the text without passwords
/// (password_free.h), its control characters written as escapes. Each line is in the file when `Write`
/// returns.
class TraceFile : public TraceSink {
 public:
  /// Creates the file where there is none, readable by its owner only. One that cannot be opened for writing
  /// is a failure that names it.
  explicit TraceFile(const std::string& path);

  void Write(const std::string& text) noexcept override;

 private:
  std::ofstream file_;
};

/// The text on one line: a backslash becomes two, line breaks \r and \n, other control characters \xHH.
[[nodiscard]] std::string OnOneLine(const std::string& text);

}  // namespace ferrowind
