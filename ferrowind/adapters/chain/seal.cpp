#include "ferrowind/adapters/chain/seal.h"

#include <array>
#include <charconv>
#include <cstddef>

#include "ferrowind/adapters/chain/letters_of_bits.h"
#include "ferrowind/adapters/chain/sha256.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::chain {
namespace {

constexpr std::size_t kDigestLetters = 32;
constexpr std::size_t kGroup = 4;

/// Differs when a letter was miswritten.
std::string CheckGroup(const Seal& seal) {
  return LettersOf(Sha256(std::to_string(seal.entry) + "-" + seal.digest), kGroup);
}

platform::Failure NoSeal(std::string_view text) {
  return {platform::failure_number::kInvalidArgument,
          "\"" + std::string(text) +
              "\" is no seal. A seal is what \"ferrowindctl seal\" printed, letter by letter"};
}

}  // namespace

std::string Seal::Text() const {
  std::string text = std::to_string(entry);
  const std::string letters = digest + CheckGroup(*this);
  for (std::size_t i = 0; i < letters.size(); ++i) {
    if (i % kGroup == 0) text += '-';
    text += letters[i];
  }
  return text;
}

Seal Seal::Of(std::string_view text) {
  Seal seal;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), seal.entry);
  if (error != std::errc() || seal.entry < 0) throw NoSeal(text);
  const std::string letters = ReadLetters(text.substr(static_cast<std::size_t>(end - text.data())));
  if (letters.size() != kDigestLetters + kGroup) throw NoSeal(text);
  seal.digest = letters.substr(0, kDigestLetters);
  if (letters.substr(kDigestLetters) != CheckGroup(seal)) throw NoSeal(text);
  return seal;
}

}  // namespace ferrowind::chain
