#pragma once

#include <memory>

#include "ferrowind/adapters/odbc/answer_room.h"
#include "ferrowind/adapters/odbc/diagnostics.h"
#include "ferrowind/adapters/odbc/handle.h"
#include "ferrowind/platform/values/record_set.h"

namespace ferrowind::odbc {

/// That a row could not be got, of which the statement's diagnostics tell.
struct FetchTrouble {
  Diagnostic diagnostic;
};

/// The rows of the result at which `statement` stands, which has columns. A column's type decides: smallint
/// gives an int16, integer an int32, bigint an int64, date a date, every text a text, and NULL an empty
/// value. A column of another type, a text that is no UTF-16, and a date outside the years 1 to 9999, are
/// failures that name the column. What the rows take comes out of `room`. Throws `FetchTrouble` and
/// `AnswerWithoutEnd`, too.
[[nodiscard]] std::shared_ptr<platform::RecordSet> ReadRecordSet(const StatementHandle& statement,
                                                                 AnswerRoom& room);

}  // namespace ferrowind::odbc
