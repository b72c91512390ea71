#include "ferrowind/adapters/odbc/result_reader.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "ferrowind/adapters/odbc/wide_text.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::odbc {
namespace {

using platform::Date;
using platform::RecordRows;
using platform::Value;

enum class CellType { kInt16, kInt32, kInt64, kDate, kText };

struct Column {
  SQLUSMALLINT number;
  std::string name;
  CellType type;
};

platform::Failure BadColumn(const std::string& name, const char* what) {
  return {platform::failure_number::kTypeMismatch, "The column " + name + " " + what};
}

CellType TypeOf(SQLSMALLINT type, const std::string& column) {
  switch (type) {
    case SQL_SMALLINT:
      return CellType::kInt16;
    case SQL_INTEGER:
      return CellType::kInt32;
    case SQL_BIGINT:
      return CellType::kInt64;
    case SQL_TYPE_DATE:
      return CellType::kDate;
    case SQL_CHAR:
    case SQL_VARCHAR:
    case SQL_LONGVARCHAR:
    case SQL_WCHAR:
    case SQL_WVARCHAR:
    case SQL_WLONGVARCHAR:
      return CellType::kText;
    default:
      throw BadColumn(column, "is of a type that record sets do not have");
  }
}

/// Reads the cells of the rows, one after the other, each once.
class CellReader {
 public:
  CellReader(const StatementHandle& statement, AnswerRoom& room) : statement_(statement), room_(room) {}

  Value Read(const Column& column) {
    room_.Take(sizeof(Value));
    switch (column.type) {
      case CellType::kInt16:
        return ReadPlain<std::int16_t>(column, SQL_C_SSHORT);
      case CellType::kInt32:
        return ReadPlain<std::int32_t>(column, SQL_C_SLONG);
      case CellType::kInt64:
        return ReadPlain<std::int64_t>(column, SQL_C_SBIGINT);
      case CellType::kDate:
        return ReadDate(column);
      case CellType::kText:
        break;
    }
    return ReadText(column);
  }

 private:
  /// How the driver answered, which is no error. `length` is told the bytes of what is there, or that nothing
  /// is.
  SQLRETURN Get(const Column& column, SQLSMALLINT type, SQLPOINTER place, std::size_t room, SQLLEN& length) {
    const SQLRETURN answer =
        SQLGetData(statement_.Get(), column.number, type, place, static_cast<SQLLEN>(room), &length);
    if (!SQL_SUCCEEDED(answer)) throw FetchTrouble{DiagnosticOf(statement_)};
    return answer;
  }

  template <typename Number>
  Value ReadPlain(const Column& column, SQLSMALLINT type) {
    Number number = 0;
    SQLLEN length = 0;
    Get(column, type, &number, sizeof(number), length);
    return length == SQL_NULL_DATA ? Value() : Value(number);
  }

  Value ReadDate(const Column& column) {
    SQL_DATE_STRUCT date{};
    SQLLEN length = 0;
    Get(column, SQL_C_TYPE_DATE, &date, sizeof(date), length);
    if (length == SQL_NULL_DATA) return {};
    if (!Date::IsValid(date.year, date.month, date.day)) {
      throw BadColumn(column.name, "holds a date outside the years 1 to 9999");
    }
    return Date(date.year, date.month, date.day);
  }

  /// In parts, as large as there is room, since some drivers do not tell how long a text is.
  Value ReadText(const Column& column) {
    WideText text;
    for (;;) {
      SQLLEN length = 0;
      const SQLRETURN answer =
          Get(column, SQL_C_WCHAR, part_.data(), part_.size() * sizeof(SQLWCHAR), length);
      if (length == SQL_NULL_DATA) return {};
      const auto part = PartOf(length);
      room_.Take(part.size_bytes());
      text.insert(text.end(), part.begin(), part.end());
      const bool fits = length >= 0 ? static_cast<std::size_t>(length) <= RoomOfPart() * sizeof(SQLWCHAR)
                                    : part.size() < RoomOfPart();
      if (answer == SQL_SUCCESS || fits) break;
    }
    auto utf8 = FromWide(text);
    if (!utf8) throw BadColumn(column.name, "holds a text that is not valid UTF-16");
    return std::move(*utf8);
  }

  /// A part ends with a NUL of its own.
  [[nodiscard]] std::size_t RoomOfPart() const { return part_.size() - 1; }

  /// What was got into `part_`, of which a driver says that it is, with all that is still to come, `length`
  /// bytes long, or that it does not know. Never more than there is room for, whatever it says.
  [[nodiscard]] std::span<const SQLWCHAR> PartOf(SQLLEN length) const {
    const auto whole = std::span(part_).first(RoomOfPart());
    if (length >= 0)
      return whole.first(std::min(static_cast<std::size_t>(length) / sizeof(SQLWCHAR), whole.size()));
    return whole.first(static_cast<std::size_t>(std::ranges::find(whole, SQLWCHAR{0}) - whole.begin()));
  }

  const StatementHandle& statement_;
  AnswerRoom& room_;
  WideText part_ = WideText(4096);
};

std::vector<Column> ColumnsOf(const StatementHandle& statement) {
  SQLSMALLINT count = 0;
  if (!SQL_SUCCEEDED(SQLNumResultCols(statement.Get(), &count))) throw FetchTrouble{DiagnosticOf(statement)};
  std::vector<Column> columns;
  for (SQLUSMALLINT number = 1; number <= count; ++number) {
    std::array<SQLWCHAR, 256> name{};
    SQLSMALLINT length = 0;
    SQLSMALLINT type = 0;
    SQLULEN size = 0;
    SQLSMALLINT digits = 0;
    SQLSMALLINT nullable = 0;
    if (!SQL_SUCCEEDED(SQLDescribeColW(statement.Get(), number, name.data(),
                                       static_cast<SQLSMALLINT>(name.size()), &length, &type, &size, &digits,
                                       &nullable))) {
      throw FetchTrouble{DiagnosticOf(statement)};
    }
    const auto whole = std::min(static_cast<std::size_t>(std::max<SQLSMALLINT>(length, 0)), name.size() - 1);
    auto utf8 = FromWide(std::span(name).first(whole));
    if (!utf8) throw BadColumn(std::to_string(number), "has a name that is not valid UTF-16");
    const CellType cell_type = TypeOf(type, *utf8);
    columns.push_back({number, std::move(*utf8), cell_type});
  }
  return columns;
}

}  // namespace

std::shared_ptr<platform::RecordSet> ReadRecordSet(const StatementHandle& statement, AnswerRoom& room) {
  auto rows = std::make_shared<RecordRows>();
  const std::vector<Column> columns = ColumnsOf(statement);
  for (const Column& column : columns) rows->fields.push_back(column.name);
  CellReader reader(statement, room);
  for (;;) {
    const SQLRETURN answer = SQLFetch(statement.Get());
    if (answer == SQL_NO_DATA) break;
    if (!SQL_SUCCEEDED(answer)) throw FetchTrouble{DiagnosticOf(statement)};
    for (const Column& column : columns) rows->cells.push_back(reader.Read(column));
    ++rows->row_count;
  }
  return std::make_shared<platform::RecordSet>(std::move(rows));
}

}  // namespace ferrowind::odbc
