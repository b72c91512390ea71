#pragma once

#include <string>

#include "ferrowind/export.h"

namespace ferrowind {

/// Where lines of trace go. Never fails: a trace that cannot be written must not disturb what it traces.
class FERROWIND_EXPORT TraceSink {
 public:
  virtual ~TraceSink() = default;
  /// `text` may hold any character, line breaks and NUL included.
  virtual void Write(const std::string& text) noexcept = 0;
};

}  // namespace ferrowind
