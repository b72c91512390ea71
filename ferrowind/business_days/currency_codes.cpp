#include "ferrowind/business_days/currency_codes.h"

#include <algorithm>
#include <cstddef>

#include "ferrowind/platform/values/failure.h"

namespace ferrowind::business_days {
namespace {

constexpr std::size_t kCodeLength = 3;

bool IsCapital(char letter) { return letter >= 'A' && letter <= 'Z'; }

platform::Failure Refused(std::string_view text, const std::string& why) {
  return {platform::failure_number::kInvalidArgument, '"' + std::string(text) + "\" " + why};
}

std::string InCapitals(std::string code) {
  for (char& letter : code) {
    if (letter >= 'a' && letter <= 'z') letter = static_cast<char>(letter - 'a' + 'A');
  }
  return code;
}

}  // namespace

std::vector<std::string> ReadCurrencyCodes(std::string_view text) {
  std::vector<std::string> codes;
  if (text.empty()) return codes;
  for (std::size_t begin = 0; begin <= text.size();) {
    const std::size_t end = std::min(text.find(',', begin), text.size());
    if (begin == end) throw Refused(text, "has a place without a currency's code");
    codes.push_back(InCapitals(std::string(text.substr(begin, end - begin))));
    begin = end + 1;
  }
  return codes;
}

std::string ReadCurrencyCode(std::string_view text) {
  std::string code = InCapitals(std::string(text));
  if (code.size() == kCodeLength && std::ranges::all_of(code, IsCapital)) return code;
  throw Refused(text, "is no code of a currency, as EUR");
}

}  // namespace ferrowind::business_days
