#include "ferrowind/platform/values/case_fold.h"

#include <algorithm>
#include <array>

namespace ferrowind::platform {
namespace {

/// Capital letters `first`, `first + step`, ... `last`, each `distance` before its small letter.
struct CapitalLetters {
  int first;
  int last;
  int step;
  int distance;
};

/// Ascending and without overlap. Beyond the capitals it holds the few small letters that share a capital
/// with another one (the long s, the final sigma, the Greek symbols): they fold to that other one.
constexpr std::array kCapitals = {
    CapitalLetters{0x0041, 0x005A, 1, 32},    CapitalLetters{0x00B5, 0x00B5, 1, 775},
    CapitalLetters{0x00C0, 0x00D6, 1, 32},    CapitalLetters{0x00D8, 0x00DE, 1, 32},
    CapitalLetters{0x0100, 0x012E, 2, 1},     CapitalLetters{0x0132, 0x0136, 2, 1},
    CapitalLetters{0x0139, 0x0147, 2, 1},     CapitalLetters{0x014A, 0x0176, 2, 1},
    CapitalLetters{0x0178, 0x0178, 1, -121},  CapitalLetters{0x0179, 0x017D, 2, 1},
    CapitalLetters{0x017F, 0x017F, 1, -268},  CapitalLetters{0x0181, 0x0181, 1, 210},
    CapitalLetters{0x0182, 0x0184, 2, 1},     CapitalLetters{0x0186, 0x0186, 1, 206},
    CapitalLetters{0x0187, 0x0187, 1, 1},     CapitalLetters{0x0189, 0x018A, 1, 205},
    CapitalLetters{0x018B, 0x018B, 1, 1},     CapitalLetters{0x018E, 0x018E, 1, 79},
    CapitalLetters{0x018F, 0x018F, 1, 202},   CapitalLetters{0x0190, 0x0190, 1, 203},
    CapitalLetters{0x0191, 0x0191, 1, 1},     CapitalLetters{0x0193, 0x0193, 1, 205},
    CapitalLetters{0x0194, 0x0194, 1, 207},   CapitalLetters{0x0196, 0x0196, 1, 211},
    CapitalLetters{0x0197, 0x0197, 1, 209},   CapitalLetters{0x0198, 0x0198, 1, 1},
    CapitalLetters{0x019C, 0x019C, 1, 211},   CapitalLetters{0x019D, 0x019D, 1, 213},
    CapitalLetters{0x019F, 0x019F, 1, 214},   CapitalLetters{0x01A0, 0x01A4, 2, 1},
    CapitalLetters{0x01A6, 0x01A6, 1, 218},   CapitalLetters{0x01A7, 0x01A7, 1, 1},
    CapitalLetters{0x01A9, 0x01A9, 1, 218},   CapitalLetters{0x01AC, 0x01AC, 1, 1},
    CapitalLetters{0x01AE, 0x01AE, 1, 218},   CapitalLetters{0x01AF, 0x01AF, 1, 1},
    CapitalLetters{0x01B1, 0x01B2, 1, 217},   CapitalLetters{0x01B3, 0x01B5, 2, 1},
    CapitalLetters{0x01B7, 0x01B7, 1, 219},   CapitalLetters{0x01B8, 0x01B8, 1, 1},
    CapitalLetters{0x01BC, 0x01BC, 1, 1},     CapitalLetters{0x01C4, 0x01C4, 1, 2},
    CapitalLetters{0x01C5, 0x01C5, 1, 1},     CapitalLetters{0x01C7, 0x01C7, 1, 2},
    CapitalLetters{0x01C8, 0x01C8, 1, 1},     CapitalLetters{0x01CA, 0x01CA, 1, 2},
    CapitalLetters{0x01CB, 0x01DB, 2, 1},     CapitalLetters{0x01DE, 0x01EE, 2, 1},
    CapitalLetters{0x01F1, 0x01F1, 1, 2},     CapitalLetters{0x01F2, 0x01F4, 2, 1},
    CapitalLetters{0x01F6, 0x01F6, 1, -97},   CapitalLetters{0x01F7, 0x01F7, 1, -56},
    CapitalLetters{0x01F8, 0x021E, 2, 1},     CapitalLetters{0x0220, 0x0220, 1, -130},
    CapitalLetters{0x0222, 0x0232, 2, 1},     CapitalLetters{0x023A, 0x023A, 1, 10795},
    CapitalLetters{0x023B, 0x023B, 1, 1},     CapitalLetters{0x023D, 0x023D, 1, -163},
    CapitalLetters{0x023E, 0x023E, 1, 10792}, CapitalLetters{0x0241, 0x0241, 1, 1},
    CapitalLetters{0x0243, 0x0243, 1, -195},  CapitalLetters{0x0244, 0x0244, 1, 69},
    CapitalLetters{0x0245, 0x0245, 1, 71},    CapitalLetters{0x0246, 0x024E, 2, 1},
    CapitalLetters{0x0345, 0x0345, 1, 116},   CapitalLetters{0x0370, 0x0372, 2, 1},
    CapitalLetters{0x0376, 0x0376, 1, 1},     CapitalLetters{0x037F, 0x037F, 1, 116},
    CapitalLetters{0x0386, 0x0386, 1, 38},    CapitalLetters{0x0388, 0x038A, 1, 37},
    CapitalLetters{0x038C, 0x038C, 1, 64},    CapitalLetters{0x038E, 0x038F, 1, 63},
    CapitalLetters{0x0391, 0x03A1, 1, 32},    CapitalLetters{0x03A3, 0x03AB, 1, 32},
    CapitalLetters{0x03C2, 0x03C2, 1, 1},     CapitalLetters{0x03CF, 0x03CF, 1, 8},
    CapitalLetters{0x03D0, 0x03D0, 1, -30},   CapitalLetters{0x03D1, 0x03D1, 1, -25},
    CapitalLetters{0x03D5, 0x03D5, 1, -15},   CapitalLetters{0x03D6, 0x03D6, 1, -22},
    CapitalLetters{0x03D8, 0x03EE, 2, 1},     CapitalLetters{0x03F0, 0x03F0, 1, -54},
    CapitalLetters{0x03F1, 0x03F1, 1, -48},   CapitalLetters{0x03F4, 0x03F4, 1, -60},
    CapitalLetters{0x03F5, 0x03F5, 1, -64},   CapitalLetters{0x03F7, 0x03F7, 1, 1},
    CapitalLetters{0x03F9, 0x03F9, 1, -7},    CapitalLetters{0x03FA, 0x03FA, 1, 1},
    CapitalLetters{0x03FD, 0x03FF, 1, -130},  CapitalLetters{0x0400, 0x040F, 1, 80},
    CapitalLetters{0x0410, 0x042F, 1, 32},    CapitalLetters{0x0460, 0x0480, 2, 1},
    CapitalLetters{0x048A, 0x04BE, 2, 1},     CapitalLetters{0x04C0, 0x04C0, 1, 15},
    CapitalLetters{0x04C1, 0x04CD, 2, 1},     CapitalLetters{0x04D0, 0x052E, 2, 1},
};

int SmallLetter(int code_point) {
  const auto* const range =
      std::lower_bound(kCapitals.begin(), kCapitals.end(), code_point,
                       [](const CapitalLetters& letters, int wanted) { return letters.last < wanted; });
  if (range == kCapitals.end() || code_point < range->first) return code_point;
  return (code_point - range->first) % range->step == 0 ? code_point + range->distance : code_point;
}

bool IsAscii(char byte) { return static_cast<unsigned char>(byte) < 0x80; }
char SmallAscii(char letter) {
  return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter + ('a' - 'A')) : letter;
}

/// The bytes of a folded text one after the other, made while they are read.
class FoldedBytes {
 public:
  explicit FoldedBytes(std::string_view text) : text_(text) {}

  /// The next byte, 0 to 255, or -1 behind the last one.
  int Next() {
    if (pending_count_ > 0) return pending_[--pending_count_];
    if (read_ == text_.size()) return -1;
    const int lead = Byte(read_++);
    if (lead < 0x80) return lead >= 'A' && lead <= 'Z' ? lead + ('a' - 'A') : lead;
    // All letters to fold lie within the code points that UTF-8 writes in two bytes.
    if (lead < 0xC2 || lead > 0xDF || read_ == text_.size() || !IsContinuation(Byte(read_))) return lead;
    return Encode(SmallLetter((lead & 0x1F) << 6 | (Byte(read_++) & 0x3F)));
  }

 private:
  [[nodiscard]] int Byte(std::size_t position) const { return static_cast<unsigned char>(text_[position]); }
  static bool IsContinuation(int byte) { return (byte & 0xC0) == 0x80; }

  /// The first byte of the code point; keeps the others for later, the last one first.
  int Encode(int code_point) {
    if (code_point < 0x80) return code_point;
    pending_[pending_count_++] = 0x80 | (code_point & 0x3F);
    if (code_point < 0x800) return 0xC0 | code_point >> 6;
    pending_[pending_count_++] = 0x80 | (code_point >> 6 & 0x3F);
    return 0xE0 | code_point >> 12;
  }

  std::string_view text_;
  std::size_t read_ = 0;
  std::array<int, 2> pending_{};
  std::size_t pending_count_ = 0;
};

}  // namespace

// Most texts are ASCII, and folding them is much of the work on names: that part goes without more ado.

std::string FoldCase(std::string_view text) {
  std::string folded(text);
  std::size_t ascii = 0;
  for (; ascii < folded.size() && IsAscii(folded[ascii]); ++ascii) folded[ascii] = SmallAscii(folded[ascii]);
  if (ascii == folded.size()) return folded;
  folded.resize(ascii);
  FoldedBytes bytes(text.substr(ascii));
  for (int byte = bytes.Next(); byte >= 0; byte = bytes.Next()) folded.push_back(static_cast<char>(byte));
  return folded;
}

std::strong_ordering CompareIgnoringCase(std::string_view left, std::string_view right) {
  const std::size_t shorter = std::min(left.size(), right.size());
  std::size_t ascii = 0;
  for (; ascii < shorter && IsAscii(left[ascii]) && IsAscii(right[ascii]); ++ascii) {
    const auto order = SmallAscii(left[ascii]) <=> SmallAscii(right[ascii]);
    if (std::is_neq(order)) return order;
  }
  if (ascii == shorter) return left.size() <=> right.size();
  FoldedBytes left_bytes(left.substr(ascii));
  FoldedBytes right_bytes(right.substr(ascii));
  for (;;) {
    const int left_byte = left_bytes.Next();
    const int right_byte = right_bytes.Next();
    if (left_byte != right_byte || left_byte < 0) return left_byte <=> right_byte;
  }
}

std::optional<std::size_t> FindIgnoringCase(const std::vector<std::string>& texts, std::string_view wanted) {
  for (std::size_t i = 0; i < texts.size(); ++i) {
    if (std::is_eq(CompareIgnoringCase(texts[i], wanted))) return i;
  }
  return std::nullopt;
}

}  // namespace ferrowind::platform
