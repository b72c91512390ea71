#include "ferrowind/adapters/chain/sha256.h"

namespace ferrowind::chain {

std::string Sha256Text(std::string_view bytes) {
  constexpr std::string_view kDigits = "0123456789abcdef";
  std::string text;
  for (const std::uint8_t byte : Sha256(bytes)) {
    text += kDigits[byte / 16];
    text += kDigits[byte % 16];
  }
  return text;
}

}  // namespace ferrowind::chain
