#include "ferrowind/planning/days_text.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <string>
#include <system_error>

#include "ferrowind/planning/in_words.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::planning {
namespace {

using almanac::MarkedDay;
using almanac::RuleKind;

class DaysReader {
 public:
  explicit DaysReader(std::string_view text)
      : begin_(text.data()), next_(begin_), end_(begin_ + text.size()) {}

  [[nodiscard]] bool IsAtEnd() const { return next_ == end_; }

  void ReadNext(MarkedDay& day) {
    day.day_of_year = Number<std::int16_t>(',');
    day.kind = static_cast<RuleKind>(Number<std::uint8_t>(','));
    day.rule = Number<std::int32_t>(',');
    const auto length = Number<std::size_t>(':');
    if (length > static_cast<std::size_t>(end_ - next_)) throw Malformed();
    if (length > 0) day.comment.assign(next_, length);
    next_ += length;
  }

 private:
  template <typename Whole>
  Whole Number(char mark) {
    // Most numbers of a calendar are one digit.
    if (end_ - next_ > 1 && next_[1] == mark && *next_ >= '0' && *next_ <= '9') {
      const auto digit = static_cast<Whole>(*next_ - '0');
      next_ += 2;
      return digit;
    }
    Whole number = 0;
    const auto [behind, error] = std::from_chars(next_, end_, number);
    if (error != std::errc() || behind == end_ || *behind != mark) throw Malformed();
    next_ = behind + 1;
    return number;
  }

  [[nodiscard]] platform::Failure Malformed() const {
    return {platform::failure_number::kInvalidArgument,
            InWords("The database gives the days of a calendar in a form that this program does not know, at "
                    "byte %1 of their text",
                    {std::to_string(next_ - begin_ + 1)})};
  }

  const char* begin_;
  const char* next_;
  const char* end_;
};

bool ComesBefore(const MarkedDay& left, const MarkedDay& right) {
  return left.day_of_year < right.day_of_year;
}

}  // namespace

std::vector<MarkedDay> ReadDaysText(std::string_view text) {
  // The weekends of a year and its holidays.
  constexpr std::size_t kUsualDays = 128;
  std::vector<MarkedDay> days;
  if (!text.empty()) days.reserve(kUsualDays);
  DaysReader reader(text);
  while (!reader.IsAtEnd()) reader.ReadNext(days.emplace_back());
  if (!std::is_sorted(days.begin(), days.end(), ComesBefore))
    std::sort(days.begin(), days.end(), ComesBefore);
  return days;
}

}  // namespace ferrowind::planning
