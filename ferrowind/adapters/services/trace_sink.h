#pragma once

#include <string>

namespace ferrowind {

/// Where lines of trace go. Never fails: a trace that cannot be written must not disturb what it traces.
class TraceSink {
 public:
  virtual ~TraceSink() = default;
  /// `text` may hold any character, line breaks and NUL included.
  virtual void Write(const std::string& text) noexcept = 0;
};

}  // namespace ferrowind
