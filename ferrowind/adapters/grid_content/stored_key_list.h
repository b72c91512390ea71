#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <vector>

#include "ferrowind/adapters/grid_engine/key_places.h"
#include "ferrowind/adapters/grid_engine/row_arrangement.h"
#include "ferrowind/platform/toolkit/grid_keys.h"

namespace ferrowind::grid_content {

class StoredKeyList final : public platform::GridKeyList {
 public:
  /// `changed` is called after each change.
  StoredKeyList(std::function<std::int32_t()> column_count, std::function<void()> changed)
      : column_count_(std::move(column_count)), changed_(std::move(changed)) {}

  [[nodiscard]] std::int32_t Count() const override { return static_cast<std::int32_t>(keys_.size()); }
  [[nodiscard]] std::shared_ptr<const platform::GridKey> Item(std::int32_t position) const override;
  void Add(std::int16_t column_index, std::int32_t sort_order, std::int16_t position) override;
  void Clear() override;

  // Positions below are 1-based and must be in the list.
  void Remove(std::int32_t position);
  /// Takes the key from one position to another.
  void Move(std::int32_t from, std::int32_t to);
  void SetSortOrder(std::int32_t position, std::int32_t sort_order);

  /// The position of the first key of that column, or 0.
  [[nodiscard]] std::int32_t PositionOf(std::int16_t column_index) const;
  /// The order of the first key of that column, or none.
  [[nodiscard]] std::int32_t OrderOf(std::int16_t column_index) const;
  [[nodiscard]] std::vector<grid_engine::ArrangementKey> ForArrangement() const;

 private:
  /// After a change other than `Add`.
  void Settle();
  void Renumber();

  std::function<std::int32_t()> column_count_;
  std::function<void()> changed_;
  std::vector<std::shared_ptr<platform::GridKey>> keys_;
  grid_engine::KeyPlaces places_;
};

}  // namespace ferrowind::grid_content
