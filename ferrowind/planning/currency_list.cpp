#include "ferrowind/planning/currency_list.h"

#include <algorithm>
#include <charconv>
#include <compare>
#include <cstddef>
#include <system_error>

#include "ferrowind/planning/database_call.h"
#include "ferrowind/planning/in_words.h"
#include "ferrowind/platform/values/case_fold.h"
#include "ferrowind/platform/values/conversion.h"

namespace ferrowind::planning {
namespace {

/// The number that `text` is, if it is digits and nothing else.
std::optional<std::int32_t> NumberIn(std::string_view text) {
  std::int32_t number = 0;
  const bool is_number = !text.empty() && text.front() >= '0' && text.front() <= '9';
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (!is_number || error != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return number;
}

}  // namespace

bool MeansAllCurrencies(std::string_view text) {
  return std::is_eq(platform::CompareIgnoringCase(text, "ALL"));
}

std::string WrittenFor(const Currency& currency) {
  if (!MeansAllCurrencies(currency.code)) return currency.code;
  constexpr std::size_t kDigits = 3;
  const std::string number = std::to_string(currency.id);
  return std::string(kDigits - std::min(kDigits, number.size()), '0') + number;
}

std::string UnmistakableCode(const Currency& currency) {
  if (!MeansAllCurrencies(currency.code)) return currency.code;
  const bool has_name = !currency.name.empty() && currency.name != currency.code;
  return currency.code + " (" + (has_name ? currency.name : WrittenFor(currency)) + ")";
}

std::string CalendarName(const Currency& currency, int year) {
  return UnmistakableCode(currency) + " " + std::to_string(year);
}

platform::Phrase EndOfMoney(const Currency& currency) {
  const std::string code = UnmistakableCode(currency);
  if (!currency.is_money || !currency.last_day) return platform::Phrase::Of("%1 is no money", {code});
  return platform::Phrase::Of("%1 is money until %2", {code, currency.last_day->ToIso()});
}

CurrencyList CurrencyList::Load() {
  const CallAnswer answer = CallDatabase(InWords("Reading the currencies"), "CldGetCurrencies", {}, 1);
  return In(*answer.record_sets.front());
}

CurrencyList CurrencyList::In(const platform::RecordSet& rows) {
  const std::size_t id = rows.FieldNamed("CcyID");
  const std::size_t code = rows.FieldNamed("Ccy");
  const std::size_t name = rows.FieldNamed("Name");
  const std::size_t type = rows.FieldNamed("CcyType");
  const std::size_t last_day = rows.FieldNamed("LastDay");
  std::vector<Currency> currencies;
  currencies.reserve(rows.RowCount());
  for (std::size_t i = 0; i < rows.RowCount(); ++i) {
    const auto row = rows.BookmarkAt(i);
    Currency currency;
    currency.id = platform::ToInt32(rows.Cell(row, id));
    currency.code = platform::ToText(rows.Cell(row, code));
    currency.name = platform::ToTextOrEmpty(rows.Cell(row, name));
    currency.is_money = platform::ToInt32(rows.Cell(row, type)) == 0;
    if (const auto& day = rows.Cell(row, last_day); !day.IsEmpty()) currency.last_day = platform::ToDate(day);
    currencies.push_back(std::move(currency));
  }
  return CurrencyList(std::move(currencies));
}

const Currency* CurrencyList::Find(std::int32_t id) const {
  const auto found = std::find_if(currencies_.begin(), currencies_.end(),
                                  [&](const Currency& currency) { return currency.id == id; });
  return found == currencies_.end() ? nullptr : &*found;
}

Currency CurrencyList::FindOrNumber(std::int32_t id) const {
  if (const Currency* const found = Find(id)) return *found;
  Currency unknown;
  unknown.id = id;
  unknown.code = std::to_string(id);
  return unknown;
}

const Currency& CurrencyList::Named(std::string_view text) const {
  const auto refuse = [](const std::string& why) {
    return platform::Failure(platform::failure_number::kInvalidArgument, why);
  };
  if (MeansAllCurrencies(text)) {
    std::string why = std::string(text) + " means all currencies, and here it takes one";
    if (const Currency* const namesake = WithCode(text)) {
      why += "; write " + std::to_string(namesake->id) + " for the currency of that code, " + namesake->name;
    }
    throw refuse(why);
  }
  const std::optional<std::int32_t> number = NumberIn(text);
  const Currency* const found = number ? Find(*number) : WithCode(text);
  if (found == nullptr) throw refuse("The database has no currency " + std::string(text));
  return *found;
}

const Currency* CurrencyList::WithCode(std::string_view code) const {
  const auto found = std::find_if(currencies_.begin(), currencies_.end(), [&](const Currency& currency) {
    return std::is_eq(platform::CompareIgnoringCase(currency.code, code));
  });
  return found == currencies_.end() ? nullptr : &*found;
}

}  // namespace ferrowind::planning
