#include "ferrowind/exchange/written_date.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <utility>

#include "ferrowind/almanac/date_words.h"
#include "ferrowind/exchange/list_faults.h"
#include "ferrowind/exchange/listed_day.h"
#include "ferrowind/platform/values/case_fold.h"

namespace ferrowind::exchange {
namespace {

using platform::CompareIgnoringCase;
using platform::Date;

constexpr const char* kExpected =
    "YYYY-MM-DD is expected, DD.MM.YYYY, or a month by its English name, as in 1 January 2027";

bool IsDigit(char character) { return character >= '0' && character <= '9'; }
bool IsLetter(char character) {
  return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z');
}

/// Whether `word` is `name` or its first three letters.
bool Names(std::string_view word, std::string_view name) {
  constexpr std::size_t kShort = 3;
  return CompareIgnoringCase(word, name) == 0 || CompareIgnoringCase(word, name.substr(0, kShort)) == 0;
}

int MonthIn(std::string_view word) {
  for (int month = 1; month <= 12; ++month) {
    if (Names(word, almanac::MonthName(month))) return month;
  }
  return CompareIgnoringCase(word, "Sept") == 0 ? 9 : 0;
}

int WeekdayIn(std::string_view word) {
  for (int weekday = 1; weekday <= 7; ++weekday) {
    if (Names(word, almanac::WeekdayName(weekday))) return weekday;
  }
  constexpr std::array<std::string_view, 3> kOthers = {"Tues", "Wednes", "Thurs"};
  for (std::size_t i = 0; i < kOthers.size(); ++i) {
    if (CompareIgnoringCase(word, kOthers[i]) == 0) return 3 + static_cast<int>(i);
  }
  return 0;
}

class Scanner {
 public:
  explicit Scanner(std::string_view text) : text_(text) {}

  /// Year, month and day; nothing when there is no date.
  [[nodiscard]] bool Read() {
    SkipBlanks();
    if (ReadNumbers()) return true;
    const std::string_view word = Letters();
    if (WeekdayIn(word) != 0) {
      weekday_ = WeekdayIn(word);
      if (!Takes('.')) Takes(',');
      SkipBlanks();
      return ReadNumbers() || ReadByName(Letters());
    }
    return ReadByName(word);
  }

  [[nodiscard]] std::string_view Rest() const { return text_.substr(place_); }
  int year = 0;
  int month = 0;
  int day = 0;
  [[nodiscard]] int Weekday() const { return weekday_; }

 private:
  /// Stays where it was when there is no such date.
  bool ReadNumbers() {
    const std::size_t before = place_;
    for (const auto read : {&Scanner::ReadIso, &Scanner::ReadDotted, &Scanner::ReadSlashed}) {
      if ((this->*read)()) return true;
      place_ = before;
    }
    return false;
  }

  bool ReadIso() {
    return Number(4, year) && Takes('-') && Number(2, month) && Takes('-') && Number(2, day) && AtEnd();
  }

  /// Whoever writes dots writes the day first.
  bool ReadDotted() {
    return ShortNumber(day) && Takes('.') && ShortNumber(month) && Takes('.') && Number(4, year) && AtEnd();
  }

  /// Some write the day first and some the month, so it is a date only where both mean the same day, or one
  /// of the numbers is no month.
  bool ReadSlashed() {
    constexpr int kMonths = 12;
    if (!ShortNumber(day) || !Takes('/') || !ShortNumber(month) || !Takes('/') || !Number(4, year) ||
        !AtEnd())
      return false;
    if (month > kMonths && day <= kMonths) std::swap(day, month);
    return day > kMonths || day == month;
  }

  /// `first` is the word before the place, or empty.
  bool ReadByName(std::string_view first) {
    if (!first.empty()) {
      month = MonthIn(first);
      if (month == 0) return false;
      Takes('.');
      if (!Separated() || !Day()) return false;
      if (!Takes(',')) Takes('-');
      SkipBlanks();
      return Number(4, year) && AtEnd();
    }
    if (!Day()) return false;
    Takes('.');
    if (!Separated()) return false;
    month = MonthIn(Letters());
    if (month == 0) return false;
    Takes('.');
    Takes(',');
    return Separated() && Number(4, year) && AtEnd();
  }

  /// One or two digits and perhaps the ending of an ordinal number.
  bool Day() {
    const std::size_t digits = DigitsAhead();
    if (digits == 0 || digits > 2 || !Number(digits, day)) return false;
    const std::size_t behind = place_;
    const std::string_view ending = Letters();
    constexpr std::array<std::string_view, 4> kEndings = {"st", "nd", "rd", "th"};
    const bool is_ordinal = std::any_of(kEndings.begin(), kEndings.end(), [&](std::string_view known) {
      return CompareIgnoringCase(ending, known) == 0;
    });
    if (!is_ordinal) place_ = behind;
    return true;
  }

  /// Blanks or one hyphen.
  bool Separated() {
    const std::size_t before = place_;
    SkipBlanks();
    if (place_ == before) return Takes('-') || (place_ > 0 && text_[place_ - 1] == '.');
    return true;
  }

  bool ShortNumber(int& number) {
    const std::size_t digits = DigitsAhead();
    return digits <= 2 && digits != 0 && Number(digits, number);
  }

  bool Number(std::size_t digits, int& number) {
    if (DigitsAhead() != digits) return false;
    number = 0;
    for (; digits != 0; --digits) number = number * 10 + (text_[place_++] - '0');
    return true;
  }

  [[nodiscard]] std::size_t DigitsAhead() const {
    std::size_t end = place_;
    while (end < text_.size() && IsDigit(text_[end])) ++end;
    return end - place_;
  }

  std::string_view Letters() {
    const std::size_t begin = place_;
    while (place_ < text_.size() && IsLetter(text_[place_])) ++place_;
    return text_.substr(begin, place_ - begin);
  }

  bool Takes(char character) {
    if (place_ == text_.size() || text_[place_] != character) return false;
    ++place_;
    return true;
  }

  void SkipBlanks() {
    while (place_ < text_.size() && (text_[place_] == ' ' || text_[place_] == '\t')) ++place_;
  }

  [[nodiscard]] bool AtEnd() const {
    constexpr std::string_view kEnds = " \t,;:\r\n";
    return place_ == text_.size() || kEnds.find(text_[place_]) != std::string_view::npos;
  }

  std::string_view text_;
  std::size_t place_ = 0;
  int weekday_ = 0;
};

WrittenDate NoDate(std::string why_not) { return {std::nullopt, std::move(why_not), {}}; }

}  // namespace

WrittenDate ReadDateAtFront(std::string_view text) {
  Scanner scanner(text);
  if (!scanner.Read()) {
    return NoDate(Quoted(std::string(text)) +
                  " does not begin with a date that can be read in one way only; " + kExpected);
  }
  const std::string written(text.substr(0, text.size() - scanner.Rest().size()));
  if (!Date::IsValid(scanner.year, scanner.month, scanner.day)) {
    return NoDate("there is no day " + Quoted(written));
  }
  if (scanner.year < kFirstListedYear || scanner.year > kLastListedYear) {
    return NoDate("the year of " + Quoted(written) + " is not one from " + std::to_string(kFirstListedYear) +
                  " to " + std::to_string(kLastListedYear));
  }
  const Date date(scanner.year, scanner.month, scanner.day);
  if (scanner.Weekday() != 0 && scanner.Weekday() != date.Weekday()) {
    return NoDate(Quoted(written) + " contradicts itself: " + date.ToIso() + " is a " +
                  std::string(almanac::WeekdayName(date.Weekday())));
  }
  return {date, {}, scanner.Rest()};
}

WrittenDate ReadWholeDate(std::string_view text) {
  WrittenDate read = ReadDateAtFront(text);
  if (!read.date || read.rest.find_first_not_of(" \t") == std::string_view::npos) return read;
  return NoDate(Quoted(std::string(text)) + " is no date; " + kExpected);
}

}  // namespace ferrowind::exchange
