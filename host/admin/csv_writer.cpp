#include <ostream>

#include "ferrowind/platform/values/conversion.h"

#include "host/admin/guarded_stream.h"
#include "host/admin/outcome_writer.h"
#include "host/admin/text_escapes.h"

namespace ferrowind::host {
namespace {

constexpr const char* kLineEnd = "\r\n";

std::string Quoted(const std::string& text) {
  std::string quoted = "\"";
  for (const char character : text) {
    if (character == '"') quoted += '"';
    quoted += character;
  }
  return quoted + '"';
}

/// Quotes where the text needs it to be read back, and around an empty text, which is not the same as no
/// value.
///
/// On a terminal all of it stands on one line, so that it cannot look like a line of the program.
std::string CsvText(const std::string& stored, bool is_on_terminal) {
  const std::string text = is_on_terminal ? OneLine(stored) : stored;
  const bool is_plain = !text.empty() && text.find_first_of("\",\r\n") == std::string::npos;
  return is_plain ? text : Quoted(text);
}

/// Empty is nothing, except in a lonely cell: an empty line would end the table.
std::string CsvCell(const platform::Value& value, bool is_alone, bool is_on_terminal) {
  if (value.IsEmpty() && !is_alone) return {};
  return CsvText(platform::ToTextOrEmpty(value), is_on_terminal);
}

template <typename Cell>
void WriteLine(std::size_t count, const Cell& cell, std::ostream& out) {
  for (std::size_t i = 0; i < count; ++i) out << (i == 0 ? "" : ",") << cell(i);
  out << kLineEnd;
}

void WriteRecordSet(const platform::RecordSet& rows, std::ostream& out) {
  const bool is_on_terminal = IsOnTerminal(out);
  WriteLine(
      rows.FieldCount(), [&](std::size_t field) { return CsvText(rows.FieldName(field), is_on_terminal); },
      out);
  for (std::size_t i = 0; i < rows.RowCount(); ++i) {
    const auto row = rows.BookmarkAt(i);
    const bool is_alone = rows.FieldCount() == 1;
    WriteLine(
        rows.FieldCount(),
        [&](std::size_t field) { return CsvCell(rows.Cell(row, field), is_alone, is_on_terminal); }, out);
  }
}

}  // namespace

void WriteCsv(const ProcedureOutcome& outcome, std::ostream& out) {
  out << "return" << kLineEnd << outcome.return_value << kLineEnd;
  for (const auto& rows : outcome.record_sets) {
    out << kLineEnd;
    WriteRecordSet(*rows, out);
  }
}

void WriteCsvRows(const RecordSets& record_sets, std::ostream& out) {
  for (std::size_t i = 0; i < record_sets.size(); ++i) {
    if (i != 0) out << kLineEnd;
    WriteRecordSet(*record_sets[i], out);
  }
}

void WriteCsvList(const platform::RecordSet& rows, std::ostream& out) { WriteRecordSet(rows, out); }

}  // namespace ferrowind::host
