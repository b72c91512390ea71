#include "tests/contract/faults/content_text.h"

#include <algorithm>
#include <cstddef>
#include <string_view>

#include "ferrowind/platform/values/conversion.h"

namespace ferrowind::contract {
namespace {

constexpr std::string_view kTimelessColumnsOfHistory[] = {
    "EntryID",   "ProcedureName", "ID1",  "Year1", "Parameters", "ReturnValue", "RowsChanged",
    "RowNumber", "TableName",     "Day1", "ID2",   "Position",   "OldRow",      "NewRow"};

bool IsTimeless(const content::Table& table, std::string_view column) {
  const bool is_of_history = table.name.starts_with("CldHistory") || table.name == "CldChainStart";
  return !is_of_history ||
         std::find(std::begin(kTimelessColumnsOfHistory), std::end(kTimelessColumnsOfHistory), column) !=
             std::end(kTimelessColumnsOfHistory);
}

}  // namespace

std::string TextOf(content::Source& source) {
  std::string text;
  for (const content::Table& table : content::Tables()) {
    text.append(table.name).append("\n");
    const auto rows = source.Rows(table, content::RowOrder::kByKey);
    for (content::Row row; rows->Next(row);) {
      for (std::size_t column = 0; column < row.size(); ++column) {
        if (!IsTimeless(table, table.columns[column])) continue;
        text.append(platform::ToTextOrEmpty(row[column])).append("\t");
      }
      text += '\n';
    }
  }
  return text;
}

}  // namespace ferrowind::contract
