#include <algorithm>
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

CallOutcome GetConventions(MemoryTables& tables, const std::vector<Value>&) {
  Rows rows;
  for (const auto& [key, convention] : tables.conventions) {
    const auto& [first, second] = key;
    const bool is_pair = first != second;
    rows.push_back({first, is_pair ? Value(second) : Value(), CurrencyOf(tables, first)->code,
                    is_pair ? Value(CurrencyOf(tables, second)->code) : Value(), convention.spot_days,
                    convention.dollar_stops});
  }
  return {kDone,
          {Records({"ID1", "OtherID", "Ccy", "OtherCcy", "SpotDays", "DollarStops"}, std::move(rows))}};
}

CallOutcome InsertOrUpdateConvention(MemoryTables& tables, const std::vector<Value>& inputs) {
  const Value& currency = inputs[0];
  const Value& other = inputs[1];
  const MemoryConvention convention{inputs[2], inputs[3]};
  if (currency.IsEmpty() || currency == other) return {kWrongValue, {}};
  const bool has_days = !convention.spot_days.IsEmpty();
  const bool has_dollar = !convention.dollar_stops.IsEmpty();
  if (has_days && (other.IsEmpty() || !IsBetween(convention.spot_days, 0, 2))) return {kWrongValue, {}};
  if (has_dollar && (!other.IsEmpty() || !IsBetween(convention.dollar_stops, 0, 1))) return {kWrongValue, {}};
  const Value& second = other.IsEmpty() ? currency : other;
  if (CurrencyOf(tables, currency) == nullptr || CurrencyOf(tables, second) == nullptr) {
    return {kUnknownCurrency, {}};
  }
  const ConventionKey key = std::minmax({platform::ToInt32(currency), platform::ToInt32(second)});
  if (has_days || has_dollar) {
    tables.conventions[key] = convention;
    return {kDone, {}};
  }
  return {tables.conventions.erase(key) == 0 ? kChangedSince : kDone, {}};
}

}  // namespace

void AddConventionProcedures(MemoryDatabase& database) {
  constexpr auto kNumber = ParameterType::kInt32;
  database.AddProcedure(
      "CldIUConvention",
      {{"@CcyID", kNumber}, {"@OtherID", kNumber}, {"@SpotDays", kNumber}, {"@DollarStops", kNumber}},
      InsertOrUpdateConvention, MemoryProcedure::Kind::kRecorded);
  database.AddProcedure("CldGetConventions", {}, GetConventions);
}

}  // namespace ferrowind::headless
