#include "ferrowind/adapters/odbc/wide_text.h"

#include <cstddef>
#include <cstdint>

#include "ferrowind/platform/values/utf8_text.h"

namespace ferrowind::odbc {
namespace {

static_assert(sizeof(SQLWCHAR) == 2, "the driver manager's texts are UTF-16");

constexpr std::uint32_t kFirstHigh = 0xD800;
constexpr std::uint32_t kFirstLow = 0xDC00;
constexpr std::uint32_t kBehindLow = 0xE000;
constexpr std::uint32_t kFirstPaired = 0x10000;

bool IsHigh(std::uint32_t unit) { return unit >= kFirstHigh && unit < kFirstLow; }
bool IsLow(std::uint32_t unit) { return unit >= kFirstLow && unit < kBehindLow; }

/// How many bytes the character has that begins with `first`.
std::size_t SizeOfCharacter(unsigned char first) {
  if (first < 0x80) return 1;
  if (first < 0xE0) return 2;
  return first < 0xF0 ? 3 : 4;
}

/// The bits of a character's first byte that belong to its number.
std::uint32_t BitsOfFirst(unsigned char first, std::size_t size) {
  return size == 1 ? first : first & (0x7FU >> size);
}

void Append(std::uint32_t code, WideText& wide) {
  if (code < kFirstPaired) {
    wide.push_back(static_cast<SQLWCHAR>(code));
    return;
  }
  wide.push_back(static_cast<SQLWCHAR>(kFirstHigh + ((code - kFirstPaired) >> 10)));
  wide.push_back(static_cast<SQLWCHAR>(kFirstLow + ((code - kFirstPaired) & 0x3FF)));
}

}  // namespace

WideText ToWide(std::string_view text) {
  WideText wide;
  wide.reserve(text.size() + 1);
  for (std::size_t at = 0; at < text.size();) {
    const auto first = static_cast<unsigned char>(text[at]);
    const std::size_t size = SizeOfCharacter(first);
    std::uint32_t code = BitsOfFirst(first, size);
    for (const char next : text.substr(at + 1, size - 1)) {
      code = code << 6 | (static_cast<unsigned char>(next) & 0x3FU);
    }
    Append(code, wide);
    at += size;
  }
  wide.push_back(0);
  return wide;
}

std::optional<std::string> FromWide(std::span<const SQLWCHAR> text) {
  std::string utf8;
  for (std::size_t at = 0; at < text.size(); ++at) {
    std::uint32_t code = text[at];
    if (IsLow(code)) return std::nullopt;
    if (IsHigh(code)) {
      if (at + 1 == text.size() || !IsLow(text[at + 1])) return std::nullopt;
      code = kFirstPaired + ((code - kFirstHigh) << 10) + (text[++at] - kFirstLow);
    }
    platform::AppendUtf8(code, utf8);
  }
  return utf8;
}

}  // namespace ferrowind::odbc
