#include "host/admin/currency_numbers.h"

#include <algorithm>
#include <cstddef>

namespace ferrowind::host {
namespace {

constexpr std::size_t kDigits = 3;

bool IsDigit(char character) { return character >= '0' && character <= '9'; }

std::string CodeOf(std::string_view digits, const CodeOfNumber& code_of_number) {
  std::int32_t number = 0;
  for (const char digit : digits) number = number * 10 + (digit - '0');
  return code_of_number(number);
}

/// What stands between two signs.
std::string PartWithCodes(std::string_view part, const CodeOfNumber& code_of_number) {
  if (part.empty() || !std::ranges::all_of(part, IsDigit)) return std::string(part);
  if (part.size() <= kDigits) return CodeOf(part, code_of_number);
  if (part.size() != 2 * kDigits) return std::string(part);
  return CodeOf(part.substr(0, kDigits), code_of_number) + CodeOf(part.substr(kDigits), code_of_number);
}

}  // namespace

std::string WithCodes(std::string_view text, const CodeOfNumber& code_of_number) {
  constexpr std::string_view kSigns = ",/";
  std::string with_codes;
  for (;;) {
    const std::size_t end = std::min(text.find_first_of(kSigns), text.size());
    with_codes += PartWithCodes(text.substr(0, end), code_of_number);
    if (end == text.size()) return with_codes;
    with_codes += text[end];
    text.remove_prefix(end + 1);
  }
}

}  // namespace ferrowind::host
