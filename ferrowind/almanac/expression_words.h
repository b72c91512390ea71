#pragma once

#include <cstdint>

#include "ferrowind/almanac/date_expression.h"
#include "ferrowind/platform/values/phrase.h"

/// Date expressions in the words of a sentence.
namespace ferrowind::almanac {

/// Why `base`, the serial of a base date of the expression, is one: "Fourth Thursday of November 2028". Not
/// for `between`.
[[nodiscard]] platform::Phrase WordsOfBase(const DateExpression& expression, std::int32_t base);

/// "the next free day", "Friday", "the previous Monday".
[[nodiscard]] platform::Phrase WordsOfTarget(const MoveTarget& target);

}  // namespace ferrowind::almanac
