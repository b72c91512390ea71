#pragma once

#include <random>
#include <string>

#include "ferrowind/almanac/date_expression.h"

namespace ferrowind::testing {

/// Makes date expressions of every form by chance; the same ones for the same seed.
class RandomExpressions {
 public:
  explicit RandomExpressions(unsigned seed) : engine_(seed) {}

  [[nodiscard]] almanac::DateExpression Any();
  /// With dates of its own: no weekday, no `between`, and no table.
  [[nodiscard]] almanac::DateExpression Dated();

  /// `least` to `most`.
  [[nodiscard]] int Number(int least, int most);
  /// True once in `count` times.
  [[nodiscard]] bool Once(int count) { return Number(1, count) == 1; }
  /// The text with other letter cases and blanks that mean the same.
  [[nodiscard]] std::string Scrambled(const std::string& text);

 private:
  almanac::Anchor AnyAnchor(bool is_dated, bool has_steps);
  almanac::WeekdaySet AnyWeekdays();
  almanac::Move AnyMove();
  almanac::YearLimits AnyYears();
  almanac::DateExpression Make(bool is_dated);

  std::mt19937 engine_;
};

}  // namespace ferrowind::testing
