#include <cstdint>
#include <random>

#include "ferrowind/adapters/sqlite/text_search.h"

namespace ferrowind::sqlite {
namespace {

constexpr std::uint64_t kPrime = 2'147'483'647;

/// By chance, so that nobody can write a text in which many places look like the wanted one.
std::uint64_t Base() noexcept {
  static const std::uint64_t base = [] {
    std::random_device random;
    return std::uniform_int_distribution<std::uint64_t>(256, kPrime - 1)(random);
  }();
  return base;
}

std::uint64_t ByteAt(std::string_view text, std::size_t place) {
  return static_cast<unsigned char>(text[place]);
}

}  // namespace

// Compares only where a number made of as many bytes is that of the wanted ones (Rabin and Karp).
std::size_t Find(std::string_view text, std::string_view wanted) noexcept {
  if (wanted.empty()) return 0;
  if (text.size() < wanted.size()) return std::string_view::npos;
  const std::uint64_t base = Base();
  std::uint64_t number_wanted = 0;
  std::uint64_t number = 0;
  std::uint64_t weight_of_first = 1;
  for (std::size_t place = 0; place < wanted.size(); ++place) {
    number_wanted = (number_wanted * base + ByteAt(wanted, place)) % kPrime;
    number = (number * base + ByteAt(text, place)) % kPrime;
    if (place > 0) weight_of_first = weight_of_first * base % kPrime;
  }
  for (std::size_t begin = 0;; ++begin) {
    if (number == number_wanted && text.substr(begin, wanted.size()) == wanted) return begin;
    if (begin + wanted.size() == text.size()) return std::string_view::npos;
    const std::uint64_t without_first = number + kPrime - ByteAt(text, begin) * weight_of_first % kPrime;
    number = (without_first * base + ByteAt(text, begin + wanted.size())) % kPrime;
  }
}

}  // namespace ferrowind::sqlite
