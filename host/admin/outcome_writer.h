#pragma once

#include <iosfwd>
#include <memory>
#include <vector>

#include "ferrowind/platform/values/record_set.h"

#include "host/session/procedure_session.h"

namespace ferrowind::host {

/// The forms in which ferrowindctl prints rows.
enum class OutputFormat { kTable, kJson, kCsv };

/// For people: the return value, then each record set as aligned columns; texts over 60 columns are cut.
void WriteTable(const ProcedureOutcome& outcome, std::ostream& out);

/// One line `{"return": 0, "results": [{"fields": [...], "rows": [[...]]}]}`: dates as YYYY-MM-DD, empty as
/// null.
void WriteJson(const ProcedureOutcome& outcome, std::ostream& out);

/// RFC 4180 tables with a header line, with an empty line between: one with the single field "return", then
/// one per record set. Empty is nothing between the commas, an empty text is ""; in a table of one field both
/// are "".
void WriteCsv(const ProcedureOutcome& outcome, std::ostream& out);

void WriteOutcome(const ProcedureOutcome& outcome, OutputFormat format, std::ostream& out);

using RecordSets = std::vector<std::shared_ptr<platform::RecordSet>>;

/// What is no outcome of a procedure, in the same three forms without a return value: the columns alone, one
/// line `{"results": [...]}`, and the tables of CSV alone, with an empty line between each two.
void WriteTableRows(const RecordSets& record_sets, std::ostream& out);
void WriteJsonRows(const RecordSets& record_sets, std::ostream& out);
void WriteCsvRows(const RecordSets& record_sets, std::ostream& out);

void WriteRows(const RecordSets& record_sets, OutputFormat format, std::ostream& out);

/// A list of things, each a row: a table whose texts stand in full, one line of JSON that is a list of
/// objects with the fields as names, or a table of CSV.
void WriteList(const platform::RecordSet& rows, OutputFormat format, std::ostream& out);
void WriteTableList(const platform::RecordSet& rows, std::ostream& out);
void WriteJsonList(const platform::RecordSet& rows, std::ostream& out);
void WriteCsvList(const platform::RecordSet& rows, std::ostream& out);

}  // namespace ferrowind::host
