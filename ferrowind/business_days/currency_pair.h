#pragma once

#include <compare>
#include <string>
#include <string_view>

#include "ferrowind/export.h"

namespace ferrowind::business_days {

/// Two different currencies, of which the first is bought for the second.
struct FERROWIND_EXPORT CurrencyPair {
  ///@{
  /// Codes of three capital letters, as ISO 4217 has them.
  std::string base;
  std::string quote;
  ///@}

  /// Whether `code` is one of the two; letter case counts.
  [[nodiscard]] bool Has(std::string_view code) const { return base == code || quote == code; }
  /// "EUR/USD".
  [[nodiscard]] std::string Text() const { return base + '/' + quote; }

  /// By base, then by quote: EUR/USD and USD/EUR are two pairs.
  friend auto operator<=>(const CurrencyPair&, const CurrencyPair&) = default;
};

/// Reads "EURUSD" or "EUR/USD", in letters of any case. Anything else, and twice the same currency, is the
/// failure InvalidArgument.
[[nodiscard]] FERROWIND_EXPORT CurrencyPair ReadCurrencyPair(std::string_view text);

}  // namespace ferrowind::business_days
