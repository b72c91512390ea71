#include "ferrowind/platform/values/fingerprint.h"

namespace ferrowind::platform {
namespace {

void AppendHexadecimal(std::uint64_t number, std::string& text) {
  for (int shift = 60; shift >= 0; shift -= 4) text += "0123456789abcdef"[(number >> shift) & 0xF];
}

}  // namespace

void Fingerprint::Add(std::string_view text) {
  AddSize(text.size() + 1);
  for (const char character : text) AddByte(static_cast<unsigned char>(character));
}

void Fingerprint::AddNothing() { AddSize(0); }

std::string Fingerprint::Digits() const {
  std::string digits;
  AppendHexadecimal(high_, digits);
  AppendHexadecimal(low_, digits);
  return digits;
}

void Fingerprint::AddByte(unsigned char byte) {
  // The hash times the prime 2^88 + 2^8 + 0x3b; what does not fit into 128 bits is cut off.
  constexpr std::uint64_t kLowPart = 0x13b;
  constexpr std::uint64_t kHalf = 0xffffffff;
  low_ ^= byte;
  const std::uint64_t lower = (low_ & kHalf) * kLowPart;
  const std::uint64_t upper = (low_ >> 32) * kLowPart + (lower >> 32);
  high_ = high_ * kLowPart + (upper >> 32) + (low_ << 24);
  low_ = (upper << 32) | (lower & kHalf);
}

void Fingerprint::AddSize(std::uint64_t size) {
  for (; size >= 0x80; size >>= 7) AddByte(static_cast<unsigned char>(0x80 | (size & 0x7F)));
  AddByte(static_cast<unsigned char>(size));
}

}  // namespace ferrowind::platform
