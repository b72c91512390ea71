#include "ferrowind/views/planning/typed_currencies.h"

#include <algorithm>
#include <charconv>

#include "ferrowind/planning/calendar_store.h"
#include "ferrowind/planning/in_words.h"
#include "ferrowind/platform/values/conversion.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind {
namespace {

using planning::Currency;
using planning::CurrencyList;
using platform::Failure;

constexpr const char* kSeparators = " \t,;";

const Currency& Named(const CurrencyList& list, const std::string& word) {
  try {
    return list.Named(word);
  } catch (const platform::Failure& failure) {
    throw TypingError(failure.Description());
  }
}

std::vector<std::string> Words(const std::string& text) {
  std::vector<std::string> words;
  std::size_t start = text.find_first_not_of(kSeparators);
  while (start != std::string::npos) {
    const std::size_t end = std::min(text.find_first_of(kSeparators, start), text.size());
    words.push_back(text.substr(start, end - start));
    start = text.find_first_not_of(kSeparators, end);
  }
  return words;
}

void AddOnce(std::vector<Currency>& currencies, const Currency& currency) {
  const bool is_known = std::any_of(currencies.begin(), currencies.end(),
                                    [&](const Currency& known) { return known.id == currency.id; });
  if (!is_known) currencies.push_back(currency);
}

}  // namespace

std::vector<Currency> TypedCurrencies(const std::string& text, int year) {
  const CurrencyList list = CurrencyList::Load();
  std::vector<Currency> currencies;
  for (const std::string& word : Words(text)) {
    if (planning::MeansAllCurrencies(word)) {
      for (const auto& [id, calendar_year] : planning::LoadRules().calendars) {
        const Currency* currency = calendar_year == year ? list.Find(id) : nullptr;
        if (currency != nullptr) AddOnce(currencies, *currency);
      }
      continue;
    }
    const Currency& currency = Named(list, word);
    if (!currency.is_money)
      throw TypingError(
          planning::InWords("%1 has no calendars: it is no money", {planning::UnmistakableCode(currency)}));
    AddOnce(currencies, currency);
  }
  if (!currencies.empty()) return currencies;
  throw TypingError(Words(text).empty()
                        ? planning::InWords("Name at least one currency, such as EUR, or ALL")
                        : planning::InWords("No currency has a calendar of %1", {std::to_string(year)}));
}

int TypedYear(const std::string& text) {
  const std::string digits = platform::Trim(text);
  int year = 0;
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), year);
  const bool is_number = error == std::errc() && end == digits.data() + digits.size();
  if (is_number && year >= planning::kFirstCalendarYear && year <= planning::kLastCalendarYear) return year;
  throw TypingError(planning::InWords(
      "\"%1\" is no year from %2 to %3",
      {digits, std::to_string(planning::kFirstCalendarYear), std::to_string(planning::kLastCalendarYear)}));
}

}  // namespace ferrowind
