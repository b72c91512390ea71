#include "ferrowind/business_days/market_conventions.h"

#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

#include "ferrowind/platform/values/failure.h"

namespace ferrowind::business_days {
namespace {

constexpr int kUsualDays = 2;
constexpr std::string_view kDollar = "USD";
constexpr std::string_view kBlanks = " \t\r";

platform::Failure Refused(std::size_t line, const std::string& why) {
  return {platform::failure_number::kInvalidArgument, "Line " + std::to_string(line) + ": " + why};
}

std::vector<std::string> WordsOf(std::string_view line) {
  std::vector<std::string> words;
  line = line.substr(0, line.find('#'));
  for (;;) {
    line.remove_prefix(std::min(line.find_first_not_of(kBlanks), line.size()));
    if (line.empty()) return words;
    const std::string_view word = line.substr(0, line.find_first_of(kBlanks));
    words.emplace_back(word);
    line.remove_prefix(word.size());
  }
}

CurrencyPair PairIn(const std::string& word, std::size_t line) {
  try {
    return InAlphabeticalOrder(ReadCurrencyPair(word));
  } catch (const platform::Failure& failure) {
    throw Refused(line, failure.Description());
  }
}

int DaysIn(const std::string& word, std::size_t line) {
  if (word.size() == 1 && word[0] >= '0' && word[0] <= '2') return word[0] - '0';
  throw Refused(line, '"' + word + "\" is no number of days to spot, which is 0, 1 or 2");
}

bool IsCode(std::string_view word) {
  return word.size() == 3 &&
         std::ranges::all_of(word, [](char letter) { return letter >= 'A' && letter <= 'Z'; });
}

}  // namespace

CurrencyPair InAlphabeticalOrder(CurrencyPair pair) {
  if (pair.quote < pair.base) std::swap(pair.base, pair.quote);
  return pair;
}

int MarketConventions::DaysToSpot(const CurrencyPair& pair) const {
  return std::max(DaysOfCurrency(pair.base, pair), DaysOfCurrency(pair.quote, pair));
}

int MarketConventions::DaysOfCurrency(std::string_view code, const CurrencyPair& pair) const {
  const auto of_pair = days_to_spot_.find(InAlphabeticalOrder(pair));
  if (of_pair != days_to_spot_.end()) return of_pair->second;
  // The dollar takes as long as what it is traded for.
  if (pair.base == kDollar || pair.quote == kDollar) return kUsualDays;
  const auto of_currency = days_to_spot_.find(InAlphabeticalOrder({std::string(code), std::string(kDollar)}));
  return of_currency == days_to_spot_.end() ? kUsualDays : of_currency->second;
}

bool MarketConventions::DollarHolidayStops(std::string_view code) const {
  const auto found = dollar_stops_.find(code);
  return found != dollar_stops_.end() && found->second;
}

void MarketConventions::SetDaysToSpot(const CurrencyPair& pair, int days) {
  if (days < 0 || days > kUsualDays) {
    throw platform::Failure(
        platform::failure_number::kInvalidArgument,
        pair.Text() + ": " + std::to_string(days) + " is no number of days to spot, which is 0, 1 or 2");
  }
  days_to_spot_[InAlphabeticalOrder(pair)] = days;
}

void MarketConventions::Amend(const MarketConventions& others) {
  for (const auto& [pair, days] : others.days_to_spot_) days_to_spot_[pair] = days;
  for (const auto& [code, stops] : others.dollar_stops_) dollar_stops_[code] = stops;
}

MarketConventions ReadMarketConventions(std::string_view text) {
  MarketConventions conventions;
  for (std::size_t number = 1; !text.empty(); ++number) {
    const std::string_view line = text.substr(0, text.find('\n'));
    text.remove_prefix(std::min(line.size() + 1, text.size()));
    const auto words = WordsOf(line);
    if (words.empty()) continue;
    bool is_new = false;
    if (words.size() == 3 && words[0] == "spot") {
      const CurrencyPair pair = PairIn(words[1], number);
      is_new = !conventions.DaysOfPairs().contains(pair);
      conventions.SetDaysToSpot(pair, DaysIn(words[2], number));
    } else if ((words.size() == 2 || (words.size() == 3 && words[2] == "no")) &&
               words[0] == "dollar-holiday-stops") {
      if (!IsCode(words[1])) throw Refused(number, '"' + words[1] + "\" is no code of a currency, as MXN");
      is_new = !conventions.DollarStops().contains(words[1]);
      conventions.SetDollarHolidayStops(words[1], words.size() == 2);
    } else {
      throw Refused(number, "expected is \"spot PAIR DAYS\" or \"dollar-holiday-stops CURRENCY [no]\"");
    }
    if (!is_new) throw Refused(number, words[1] + " is there twice");
  }
  return conventions;
}

}  // namespace ferrowind::business_days
