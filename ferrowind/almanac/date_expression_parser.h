#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "ferrowind/almanac/date_expression.h"
#include "ferrowind/almanac/expression_error.h"
#include "ferrowind/platform/values/phrase.h"

namespace ferrowind::almanac {

/// Reads a date expression, written as date_expression.h says; used once.
class DateExpressionParser {
 public:
  /// `text` must outlive the parser.
  explicit DateExpressionParser(std::string_view text) : text_(text) {}

  /// `ExpressionError` for a text that is none.
  [[nodiscard]] DateExpression Parse();

 private:
  void ParseBase();
  Anchor ParseAnchor();
  Anchor ParseNumberedAnchor();
  FixedDate ParseFixedDate();
  SingleDate ParseSingleDate();
  NthWeekday ParseNthWeekday(int ordinal);
  EquinoxDate ParseEquinox(Equinox equinox);
  TableDate ParseTable();
  int ParseOffset();
  Relation ParseRelation();

  WeekdaySet ParseWeekdays();
  void ParseMoves();
  [[nodiscard]] bool IsAtMove();
  Move ParseMove();
  MoveTarget ParseTarget();
  void ParseYears();
  int ParseYear();
  int ParseWeekday();
  /// What is expected, worded only where it is not there.
  using Expectation = platform::Phrase (*)();
  /// Exactly `digits` digits with a value from `least` to `most`.
  int ParseNumber(std::size_t digits, int least, int most, Expectation expectation);

  void SkipBlanks();
  [[nodiscard]] char Next() const { return place_ < text_.size() ? text_[place_] : '\0'; }
  [[nodiscard]] bool IsAtDigit() const;
  /// The letters that come next behind blanks, which are skipped.
  [[nodiscard]] std::string_view PeekWord();
  bool TakeWord(std::string_view wanted);
  void ExpectWord(std::string_view wanted);
  bool TakeCharacter(char wanted);
  void ExpectCharacter(char wanted);
  /// A weekday's name that comes next; moved over.
  std::optional<int> TakeWeekday();

  [[nodiscard]] ExpressionError Expected(platform::Phrase expectation) const;
  [[nodiscard]] ExpressionError ExpectedAt(std::size_t place, platform::Phrase expectation) const;

  std::string_view text_;
  std::size_t place_ = 0;
  DateExpression expression_;
};

}  // namespace ferrowind::almanac
