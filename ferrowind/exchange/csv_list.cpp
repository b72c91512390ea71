#include "ferrowind/exchange/csv_list.h"

#include <array>
#include <cstddef>
#include <optional>
#include <vector>

#include "ferrowind/almanac/date_words.h"
#include "ferrowind/exchange/csv_rows.h"
#include "ferrowind/exchange/list_entry.h"
#include "ferrowind/exchange/list_faults.h"
#include "ferrowind/exchange/written_date.h"
#include "ferrowind/platform/values/case_fold.h"

namespace ferrowind::exchange {
namespace {

/// Where the fields of an entry stand in a row.
struct Columns {
  std::optional<std::size_t> date;
  std::optional<std::size_t> name;
  std::optional<std::size_t> type;
  std::optional<std::size_t> currency;
};

struct KnownColumn {
  std::string_view name;
  std::optional<std::size_t> Columns::*column;
};

constexpr std::array<KnownColumn, 11> kKnownColumns = {{
    {"date", &Columns::date},
    {"name", &Columns::name},
    {"holiday", &Columns::name},
    {"description", &Columns::name},
    {"summary", &Columns::name},
    {"title", &Columns::name},
    {"type", &Columns::type},
    {"kind", &Columns::type},
    {"currency", &Columns::currency},
    {"ccy", &Columns::currency},
    {"code", &Columns::currency},
}};

Columns ColumnsIn(const CsvRow& header, DayList& list) {
  Columns columns;
  for (std::size_t i = 0; i < header.fields.size(); ++i) {
    bool is_known = false;
    for (const KnownColumn& known : kKnownColumns) {
      if (platform::CompareIgnoringCase(header.fields[i], known.name) != 0) continue;
      if (columns.*known.column) {
        throw ListError({{header.line, "two columns are of the same kind: " +
                                           Quoted(header.fields[*(columns.*known.column)]) + " and " +
                                           Quoted(header.fields[i])}});
      }
      columns.*known.column = i;
      is_known = true;
    }
    // What this program writes for people.
    if (is_known || platform::CompareIgnoringCase(header.fields[i], "weekday") == 0) continue;
    list.remarks.push_back("The column " + Quoted(header.fields[i]) + " is left out");
  }
  return columns;
}

std::string_view FieldAt(const CsvRow& row, const std::optional<std::size_t>& column) {
  if (!column || *column >= row.fields.size()) return {};
  return row.fields[*column];
}

}  // namespace

DayList ReadCsvList(std::string_view text) {
  const std::vector<CsvRow> rows = ReadCsvRows(text);
  DayList list;
  if (rows.empty()) return list;
  Columns columns;
  std::size_t first = 0;
  if (ReadWholeDate(rows.front().fields.front()).date) {
    columns.date = 0;
    columns.name = 1;
  } else {
    columns = ColumnsIn(rows.front(), list);
    if (!columns.date) {
      throw ListError({{rows.front().line,
                        "there is neither a date in the first column nor a column that is called \"date\""}});
    }
    first = 1;
  }
  ListFaults faults;
  for (std::size_t i = first; i < rows.size(); ++i) {
    const CsvRow& row = rows[i];
    TakeEntry({row.line, FieldAt(row, columns.date), FieldAt(row, columns.name), FieldAt(row, columns.type),
               FieldAt(row, columns.currency)},
              list, faults);
  }
  faults.ThrowIfAny();
  return list;
}

std::string WriteCsvList(const DayList& list) {
  std::string text = "date,weekday,name,type,currency\r\n";
  for (const ListedDay& day : list.days) {
    text += day.date.ToIso();
    text += ',';
    text += almanac::WeekdayName(day.date.Weekday());
    text += ',' + CsvField(day.name) + ',';
    text += TextOf(day.kind);
    text += ',' + CsvField(day.currency) + "\r\n";
  }
  return text;
}

}  // namespace ferrowind::exchange
