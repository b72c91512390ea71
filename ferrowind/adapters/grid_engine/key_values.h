#pragma once

#include <cstdint>

#include "ferrowind/platform/values/value.h"

namespace ferrowind::grid_engine {

/// A record on show: its 0-based position in the order in which the records were given.
using Record = std::uint32_t;

/// Where the engine reads the values that it sorts and groups by.
class KeyValues {
 public:
  virtual ~KeyValues() = default;
  /// The value of that record in that column. The reference stays good until the records or their values
  /// change.
  [[nodiscard]] virtual const platform::Value& KeyValue(std::int16_t column, Record record) const = 0;
};

}  // namespace ferrowind::grid_engine
