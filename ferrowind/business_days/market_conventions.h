#pragma once

#include <map>
#include <string>
#include <string_view>

#include "ferrowind/business_days/currency_pair.h"
#include "ferrowind/export.h"

namespace ferrowind::business_days {

/// How the market counts the days to spot.
class FERROWIND_EXPORT MarketConventions {
 public:
  /// Two days for every currency, and no dollar holiday that stops the count.
  MarketConventions() = default;

  /// The business days from the trade date to spot: 0, 1 or 2. What is said of the pair; else the longer of
  /// what is said of its two currencies against the dollar, 2 where nothing is. The order of the two
  /// currencies does not matter.
  [[nodiscard]] int DaysToSpot(const CurrencyPair& pair) const;
  /// How many of its own business days `code`, one of the pair's currencies, takes in it: what is said of the
  /// pair; else what is said of the currency against the dollar.
  [[nodiscard]] int DaysOfCurrency(std::string_view code, const CurrencyPair& pair) const;
  /// Whether a holiday of the dollar between trade date and spot stops the count of pairs with this currency.
  /// For all others it only cannot be the spot date itself.
  [[nodiscard]] bool DollarHolidayStops(std::string_view code) const;

  /// Days other than 0, 1 and 2 are the failure InvalidArgument.
  void SetDaysToSpot(const CurrencyPair& pair, int days);
  /// Whether a holiday of the dollar counts against the currency `code`; said twice, the last one counts.
  void SetDollarHolidayStops(const std::string& code, bool stops) { dollar_stops_[code] = stops; }
  /// Takes over all that `others` say; of the rest they leave what is here.
  void Amend(const MarketConventions& others);

  /// What is said, by pair, whose two currencies stand in alphabetical order.
  [[nodiscard]] const std::map<CurrencyPair, int>& DaysOfPairs() const { return days_to_spot_; }
  /// What is said, by code.
  [[nodiscard]] const std::map<std::string, bool, std::less<>>& DollarStops() const { return dollar_stops_; }

  /// Whether the same is said of the same pairs and currencies.
  friend bool operator==(const MarketConventions&, const MarketConventions&) = default;

 private:
  std::map<CurrencyPair, int> days_to_spot_;
  std::map<std::string, bool, std::less<>> dollar_stops_;
};

/// The pair, its currencies in alphabetical order.
[[nodiscard]] FERROWIND_EXPORT CurrencyPair InAlphabeticalOrder(CurrencyPair pair);

/// Reads conventions as database/seed/market_conventions.txt is written: UTF-8; blank lines and what follows
/// "#" mean nothing; `spot PAIR DAYS` and `dollar-holiday-stops CURRENCY`, behind which `no` says that it
/// does not; each pair and currency once. Anything else is the failure InvalidArgument, which names the line.
[[nodiscard]] FERROWIND_EXPORT MarketConventions ReadMarketConventions(std::string_view text);

}  // namespace ferrowind::business_days
