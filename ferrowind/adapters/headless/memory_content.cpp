#include <string>
#include <utility>

#include "ferrowind/adapters/headless/memory_database.h"
#include "ferrowind/adapters/headless/memory_lookup.h"
#include "ferrowind/adapters/headless/memory_procedures.h"
#include "ferrowind/platform/values/conversion.h"

namespace ferrowind::headless {
namespace {

using platform::CallOutcome;
using platform::Value;

/// "359,3,12,4:Noon", one such part for each day that has a rule.
std::string DaysText(const std::vector<MemoryDay>& days) {
  std::string text;
  int number = 0;
  for (const MemoryDay& day : days) {
    ++number;
    if (!day.rule) continue;
    const std::string comment = platform::ToTextOrEmpty(day.comment);
    text += std::to_string(number) + ',' + std::to_string(day.type) + ',' + std::to_string(*day.rule) + ',' +
            std::to_string(comment.size()) + ':' + comment;
  }
  return text;
}

CallOutcome GetContent(MemoryTables& tables, const std::vector<Value>&) {
  Rows calendars;
  for (const auto& [key, days] : tables.calendars)
    calendars.push_back({key.first, key.second, DaysText(days)});
  Rows rules;
  for (const auto& [id, rule] : tables.rules) {
    rules.push_back({id, rule.name, rule.type, rule.month, rule.day, rule.removal_mark});
  }
  Rows books;
  for (const auto& [currency, book] : tables.books) {
    books.push_back({currency, book.publisher, book.document, book.from_year});
  }
  return {kDone,
          {Records({"ID1", "Year1", "Days"}, std::move(calendars)),
           Records({"ID2", "Name1", "TID1", "MY", "MD", "Del"}, std::move(rules)),
           Records({"ID1", "Publisher", "Document", "FromYear"}, std::move(books)),
           RecordsOfRecurrences(tables, {}), RecordsOfCurrencies(tables)}};
}

}  // namespace

void AddContentProcedure(MemoryDatabase& database) { database.AddProcedure("CldGetContent", {}, GetContent); }

}  // namespace ferrowind::headless
