#pragma once

#include <random>
#include <string>
#include <utility>
#include <vector>

#include "ferrowind/adapters/grid_engine/key_values.h"

namespace ferrowind::grid_engine {

/// Records whose values a test gives, column by column; columns count from 1.
class ValueTable final : public KeyValues {
 public:
  explicit ValueTable(std::vector<std::vector<platform::Value>> columns) : columns_(std::move(columns)) {}

  [[nodiscard]] const platform::Value& KeyValue(std::int16_t column, Record record) const override {
    ++reads_;
    return columns_[static_cast<std::size_t>(column) - 1][record];
  }
  [[nodiscard]] std::uint32_t RecordCount() const { return static_cast<std::uint32_t>(columns_[0].size()); }
  [[nodiscard]] int Reads() const { return reads_; }
  void Set(std::int16_t column, Record record, platform::Value value) {
    columns_[static_cast<std::size_t>(column) - 1][record] = std::move(value);
  }

 private:
  std::vector<std::vector<platform::Value>> columns_;
  mutable int reads_ = 0;
};

/// Any kind of value, with many repetitions. The seed is fixed: what fails once fails always.
inline platform::Value AnyValue(std::mt19937& random) {
  const auto number = static_cast<int>(random() % 40) - 20;
  switch (random() % 9) {
    case 0:
      return {};
    case 1:
      return platform::Value(number % 2 == 0);
    case 2:
      return platform::Value(static_cast<std::int16_t>(number));
    case 3:
      return platform::Value(static_cast<std::int32_t>(number));
    case 4:
      return platform::Value(static_cast<std::int64_t>(number) * 1000000007);
    case 5:
      return platform::Value(static_cast<float>(number) / 4);
    case 6:
      return platform::Value(static_cast<double>(number) / 3);
    case 7:
      return platform::Value(platform::Date(2000 + number, 2, 28));
    default: {
      const char* const texts[] = {"", "a", "A", "ab", "Zürich", "zÜRICH", "a longer text of some kind", "B"};
      return platform::Value(texts[random() % 8]);
    }
  }
}

}  // namespace ferrowind::grid_engine
