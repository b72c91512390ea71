#include "ferrowind/business_days/currency_codes.h"

#include <algorithm>
#include <cstddef>

namespace ferrowind::business_days {
namespace {

std::string InCapitals(std::string code) {
  for (char& letter : code) {
    if (letter >= 'a' && letter <= 'z') letter = static_cast<char>(letter - 'a' + 'A');
  }
  return code;
}

}  // namespace

std::vector<std::string> ReadCurrencyCodes(std::string_view text) {
  std::vector<std::string> codes;
  for (std::size_t begin = 0; begin <= text.size();) {
    const std::size_t end = std::min(text.find(',', begin), text.size());
    codes.push_back(InCapitals(std::string(text.substr(begin, end - begin))));
    begin = end + 1;
  }
  return codes;
}

}  // namespace ferrowind::business_days
