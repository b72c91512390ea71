#pragma once

#include <optional>
#include <string>

namespace ferrowind {

/// A time of a day that is typed; without seconds its whole minute.
struct TypedTime {
  int hour = 0;
  int minute = 0;
  std::optional<int> second = {};
};

/// "14:05", "9.05" or "14:05:31", of a clock with 24 hours; nothing for any other text.
[[nodiscard]] std::optional<TypedTime> ReadTime(const std::string& text);

}  // namespace ferrowind
