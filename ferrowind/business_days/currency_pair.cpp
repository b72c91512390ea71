#include "ferrowind/business_days/currency_pair.h"

#include <algorithm>

#include "ferrowind/platform/values/failure.h"

namespace ferrowind::business_days {
namespace {

constexpr std::size_t kCodeLength = 3;

bool IsLetter(char character) {
  return (character >= 'A' && character <= 'Z') || (character >= 'a' && character <= 'z');
}

char Capital(char letter) { return letter >= 'a' ? static_cast<char>(letter - 'a' + 'A') : letter; }

platform::Failure Refused(std::string_view text, const std::string& why) {
  return {platform::failure_number::kInvalidArgument, '"' + std::string(text) + "\" " + why};
}

}  // namespace

CurrencyPair ReadCurrencyPair(std::string_view text) {
  std::string letters(text);
  if (letters.size() == 2 * kCodeLength + 1 && letters[kCodeLength] == '/') letters.erase(kCodeLength, 1);
  if (letters.size() != 2 * kCodeLength || !std::ranges::all_of(letters, IsLetter))
    throw Refused(text, "is no currency pair, which is written EURUSD or EUR/USD");
  std::ranges::transform(letters, letters.begin(), Capital);
  CurrencyPair pair{letters.substr(0, kCodeLength), letters.substr(kCodeLength)};
  if (pair.base == pair.quote) throw Refused(text, "has the same currency twice");
  return pair;
}

}  // namespace ferrowind::business_days
