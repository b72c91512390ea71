#include "ferrowind/adapters/content/content_table.h"

#include <algorithm>

namespace ferrowind::content {
namespace {

std::string Listed(const std::vector<std::string_view>& names, std::size_t count,
                   std::string (*written)(std::string_view name)) {
  std::string list;
  for (std::size_t i = 0; i < count; ++i) list.append(i == 0 ? "" : ", ").append(written(names[i]));
  return list;
}

std::string AsItIs(std::string_view name) { return std::string(name); }

}  // namespace

const std::vector<Table>& Tables() {
  static const std::vector<Table> tables = {
      {"DicCcy", "currencies", {"CcyID", "Ccy", "CcyType", "Name", "LastDay"}, 1},
      {"CldHolidayType", "holiday types", {"TID1", "Description1"}, 1},
      {"CldHoliday", "holiday rules", {"ID2", "Name1", "Comment", "TID1", "D1", "MY", "MD", "WD", "Del"}, 1},
      {"CldSetting", "settings", {"FirstDay"}, 1},
      {"CldCalendar", "calendars", {"ID1", "Year1"}, 2},
      {"CldDay", "days", {"ID1", "Year1", "Day1", "ODate", "TID1", "ID2", "Comment"}, 3},
      {"CldBook", "rule books", {"ID1", "Publisher", "Document", "FromYear"}, 1},
      {"CldRecurrence",
       "recurring rules",
       {"ID1", "Position", "Name1", "TID1", "Expression", "Comment", "MovedName"},
       2},
      {"CldConvention", "conventions", {"ID1", "OtherID", "SpotDays", "DollarStops"}, 2},
      {"CldHistory",
       "entries of the history",
       {"EntryID", "Moment", "UserName", "ProcedureName", "ID1", "Year1", "Parameters", "ReturnValue",
        "RowsChanged", "ChainPosition", "Previous", "Hash"},
       1},
      {"CldHistoryStart", "beginnings of the history", {"EntryID", "Moment"}, 1},
      {"CldChainStart", "beginnings of chains", {"ID1", "Year1", "EntryID", "Moment", "Digest"}, 2},
      {"CldHistoryRow",
       "rows of the history",
       {"EntryID", "RowNumber", "TableName", "ID1", "Year1", "Day1", "ID2", "Position", "OldRow", "NewRow"},
       2},
  };
  return tables;
}

const Table& TableNamed(std::string_view name) {
  const auto& tables = Tables();
  return *std::find_if(tables.begin(), tables.end(), [&](const Table& table) { return table.name == name; });
}

std::string ColumnList(const Table& table, std::string (*written)(std::string_view column)) {
  return Listed(table.columns, table.columns.size(), written);
}

std::string ColumnList(const Table& table) { return ColumnList(table, AsItIs); }

std::string KeyList(const Table& table) { return Listed(table.columns, table.key_size, AsItIs); }

}  // namespace ferrowind::content
