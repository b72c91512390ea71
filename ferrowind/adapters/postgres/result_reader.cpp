#include "ferrowind/adapters/postgres/result_reader.h"

#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>
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

Value ReadCell(const PGresult* result, int row, int column, Oid type) {
  if (PQgetisnull(result, row, column) != 0) return {};
  const char* const bytes = PQgetvalue(result, row, column);
  switch (type) {
    case type_id::kInt2:
      return ReadNumber<std::int16_t>(bytes);
    case type_id::kInt4:
      return ReadNumber<std::int32_t>(bytes);
    case type_id::kInt8:
      return ReadNumber<std::int64_t>(bytes);
    case type_id::kDate:
      return ReadDate(bytes, PQfname(result, column));
    default:
      return std::string(bytes, static_cast<std::size_t>(PQgetlength(result, row, column)));
  }
}

bool IsKnown(Oid type) {
  switch (type) {
    case type_id::kInt2:
    case type_id::kInt4:
    case type_id::kInt8:
    case type_id::kDate:
    case type_id::kText:
    case type_id::kName:
    case type_id::kVarchar:
      return true;
    default:
      return false;
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

}  // namespace ferrowind::postgres
