#include "ferrowind/adapters/chain/sha256.h"

#include <openssl/evp.h>

#include "ferrowind/platform/values/failure.h"

namespace ferrowind::chain {

std::array<std::uint8_t, 32> Sha256(std::string_view bytes) {
  std::array<std::uint8_t, 32> digest{};
  unsigned size = 0;
  if (EVP_Digest(bytes.data(), bytes.size(), digest.data(), &size, EVP_sha256(), nullptr) != 1 ||
      size != digest.size()) {
    throw platform::Failure(platform::failure_number::kInvalidArgument,
                            "The hash of an entry of the history cannot be computed");
  }
  return digest;
}

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
