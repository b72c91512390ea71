#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

#include "ferrowind/adapters/sqlite/call_memory.h"
#include "ferrowind/adapters/sqlite/statement.h"
#include "ferrowind/platform/values/record_set.h"
#include "ferrowind/platform/values/value.h"

namespace ferrowind::sqlite {

/// Turns the rows of a statement into values.
///
/// The declared type of the table column that a result column comes from decides: DATE gives a date, SMALLINT
/// an int16. An expression that is named as a column is declared, "ODate DATE", is taken for such a column.
/// Every other column and every expression gives what the cell holds: a whole number an int32 when it fits
/// and an int64 when not, another number a double, a text a text, NULL an empty value. A whole number that is
/// no int16 in a SMALLINT column comes like any other. A DATE cell that is no date, and a cell of bytes, are
/// failures that name the column.
class ResultReader {
 public:
  /// `statement` must outlive the reader.
  explicit ResultReader(const Statement& statement);

  /// The name of a column, without the type that it may be declared by.
  [[nodiscard]] std::string_view Name(int column) const;
  /// A cell of the row that the statement stands on.
  [[nodiscard]] platform::Value Cell(int column) const;
  /// The same behind `cells`. Quicker for what most cells are, numbers of 32 bits and empty ones, which are
  /// made in place.
  void AppendCell(int column, std::vector<platform::Value>& cells) const;

 private:
  enum class ColumnKind { kAsStored, kInt16, kDate };

  [[nodiscard]] platform::Value DateCell(int column) const;
  [[nodiscard]] platform::Failure BadCell(int column, const char* what) const;

  const Statement& statement_;
  std::vector<ColumnKind> columns_;
};

/// What `cell` takes in memory.
[[nodiscard]] std::size_t BytesOf(const platform::Value& cell);

/// All rows of `statement`, which has columns and has not been run yet, as far as there is `memory`.
[[nodiscard]] std::shared_ptr<platform::RecordSet> ReadRecordSet(Statement& statement, CallMemory& memory);
/// Those of a statement that is the only one of its call.
[[nodiscard]] std::shared_ptr<platform::RecordSet> ReadRecordSet(Statement& statement);

}  // namespace ferrowind::sqlite
