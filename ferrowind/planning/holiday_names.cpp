#include "ferrowind/planning/holiday_names.h"

#include <algorithm>
#include <utility>
#include <variant>

#include "ferrowind/almanac/date_words.h"
#include "ferrowind/planning/in_words.h"
#include "ferrowind/platform/values/case_fold.h"
#include "ferrowind/platform/values/conversion.h"
#include "ferrowind/platform/values/text_limits.h"

namespace ferrowind::planning {
namespace {

using almanac::RuleKind;
using platform::Date;

std::string KeyOf(const std::string& name) { return platform::FoldCase(platform::Trim(name)); }

}  // namespace

HolidayNames::HolidayNames(const YearPlanner& planner) {
  // A name that a rule has is that of the rule, whatever a book says of it.
  for (const almanac::KnownRule& rule : planner.Rules().All()) {
    Add({rule.name, rule.kind, rule.month, rule.day, rule.is_removed});
  }
  for (const Currency* const owner : planner.WithBooks()) {
    const almanac::Planner* const book = planner.PlannerOf(*owner);
    if (book == nullptr) continue;
    for (const almanac::BookRule& rule : book->Book().rules) {
      Use use{.name = rule.name, .kind = rule.kind};
      const auto* const date = std::get_if<almanac::FixedDate>(&rule.expression.anchor);
      if (use.kind == RuleKind::kCelebration && date != nullptr) {
        use.month = date->month;
        use.day = date->day;
      }
      Add(std::move(use));
      if (!rule.expression.moves.empty()) Add({.name = rule.NameOfMovedDay()});
    }
  }
}

void HolidayNames::Add(Use use) {
  std::string key = KeyOf(use.name);
  uses_.try_emplace(std::move(key), std::move(use));
}

std::string HolidayNames::RefusalOf(const Use& use, std::span<const Date> days) {
  if (use.is_removed) {
    return InWords("The rule %1 is removed. Restore it in the list of rules, or take another name.",
                   {use.name});
  }
  if (use.kind == RuleKind::kWorkingDay) {
    return InWords("%1 is a rule that opens days. Take another name.", {use.name});
  }
  if (use.kind == RuleKind::kWeekday) {
    return InWords("%1 is a rule for one weekday of every week. Take another name.", {use.name});
  }
  const auto is_elsewhere = [&](const Date& day) {
    return use.month != 0 && (day.Month() != use.month || day.Day() != use.day);
  };
  if (use.kind == RuleKind::kCelebration && std::any_of(days.begin(), days.end(), is_elsewhere)) {
    return InWords("%1 is on %2 each year. Take another name for another day.",
                   {use.name, InWords(almanac::DayAndMonth(use.month, use.day))});
  }
  return "";
}

std::vector<std::string> HolidayNames::For(std::span<const Date> days) const {
  std::vector<std::string> names;
  for (const auto& [key, use] : uses_) {
    if (RefusalOf(use, days).empty()) names.push_back(use.name);
  }
  return names;
}

HolidayName HolidayNames::Read(const std::string& typed, std::span<const Date> days) const {
  HolidayName read{.name = platform::Trim(typed)};
  const auto known = uses_.find(KeyOf(typed));
  if (read.name.empty()) {
    read.refusal = InWords("Type what the holiday is called, or choose one that is known.");
  } else if (const auto too_long = platform::TooLong(platform::LimitedText::kName, read.name);
             known == uses_.end() && too_long) {
    read.refusal = InWords("%1.", {InWords(*too_long)});
  } else if (known != uses_.end()) {
    read = {known->second.name, known->second.kind, false, RefusalOf(known->second, days)};
  }
  return read;
}

}  // namespace ferrowind::planning
