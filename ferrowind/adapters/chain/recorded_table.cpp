#include "ferrowind/adapters/chain/recorded_table.h"

#include "ferrowind/platform/database/json_object.h"

namespace ferrowind::chain {

const std::vector<RecordedTable>& RecordedTables() {
  static const std::vector<RecordedTable> tables = {
      {"CldCalendar", kCalendarTable, {kID1, kYear1}, {}},
      {"CldDay", kDayTable, {kID1, kYear1, kDay1}, {{4, "TID1"}, {5, "ID2"}, {6, "Comment"}}},
      {"CldHoliday",
       2,
       {kID2},
       {{1, "Name1"}, {2, "Comment"}, {3, "TID1"}, {4, "D1"}, {5, "MY"}, {6, "MD"}, {7, "WD"}, {8, "Del"}}},
      {"DicCcy", 3, {kID1}, {{1, "Ccy"}, {2, "CcyType"}, {3, "Name"}, {4, "LastDay"}}},
      {"CldBook", 4, {kID1}, {{1, "Publisher"}, {2, "Document"}, {3, "FromYear"}}},
      {"CldRecurrence",
       5,
       {kID1, kPosition},
       {{2, "Name1"}, {3, "TID1"}, {4, "Expression"}, {5, "Comment"}, {6, "MovedName"}}},
      // Between them is one that no call changes (content_rows.cpp).
      {"CldConvention", 7, {kID1, kPosition}, {{2, "SpotDays"}, {3, "DollarStops"}}},
  };
  return tables;
}

std::string RowText(const RecordedTable& table, const std::function<platform::Value(int place)>& cell) {
  platform::JsonObject row;
  for (const auto& column : table.columns) row.Add(column.name, cell(column.place));
  return row.Text();
}

void NewCalendarText::Add(std::int64_t day, std::string_view row_text) {
  days_ += days_.empty() ? "{\"" : ", \"";
  days_ += std::to_string(day);
  days_ += "\" : ";
  days_ += row_text;
}

}  // namespace ferrowind::chain
