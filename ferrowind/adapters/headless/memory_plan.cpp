#include <algorithm>
#include <optional>
#include <set>
#include <utility>

#include "ferrowind/adapters/headless/memory_database.h"
#include "ferrowind/adapters/headless/memory_json.h"
#include "ferrowind/adapters/headless/memory_lookup.h"
#include "ferrowind/adapters/headless/memory_procedures.h"
#include "ferrowind/platform/values/conversion.h"
#include "ferrowind/platform/values/fingerprint.h"
#include "ferrowind/platform/values/text_limits.h"

namespace ferrowind::headless {
namespace {

using platform::CallOutcome;
using platform::Date;
using platform::JsonValue;
using platform::ParameterType;
using platform::ReadJson;
using platform::Value;

/// An item of a plan's days: the rule that its dates get.
struct Item {
  /// Text, or empty for working days.
  Value name;
  std::int32_t type = 0;
  Value comment;
  std::vector<Date> dates;
  Value day_comment;
};

void Add(platform::Fingerprint& fingerprint, const Value& text) {
  if (text.IsEmpty()) return fingerprint.AddNothing();
  fingerprint.Add(platform::ToText(text));
}

/// Empty when there is no such calendar.
std::string FingerprintOf(const MemoryTables& tables, const CalendarKey& key) {
  const auto calendar = tables.calendars.find(key);
  if (calendar == tables.calendars.end()) return "";
  platform::Fingerprint fingerprint;
  std::int32_t number = 0;
  for (const MemoryDay& day : calendar->second) {
    ++number;
    if (!day.rule && day.comment.IsEmpty()) continue;
    Add(fingerprint, number);
    Add(fingerprint, day.type);
    Add(fingerprint, day.rule ? Value(*day.rule) : Value());
    Add(fingerprint, day.rule ? Value(tables.rules.at(*day.rule).name) : Value());
    Add(fingerprint, day.comment);
  }
  return fingerprint.Digits();
}

CallOutcome GetFingerprint(MemoryTables& tables, const std::vector<Value>& inputs) {
  if (inputs[0].IsEmpty() || !IsYear(inputs[1])) return {kWrongValue, {}};
  if (!IsMoney(tables, inputs[0])) return {kUnknownCurrency, {}};
  const CalendarKey key{platform::ToInt32(inputs[0]), platform::ToInt32(inputs[1])};
  return {kDone, {Records({"Fingerprint"}, {{FingerprintOf(tables, key)}})}};
}

// What a plan says
// ---------------------------------------------------------------------------------------------------

std::optional<std::vector<Date>> ReadDates(const JsonValue* list, std::int32_t year, std::set<Date>& seen) {
  if (list == nullptr || list->kind != JsonValue::Kind::kList) return std::nullopt;
  std::vector<Date> dates;
  for (const JsonValue& text : list->items) {
    const auto date = text.kind == JsonValue::Kind::kText ? Date::FromIso(text.text) : std::nullopt;
    if (!date || date->Year() != year || !seen.insert(*date).second) return std::nullopt;
    dates.push_back(*date);
  }
  return dates;
}

std::optional<Item> ReadItem(const JsonValue& object, std::int32_t year, std::set<Date>& seen) {
  const JsonMembers members(object, {"Name1", "TID1", "Comment", "Dates", "DayComment"});
  const auto name = members.TextOrNothing("Name1");
  const auto type = members.RuleType("TID1");
  const auto comment = members.TextOrNothing("Comment");
  const auto day_comment = members.TextOrNothing("DayComment");
  const auto dates = ReadDates(members.Find("Dates"), year, seen);
  if (!members.AreWellFormed() || !name || !type || !comment || !day_comment || !dates) return std::nullopt;
  if (name->IsEmpty() ? *type != kWorkingDay || !comment->IsEmpty() : IsBlank(*name)) return std::nullopt;
  if (IsLongerThan(platform::kLongestName, *name) || IsLongerThan(platform::kLongestComment, *comment) ||
      IsLongerThan(platform::kLongestComment, *day_comment)) {
    return std::nullopt;
  }
  return Item{*name, *type, *comment, *dates, *day_comment};
}

std::optional<std::vector<Item>> ReadItems(const std::string& text, std::int32_t year) {
  if (text.size() > platform::kLongestList) return std::nullopt;
  const auto json = ReadJson(text);
  if (!json || json->kind != JsonValue::Kind::kList) return std::nullopt;
  std::vector<Item> items;
  std::set<Date> seen;
  for (const JsonValue& object : json->items) {
    auto item = ReadItem(object, year, seen);
    if (!item) return std::nullopt;
    items.push_back(std::move(*item));
  }
  return items;
}

// What it makes
// ---------------------------------------------------------------------------------------------------

class Plan {
 public:
  Plan(MemoryTables& tables, std::vector<Item> items) : tables_(tables), items_(std::move(items)) {}

  /// Whether each new rule gets a date, and a weekday rule one weekday.
  [[nodiscard]] bool HasRulesThatCanBeMade() const {
    return std::all_of(items_.begin(), items_.end(), [&](const Item& item) {
      if (item.name.IsEmpty() || Existing(item) != 0) return true;
      const std::vector<Date> dates = AllDates(item);
      if (item.type == kWorkingDay || dates.empty()) return false;
      return item.type != kWeekdayType || std::all_of(dates.begin(), dates.end(), [&](const Date& date) {
               return date.Weekday() == dates.front().Weekday();
             });
    });
  }

  /// Why the first name that the plan cannot have is refused; 0 when there is none.
  [[nodiscard]] std::int32_t Refusal() const {
    for (const Item& item : items_) {
      if (item.name.IsEmpty()) continue;
      const std::int32_t existing = Existing(item);
      if (existing != 0 && IsRemoved(tables_.rules.at(existing))) return kRemovedRuleHasName;
      const std::int32_t type = existing != 0 ? tables_.rules.at(existing).type : First(item).type;
      if (type != item.type) return kNameExists;
    }
    return kDone;
  }

  void Apply(std::vector<MemoryDay>& calendar) {
    for (const Item& item : items_) {
      const auto rule = RuleFor(item);
      for (const Date& date : item.dates) {
        calendar[static_cast<std::size_t>(date.DayOfYear()) - 1] = {item.type, rule, item.day_comment};
      }
    }
  }

 private:
  static bool IsSameRule(const Item& left, const Item& right) {
    return !right.name.IsEmpty() &&
           FoldedName(platform::ToText(left.name)) == FoldedName(platform::ToText(right.name));
  }
  [[nodiscard]] std::int32_t Existing(const Item& item) const {
    return RuleNamed(tables_, platform::ToText(item.name));
  }
  [[nodiscard]] const Item& First(const Item& item) const {
    return *std::find_if(items_.begin(), items_.end(),
                         [&](const Item& other) { return IsSameRule(item, other); });
  }
  /// Those of all items of that rule.
  [[nodiscard]] std::vector<Date> AllDates(const Item& item) const {
    std::vector<Date> dates;
    for (const Item& other : items_) {
      if (!IsSameRule(item, other) || other.type != item.type) continue;
      dates.insert(dates.end(), other.dates.begin(), other.dates.end());
    }
    return dates;
  }

  std::optional<std::int32_t> RuleFor(const Item& item) {
    if (item.name.IsEmpty()) {
      return item.day_comment.IsEmpty() ? std::nullopt : std::optional(kExceptionRule);
    }
    const std::int32_t existing = Existing(item);
    return existing != 0 ? existing : AddRule(item);
  }

  std::int32_t AddRule(const Item& item) {
    const std::int32_t number = tables_.rules.rbegin()->first + 1;
    MemoryRule& rule = tables_.rules[number];
    rule.name = platform::ToText(item.name);
    rule.comment = item.comment;
    rule.type = item.type;
    const Date date = AllDates(item).front();
    if (item.type == kWeekdayType) {
      rule.weekday = static_cast<std::int16_t>((date.Weekday() - tables_.first_day + 7) % 7 + 1);
    } else {
      rule.date = date;
      rule.month = static_cast<std::int16_t>(date.Month());
      rule.day = static_cast<std::int16_t>(date.Day());
    }
    return number;
  }

  MemoryTables& tables_;
  std::vector<Item> items_;
};

CallOutcome ApplyPlan(MemoryTables& tables, const std::vector<Value>& inputs) {
  const bool has_all =
      std::none_of(inputs.begin(), inputs.end(), [](const Value& input) { return input.IsEmpty(); });
  if (!has_all || !IsYear(inputs[1])) return {kWrongValue, {}};
  const CalendarKey key{platform::ToInt32(inputs[0]), platform::ToInt32(inputs[1])};
  auto items = ReadItems(platform::ToText(inputs[3]), key.second);
  if (!items) return {kWrongValue, {}};
  Plan plan(tables, std::move(*items));
  if (!plan.HasRulesThatCanBeMade()) return {kWrongValue, {}};
  const bool can_have = tables.calendars.contains(key) ? IsMoney(tables, inputs[0])
                                                       : IsLiveMoney(tables, key.first, key.second);
  if (!can_have) return {kUnknownCurrency, {}};
  if (platform::ToText(inputs[2]) != FingerprintOf(tables, key)) return {kAnotherContent, {}};
  if (const std::int32_t refusal = plan.Refusal(); refusal != kDone) return {refusal, {}};
  auto& calendar = tables.calendars.try_emplace(key, NewCalendar(key.second)).first->second;
  plan.Apply(calendar);
  return {kDone, {}};
}

}  // namespace

void AddPlanProcedures(MemoryDatabase& database) {
  constexpr auto kNumber = ParameterType::kInt32;
  constexpr auto kText = ParameterType::kText;
  database.AddProcedure("CldGetFingerprint", {{"@ID1", kNumber}, {"@Year1", kNumber}}, GetFingerprint);
  database.AddProcedure("CldApplyPlan",
                        {{"@ID1", kNumber}, {"@Year1", kNumber}, {"@Expected", kText}, {"@Days", kText}},
                        ApplyPlan, MemoryProcedure::Kind::kRecorded);
}

}  // namespace ferrowind::headless
