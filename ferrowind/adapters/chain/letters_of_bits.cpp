#include "ferrowind/adapters/chain/letters_of_bits.h"

namespace ferrowind::chain {
namespace {

constexpr std::string_view kLetters = "0123456789ABCDEFGHJKMNPQRSTVWXYZ";

char Unmistaken(char character) {
  const char letter =
      character >= 'a' && character <= 'z' ? static_cast<char>(character - 'a' + 'A') : character;
  if (letter == 'O') return '0';
  return letter == 'I' || letter == 'L' ? '1' : letter;
}

}  // namespace

std::string LettersOf(const std::array<std::uint8_t, 32>& bits, std::size_t count) {
  std::string letters;
  for (std::size_t letter = 0; letter < count; ++letter) {
    std::size_t value = 0;
    for (std::size_t bit = 5 * letter; bit < 5 * letter + 5; ++bit) {
      value = 2 * value + ((bits[bit / 8] >> (7 - bit % 8)) & 1U);
    }
    letters += kLetters[value];
  }
  return letters;
}

std::string ReadLetters(std::string_view text) {
  std::string letters;
  for (const char character : text) {
    if (character == '-' || character == ' ') continue;
    const char letter = Unmistaken(character);
    if (kLetters.find(letter) == std::string_view::npos) return "";
    letters += letter;
  }
  return letters;
}

}  // namespace ferrowind::chain
