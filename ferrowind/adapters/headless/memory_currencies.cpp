#include <algorithm>
#include <utility>

#include "ferrowind/adapters/headless/memory_database.h"
#include "ferrowind/adapters/headless/memory_lookup.h"
#include "ferrowind/adapters/headless/memory_procedures.h"
#include "ferrowind/platform/values/conversion.h"
#include "ferrowind/platform/values/text_limits.h"

namespace ferrowind::headless {
namespace {

using platform::CallOutcome;
using platform::ParameterType;
using platform::Value;

CallOutcome GetCurrencies(MemoryTables& tables, const std::vector<Value>&) {
  return {kDone, {RecordsOfCurrencies(tables)}};
}

bool IsCode(const Value& text) {
  if (text.IsEmpty()) return false;
  const std::string code = platform::ToText(text);
  return code.size() == 3 &&
         std::all_of(code.begin(), code.end(), [](char letter) { return letter >= 'A' && letter <= 'Z'; });
}

/// Whether a calendar or a book would be left without the money that it needs.
bool IsInTheWay(const MemoryTables& tables, const MemoryCurrency& currency) {
  const auto* const last_day = currency.last_day.If<platform::Date>();
  const bool has_calendar =
      std::any_of(tables.calendars.begin(), tables.calendars.end(), [&](const auto& one) {
        return one.first.first == currency.id &&
               (currency.type != 0 || (last_day != nullptr && one.first.second > last_day->Year()));
      });
  return has_calendar || (currency.type != 0 && tables.books.contains(currency.id));
}

CallOutcome InsertOrUpdateCurrency(MemoryTables& tables, const std::vector<Value>& inputs) {
  if (!IsBetween(inputs[0], 1, 999) || !IsCode(inputs[1]) || !IsBetween(inputs[2], 0, 1) ||
      IsBlank(inputs[3]) || IsLongerThan(platform::kLongestName, inputs[3])) {
    return {kWrongValue, {}};
  }
  const MemoryCurrency changed{platform::ToInt32(inputs[0]), platform::ToText(inputs[1]),
                               *inputs[2].If<std::int16_t>(), platform::ToText(inputs[3]), inputs[4]};
  MemoryCurrency* place = nullptr;
  for (MemoryCurrency& known : tables.currencies) {
    if (known.id == changed.id) place = &known;
    if (known.id != changed.id && known.code == changed.code) return {kNameExists, {}};
  }
  if (IsInTheWay(tables, changed)) return {kChangedSince, {}};
  if (place != nullptr) {
    *place = changed;
  } else {
    tables.currencies.push_back(changed);
  }
  return {kDone, {}};
}

}  // namespace

void AddCurrencyProcedures(MemoryDatabase& database) {
  database.AddProcedure("CldIUCurrency",
                        {{"@CcyID", ParameterType::kInt32},
                         {"@Ccy", ParameterType::kText},
                         {"@CcyType", ParameterType::kInt16},
                         {"@Name", ParameterType::kText},
                         {"@LastDay", ParameterType::kDate}},
                        InsertOrUpdateCurrency, MemoryProcedure::Kind::kRecorded);
  database.AddProcedure("CldGetCurrencies", {}, GetCurrencies);
}

}  // namespace ferrowind::headless
