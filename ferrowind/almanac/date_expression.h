#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "ferrowind/almanac/anchor.h"

/// When a holiday is, in one line that people read and write:
///
///     expression = base [ "if" WEEKDAY { "," WEEKDAY } ] { move } [ "else" "not" "observed" ]
///                  [ "from" YEAR ] [ "to" YEAR ] [ ( "only" | "not" ) YEAR { "," YEAR } ] ;
///     base       = MM-DD | YYYY-MM-DD | ( "easter" | "orthodox" ) [ offset ] | ordinal WEEKDAY "of" MM
///                | WEEKDAY relation anchor | ( "vernal" | "autumnal" ) "equinox" UTCOFFSET
///                | "table" NAME [ offset ] | "weekday" WEEKDAY | "between" | "unknown" ;
///     ordinal    = "1st" | "2nd" | "3rd" | "4th" | "5th" | "last" ;
///     relation   = "on" "or" "after" | "after" | "on" "or" "before" | "before" ;
///     anchor     = base ;  (* none of "weekday", "between" and "unknown" *)
///     offset     = ( "+" | "-" ) DAYS ;
///     move       = [ condition { "," condition } ] "to" target ;
///     condition  = WEEKDAY | "taken" ;
///     target     = [ "next" | "previous" ] WEEKDAY | ( "next" | "previous" ) "free" "day" ;
///
/// Words in any letter case, with any blanks between them. WEEKDAY is an English name in full, YEAR 1900 to
/// 2199, UTCOFFSET "+09:00", NAME words of letters and digits joined by "-", each beginning with a letter.
///
/// The base gives the days; a day of the base is a base date. It counts only on the weekdays of `if` and in
/// the years of from, to, only and not, which are those of the base date. docs/almanac.md explains each form
/// with examples, planner.h what a move does.
namespace ferrowind::almanac {

/// The years that expressions and plans know.
inline constexpr int kFirstYear = 1900;
inline constexpr int kLastYear = 2199;

enum class Relation : std::uint8_t { kOnOrAfter, kAfter, kOnOrBefore, kBefore };

/// "Monday on or after" the date that follows it in the expression.
struct WeekdayStep {
  int weekday = 1;
  Relation relation = Relation::kOnOrAfter;
  bool operator==(const WeekdayStep&) const = default;
};

enum class Direction : std::uint8_t { kNearest, kNext, kPrevious };

struct MoveTarget {
  static constexpr int kFreeDay = 0;
  /// `kNearest` only with a weekday.
  Direction direction = Direction::kNext;
  /// 1 to 7, or `kFreeDay`.
  int weekday = kFreeDay;
  bool operator==(const MoveTarget&) const = default;
};

class WeekdaySet {
 public:
  [[nodiscard]] bool Contains(int weekday) const { return (bits_ >> weekday & 1) != 0; }
  [[nodiscard]] bool IsEmpty() const { return bits_ == 0; }
  void Add(int weekday) { bits_ = static_cast<std::uint8_t>(bits_ | 1 << weekday); }
  bool operator==(const WeekdaySet&) const = default;

 private:
  std::uint8_t bits_ = 0;
};

/// Where the holiday goes when it falls on a day that it does not stay on.
struct Move {
  /// Off which it moves.
  WeekdaySet weekdays;
  /// Whether it moves off a day that a rule before it in the book takes.
  bool taken = false;
  MoveTarget target;

  /// Without conditions it moves off any closed day.
  [[nodiscard]] bool HasConditions() const { return taken || !weekdays.IsEmpty(); }
  bool operator==(const Move&) const = default;
};

enum class YearChoice : std::uint8_t { kAll, kOnly, kNot };

/// The years whose base dates count.
struct YearLimits {
  std::optional<int> from;
  std::optional<int> to;
  YearChoice choice = YearChoice::kAll;
  /// Ascending, each once; empty with `kAll` and only then.
  std::vector<int> years;

  [[nodiscard]] bool Include(int year) const;
  bool operator==(const YearLimits&) const = default;
};

/// Members within the ranges above, as `Parse` makes them, are an expression.
struct DateExpression {
  static constexpr std::size_t kMostSteps = 4;
  static constexpr std::size_t kMostMoves = 8;
  static constexpr std::size_t kLongestText = 4000;

  /// The expression that `text` is; `ExpressionError` when it is none.
  [[nodiscard]] static DateExpression Parse(std::string_view text);
  /// The normal form: one blank between words, small letters but for weekdays, years ascending. Parses to
  /// an equal expression; two equal expressions have one normal form.
  [[nodiscard]] std::string ToText() const;

  [[nodiscard]] bool IsEveryWeekday() const { return std::holds_alternative<EveryWeekday>(anchor); }
  [[nodiscard]] bool IsBetween() const { return std::holds_alternative<BetweenHolidays>(anchor); }
  [[nodiscard]] bool IsUnknown() const { return std::holds_alternative<UnknownDate>(anchor); }
  bool operator==(const DateExpression&) const = default;

  /// In the order of the text, so the last one is taken first from the anchor.
  std::vector<WeekdayStep> steps;
  Anchor anchor;
  /// On which the base counts; empty for all.
  WeekdaySet only_on;
  /// The first whose condition holds is taken.
  std::vector<Move> moves;
  /// Whether a holiday on a closed day that no move takes off it is dropped.
  bool else_not_observed = false;
  YearLimits years;
};

}  // namespace ferrowind::almanac
