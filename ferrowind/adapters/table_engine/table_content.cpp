#include "ferrowind/adapters/table_engine/table_content.h"

#include <algorithm>
#include <cstdint>
#include <numeric>
#include <set>
#include <utility>

#include "ferrowind/platform/values/case_fold.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::table_engine {

using platform::Failure;
using platform::TableCell;
using platform::TableColumn;
using platform::TableRow;
namespace failure_number = platform::failure_number;

namespace {

Failure NotFound(const std::string& table, const char* what, const std::string& key) {
  return {failure_number::kElementNotFound, "The table " + table + " has no " + what + " " + key};
}

Failure NotUnique(const std::string& table, const char* what, const std::string& key) {
  return {failure_number::kKeyNotUnique,
          "The table " + table + " was given the " + what + " " + key + " twice"};
}

/// What a cell sorts by.
struct SortValue {
  std::optional<std::int64_t> order;
  std::string folded;
};

bool IsBefore(const SortValue& left, const SortValue& right) {
  if (left.order && right.order) return *left.order < *right.order;
  return left.folded < right.folded;
}

}  // namespace

void TableContent::SetColumns(const std::vector<TableColumn>& columns) {
  std::set<std::string_view> keys;
  for (const TableColumn& column : columns) {
    if (!keys.insert(column.key).second) throw NotUnique(table_name_, "column", column.key);
  }
  columns_ = columns;
  sorting_.reset();
  SetRows({});
}

void TableContent::SetRows(const std::vector<TableRow>& rows) {
  std::vector<TableRow> replaced = rows;
  std::unordered_map<std::string_view, std::size_t> by_key;
  by_key.reserve(replaced.size());
  for (std::size_t i = 0; i < replaced.size(); ++i) {
    if (replaced[i].cells.size() > columns_.size()) throw platform::InvalidArgument();
    if (!by_key.emplace(replaced[i].key, i).second) throw NotUnique(table_name_, "row", replaced[i].key);
  }
  for (TableRow& row : replaced) {
    const auto known = rows_by_key_.find(row.key);
    if (row.checked && known != rows_by_key_.end() && rows_[known->second].checked)
      row.checked = rows_[known->second].checked;
  }
  rows_by_key_ = std::move(by_key);
  // The texts that the keys of the map look at move along with the rows.
  rows_ = std::move(replaced);
  Arrange();
}

const TableCell& TableContent::CellAt(std::size_t place, std::size_t column) const {
  static const TableCell empty;
  const TableRow& row = RowAt(place);
  return column < row.cells.size() ? row.cells[column] : empty;
}

std::vector<std::string> TableContent::Keys() const {
  std::vector<std::string> keys;
  keys.reserve(order_.size());
  for (const std::size_t row : order_) keys.push_back(rows_[row].key);
  return keys;
}

std::optional<std::size_t> TableContent::FindRow(const std::string& key) const {
  const auto found = rows_by_key_.find(key);
  if (found == rows_by_key_.end()) return std::nullopt;
  return places_[found->second];
}

std::size_t TableContent::RowOf(const std::string& key) const {
  const auto place = FindRow(key);
  if (!place) throw NotFound(table_name_, "row", key);
  return *place;
}

std::size_t TableContent::ColumnOf(const std::string& key) const {
  const auto found = std::find_if(columns_.begin(), columns_.end(),
                                  [&](const TableColumn& column) { return column.key == key; });
  if (found == columns_.end()) throw NotFound(table_name_, "column", key);
  return static_cast<std::size_t>(found - columns_.begin());
}

std::optional<std::size_t> TableContent::Successor(const std::optional<std::string>& key,
                                                   std::size_t place) const {
  if (rows_.empty()) return std::nullopt;
  if (!key) return 0;
  const auto kept = FindRow(*key);
  return kept ? kept : std::min(place, rows_.size() - 1);
}

std::string TableContent::TextOf(const std::vector<std::string>& rows) const {
  std::string text;
  const auto add = [&](std::size_t column, const std::string& cell) {
    if (column > 0) text += '\t';
    // A tab or a line break inside a cell would begin another one where the text is pasted.
    for (const char byte : cell) text += byte == '\t' || byte == '\n' || byte == '\r' ? ' ' : byte;
  };
  for (std::size_t column = 0; column < columns_.size(); ++column) add(column, columns_[column].caption);
  text += '\n';
  for (const std::string& key : rows) {
    const std::size_t place = RowOf(key);
    for (std::size_t column = 0; column < columns_.size(); ++column) {
      const TableCell& cell = CellAt(place, column);
      add(column, cell.text.empty() ? word_of_(cell.mark) : cell.text);
    }
    text += '\n';
  }
  return text;
}

bool TableContent::SetChecked(std::size_t place, bool checked) {
  std::optional<bool>& box = rows_[order_[place]].checked;
  if (!box || *box == checked) return false;
  box = checked;
  return true;
}

void TableContent::Sort(std::optional<Sorting> sorting) {
  sorting_ = sorting;
  Arrange();
}

std::optional<Sorting> TableContent::SortingAfterClick(std::size_t column) const {
  if (!sorting_ || sorting_->column != column) return Sorting{column, false};
  if (!sorting_->is_descending) return Sorting{column, true};
  return std::nullopt;
}

void TableContent::Arrange() {
  order_.resize(rows_.size());
  std::iota(order_.begin(), order_.end(), std::size_t{0});
  if (sorting_) {
    std::vector<SortValue> values;
    values.reserve(rows_.size());
    for (const TableRow& row : rows_) {
      const bool has_cell = sorting_->column < row.cells.size();
      values.push_back(has_cell ? SortValue{row.cells[sorting_->column].order,
                                            platform::FoldCase(row.cells[sorting_->column].text)}
                                : SortValue{});
    }
    const auto unordered = std::stable_partition(
        order_.begin(), order_.end(), [&](std::size_t row) { return values[row].order.has_value(); });
    const auto in_order = [&](std::size_t left, std::size_t right) {
      return sorting_->is_descending ? IsBefore(values[right], values[left])
                                     : IsBefore(values[left], values[right]);
    };
    std::stable_sort(order_.begin(), unordered, in_order);
    std::stable_sort(unordered, order_.end(), in_order);
  }
  places_.resize(order_.size());
  for (std::size_t place = 0; place < order_.size(); ++place) places_[order_[place]] = place;
}

}  // namespace ferrowind::table_engine
