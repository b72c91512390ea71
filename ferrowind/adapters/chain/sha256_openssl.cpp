#include <openssl/evp.h>

#include "ferrowind/adapters/chain/sha256.h"
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

}  // namespace ferrowind::chain
