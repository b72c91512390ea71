#include "ferrowind/planning/currency_list.h"

#include <algorithm>

#include "ferrowind/planning/database_call.h"
#include "ferrowind/platform/values/case_fold.h"
#include "ferrowind/platform/values/conversion.h"

namespace ferrowind::planning {

std::string EndOfMoney(const Currency& currency) {
  if (!currency.is_money || !currency.last_day) return currency.code + " is no money";
  return currency.code + " is money until " + currency.last_day->ToIso();
}

CurrencyList CurrencyList::Load() {
  const CallAnswer answer = CallDatabase("Reading the currencies", "CldGetCurrencies", {}, 1);
  platform::RecordSet& rows = *answer.record_sets.front();
  std::vector<Currency> currencies;
  for (rows.MoveFirst(); !rows.Eof(); rows.MoveNext()) {
    Currency currency;
    currency.id = platform::ToInt32(rows["CcyID"]);
    currency.code = platform::ToText(rows["Ccy"]);
    currency.name = platform::ToTextOrEmpty(rows["Name"]);
    currency.is_money = platform::ToInt32(rows["CcyType"]) == 0;
    if (!rows["LastDay"].IsEmpty()) currency.last_day = platform::ToDate(rows["LastDay"]);
    currencies.push_back(std::move(currency));
  }
  return CurrencyList(std::move(currencies));
}

const Currency* CurrencyList::Find(std::int32_t id) const {
  const auto found = std::find_if(currencies_.begin(), currencies_.end(),
                                  [&](const Currency& currency) { return currency.id == id; });
  return found == currencies_.end() ? nullptr : &*found;
}

const Currency& CurrencyList::Named(std::string_view code) const {
  const auto found = std::find_if(currencies_.begin(), currencies_.end(), [&](const Currency& currency) {
    return platform::CompareIgnoringCase(currency.code, code) == 0;
  });
  if (found == currencies_.end()) {
    throw platform::Failure(platform::failure_number::kInvalidArgument,
                            "The database has no currency " + std::string(code));
  }
  return *found;
}

}  // namespace ferrowind::planning
