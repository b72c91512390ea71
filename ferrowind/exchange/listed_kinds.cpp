#include "ferrowind/exchange/listed_kinds.h"

#include <algorithm>
#include <array>
#include <string>
#include <utility>

#include "ferrowind/platform/values/case_fold.h"

namespace ferrowind::exchange {

std::optional<ListedKind> KindNamed(std::string_view text) {
  using enum ListedKind;
  constexpr std::array<std::pair<std::string_view, ListedKind>, 16> kNames = {{
      {"", kHoliday},
      {"holiday", kHoliday},
      {"bank holiday", kHoliday},
      {"public holiday", kHoliday},
      {"national holiday", kHoliday},
      {"public", kHoliday},
      {"closed", kHoliday},
      {"full day", kHoliday},
      {"weekend", kWeekend},
      {"working day", kWorkingDay},
      {"working", kWorkingDay},
      {"open", kWorkingDay},
      {"half day", kHalfDay},
      {"half-day", kHalfDay},
      {"half", kHalfDay},
      {"early close", kHalfDay},
  }};
  const auto* const found = std::find_if(kNames.begin(), kNames.end(), [&](const auto& known) {
    return platform::CompareIgnoringCase(known.first, text) == 0;
  });
  if (found == kNames.end()) return std::nullopt;
  return found->second;
}

bool SoundsLikeHalfDay(std::string_view name) {
  constexpr std::array<std::string_view, 6> kSigns = {"half day",    "half-day",      "half holiday",
                                                      "early close", "early closing", "half trading day"};
  const std::string folded = platform::FoldCase(name);
  return std::any_of(kSigns.begin(), kSigns.end(),
                     [&](std::string_view sign) { return folded.find(sign) != std::string::npos; });
}

}  // namespace ferrowind::exchange
