#include "ferrowind/platform/values/record_set.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "ferrowind/platform/values/case_fold.h"
#include "ferrowind/platform/values/failure.h"
#include "ferrowind/platform/values/row_filter.h"

namespace ferrowind::platform {
namespace {

std::shared_ptr<const RecordRows> RowByRow(std::vector<std::string> fields,
                                           std::vector<std::vector<Value>> rows) {
  auto all = std::make_shared<RecordRows>();
  all->cells.reserve(fields.size() * rows.size());
  for (auto& row : rows) {
    if (row.size() != fields.size()) throw InvalidArgument();
    std::move(row.begin(), row.end(), std::back_inserter(all->cells));
  }
  all->row_count = rows.size();
  all->fields = std::move(fields);
  return all;
}

Failure NoCurrentRecord() { return {failure_number::kNoCurrentRecord, "The record set has no current row"}; }

}  // namespace

RecordSet::RecordSet(std::shared_ptr<const RecordRows> rows) : rows_(std::move(rows)) {}

RecordSet::RecordSet(std::vector<std::string> fields, std::vector<std::vector<Value>> rows)
    : RecordSet(RowByRow(std::move(fields), std::move(rows))) {}

std::shared_ptr<RecordSet> RecordSet::Clone() const { return std::make_shared<RecordSet>(rows_); }

std::optional<std::size_t> RecordSet::FindField(std::string_view name) const {
  return FindIgnoringCase(rows_->fields, name);
}

std::size_t RecordSet::FieldNamed(std::string_view name) const {
  if (const auto field = FindField(name)) return *field;
  throw Failure(failure_number::kUnknownField, "The record set has no field named " + std::string(name));
}

bool RecordSet::Bof() const { return Eof() && RowCount() == 0; }

bool RecordSet::Eof() const { return current_ == rows_->row_count; }

void RecordSet::MoveFirst() {
  if (!visible_) {
    current_ = 0;
  } else {
    current_ = visible_->empty() ? rows_->row_count : static_cast<std::size_t>(visible_->front());
  }
}

void RecordSet::MoveNext() {
  if (Eof()) throw NoCurrentRecord();
  if (!visible_) {
    ++current_;
    return;
  }
  const auto next = std::upper_bound(visible_->begin(), visible_->end(), static_cast<std::int32_t>(current_));
  current_ = next == visible_->end() ? rows_->row_count : static_cast<std::size_t>(*next);
}

void RecordSet::MoveTo(Bookmark bookmark) {
  if (bookmark < 1 || static_cast<std::size_t>(bookmark) > rows_->row_count) {
    throw Failure(failure_number::kNoCurrentRecord,
                  "The record set has no row with the bookmark " + std::to_string(bookmark));
  }
  current_ = static_cast<std::size_t>(bookmark) - 1;
}

RecordSet::Bookmark RecordSet::CurrentBookmark() const {
  if (Eof()) throw NoCurrentRecord();
  return static_cast<Bookmark>(current_ + 1);
}

const Value& RecordSet::operator[](std::string_view field) const {
  if (Eof()) throw NoCurrentRecord();
  return rows_->Cell(current_, FieldNamed(field));
}

void RecordSet::SetFilter(const std::string& filter) {
  std::string new_filter = filter;
  std::optional<std::vector<std::int32_t>> new_visible;
  if (!new_filter.empty()) {
    const RowFilter compiled(new_filter, rows_->fields);
    new_visible.emplace();
    for (std::size_t row = 0; row < rows_->row_count; ++row) {
      if (compiled.Matches(*rows_, row)) new_visible->push_back(static_cast<std::int32_t>(row));
    }
  }
  // Nothing below can fail, so that a failure above leaves the old filter on.
  filter_ = std::move(new_filter);
  visible_ = std::move(new_visible);
  MoveFirst();
}

std::size_t RecordSet::RowCount() const { return visible_ ? visible_->size() : rows_->row_count; }

RecordSet::Bookmark RecordSet::BookmarkAt(std::size_t position) const {
  return visible_ ? (*visible_)[position] + 1 : static_cast<Bookmark>(position + 1);
}

bool RecordSet::ShowsTheSameAs(const RecordSet& other) const {
  if (rows_->fields != other.rows_->fields || RowCount() != other.RowCount()) return false;
  for (std::size_t position = 0; position < RowCount(); ++position) {
    for (std::size_t field = 0; field < FieldCount(); ++field) {
      if (!(Cell(BookmarkAt(position), field) == other.Cell(other.BookmarkAt(position), field))) return false;
    }
  }
  return true;
}

}  // namespace ferrowind::platform
