#include "ferrowind/adapters/grid_content/stored_columns.h"

#include <algorithm>
#include <iterator>

#include "ferrowind/platform/values/case_fold.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::grid_content {

using platform::Failure;
namespace failure_number = platform::failure_number;

namespace {

constexpr std::int32_t kTextColumn = 0;
constexpr std::int32_t kNotEdited = 1;

}  // namespace

void StoredColumns::RequireAddable(std::int32_t type, std::int32_t edit_type, const std::string& key) const {
  if (type != kTextColumn || edit_type != kNotEdited) throw platform::InvalidArgument();
  if (Find(key) != nullptr) {
    throw Failure(failure_number::kKeyNotUnique,
                  "The grid " + grid_name_ + " has a column " + key + " already");
  }
}

StoredColumn& StoredColumns::Add(const std::string& caption, const std::string& key) {
  const auto index = static_cast<std::int16_t>(columns_.size() + 1);
  columns_.push_back(std::make_unique<StoredColumn>(listener_, index, key, caption));
  return *columns_.back();
}

StoredColumn* StoredColumns::Find(const std::string& key) const {
  const std::string folded = platform::FoldCase(key);
  const auto found = std::find_if(columns_.begin(), columns_.end(), [&](const auto& column) {
    return platform::FoldCase(column->Key()) == folded;
  });
  return found == columns_.end() ? nullptr : found->get();
}

StoredColumn& StoredColumns::ByKey(const std::string& key) const {
  if (StoredColumn* column = Find(key)) return *column;
  throw Failure(failure_number::kElementNotFound, "The grid " + grid_name_ + " has no column " + key);
}

StoredColumn& StoredColumns::At(std::int32_t index) const {
  if (index < 1 || index > Count()) throw platform::SubscriptOutOfRange();
  return *columns_[static_cast<std::size_t>(index) - 1];
}

void StoredColumns::DropUnheld() {
  const auto first_dropped = columns_.begin() + static_cast<std::ptrdiff_t>(held_count_);
  std::move(first_dropped, columns_.end(), std::back_inserter(dropped_));
  columns_.erase(first_dropped, columns_.end());
  held_count_ = 0;
}

}  // namespace ferrowind::grid_content
