#pragma once

#include <optional>
#include <string_view>

#include "ferrowind/exchange/listed_day.h"

namespace ferrowind::exchange {

/// What publishers and this program call the kinds of days, in any letter case: "holiday", "bank holiday",
/// "public holiday", "closed" and others; nothing for a word that may mean a day that is no closing day, such
/// as "observance". An empty text is a holiday.
[[nodiscard]] std::optional<ListedKind> KindNamed(std::string_view text);

/// Whether the name of a day says that it is a half one: "Christmas Eve (half day)", "early close".
[[nodiscard]] bool SoundsLikeHalfDay(std::string_view name);

}  // namespace ferrowind::exchange
