#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "ferrowind/export.h"

namespace ferrowind::platform {

/// What tells one sequence of texts from another: their FNV-1a hash of 128 bits. Not for texts that somebody
/// makes up in order to be mistaken for others.
class FERROWIND_EXPORT Fingerprint {
 public:
  /// "ab" and "c" are others than "a" and "bc".
  void Add(std::string_view text);
  /// A place without a text, which is another thing than an empty one.
  void AddNothing();

  /// 32 hexadecimal digits.
  [[nodiscard]] std::string Digits() const;

 private:
  void AddByte(unsigned char byte);
  void AddSize(std::uint64_t size);

  std::uint64_t high_ = 0x6c62272e07bb0142;
  std::uint64_t low_ = 0x62b821756295c58d;
};

}  // namespace ferrowind::platform
