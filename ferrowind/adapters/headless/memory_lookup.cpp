#include "ferrowind/adapters/headless/memory_lookup.h"

#include <algorithm>
#include <utility>

#include "ferrowind/platform/values/case_fold.h"
#include "ferrowind/platform/values/conversion.h"
#include "ferrowind/platform/values/text_limits.h"

namespace ferrowind::headless {

using platform::Date;
using platform::Value;

std::shared_ptr<platform::RecordSet> Records(std::vector<std::string> fields, Rows rows) {
  return std::make_shared<platform::RecordSet>(std::move(fields), std::move(rows));
}

bool IsBetween(const Value& value, std::int32_t lowest, std::int32_t highest) {
  if (value.IsEmpty()) return false;
  const std::int32_t number = platform::ToInt32(value);
  return number >= lowest && number <= highest;
}

bool IsYear(const Value& value) { return IsBetween(value, 1900, 3000); }

bool IsBlank(const Value& text) { return text.IsEmpty() || platform::Trim(platform::ToText(text)).empty(); }

bool IsLongerThan(std::size_t most, const Value& text) {
  return !text.IsEmpty() && platform::CharacterCount(platform::ToText(text)) > most;
}

const MemoryCurrency* CurrencyOf(const MemoryTables& tables, const Value& currency) {
  const auto found = std::find_if(tables.currencies.begin(), tables.currencies.end(),
                                  [&](const MemoryCurrency& known) { return Value(known.id) == currency; });
  return found == tables.currencies.end() ? nullptr : &*found;
}

bool IsMoney(const MemoryTables& tables, const Value& currency) {
  const auto* const found = CurrencyOf(tables, currency);
  return found != nullptr && found->type == 0;
}

bool IsLiveMoney(const MemoryTables& tables, std::int32_t currency, std::int32_t year) {
  if (!IsMoney(tables, currency)) return false;
  const auto* const last_day = CurrencyOf(tables, currency)->last_day.If<Date>();
  return last_day == nullptr || last_day->Year() >= year;
}

std::vector<MemoryDay>* CalendarOf(MemoryTables& tables, const Value& currency, const Value& year) {
  const auto found = tables.calendars.find({platform::ToInt32(currency), platform::ToInt32(year)});
  return found == tables.calendars.end() ? nullptr : &found->second;
}

std::vector<MemoryDay> NewCalendar(std::int32_t year) {
  return std::vector<MemoryDay>(static_cast<std::size_t>(platform::DaysInYear(year)));
}

Rows RowsOfCalendar(const MemoryTables& tables, const CalendarKey& key) {
  const Date first(key.second, 1, 1);
  Rows rows;
  for (const MemoryDay& day : tables.calendars.at(key)) {
    const auto offset = static_cast<std::int32_t>(rows.size());
    const MemoryRule* const rule = day.rule ? &tables.rules.at(*day.rule) : nullptr;
    rows.push_back({first.AddDays(offset), day.type, rule == nullptr ? Value() : Value(rule->name),
                    rule == nullptr ? Value() : rule->comment, day.comment,
                    day.rule ? Value(*day.rule) : Value(), offset + 1});
  }
  return rows;
}

std::shared_ptr<platform::RecordSet> RecordsOfCurrencies(const MemoryTables& tables) {
  std::vector<MemoryCurrency> currencies = tables.currencies;
  std::sort(currencies.begin(), currencies.end(),
            [](const auto& left, const auto& right) { return left.id < right.id; });
  Rows rows;
  for (const MemoryCurrency& currency : currencies) {
    rows.push_back({currency.id, currency.code, currency.type, currency.name, currency.last_day});
  }
  return Records({"CcyID", "Ccy", "CcyType", "Name", "LastDay"}, std::move(rows));
}

std::shared_ptr<platform::RecordSet> RecordsOfRecurrences(const MemoryTables& tables, const Value& currency) {
  Rows rows;
  for (const auto& [id, book] : tables.books) {
    if (!currency.IsEmpty() && currency != Value(id)) continue;
    std::int32_t position = 0;
    for (const MemoryRecurrence& rule : book.rules) {
      rows.push_back({id, ++position, rule.name, rule.type, rule.expression, rule.comment, rule.moved_name});
    }
  }
  return Records({"ID1", "Position", "Name1", "TID1", "Expression", "Comment", "MovedName"}, std::move(rows));
}

MemoryRule* RuleOf(MemoryTables& tables, const Value& rule) {
  const auto found = tables.rules.find(platform::ToInt32(rule));
  return found == tables.rules.end() ? nullptr : &found->second;
}

std::int32_t RuleNamed(const MemoryTables& tables, const std::string& name) {
  const std::string folded = FoldedName(name);
  const auto found = std::find_if(tables.rules.begin(), tables.rules.end(),
                                  [&](const auto& rule) { return FoldedName(rule.second.name) == folded; });
  return found == tables.rules.end() ? 0 : found->first;
}

bool IsRemoved(const MemoryRule& rule) { return IsBetween(rule.removal_mark, kRemoved, kRemoved); }

std::string FoldedName(const std::string& name) { return platform::FoldCase(platform::Trim(name)); }

}  // namespace ferrowind::headless
