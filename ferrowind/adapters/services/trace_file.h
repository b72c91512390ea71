#pragma once

#include <memory>
#include <string>

#include "ferrowind/adapters/services/trace_sink.h"
#include "ferrowind/export.h"

namespace ferrowind {

class PrivateFile;

/// Appends trace to a file, one line a text: the time in UTC, a blank, and the text without passwords
/// (password_free.h), its control characters written as escapes. Each line is in the file when `Write`
/// returns.
class FERROWIND_EXPORT TraceFile : public TraceSink {
 public:
  /// Creates the file where there is none. It is readable by its owner only, from now on at the latest. One
  /// that cannot be opened for writing is a failure that names it; so is a link, a file of another user, one
  /// with several names, and what is no file, since others could have put it there to have it overwritten or
  /// to read along.
  explicit TraceFile(const std::string& path);
  TraceFile(const TraceFile&) = delete;
  TraceFile& operator=(const TraceFile&) = delete;
  ~TraceFile() override;

  void Write(const std::string& text) noexcept override;

 private:
  std::unique_ptr<PrivateFile> file_;
};

/// The text on one line: a backslash becomes two, line breaks `\r` and `\n`, other control characters `\xHH`.
[[nodiscard]] FERROWIND_EXPORT std::string OnOneLine(const std::string& text);

}  // namespace ferrowind
