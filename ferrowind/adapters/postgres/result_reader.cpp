#include "ferrowind/adapters/postgres/result_reader.h"

#include <charconv>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>
#include <vector>

#include "ferrowind/adapters/postgres/binary_value.h"
#include "ferrowind/platform/values/failure.h"
#include "ferrowind/platform/values/utf8_validation.h"

namespace ferrowind::postgres {
namespace {

using platform::Date;
using platform::RecordRows;
using platform::Value;

platform::Failure BadColumn(const std::string& name, const char* what) {
  return {platform::failure_number::kTypeMismatch, "The column " + name + " " + what};
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

Value ReadCell(const PGresult* result, int row, int column, Oid type) {
  if (PQgetisnull(result, row, column) != 0) return {};
  const auto size = static_cast<std::size_t>(PQgetlength(result, row, column));
  return ReadValue({PQgetvalue(result, row, column), size}, type, PQfname(result, column));
}

}  // namespace

Value ReadValue(std::string_view bytes, Oid type, const char* column) {
  if (IsText(type)) {
    // Not in a database of this kind, and the client's encoding is asked for.
    if (bytes.find('\0') != std::string_view::npos || !platform::IsWellFormedUtf8(bytes)) {
      throw BadColumn(column, "holds a text that is not valid UTF-8");
    }
    return std::string(bytes);
  }
  if (bytes.size() != SizeOf(type))
    throw BadColumn(column, "holds a number of another size than its type has");
  switch (type) {
    case type_id::kInt2:
      return ReadNumber<std::int16_t>(bytes.data());
    case type_id::kInt4:
      return ReadNumber<std::int32_t>(bytes.data());
    case type_id::kInt8:
      return ReadNumber<std::int64_t>(bytes.data());
    default:
      return ReadDate(bytes.data(), column);
  }
}

std::vector<Oid> ReadTypes(const PGresult* result) {
  std::vector<Oid> types;
  for (int column = 0; column < PQnfields(result); ++column) {
    const Oid type = PQftype(result, column);
    if (!platform::IsWellFormedUtf8(PQfname(result, column)))
      throw BadColumn(std::to_string(column + 1), "has a name that is not valid UTF-8");
    if (!IsKnown(type)) throw BadColumn(PQfname(result, column), "is of a type that record sets do not have");
    types.push_back(type);
  }
  return types;
}

std::shared_ptr<platform::RecordSet> ReadRecordSet(const PGresult* result) {
  const int columns = PQnfields(result);
  const int count = PQntuples(result);
  auto rows = std::make_shared<RecordRows>();
  const std::vector<Oid> types = ReadTypes(result);
  for (int column = 0; column < columns; ++column) rows->fields.emplace_back(PQfname(result, column));
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
