#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "ferrowind/adapters/grid_engine/key_places.h"
#include "ferrowind/adapters/headless/call_log.h"
#include "ferrowind/platform/toolkit/grid_keys.h"

namespace ferrowind::headless {

class HeadlessGridKeyList : public platform::GridKeyList {
 public:
  /// `object` is the list's name in the log, which must outlive it; `column_count` tells how many columns
  /// there are.
  HeadlessGridKeyList(CallLog& log, std::string object, std::function<std::int32_t()> column_count)
      : log_(log), object_(std::move(object)), column_count_(std::move(column_count)) {}

  [[nodiscard]] std::int32_t Count() const override { return static_cast<std::int32_t>(keys_.size()); }
  [[nodiscard]] std::shared_ptr<const platform::GridKey> Item(std::int32_t position) const override;
  void Add(std::int16_t column_index, std::int32_t sort_order, std::int16_t position) override;
  void Clear() override;

  /// Drops all keys as a change of record set does, without a call to record.
  void Drop();
  /// Drops the key at the 1-based `position`, which must be one, as the operator does.
  void DropAt(std::int32_t position);
  /// Adds a key at the end as the operator does.
  void Append(std::int16_t column_index, std::int32_t sort_order);
  /// The order of the first key of that column; none without one.
  [[nodiscard]] std::int32_t OrderOf(std::int16_t column_index) const;
  /// Copies of all keys, the most significant first.
  [[nodiscard]] std::vector<platform::GridKey> Keys() const;

 private:
  void Insert(std::int16_t column_index, std::int32_t sort_order, std::size_t offset);
  void Renumber();

  CallLog& log_;
  std::string object_;
  std::function<std::int32_t()> column_count_;
  std::vector<std::shared_ptr<platform::GridKey>> keys_;
  grid_engine::KeyPlaces places_;
};

}  // namespace ferrowind::headless
