#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "ferrowind/export.h"
#include "ferrowind/platform/values/value.h"

namespace ferrowind::platform {

/// The immutable rows of a record set: named fields, and the cells row by row.
struct FERROWIND_EXPORT RecordRows {
  /// The names, in the order of the cells of a row.
  std::vector<std::string> fields;
  /// Row-major, `fields.size()` cells a row.
  std::vector<Value> cells;
  /// Counted apart, so that a result without fields can still have no rows.
  std::size_t row_count = 0;

  /// Precondition: `row < row_count` and `field < fields.size()`, both from 0 on.
  [[nodiscard]] const Value& Cell(std::size_t row, std::size_t field) const {
    return cells[row * fields.size() + field];
  }
};

/// The rows of one result of a stored procedure, with a cursor of its own; detached from any connection.
///
/// All clones share the same rows; each has its own cursor, filter and bookmark. The cursor stands before the
/// first row (`Bof`), on a row, or behind the last one (`Eof`); without visible rows it stands at both. Only
/// the rows that pass the filter are visible to the cursor. Field names are found without regard to case.
class FERROWIND_EXPORT RecordSet {
 public:
  /// Names a row for as long as any clone lives: its 1-based position among all rows, whatever the filter.
  using Bookmark = std::int32_t;

  /// A record set of the given rows; the cursor stands on the first one. Precondition: `rows` is not null and
  /// holds `row_count * fields.size()` cells, and fewer rows than 2^31.
  explicit RecordSet(std::shared_ptr<const RecordRows> rows);
  /// A record set of those rows. A row that has not one value per field is the failure Invalid argument.
  RecordSet(std::vector<std::string> fields, std::vector<std::vector<Value>> rows);

  /// A record set of the same rows in constant time, without a filter, its cursor on the first row.
  [[nodiscard]] std::shared_ptr<RecordSet> Clone() const;

  /// Fields count from 0 where they are told by position.
  [[nodiscard]] std::size_t FieldCount() const { return rows_->fields.size(); }
  /// Precondition: `field < FieldCount()`.
  [[nodiscard]] const std::string& FieldName(std::size_t field) const { return rows_->fields[field]; }
  /// The position of the field of that name, or nothing.
  [[nodiscard]] std::optional<std::size_t> FindField(std::string_view name) const;
  /// As `FindField`; an unknown name is the failure 3265, which names it.
  [[nodiscard]] std::size_t FieldNamed(std::string_view name) const;

  ///@{
  /// Whether the cursor stands before the first visible row, and behind the last one.
  [[nodiscard]] bool Bof() const;
  [[nodiscard]] bool Eof() const;
  ///@}
  /// Moves to the first visible row; without one, stays at `Bof` and `Eof`.
  void MoveFirst();
  /// Moves to the next visible row or behind the last one; behind the last one it is the failure 3021.
  void MoveNext();
  /// Moves to the row of that bookmark, whether the filter shows it or not; a bookmark of no row is the
  /// failure 3021. Moving on from a row that the filter hides goes to the next visible one.
  void MoveTo(Bookmark bookmark);
  /// The bookmark of the current row; without one, the failure 3021.
  [[nodiscard]] Bookmark CurrentBookmark() const;
  /// The current row's field of that name; the failure 3021 without a current row, 3265 for an unknown name.
  [[nodiscard]] const Value& operator[](std::string_view field) const;

  /// Shows only the rows that pass `filter` (row_filter.h says how it is written) and moves to the first of
  /// them; an empty filter shows all rows. A filter that does not parse or names an unknown field is the
  /// failure 3001, which names the place; the old filter then stays on and the cursor where it is.
  void SetFilter(const std::string& filter);
  /// The filter that is on, as it was set; "" for none.
  [[nodiscard]] const std::string& Filter() const { return filter_; }

  /// The number of visible rows.
  [[nodiscard]] std::size_t RowCount() const;
  /// The bookmark of the visible row at `position`, counted from 0. Precondition: `position < RowCount()`.
  [[nodiscard]] Bookmark BookmarkAt(std::size_t position) const;
  /// A cell without moving the cursor. Precondition: `bookmark` names a row and `field < FieldCount()`.
  [[nodiscard]] const Value& Cell(Bookmark bookmark, std::size_t field) const {
    return rows_->Cell(static_cast<std::size_t>(bookmark) - 1, field);
  }

  /// Whether the other shows the same values in the same fields of the same visible rows.
  [[nodiscard]] bool ShowsTheSameAs(const RecordSet& other) const;

 private:
  std::shared_ptr<const RecordRows> rows_;
  std::string filter_;
  /// The 0-based visible rows, ascending; nothing while no filter is on.
  std::optional<std::vector<std::int32_t>> visible_;
  /// 0-based row under the cursor; the number of all rows when it is on none.
  std::size_t current_ = 0;
};

}  // namespace ferrowind::platform
