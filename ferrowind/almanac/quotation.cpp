#include "ferrowind/almanac/quotation.h"

#include <cstddef>

#include "ferrowind/platform/values/utf8_validation.h"

namespace ferrowind::almanac {
namespace {

constexpr std::size_t kLongestQuote = 200;

}  // namespace

std::string Quotation(std::string_view text) {
  std::string quotable(text.substr(0, kLongestQuote));
  // A cut character leaves its first bytes behind.
  const bool is_cut = quotable.size() < text.size();
  while (is_cut && !quotable.empty() && !platform::IsWellFormedUtf8(quotable) &&
         kLongestQuote - quotable.size() < 4) {
    quotable.pop_back();
  }
  const bool keeps_letters = platform::IsWellFormedUtf8(quotable);
  for (char& c : quotable) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte < 0x20 || byte == 0x7F) c = ' ';
    if (byte >= 0x80 && !keeps_letters) c = '?';
  }
  if (is_cut) quotable += "...";
  return '"' + quotable + '"';
}

}  // namespace ferrowind::almanac
