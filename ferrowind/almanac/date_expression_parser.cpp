#include "ferrowind/almanac/date_expression_parser.h"

#include <algorithm>
#include <array>
#include <compare>
#include <utility>

#include "ferrowind/almanac/date_words.h"
#include "ferrowind/almanac/day_count.h"
#include "ferrowind/platform/values/case_fold.h"

namespace ferrowind::almanac {
namespace {

using platform::Phrase;

constexpr int kLeapYear = 2000;

bool IsDigit(char c) { return c >= '0' && c <= '9'; }
bool IsBlank(char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; }
bool IsLetter(char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); }

bool IsWord(std::string_view text, std::string_view word) {
  return std::is_eq(platform::CompareIgnoringCase(text, word));
}

}  // namespace

DateExpression DateExpressionParser::Parse() {
  if (text_.size() > DateExpression::kLongestText) {
    throw ExpectedAt(DateExpression::kLongestText, Phrase::Of("the end"));
  }
  ParseBase();
  if (TakeWord("if")) expression_.only_on = ParseWeekdays();
  ParseMoves();
  if (TakeWord("else")) {
    ExpectWord("not");
    ExpectWord("observed");
    expression_.else_not_observed = true;
  }
  ParseYears();
  return std::move(expression_);
}

void DateExpressionParser::ParseBase() {
  while (const auto weekday = TakeWeekday()) {
    if (expression_.steps.size() == DateExpression::kMostSteps) {
      throw Expected(Phrase::Of("a date that follows at most %1 weekdays",
                                {std::to_string(DateExpression::kMostSteps)}));
    }
    expression_.steps.push_back({*weekday, ParseRelation()});
  }
  expression_.anchor = ParseAnchor();
}

Anchor DateExpressionParser::ParseAnchor() {
  SkipBlanks();
  if (IsAtDigit()) return ParseNumberedAnchor();
  if (TakeWord("easter")) return EasterDate{Church::kWestern, ParseOffset()};
  if (TakeWord("orthodox")) return EasterDate{Church::kOrthodox, ParseOffset()};
  if (TakeWord("last")) return ParseNthWeekday(NthWeekday::kLast);
  if (TakeWord("vernal")) return ParseEquinox(Equinox::kVernal);
  if (TakeWord("autumnal")) return ParseEquinox(Equinox::kAutumnal);
  if (TakeWord("table")) return ParseTable();
  if (!expression_.steps.empty())
    throw Expected(Phrase::Of("a date such as 05-18, easter or 4th Thursday of 11"));
  if (TakeWord("weekday")) return EveryWeekday{ParseWeekday()};
  if (TakeWord("between")) return BetweenHolidays{};
  if (TakeWord("unknown")) return UnknownDate{};
  throw Expected(Phrase::Of("a date such as 12-25, easter-2 or 1st Monday of 05"));
}

Anchor DateExpressionParser::ParseNumberedAnchor() {
  const std::size_t start = place_;
  std::size_t after = start;
  while (after < text_.size() && IsDigit(text_[after])) ++after;
  if (after < text_.size() && IsLetter(text_[after])) {
    static constexpr std::array<std::string_view, 5> kOrdinals = {"1st", "2nd", "3rd", "4th", "5th"};
    int ordinal = 0;
    for (const std::string_view word : kOrdinals) {
      ++ordinal;
      if (!IsWord(text_.substr(start, word.size()), word)) continue;
      place_ += word.size();
      if (IsLetter(Next()) || IsAtDigit()) break;
      return ParseNthWeekday(ordinal);
    }
    throw ExpectedAt(start, Phrase::Of("one of 1st, 2nd, 3rd, 4th, 5th and last"));
  }
  if (after - start >= 3) return ParseSingleDate();
  return ParseFixedDate();
}

FixedDate DateExpressionParser::ParseFixedDate() {
  FixedDate date;
  date.month =
      ParseNumber(2, 1, 12, [] { return Phrase::Of("a month 01 to 12 (a date is MM-DD or YYYY-MM-DD)"); });
  ExpectCharacter('-');
  date.day =
      ParseNumber(2, 1, DaysInMonth(kLeapYear, date.month), [] { return Phrase::Of("a day of the month"); });
  return date;
}

SingleDate DateExpressionParser::ParseSingleDate() {
  const int year = ParseYear();
  ExpectCharacter('-');
  const int month = ParseNumber(2, 1, 12, [] { return Phrase::Of("a month 01 to 12"); });
  ExpectCharacter('-');
  const int day =
      ParseNumber(2, 1, DaysInMonth(year, month), [] { return Phrase::Of("a day of the month"); });
  return {platform::Date(year, month, day)};
}

NthWeekday DateExpressionParser::ParseNthWeekday(int ordinal) {
  NthWeekday nth;
  nth.ordinal = ordinal;
  nth.weekday = ParseWeekday();
  ExpectWord("of");
  SkipBlanks();
  nth.month = ParseNumber(2, 1, 12, [] { return Phrase::Of("a month 01 to 12"); });
  return nth;
}

EquinoxDate DateExpressionParser::ParseEquinox(Equinox equinox) {
  ExpectWord("equinox");
  SkipBlanks();
  const std::size_t start = place_;
  const bool is_behind = Next() == '-';
  const Expectation expectation = [] { return Phrase::Of("a UTC offset -12:00 to +14:00"); };
  if (!TakeCharacter('+') && !TakeCharacter('-')) throw Expected(expectation());
  const int hours = ParseNumber(2, 0, 14, expectation);
  ExpectCharacter(':');
  const int size = hours * 60 + ParseNumber(2, 0, 59, [] { return Phrase::Of("minutes 00 to 59"); });
  if (size > (is_behind ? 12 : 14) * 60) throw ExpectedAt(start, expectation());
  return {equinox, is_behind ? -size : size};
}

TableDate DateExpressionParser::ParseTable() {
  SkipBlanks();
  const std::size_t start = place_;
  const auto is_letter_at = [this](std::size_t at) { return at < text_.size() && IsLetter(text_[at]); };
  while (is_letter_at(place_) || (place_ > start && IsAtDigit()) ||
         (place_ > start && Next() == '-' && is_letter_at(place_ + 1))) {
    ++place_;
  }
  if (place_ == start) throw Expected(Phrase::Of("the name of a table"));
  const bool ends_here = place_ == text_.size() || Next() == '+' || Next() == '-' || IsBlank(Next());
  if (!ends_here) throw Expected(Phrase::Of("the name of a table, of letters, digits and single hyphens,"));
  return {platform::FoldCase(text_.substr(start, place_ - start)), ParseOffset()};
}

int DateExpressionParser::ParseOffset() {
  SkipBlanks();
  const bool is_before = Next() == '-';
  if (!TakeCharacter('+') && !TakeCharacter('-')) return 0;
  SkipBlanks();
  const std::size_t start = place_;
  int days = 0;
  while (IsAtDigit() && days <= kLargestOffset) days = days * 10 + (text_[place_++] - '0');
  if (place_ == start || days > kLargestOffset) {
    throw ExpectedAt(start, Phrase::Of("a number of days up to %1", {std::to_string(kLargestOffset)}));
  }
  return is_before ? -days : days;
}

Relation DateExpressionParser::ParseRelation() {
  if (TakeWord("after")) return Relation::kAfter;
  if (TakeWord("before")) return Relation::kBefore;
  if (!TakeWord("on")) throw Expected(Phrase::Of("one of on or after, after, on or before and before"));
  ExpectWord("or");
  if (TakeWord("after")) return Relation::kOnOrAfter;
  if (TakeWord("before")) return Relation::kOnOrBefore;
  throw Expected(Phrase::Of("after or before"));
}

WeekdaySet DateExpressionParser::ParseWeekdays() {
  WeekdaySet weekdays;
  do {
    weekdays.Add(ParseWeekday());
  } while (TakeCharacter(','));
  return weekdays;
}

void DateExpressionParser::ParseMoves() {
  while (IsAtMove()) {
    if (expression_.moves.size() == DateExpression::kMostMoves) {
      throw Expected(Phrase::Of("the end of at most %1 moves", {std::to_string(DateExpression::kMostMoves)}));
    }
    expression_.moves.push_back(ParseMove());
  }
}

bool DateExpressionParser::IsAtMove() {
  const std::string_view word = PeekWord();
  if (WeekdayNamed(word) || IsWord(word, "taken")) return true;
  if (!IsWord(word, "to")) return false;
  // The end of the years begins with the same word.
  const std::size_t next = text_.find_first_not_of(" \t\r\n", place_ + word.size());
  return next == std::string_view::npos || !IsDigit(text_[next]);
}

Move DateExpressionParser::ParseMove() {
  Move move;
  if (!TakeWord("to")) {
    do {
      if (TakeWord("taken")) {
        move.taken = true;
      } else if (const auto weekday = TakeWeekday()) {
        move.weekdays.Add(*weekday);
      } else {
        throw Expected(Phrase::Of("a weekday or taken"));
      }
    } while (TakeCharacter(','));
    ExpectWord("to");
  }
  move.target = ParseTarget();
  return move;
}

MoveTarget DateExpressionParser::ParseTarget() {
  if (const auto weekday = TakeWeekday()) return {Direction::kNearest, *weekday};
  Direction direction = Direction::kNext;
  if (TakeWord("previous")) {
    direction = Direction::kPrevious;
  } else if (!TakeWord("next")) {
    throw Expected(Phrase::Of("a weekday, next or previous"));
  }
  if (const auto weekday = TakeWeekday()) return {direction, *weekday};
  if (!TakeWord("free")) throw Expected(Phrase::Of("a weekday or free day"));
  ExpectWord("day");
  return {direction, MoveTarget::kFreeDay};
}

void DateExpressionParser::ParseYears() {
  YearLimits& years = expression_.years;
  if (TakeWord("from")) {
    SkipBlanks();
    years.from = ParseYear();
  }
  if (TakeWord("to")) {
    SkipBlanks();
    const std::size_t start = place_;
    if (IsLetter(Next()))
      throw Expected(Phrase::Of("%1 (a move stands before else, from and to)", {AYear()}));
    years.to = ParseYear();
    if (years.from && *years.to < *years.from) {
      throw ExpectedAt(start, Phrase::Of("a year from %1 on", {std::to_string(*years.from)}));
    }
  }
  if (TakeWord("only")) {
    years.choice = YearChoice::kOnly;
  } else if (TakeWord("not")) {
    years.choice = YearChoice::kNot;
  } else {
    SkipBlanks();
    if (place_ == text_.size()) return;
    throw Expected(Phrase::Of(years.to     ? "only, not or the end"
                              : years.from ? "to, only, not or the end"
                                           : "a move, else not observed, from, to, only, not or the end"));
  }
  do {
    SkipBlanks();
    years.years.push_back(ParseYear());
  } while (TakeCharacter(','));
  std::sort(years.years.begin(), years.years.end());
  years.years.erase(std::unique(years.years.begin(), years.years.end()), years.years.end());
  SkipBlanks();
  if (place_ < text_.size()) throw Expected(Phrase::Of("a comma or the end"));
}

int DateExpressionParser::ParseYear() { return ParseNumber(4, kFirstYear, kLastYear, AYear); }

int DateExpressionParser::ParseWeekday() {
  if (const auto weekday = TakeWeekday()) return *weekday;
  throw Expected(Phrase::Of("a weekday"));
}

int DateExpressionParser::ParseNumber(std::size_t digits, int least, int most, Expectation expectation) {
  const std::size_t start = place_;
  int number = 0;
  while (IsAtDigit() && place_ - start <= digits) number = number * 10 + (text_[place_++] - '0');
  if (place_ - start != digits || number < least || number > most) throw ExpectedAt(start, expectation());
  return number;
}

void DateExpressionParser::SkipBlanks() {
  place_ = std::min(text_.find_first_not_of(" \t\r\n", place_), text_.size());
}

bool DateExpressionParser::IsAtDigit() const { return IsDigit(Next()); }

std::string_view DateExpressionParser::PeekWord() {
  SkipBlanks();
  std::size_t end = place_;
  while (end < text_.size() && IsLetter(text_[end])) ++end;
  return text_.substr(place_, end - place_);
}

bool DateExpressionParser::TakeWord(std::string_view wanted) {
  if (!IsWord(PeekWord(), wanted)) return false;
  place_ += wanted.size();
  return true;
}

void DateExpressionParser::ExpectWord(std::string_view wanted) {
  if (!TakeWord(wanted)) throw Expected('"' + std::string(wanted) + '"');
}

bool DateExpressionParser::TakeCharacter(char wanted) {
  // Only the comma of a list may have blanks before it; the rest is written in one piece.
  if (wanted == ',') SkipBlanks();
  if (Next() != wanted || place_ == text_.size()) return false;
  ++place_;
  return true;
}

void DateExpressionParser::ExpectCharacter(char wanted) {
  if (!TakeCharacter(wanted)) throw ExpectedAt(place_, std::string("\"") + wanted + '"');
}

std::optional<int> DateExpressionParser::TakeWeekday() {
  const std::string_view word = PeekWord();
  const auto weekday = WeekdayNamed(word);
  if (weekday) place_ += word.size();
  return weekday;
}

ExpressionError DateExpressionParser::Expected(Phrase expectation) const {
  return ExpectedAt(std::min(text_.find_first_not_of(" \t\r\n", place_), text_.size()),
                    std::move(expectation));
}

ExpressionError DateExpressionParser::ExpectedAt(std::size_t place, Phrase expectation) const {
  return {text_, place + 1, std::move(expectation)};
}

}  // namespace ferrowind::almanac
