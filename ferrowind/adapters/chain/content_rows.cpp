#include "ferrowind/adapters/chain/content_rows.h"

#include <string_view>
#include <utility>

#include "ferrowind/adapters/chain/history_entry.h"
#include "ferrowind/adapters/content/content_table.h"

namespace ferrowind::chain {
namespace {

using std::to_string;

/// The numbers of tables.
enum : std::size_t {
  kCalendars = kCalendarTable,
  kDays = kDayTable,
  kRules,
  kCurrencies,
  kBooks,
  kBookRules,
  kTypes,
  kConventions
};

/// The recorded tables and, among them, one that nobody changes, by their numbers. The setting is none: an
/// administrator may change it.
const std::vector<RecordedTable>& AllTables() {
  static const std::vector<RecordedTable> all = [] {
    std::vector<RecordedTable> tables = RecordedTables();
    tables.insert(tables.begin() + kTypes,
                  RecordedTable{"CldHolidayType", kTypes, {kID1}, {{1, "Description1"}}});
    return tables;
  }();
  return all;
}

void ForEachRowOf(content::Source& source, const RecordedTable& table,
                  const std::function<void(const RowKey& row, std::string text)>& visit) {
  const auto rows = source.Rows(content::TableNamed(table.name), content::RowOrder::kByKey);
  content::Row row;
  while (rows->Next(row)) {
    RowKey key{table.number};
    for (std::size_t i = 0; i < table.key.size(); ++i) key[i + 1] = NumberIn(row[i]);
    visit(key, RowText(table, [&](int place) { return row[static_cast<std::size_t>(place)]; }));
  }
}

}  // namespace

Part PartOf(const RowKey& row) {
  switch (static_cast<std::size_t>(row[0])) {
    case kCalendars:
    case kDays:
      return {row[1], row[2]};
    case kBooks:
    case kBookRules:
      return {row[1], 0};
    default:
      return {0, row[0]};
  }
}

std::string NameOf(const RowKey& row) {
  switch (static_cast<std::size_t>(row[0])) {
    case kCalendars:
      return "The calendar " + to_string(row[1]) + " of " + to_string(row[2]);
    case kDays:
      return "The day " + to_string(row[3]) + " of the calendar " + to_string(row[1]) + " of " +
             to_string(row[2]);
    case kRules:
      return "The rule " + to_string(row[1]);
    case kCurrencies:
      return "The currency " + to_string(row[1]);
    case kBooks:
      return "The rule book of " + to_string(row[1]);
    case kBookRules:
      return "The rule " + to_string(row[2]) + " of the rule book of " + to_string(row[1]);
    case kConventions:
      return row[1] == row[2] ? "The convention of " + to_string(row[1])
                              : "The convention of " + to_string(row[1]) + " and " + to_string(row[2]);
    default:
      return "A row of " + std::string(AllTables()[static_cast<std::size_t>(row[0])].name);
  }
}

std::string NameOf(const Part& part) {
  if (part.year1 == 0) return "The rule book of " + to_string(part.id1);
  if (part.id1 != 0) return "The calendar " + to_string(part.id1) + " of " + to_string(part.year1);
  const auto number = static_cast<std::size_t>(part.year1);
  if (number >= AllTables().size()) return "The part " + to_string(number);
  return "The table " + std::string(AllTables()[number].name);
}

void ForEachRow(content::Source& source,
                const std::function<void(const RowKey& row, std::string text)>& visit) {
  for (const RecordedTable& table : AllTables()) ForEachRowOf(source, table, visit);
}

}  // namespace ferrowind::chain
