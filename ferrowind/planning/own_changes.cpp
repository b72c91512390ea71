#include "ferrowind/planning/own_changes.h"

#include <optional>

#include "ferrowind/planning/history_store.h"
#include "ferrowind/platform/values/conversion.h"
#include "ferrowind/platform/values/json_value.h"

namespace ferrowind::planning {
namespace {

constexpr std::int32_t kMostCalls = 500;

/// The day that a call was for; nothing of one that was for more.
std::optional<int> SingleDayOf(const HistoryEntry& entry) {
  if (entry.procedure != "CldIUMain") return std::nullopt;
  const auto parameters = platform::ReadJson(entry.parameters);
  const auto* const day = parameters ? parameters->Find("Day1") : nullptr;
  if (day == nullptr || day->kind != platform::JsonValue::Kind::kNumber) return std::nullopt;
  return platform::ToInt32(platform::Value(day->text));
}

bool IsSame(const PastDay& one, const PastDay& other) {
  return one.type == other.type && one.rule == other.rule && one.comment == other.comment;
}

/// The days that are another behind the call than before. A new calendar was one of ordinary days before.
void AddChangedDays(std::int32_t currency, std::int32_t year, const HistoryEntry& entry,
                    std::set<int>& days) {
  const PastCalendar before = LoadCalendarBehind(currency, year, entry.id - 1);
  const PastCalendar behind = LoadCalendarBehind(currency, year, entry.id);
  if (before.state == PastCalendar::State::kNotKept) return;
  for (std::size_t i = 0; i < behind.days.size(); ++i) {
    const PastDay& day = behind.days[i];
    const bool is_changed = i < before.days.size() ? !IsSame(before.days[i], day) : day.rule.has_value();
    if (is_changed) days.insert(day.date.DayOfYear());
  }
}

}  // namespace

std::set<int> LoadOwnDays(std::int32_t currency, std::int32_t year) {
  HistoryFilter filter{.currency = currency, .year = year};
  filter.user = LoadHistory(filter, std::nullopt, 1).asker;
  std::set<int> days;
  for (const HistoryEntry& entry : LoadHistory(filter, std::nullopt, kMostCalls).entries) {
    if (const auto day = SingleDayOf(entry)) {
      days.insert(*day);
    } else {
      AddChangedDays(currency, year, entry, days);
    }
  }
  return days;
}

}  // namespace ferrowind::planning
