#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

#include <libpq-fe.h>

#include "ferrowind/adapters/postgres_calls/type_id.h"
#include "ferrowind/platform/values/record_set.h"

namespace ferrowind::postgres {

/// The value of a cell of `type`, whose binary form is `bytes`; failures as for `ReadRecordSet`, which name
/// `column`. Precondition: `ReadTypes` takes the type.
[[nodiscard]] platform::Value ReadValue(std::string_view bytes, Oid type, const char* column);

/// The types of the columns of `result`. One that record sets do not have is a failure.
[[nodiscard]] std::vector<Oid> ReadTypes(const PGresult* result);

/// The rows of `result`, which is in the binary format. A column's type decides: smallint gives an int16,
/// integer an int32, bigint an int64, date a date, text and varchar a text, and NULL an empty value. A column
/// of another type, a number whose size is not its type's, a text that is no UTF-8, and a date outside the
/// years 1 to 9999, are failures that name the column.
[[nodiscard]] std::shared_ptr<platform::RecordSet> ReadRecordSet(const PGresult* result);

/// As above, where the question asks for `columns` columns. Another number of them is a failure: what answers
/// is no server of this kind.
[[nodiscard]] std::shared_ptr<platform::RecordSet> ReadRecordSet(const PGresult* result, std::size_t columns);

/// The only cell of `result`, whose text is a whole number. Nothing when it is anything else, or is not
/// there.
[[nodiscard]] std::optional<std::int32_t> ReadWholeNumber(const PGresult* result);

}  // namespace ferrowind::postgres
