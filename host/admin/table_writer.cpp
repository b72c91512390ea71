#include <algorithm>
#include <limits>
#include <ostream>
#include <utility>

#include "ferrowind/platform/values/conversion.h"

#include "host/admin/outcome_writer.h"
#include "host/admin/terminal_text.h"

namespace ferrowind::host {
namespace {

using platform::RecordSet;
using platform::Value;

constexpr std::size_t kWidestCell = 60;
constexpr std::size_t kNoLimit = std::numeric_limits<std::size_t>::max();
constexpr const char* kGap = "  ";

bool IsNumber(const Value& value) {
  return value.Is<std::int16_t>() || value.Is<std::int32_t>() || value.Is<std::int64_t>() ||
         value.Is<float>() || value.Is<double>();
}

/// The cells of one field, with its name on top.
struct Column {
  std::vector<TerminalText> cells;
  std::size_t width = 0;
  /// Numbers stand to the right, so that their digits line up.
  bool is_right_aligned = false;

  void Add(const std::string& text, std::size_t limit) {
    cells.push_back(ForTerminal(text, limit));
    width = std::max(width, cells.back().width);
  }
};

Column MakeColumn(const RecordSet& rows, std::size_t field, std::size_t limit) {
  Column column;
  bool has_number = false;
  bool has_other = false;
  column.Add(rows.FieldName(field), limit);
  for (std::size_t i = 0; i < rows.RowCount(); ++i) {
    const Value& value = rows.Cell(rows.BookmarkAt(i), field);
    column.Add(platform::ToTextOrEmpty(value), limit);
    (IsNumber(value) ? has_number : has_other) |= !value.IsEmpty();
  }
  column.is_right_aligned = has_number && !has_other;
  return column;
}

void WriteCell(const Column& column, const TerminalText& cell, bool is_last, std::ostream& out) {
  const std::string padding(column.width - cell.width, ' ');
  if (column.is_right_aligned) {
    out << padding << cell.text;
  } else {
    out << cell.text;
    if (!is_last) out << padding;
  }
  out << (is_last ? "\n" : kGap);
}

/// Texts over `limit` columns are cut.
void WriteRecordSet(const RecordSet& rows, std::size_t limit, std::ostream& out) {
  std::vector<Column> columns;
  for (std::size_t field = 0; field < rows.FieldCount(); ++field) {
    columns.push_back(MakeColumn(rows, field, limit));
  }
  for (std::size_t line = 0; line <= rows.RowCount(); ++line) {
    for (std::size_t i = 0; i < columns.size(); ++i) {
      WriteCell(columns[i], columns[i].cells[line], i + 1 == columns.size(), out);
    }
    if (line != 0) continue;
    for (std::size_t i = 0; i < columns.size(); ++i) {
      out << std::string(columns[i].width, '-') << (i + 1 == columns.size() ? "\n" : kGap);
    }
  }
}

}  // namespace

void WriteTable(const ProcedureOutcome& outcome, std::ostream& out) {
  out << "Return value: " << outcome.return_value << '\n';
  for (std::size_t i = 0; i < outcome.record_sets.size(); ++i) {
    const RecordSet& rows = *outcome.record_sets[i];
    out << "\nRecord set " << i + 1 << ", " << rows.RowCount()
        << (rows.RowCount() == 1 ? " row\n" : " rows\n");
    WriteRecordSet(rows, kWidestCell, out);
  }
}

void WriteTableRows(const RecordSets& record_sets, std::ostream& out) {
  for (std::size_t i = 0; i < record_sets.size(); ++i) {
    if (i != 0) out << '\n';
    WriteRecordSet(*record_sets[i], kWidestCell, out);
  }
}

void WriteTableList(const RecordSet& rows, std::ostream& out) { WriteRecordSet(rows, kNoLimit, out); }

}  // namespace ferrowind::host
