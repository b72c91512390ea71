#include <limits>

#include <windows.h>
#include <bcrypt.h>

#include "ferrowind/adapters/chain/sha256.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::chain {
namespace {

/// The system's own SHA-256. Opened once, as that takes long, and never closed: any thread may use it, to the
/// end.
BCRYPT_ALG_HANDLE Algorithm() {
  static BCRYPT_ALG_HANDLE const opened = [] {
    BCRYPT_ALG_HANDLE handle = nullptr;
    return BCryptOpenAlgorithmProvider(&handle, BCRYPT_SHA256_ALGORITHM, nullptr, 0) == 0 ? handle : nullptr;
  }();
  return opened;
}

bool Digest(std::string_view bytes, std::array<std::uint8_t, 32>& digest) {
  BCRYPT_HASH_HANDLE hash = nullptr;
  if (BCryptCreateHash(Algorithm(), &hash, nullptr, 0, nullptr, 0, 0) != 0) return false;
  // The function takes them writable, and leaves them as they are.
  auto* const begin = reinterpret_cast<PUCHAR>(const_cast<char*>(bytes.data()));
  const bool is_done = bytes.size() <= std::numeric_limits<ULONG>::max() &&
                       BCryptHashData(hash, begin, static_cast<ULONG>(bytes.size()), 0) == 0 &&
                       BCryptFinishHash(hash, digest.data(), static_cast<ULONG>(digest.size()), 0) == 0;
  BCryptDestroyHash(hash);
  return is_done;
}

}  // namespace

std::array<std::uint8_t, 32> Sha256(std::string_view bytes) {
  std::array<std::uint8_t, 32> digest{};
  if (Algorithm() == nullptr || !Digest(bytes, digest)) {
    throw platform::Failure(platform::failure_number::kInvalidArgument,
                            "The hash of an entry of the history cannot be computed");
  }
  return digest;
}

}  // namespace ferrowind::chain
