#pragma once

#include <string>
#include <vector>

#include "ferrowind/almanac/book_text.h"
#include "ferrowind/almanac/calendar_content.h"
#include "ferrowind/almanac/rule_directory.h"
#include "ferrowind/platform/values/date.h"

/// Books, rules and calendars that fit on a screen.
namespace ferrowind::almanac {

/// A book of those lines, as book_text.h reads them.
inline RuleBook BookOf(const std::string& lines) {
  return ReadBook("publisher Small Bank\ndocument Settlement days\n" + lines);
}

/// Rules as a database numbers them.
namespace rule {
inline constexpr std::int32_t kSaturday = 2;
inline constexpr std::int32_t kSunday = 3;
inline constexpr std::int32_t kChristmas = 4;
inline constexpr std::int32_t kGoodFriday = 5;
inline constexpr std::int32_t kFair = 6;
}  // namespace rule

inline std::vector<KnownRule> SmallRules() {
  return {{kExceptionRule, "Working day by exception", RuleKind::kWorkingDay},
          {rule::kSaturday, "Saturday", RuleKind::kWeekday},
          {rule::kSunday, "Sunday", RuleKind::kWeekday},
          {rule::kChristmas, "Christmas Day", RuleKind::kCelebration, 12, 25},
          {rule::kGoodFriday, "Good Friday", RuleKind::kPoint},
          {rule::kFair, "Fair", RuleKind::kPoint}};
}

inline MarkedDay Marked(const char* iso, std::int32_t rule_number, const std::string& comment = {}) {
  MarkedDay day;
  day.day_of_year = static_cast<std::int16_t>(platform::Date::FromIso(iso)->DayOfYear());
  day.rule = rule_number;
  day.comment = comment;
  for (const KnownRule& known : SmallRules()) {
    if (known.id == rule_number) day.kind = known.kind;
  }
  return day;
}

}  // namespace ferrowind::almanac
