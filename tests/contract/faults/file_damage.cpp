#include "tests/contract/faults/file_damage.h"

#include <cstddef>

namespace ferrowind::contract {
namespace {

constexpr std::size_t kPage = 4096;
/// Where SQLite keeps what a damage is most likely to confuse it by: the file's own marks, and the marks and
/// the list of cells of each page.
constexpr std::size_t kHeadOfAPage = 128;

std::size_t Below(std::size_t end, std::mt19937& random) {
  return std::uniform_int_distribution<std::size_t>(0, end - 1)(random);
}

DamagedBytes FlipBits(std::string bytes, std::mt19937& random) {
  std::string what = "the bits";
  const bool is_in_a_head = Below(2, random) == 0;
  for (std::size_t count = 1 + Below(3, random); count > 0; --count) {
    const std::size_t place = is_in_a_head
                                  ? Below(bytes.size() / kPage, random) * kPage + Below(kHeadOfAPage, random)
                                  : Below(bytes.size(), random);
    const auto bit = static_cast<unsigned>(Below(8, random));
    bytes[place] = static_cast<char>(static_cast<unsigned char>(bytes[place]) ^ (1U << bit));
    what += " " + std::to_string(place) + "." + std::to_string(bit);
  }
  return {std::move(bytes), what + " are flipped"};
}

DamagedBytes CutShort(std::string bytes, std::mt19937& random) {
  const bool is_at_a_page = Below(2, random) == 0;
  const std::size_t size =
      is_at_a_page ? Below(bytes.size() / kPage, random) * kPage : Below(bytes.size(), random);
  bytes.resize(size);
  return {std::move(bytes), "it ends after " + std::to_string(size) + " bytes"};
}

DamagedBytes MisplacePages(std::string bytes, std::mt19937& random) {
  const std::size_t pages = bytes.size() / kPage;
  const std::size_t first = Below(pages, random);
  const std::size_t second = Below(pages, random);
  const std::string page = bytes.substr(first * kPage, kPage);
  const bool is_swap = Below(2, random) == 0;
  if (is_swap) bytes.replace(first * kPage, kPage, bytes.substr(second * kPage, kPage));
  bytes.replace(second * kPage, kPage, page);
  return {std::move(bytes), "the page " + std::to_string(first) +
                                (is_swap ? " is swapped with " : " stands for ") + std::to_string(second)};
}

}  // namespace

DamagedBytes Damage(const std::string& sound, std::mt19937& random) {
  switch (Below(10, random)) {
    case 0:
      return CutShort(sound, random);
    case 1:
    case 2:
    case 3:
      return MisplacePages(sound, random);
    default:
      return FlipBits(sound, random);
  }
}

}  // namespace ferrowind::contract
