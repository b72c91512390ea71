#include "ferrowind/adapters/headless/headless_grid_key_list.h"

#include <algorithm>

#include "ferrowind/platform/values/failure.h"

namespace ferrowind::headless {

using platform::GridKey;

std::shared_ptr<const GridKey> HeadlessGridKeyList::Item(std::int32_t position) const {
  if (position < 1 || position > Count()) throw platform::SubscriptOutOfRange();
  return keys_[static_cast<std::size_t>(position) - 1];
}

void HeadlessGridKeyList::Add(std::int16_t column_index, std::int32_t sort_order, std::int16_t position) {
  log_.Record(CallText(object_, "Add", {column_index, sort_order, position}));
  if (column_index < 1 || column_index > column_count_() || position < 0)
    throw platform::SubscriptOutOfRange();
  if (sort_order < platform::kSortDescending || sort_order > platform::kSortAscending) {
    throw platform::InvalidArgument();
  }
  Insert(column_index, sort_order, places_.Take(position));
}

void HeadlessGridKeyList::Clear() {
  log_.Record(CallText(object_, "Clear"));
  Drop();
}

void HeadlessGridKeyList::Drop() {
  keys_.clear();
  places_.Settle(0);
}

void HeadlessGridKeyList::DropAt(std::int32_t position) {
  keys_.erase(keys_.begin() + position - 1);
  places_.Settle(keys_.size());
  Renumber();
}

void HeadlessGridKeyList::Append(std::int16_t column_index, std::int32_t sort_order) {
  Insert(column_index, sort_order, keys_.size());
  places_.Settle(keys_.size());
}

std::int32_t HeadlessGridKeyList::OrderOf(std::int16_t column_index) const {
  const auto found = std::find_if(keys_.begin(), keys_.end(),
                                  [&](const auto& key) { return key->ColIndex == column_index; });
  return found == keys_.end() ? platform::kSortNone : (*found)->SortOrder;
}

std::vector<GridKey> HeadlessGridKeyList::Keys() const {
  std::vector<GridKey> copies;
  for (const auto& key : keys_) copies.push_back(*key);
  return copies;
}

void HeadlessGridKeyList::Insert(std::int16_t column_index, std::int32_t sort_order, std::size_t offset) {
  keys_.insert(keys_.begin() + static_cast<std::ptrdiff_t>(offset),
               std::make_shared<GridKey>(GridKey{column_index, sort_order, 0}));
  Renumber();
}

void HeadlessGridKeyList::Renumber() {
  for (std::size_t i = 0; i < keys_.size(); ++i) keys_[i]->Index = static_cast<std::int16_t>(i + 1);
}

}  // namespace ferrowind::headless
