#include "ferrowind/views/planning/typed_time.h"

#include <string_view>
#include <vector>

namespace ferrowind {
namespace {

bool IsDigit(char character) { return character >= '0' && character <= '9'; }

/// The numbers of one or two digits that colons or full stops divide; nothing when there is anything else.
std::optional<std::vector<int>> NumbersIn(std::string_view text) {
  constexpr std::size_t kMostDigits = 2;
  std::vector<int> numbers;
  for (std::size_t place = 0; place <= text.size(); ++place) {
    int number = 0;
    const std::size_t first = place;
    for (; place < text.size() && IsDigit(text[place]); ++place) {
      if (place - first == kMostDigits) return std::nullopt;
      number = number * 10 + (text[place] - '0');
    }
    const bool is_divided = place == text.size() || text[place] == ':' || text[place] == '.';
    // Of the hours one digit is enough; 14:5 may be meant as 14:50.
    const std::size_t least_digits = numbers.empty() ? 1 : kMostDigits;
    if (!is_divided || place - first < least_digits) return std::nullopt;
    numbers.push_back(number);
  }
  return numbers;
}

std::string_view Trimmed(std::string_view text) {
  const auto first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

}  // namespace

std::optional<TypedTime> ReadTime(const std::string& text) {
  constexpr int kHours = 24;
  constexpr int kSixty = 60;
  const auto numbers = NumbersIn(Trimmed(text));
  if (!numbers || numbers->size() < 2 || numbers->size() > 3) return std::nullopt;
  TypedTime time{.hour = numbers->at(0), .minute = numbers->at(1)};
  if (numbers->size() == 3) time.second = numbers->at(2);
  if (time.hour >= kHours || time.minute >= kSixty || time.second >= kSixty) return std::nullopt;
  return time;
}

}  // namespace ferrowind
