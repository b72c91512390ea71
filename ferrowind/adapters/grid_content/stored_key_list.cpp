#include "ferrowind/adapters/grid_content/stored_key_list.h"

#include <algorithm>
#include <utility>

#include "ferrowind/platform/values/failure.h"

namespace ferrowind::grid_content {

using grid_engine::KeyDirection;
using platform::GridKey;

std::shared_ptr<const GridKey> StoredKeyList::Item(std::int32_t position) const {
  if (position < 1 || position > Count()) throw platform::SubscriptOutOfRange();
  return keys_[static_cast<std::size_t>(position) - 1];
}

void StoredKeyList::Add(std::int16_t column_index, std::int32_t sort_order, std::int16_t position) {
  if (column_index < 1 || column_index > column_count_() || position < 0)
    throw platform::SubscriptOutOfRange();
  if (sort_order < platform::kSortDescending || sort_order > platform::kSortAscending) {
    throw platform::InvalidArgument();
  }
  const auto place = static_cast<std::ptrdiff_t>(places_.Take(position));
  keys_.insert(keys_.begin() + place, std::make_shared<GridKey>(GridKey{column_index, sort_order, 0}));
  Renumber();
  changed_();
}

void StoredKeyList::Clear() {
  if (keys_.empty()) return;
  // The keys keep their numbers: who holds one may add it again.
  keys_.clear();
  places_.Settle(0);
  changed_();
}

void StoredKeyList::Remove(std::int32_t position) {
  keys_.erase(keys_.begin() + (position - 1));
  Settle();
}

void StoredKeyList::Move(std::int32_t from, std::int32_t to) {
  if (from == to) return;
  const auto key = keys_[static_cast<std::size_t>(from) - 1];
  keys_.erase(keys_.begin() + (from - 1));
  keys_.insert(keys_.begin() + (to - 1), key);
  Settle();
}

void StoredKeyList::SetSortOrder(std::int32_t position, std::int32_t sort_order) {
  // A key object that someone holds is not turned under his hands: a new one takes its place.
  keys_[static_cast<std::size_t>(position) - 1] = std::make_shared<GridKey>(
      GridKey{keys_[static_cast<std::size_t>(position) - 1]->ColIndex, sort_order, 0});
  Settle();
}

std::int32_t StoredKeyList::PositionOf(std::int16_t column_index) const {
  const auto found = std::find_if(keys_.begin(), keys_.end(),
                                  [&](const auto& key) { return key->ColIndex == column_index; });
  return found == keys_.end() ? 0 : (*found)->Index;
}

std::int32_t StoredKeyList::OrderOf(std::int16_t column_index) const {
  const std::int32_t position = PositionOf(column_index);
  return position == 0 ? platform::kSortNone : Item(position)->SortOrder;
}

std::vector<grid_engine::ArrangementKey> StoredKeyList::ForArrangement() const {
  std::vector<grid_engine::ArrangementKey> keys;
  for (const auto& key : keys_) {
    KeyDirection direction = KeyDirection::kNone;
    if (key->SortOrder == platform::kSortAscending) direction = KeyDirection::kAscending;
    if (key->SortOrder == platform::kSortDescending) direction = KeyDirection::kDescending;
    keys.push_back({key->ColIndex, direction});
  }
  return keys;
}

void StoredKeyList::Settle() {
  places_.Settle(keys_.size());
  Renumber();
  changed_();
}

void StoredKeyList::Renumber() {
  for (std::size_t i = 0; i < keys_.size(); ++i) keys_[i]->Index = static_cast<std::int16_t>(i + 1);
}

}  // namespace ferrowind::grid_content
