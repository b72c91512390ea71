#include "ferrowind/adapters/headless/memory_procedures.h"

#include <algorithm>
#include <utility>

#include "ferrowind/adapters/headless/memory_database.h"
#include "ferrowind/adapters/headless/memory_lookup.h"
#include "ferrowind/platform/values/conversion.h"
#include "ferrowind/platform/values/text_limits.h"

namespace ferrowind::headless {
namespace {

using platform::CallOutcome;
using platform::Date;
using platform::ParameterType;
using platform::Value;

// CldAllInfo
// ----------------------------------------------------------------------------------------------------

CallOutcome AllInfo(MemoryTables& tables, const std::vector<Value>&) {
  Rows calendars;
  for (const auto& [key, days] : tables.calendars) calendars.push_back({key.first, key.second});
  Rows types;
  for (const auto& [type, description] : tables.holiday_types) types.push_back({type, description});
  Rows rules;
  for (const auto& [id, rule] : tables.rules) {
    rules.push_back({id, rule.name, rule.comment, rule.type, rule.date, rule.month, rule.day, rule.weekday,
                     rule.removal_mark});
  }
  return {
      kDone,
      {Records({"ID1", "Year1"}, std::move(calendars)), Records({"TID1", "Description1"}, std::move(types)),
       Records({"ID2", "Name1", "Comment", "TID1", "D1", "MY", "MD", "WD", "Del"}, std::move(rules)),
       Records({"FirstDay"}, {{tables.first_day}})}};
}

// CldGetMain
// ----------------------------------------------------------------------------------------------------

CallOutcome GetMain(MemoryTables& tables, const std::vector<Value>& inputs) {
  const Value& currency = inputs[0];
  const Value& year = inputs[1];
  if (currency.IsEmpty() || !IsYear(year)) return {kWrongValue, {}};
  if (!IsMoney(tables, currency)) return {kUnknownCurrency, {}};
  if (CalendarOf(tables, currency, year) == nullptr) return {kUnknownCalendar, {}};
  const CalendarKey key{platform::ToInt32(currency), platform::ToInt32(year)};
  return {kDone,
          {Records({"ODate", "TID1", "Name1", "Comment2", "Comment", "ID2", "Day1"},
                   RowsOfCalendar(tables, key))}};
}

// CldIUMain
// -----------------------------------------------------------------------------------------------------

struct Assignment {
  explicit Assignment(const std::vector<Value>& inputs)
      : currency(inputs[0]),
        year(inputs[1]),
        type(inputs[2]),
        rule(inputs[3]),
        day(inputs[4]),
        date(inputs[5]),
        comment(inputs[6]) {}

  Value currency, year, type, rule, day, date, comment;
};

std::int32_t CreateCalendar(MemoryTables& tables, const Assignment& call) {
  // A value that only an assignment takes means that its type was forgotten.
  for (const Value& value : {call.rule, call.day, call.date, call.comment}) {
    if (!value.IsEmpty()) return kWrongValue;
  }
  if (CalendarOf(tables, call.currency, call.year) != nullptr) return kCalendarExists;
  const CalendarKey key{platform::ToInt32(call.currency), platform::ToInt32(call.year)};
  if (!IsLiveMoney(tables, key.first, key.second)) return kUnknownCurrency;
  tables.calendars[key] = NewCalendar(key.second);
  return kDone;
}

bool HasWrongValue(const Assignment& call) {
  const std::int32_t year = platform::ToInt32(call.year);
  if (!IsBetween(call.type, kWorkingDay, kLastType) || call.rule.IsEmpty()) return true;
  const std::int32_t type = platform::ToInt32(call.type);
  // Only a weekday rule may leave out the day, and then the date as well; a dated rule needs both.
  if (call.day.IsEmpty()) return type != kWeekdayType || !call.date.IsEmpty();
  if (!IsBetween(call.day, 1, platform::DaysInYear(year))) return true;
  if (call.date.IsEmpty()) return type > kWeekdayType;
  return call.date != Value(Date(year, 1, 1).AddDays(platform::ToInt32(call.day) - 1));
}

void AssignWeekdays(const MemoryTables& tables, const Assignment& call, const MemoryRule& rule,
                    const MemoryDay& assigned, std::vector<MemoryDay>& calendar) {
  const int weekday = (platform::ToInt32(rule.weekday) - 1 + tables.first_day - 1) % 7 + 1;
  Date date(platform::ToInt32(call.year), 1, 1);
  for (MemoryDay& day : calendar) {
    // Exceptions and dated rules stand above weekday rules.
    const bool gives_way = day.type == kWeekdayType || !day.rule;
    if (date.Weekday() == weekday && gives_way) day = assigned;
    date = date.AddDays(1);
  }
}

CallOutcome InsertOrUpdateMain(MemoryTables& tables, const std::vector<Value>& inputs) {
  const Assignment call(inputs);
  if (call.currency.IsEmpty() || !IsYear(call.year) || IsLongerThan(platform::kLongestComment, call.comment))
    return {kWrongValue, {}};
  if (!IsMoney(tables, call.currency)) return {kUnknownCurrency, {}};
  if (call.type.IsEmpty()) return {CreateCalendar(tables, call), {}};
  if (HasWrongValue(call)) return {kWrongValue, {}};
  auto* const calendar = CalendarOf(tables, call.currency, call.year);
  if (calendar == nullptr) return {kUnknownCalendar, {}};
  const MemoryRule* const rule = RuleOf(tables, call.rule);
  if (rule == nullptr || IsRemoved(*rule)) return {kUnknownRule, {}};
  if (Value(rule->type) != call.type) return {kWrongValue, {}};
  const MemoryDay assigned{rule->type, platform::ToInt32(call.rule), call.comment};
  if (call.day.IsEmpty()) {
    AssignWeekdays(tables, call, *rule, assigned, *calendar);
  } else {
    (*calendar)[static_cast<std::size_t>(platform::ToInt32(call.day)) - 1] = assigned;
  }
  return {kDone, {}};
}

// CldIUCelebrate
// ------------------------------------------------------------------------------------------------

struct RuleCall {
  explicit RuleCall(const std::vector<Value>& inputs)
      : name(inputs[0]),
        comment(inputs[1]),
        type(inputs[2]),
        weekday(inputs[3]),
        date(inputs[4]),
        month(inputs[5]),
        day(inputs[6]),
        rule(inputs[7]),
        removal_mark(inputs[8]) {}

  [[nodiscard]] bool GivesOnlyRuleAndMark() const {
    return name.IsEmpty() && comment.IsEmpty() && type.IsEmpty() && weekday.IsEmpty() && HasNoDate();
  }
  [[nodiscard]] bool HasNoDate() const { return date.IsEmpty() && month.IsEmpty() && day.IsEmpty(); }

  Value name, comment, type, weekday, date, month, day, rule, removal_mark;
};

bool HasWrongValue(const RuleCall& call) {
  if (IsBlank(call.name) || IsLongerThan(platform::kLongestName, call.name)) return true;
  if (IsLongerThan(platform::kLongestComment, call.comment)) return true;
  if (!IsBetween(call.type, kWeekdayType, kLastType)) return true;
  if (platform::ToInt32(call.type) == kWeekdayType)
    return !IsBetween(call.weekday, 1, 7) || !call.HasNoDate();
  const Date* const date = call.date.If<Date>();
  return !call.weekday.IsEmpty() || date == nullptr || !IsBetween(call.month, date->Month(), date->Month()) ||
         !IsBetween(call.day, date->Day(), date->Day());
}

std::int32_t SetRemovalMark(MemoryTables& tables, const RuleCall& call) {
  const bool is_mark =
      IsBetween(call.removal_mark, kRemoved, kRemoved) || IsBetween(call.removal_mark, kRestored, kRestored);
  if (!is_mark || call.rule.IsEmpty() || !call.GivesOnlyRuleAndMark()) return kWrongValue;
  MemoryRule* const rule = RuleOf(tables, call.rule);
  if (rule == nullptr) return kUnknownRule;
  if (rule->type == kWorkingDay) return kWrongValue;
  rule->removal_mark = call.removal_mark;
  return kDone;
}

std::int32_t StoreRule(MemoryTables& tables, const RuleCall& call) {
  if (HasWrongValue(call)) return kWrongValue;
  MemoryRule* const updated = call.rule.IsEmpty() ? nullptr : RuleOf(tables, call.rule);
  if (!call.rule.IsEmpty()) {
    if (updated == nullptr) return kUnknownRule;
    if (Value(updated->type) != call.type) return kWrongValue;
  }
  const std::string name = platform::ToText(call.name);
  for (const auto& [id, rule] : tables.rules) {
    if (&rule != updated && FoldedName(rule.name) == FoldedName(name)) {
      return IsRemoved(rule) ? kRemovedRuleHasName : kNameExists;
    }
  }
  MemoryRule& stored = updated != nullptr ? *updated : tables.rules[tables.rules.rbegin()->first + 1];
  stored.name = name;
  stored.comment = call.comment;
  stored.type = platform::ToInt32(call.type);
  stored.date = call.date;
  stored.month = call.month;
  stored.day = call.day;
  stored.weekday = call.weekday;
  return kDone;
}

CallOutcome InsertOrUpdateCelebrate(MemoryTables& tables, const std::vector<Value>& inputs) {
  const RuleCall call(inputs);
  return {call.removal_mark.IsEmpty() ? StoreRule(tables, call) : SetRemovalMark(tables, call), {}};
}

}  // namespace

void AddCalendarProcedures(MemoryDatabase& database) {
  constexpr auto kSmall = ParameterType::kInt16;
  constexpr auto kNumber = ParameterType::kInt32;
  constexpr auto kText = ParameterType::kText;
  constexpr auto kDate = ParameterType::kDate;
  database.AddProcedure("CldAllInfo", {}, AllInfo);
  database.AddProcedure("CldGetMain", {{"@ID1", kNumber}, {"@Year1", kNumber}}, GetMain);
  database.AddProcedure("CldIUMain",
                        {{"@ID1", kNumber},
                         {"@Year1", kNumber},
                         {"@TID1", kNumber},
                         {"@ID2", kNumber},
                         {"@Day1", kNumber},
                         {"@ODate", kDate},
                         {"@Comment", kText}},
                        InsertOrUpdateMain, MemoryProcedure::Kind::kRecorded);
  database.AddProcedure("CldIUCelebrate",
                        {{"@Name1", kText},
                         {"@Comment", kText},
                         {"@TID1", kNumber},
                         {"@WD", kSmall},
                         {"@D1", kDate},
                         {"@MY", kSmall},
                         {"@MD", kSmall},
                         {"@ID2", kNumber},
                         {"@Del", kSmall}},
                        InsertOrUpdateCelebrate, MemoryProcedure::Kind::kRecorded);
}

}  // namespace ferrowind::headless
