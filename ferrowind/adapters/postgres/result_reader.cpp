#include "ferrowind/adapters/postgres/result_reader.h"

#include <charconv>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>
#include <system_error>
#include <utility>
#include <vector>

#include "ferrowind/adapters/postgres/binary_value.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::postgres {
namespace {

using platform::Date;
using platform::RecordRows;
using platform::Value;

platform::Failure BadColumn(const char* name, const char* what) {
  return {platform::failure_number::kTypeMismatch, "The column " + std::string(name) + " " + what};
}

/// Days count from 1 January 2000, which is the serial 36526.
Value ReadDate(const char* bytes, const char* column) {
  constexpr std::int32_t kServerOrigin = 36526;
  const auto days = ReadNumber<std::int32_t>(bytes);
  if (days <= std::numeric_limits<std::int32_t>::max() - kServerOrigin) {
    try {
      return Date::FromSerial(days + kServerOrigin);
    } catch (const platform::Failure&) {
      throw BadColumn(column, "holds a date outside the years 1 to 9999");
    }
  }
  throw BadColumn(column, "holds a date outside the years 1 to 9999");
}

std::size_t SizeOf(Oid type) {
  switch (type) {
    case type_id::kInt2:
      return sizeof(std::int16_t);
    case type_id::kInt8:
      return sizeof(std::int64_t);
    default:
      return sizeof(std::int32_t);
  }
}

bool IsText(Oid type) {
  return type == type_id::kText || type == type_id::kName || type == type_id::kVarchar;
}

Value ReadCell(const PGresult* result, int row, int column, Oid type) {
  if (PQgetisnull(result, row, column) != 0) return {};
  const char* const bytes = PQgetvalue(result, row, column);
  const auto size = static_cast<std::size_t>(PQgetlength(result, row, column));
  if (IsText(type)) return std::string(bytes, size);
  if (size != SizeOf(type))
    throw BadColumn(PQfname(result, column), "holds a number of another size than its type has");
  switch (type) {
    case type_id::kInt2:
      return ReadNumber<std::int16_t>(bytes);
    case type_id::kInt4:
      return ReadNumber<std::int32_t>(bytes);
    case type_id::kInt8:
      return ReadNumber<std::int64_t>(bytes);
    default:
      return ReadDate(bytes, PQfname(result, column));
  }
}

bool IsKnown(Oid type) {
  switch (type) {
    case type_id::kInt2:
    case type_id::kInt4:
    case type_id::kInt8:
    case type_id::kDate:
      return true;
    default:
      return IsText(type);
  }
}

}  // namespace

std::shared_ptr<platform::RecordSet> ReadRecordSet(const PGresult* result) {
  const int columns = PQnfields(result);
  const int count = PQntuples(result);
  auto rows = std::make_shared<RecordRows>();
  std::vector<Oid> types;
  for (int column = 0; column < columns; ++column) {
    const Oid type = PQftype(result, column);
    if (!IsKnown(type)) throw BadColumn(PQfname(result, column), "is of a type that record sets do not have");
    types.push_back(type);
    rows->fields.emplace_back(PQfname(result, column));
  }
  rows->row_count = static_cast<std::size_t>(count);
  rows->cells.reserve(rows->row_count * rows->fields.size());
  for (int row = 0; row < count; ++row) {
    for (int column = 0; column < columns; ++column) {
      rows->cells.push_back(ReadCell(result, row, column, types[static_cast<std::size_t>(column)]));
    }
  }
  return std::make_shared<platform::RecordSet>(std::move(rows));
}

std::shared_ptr<platform::RecordSet> ReadRecordSet(const PGresult* result, std::size_t columns) {
  auto rows = ReadRecordSet(result);
  if (rows->FieldCount() != columns) {
    throw platform::Failure(platform::failure_number::kTypeMismatch,
                            "The server answered with " + std::to_string(rows->FieldCount()) +
                                " columns instead of " + std::to_string(columns) +
                                "; it is no PostgreSQL server");
  }
  return rows;
}

std::optional<std::int32_t> ReadWholeNumber(const PGresult* result) {
  if (PQntuples(result) != 1 || PQnfields(result) != 1) return std::nullopt;
  const char* const text = PQgetvalue(result, 0, 0);
  std::int32_t value = 0;
  const auto [end, error] = std::from_chars(text, text + PQgetlength(result, 0, 0), value);
  if (error != std::errc() || *end != '\0') return std::nullopt;
  return value;
}

}  // namespace ferrowind::postgres
