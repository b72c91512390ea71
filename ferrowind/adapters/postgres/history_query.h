#pragma once

#include <memory>
#include <string>

#include "ferrowind/adapters/content/history_filter.h"
#include "ferrowind/platform/values/record_set.h"

namespace ferrowind::postgres {

/// The entries of the history of the calendar database that `filter` asks for, in the order of their writing:
/// `EntryID`, `Moment` (a text YYYY-MM-DDTHH:MM:SS.sssZ), `UserName`, `ProcedureName`, `Ccy` and `Year1`
/// (empty for a call that was for no calendar), `Parameters` (the text of a JSON object), `ReturnValue`,
/// `RowsChanged`. The login must be one that could create the database. An unknown currency in the filter, a
/// database of another version than this program's, and one that cannot be read, are a `platform::Failure`.
[[nodiscard]] std::shared_ptr<platform::RecordSet> ReadHistory(const std::string& connection_string,
                                                               const content::HistoryFilter& filter);

}  // namespace ferrowind::postgres
