#include <string>
#include <utility>

#include "ferrowind/adapters/headless/memory_database.h"
#include "ferrowind/adapters/headless/memory_lookup.h"
#include "ferrowind/adapters/headless/memory_procedures.h"
#include "ferrowind/platform/values/conversion.h"

namespace ferrowind::headless {
namespace {

using platform::CallOutcome;
using platform::ParameterType;
using platform::Value;

bool IsSpan(const std::vector<Value>& years) {
  return !years[0].IsEmpty() && !years[1].IsEmpty() &&
         platform::ToInt32(years[0]) <= platform::ToInt32(years[1]);
}

bool IsIn(const CalendarKey& calendar, const std::vector<Value>& years) {
  return calendar.second >= platform::ToInt32(years[0]) && calendar.second <= platform::ToInt32(years[1]);
}

CallOutcome GetClosedDays(MemoryTables& tables, const std::vector<Value>& inputs) {
  if (!IsSpan(inputs)) return {kWrongValue, {}};
  Rows rows;
  for (const auto& [key, days] : tables.calendars) {
    if (!IsIn(key, inputs)) continue;
    std::string closed;
    std::string rules;
    bool is_prepared = false;
    for (const MemoryDay& day : days) {
      closed += day.type == kWorkingDay ? '0' : '1';
      if (day.type != kWorkingDay && day.rule) {
        rules += (rules.empty() ? "" : ",") + std::to_string(*day.rule);
      }
      is_prepared = is_prepared || day.type > kWeekdayType;
    }
    const MemoryCurrency* const currency = CurrencyOf(tables, key.first);
    rows.push_back({key.first, key.second, std::move(closed), currency != nullptr ? currency->code : "",
                    is_prepared ? 1 : 0, std::move(rules)});
  }
  Rows names;
  for (const auto& [id, rule] : tables.rules) names.push_back({id, rule.name});
  return {kDone,
          {Records({"ID1", "Year1", "Days", "Ccy", "IsPrepared", "Rules"}, std::move(rows)),
           Records({"ID2", "Name1"}, std::move(names))}};
}

CallOutcome GetMarkedDays(MemoryTables& tables, const std::vector<Value>& inputs) {
  if (!IsSpan(inputs)) return {kWrongValue, {}};
  Rows rows;
  for (const auto& [key, days] : tables.calendars) {
    if (!IsIn(key, inputs)) continue;
    std::int32_t number = 0;
    for (const MemoryDay& day : days) {
      ++number;
      if (day.rule) rows.push_back({key.first, key.second, number, day.type, *day.rule, day.comment});
    }
  }
  return {kDone, {Records({"ID1", "Year1", "Day1", "TID1", "ID2", "Comment"}, std::move(rows))}};
}

}  // namespace

void AddYearProcedures(MemoryDatabase& database) {
  constexpr auto kNumber = ParameterType::kInt32;
  database.AddProcedure("CldGetClosedDays", {{"@FromYear", kNumber}, {"@ToYear", kNumber}}, GetClosedDays);
  database.AddProcedure("CldGetMarkedDays", {{"@FromYear", kNumber}, {"@ToYear", kNumber}}, GetMarkedDays);
}

}  // namespace ferrowind::headless
