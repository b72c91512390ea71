#include "ferrowind/adapters/sqlite/result_reader.h"

#include <cstddef>
#include <limits>
#include <string>
#include <utility>

#include "ferrowind/platform/values/case_fold.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::sqlite {
namespace {

using platform::Date;
using platform::RecordRows;
using platform::Value;

template <typename Narrow>
bool Fits(std::int64_t number) {
  return number >= std::numeric_limits<Narrow>::min() && number <= std::numeric_limits<Narrow>::max();
}

Value WholeNumber(std::int64_t number, bool is_declared_int16) {
  if (is_declared_int16 && Fits<std::int16_t>(number)) return static_cast<std::int16_t>(number);
  if (Fits<std::int32_t>(number)) return static_cast<std::int32_t>(number);
  return number;
}

/// As it is declared; empty for an expression that is not named with a type.
std::string_view TypeOf(const Statement& statement, int column) {
  const char* const declared = sqlite3_column_decltype(statement.Get(), column);
  if (declared != nullptr) return declared;
  const std::string_view name = statement.ColumnName(column);
  const std::size_t blank = name.find(' ');
  return blank == std::string_view::npos ? std::string_view() : name.substr(blank + 1);
}

/// In large steps: cells are costly to move, room that nothing is written to costs next to nothing, and most
/// results are a year of days or a handful of rows.
constexpr std::size_t kFirstRows = 384;

void MakeRoomForRow(std::vector<Value>& cells, std::size_t fields) {
  constexpr std::size_t kManyCells = 1024 * 1024;
  if (cells.capacity() - cells.size() >= fields) return;
  const std::size_t growth = cells.capacity() < kManyCells ? 8 : 2;
  cells.reserve(cells.empty() ? kFirstRows * fields : cells.capacity() * growth);
}

}  // namespace

ResultReader::ResultReader(const Statement& statement) : statement_(statement) {
  const int count = statement.ColumnCount();
  columns_.reserve(static_cast<std::size_t>(count));
  for (int column = 0; column < count; ++column) {
    const std::string_view type = TypeOf(statement, column);
    ColumnKind kind = ColumnKind::kAsStored;
    if (platform::CompareIgnoringCase(type, "SMALLINT") == 0) {
      kind = ColumnKind::kInt16;
    } else if (platform::CompareIgnoringCase(type, "DATE") == 0) {
      kind = ColumnKind::kDate;
    }
    columns_.push_back(kind);
  }
}

std::string_view ResultReader::Name(int column) const {
  const std::string_view name = statement_.ColumnName(column);
  const bool has_type = columns_[static_cast<std::size_t>(column)] != ColumnKind::kAsStored;
  return has_type ? name.substr(0, name.find(' ')) : name;
}

Value ResultReader::Cell(int column) const {
  const ColumnKind kind = columns_[static_cast<std::size_t>(column)];
  const int stored = sqlite3_column_type(statement_.Get(), column);
  if (stored == SQLITE_NULL) return {};
  if (kind == ColumnKind::kDate) return DateCell(column);
  switch (stored) {
    case SQLITE_INTEGER:
      return WholeNumber(statement_.Integer(column), kind == ColumnKind::kInt16);
    case SQLITE_FLOAT:
      return sqlite3_column_double(statement_.Get(), column);
    case SQLITE_TEXT:
      return std::string(statement_.Text(column));
    default:
      throw BadCell(column, "bytes that are no text");
  }
}

void ResultReader::AppendCell(int column, std::vector<Value>& cells) const {
  if (columns_[static_cast<std::size_t>(column)] == ColumnKind::kAsStored) {
    // Looked up once for its type and its number: most cells are small numbers or empty.
    sqlite3_value* const stored = sqlite3_column_value(statement_.Get(), column);
    const int type = sqlite3_value_type(stored);
    if (type == SQLITE_NULL) {
      cells.emplace_back();
      return;
    }
    if (type == SQLITE_INTEGER && Fits<std::int32_t>(sqlite3_value_int64(stored))) {
      cells.emplace_back(static_cast<std::int32_t>(sqlite3_value_int64(stored)));
      return;
    }
  }
  cells.push_back(Cell(column));
}

Value ResultReader::DateCell(int column) const {
  const auto date = Date::FromIso(statement_.Text(column));
  if (!date) throw BadCell(column, "something that is no date");
  return *date;
}

platform::Failure ResultReader::BadCell(int column, const char* what) const {
  return {platform::failure_number::kTypeMismatch,
          "The column " + std::string(statement_.ColumnName(column)) + " of the database " +
              statement_.Database().Path() + " holds " + what};
}

std::size_t BytesOf(const Value& cell) {
  const auto* const text = cell.If<std::string>();
  return sizeof(Value) + (text != nullptr ? text->size() : 0);
}

std::shared_ptr<platform::RecordSet> ReadRecordSet(Statement& statement) {
  CallMemory memory(statement.Database());
  return ReadRecordSet(statement, memory);
}

std::shared_ptr<platform::RecordSet> ReadRecordSet(Statement& statement, CallMemory& memory) {
  const ResultReader reader(statement);
  const int count = statement.ColumnCount();
  auto rows = std::make_shared<RecordRows>();
  for (int column = 0; column < count; ++column) rows->fields.emplace_back(reader.Name(column));
  // A short record set takes that, too, and a call may give many.
  memory.Take(kFirstRows * static_cast<std::size_t>(count) * sizeof(Value));
  while (statement.Step()) {
    MakeRoomForRow(rows->cells, static_cast<std::size_t>(count));
    std::size_t bytes = 0;
    for (int column = 0; column < count; ++column) {
      reader.AppendCell(column, rows->cells);
      bytes += BytesOf(rows->cells.back());
    }
    memory.Take(bytes);
    ++rows->row_count;
  }
  return std::make_shared<platform::RecordSet>(std::move(rows));
}

}  // namespace ferrowind::sqlite
