#include "ferrowind/platform/values/utf8_validation.h"

#include <cstddef>

namespace ferrowind::platform {
namespace {

/// The bytes that may follow a lead byte first, and how many follow in all; the others are 0x80 to 0xBF.
struct Continuation {
  std::size_t count = 0;
  unsigned char first_low = 0x80;
  unsigned char first_high = 0xBF;
};

/// `count` is 0 for a byte that leads no sequence.
Continuation ContinuationOf(unsigned char lead) {
  if (lead >= 0xC2 && lead <= 0xDF) return {1};
  if (lead == 0xE0) return {2, 0xA0};
  if (lead == 0xED) return {2, 0x80, 0x9F};
  if (lead >= 0xE1 && lead <= 0xEF) return {2};
  if (lead == 0xF0) return {3, 0x90};
  if (lead == 0xF4) return {3, 0x80, 0x8F};
  if (lead >= 0xF1 && lead <= 0xF3) return {3};
  return {};
}

}  // namespace

bool IsWellFormedUtf8(std::string_view text) {
  for (std::size_t i = 0; i < text.size();) {
    const auto byte_at = [&](std::size_t place) { return static_cast<unsigned char>(text[place]); };
    if (byte_at(i) < 0x80) {
      ++i;
      continue;
    }
    const Continuation expected = ContinuationOf(byte_at(i));
    if (expected.count == 0 || text.size() - i <= expected.count) return false;
    if (byte_at(i + 1) < expected.first_low || byte_at(i + 1) > expected.first_high) return false;
    for (std::size_t k = 2; k <= expected.count; ++k) {
      if ((byte_at(i + k) & 0xC0) != 0x80) return false;
    }
    i += expected.count + 1;
  }
  return true;
}

}  // namespace ferrowind::platform
