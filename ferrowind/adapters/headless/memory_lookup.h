#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "ferrowind/adapters/headless/memory_tables.h"
#include "ferrowind/platform/values/record_set.h"

/// What the procedures in memory share: how they look at values and find rows.
namespace ferrowind::headless {

enum ReturnValue : std::int32_t {
  kDone = 0,
  kNameExists = 2,
  kUnknownCurrency = 3,
  kUnknownRule = 4,
  kUnknownCalendar = 5,
  kCalendarExists = 6,
  kWrongValue = 7,
  kAnotherContent = 8,
  kChangedSince = 9,
  kRemovedRuleHasName = 10,
};

inline constexpr std::int32_t kWorkingDay = 1;
inline constexpr std::int32_t kWeekdayType = 2;
inline constexpr std::int32_t kLastType = 4;
inline constexpr std::int32_t kRemoved = 2;
inline constexpr std::int32_t kRestored = 4;
/// The number of the rule of type 1.
inline constexpr std::int32_t kExceptionRule = 1;

using Rows = std::vector<std::vector<platform::Value>>;

[[nodiscard]] std::shared_ptr<platform::RecordSet> Records(std::vector<std::string> fields, Rows rows);

/// False for an empty value.
[[nodiscard]] bool IsBetween(const platform::Value& value, std::int32_t lowest, std::int32_t highest);
[[nodiscard]] bool IsYear(const platform::Value& value);
/// Nothing but blanks, or empty.
[[nodiscard]] bool IsBlank(const platform::Value& text);

/// Whether the text, where there is one, has more characters.
[[nodiscard]] bool IsLongerThan(std::size_t most, const platform::Value& text);

/// Null when there is none of that number.
[[nodiscard]] const MemoryCurrency* CurrencyOf(const MemoryTables& tables, const platform::Value& currency);
[[nodiscard]] bool IsMoney(const MemoryTables& tables, const platform::Value& currency);
/// Whether calendars of `year` can be made for it: money that is legal on a day of that year, or was after.
[[nodiscard]] bool IsLiveMoney(const MemoryTables& tables, std::int32_t currency, std::int32_t year);

/// The calendar of that currency and year, null when there is none. Both values are numbers.
[[nodiscard]] std::vector<MemoryDay>* CalendarOf(MemoryTables& tables, const platform::Value& currency,
                                                 const platform::Value& year);
/// Every day an ordinary working day.
[[nodiscard]] std::vector<MemoryDay> NewCalendar(std::int32_t year);
[[nodiscard]] Rows RowsOfCalendar(const MemoryTables& tables, const CalendarKey& key);

/// By number, with the fields of `CldGetCurrencies`.
[[nodiscard]] std::shared_ptr<platform::RecordSet> RecordsOfCurrencies(const MemoryTables& tables);
/// The rules of the currency's book, without a currency of all books, with the fields of `CldGetBook`.
[[nodiscard]] std::shared_ptr<platform::RecordSet> RecordsOfRecurrences(const MemoryTables& tables,
                                                                        const platform::Value& currency);

[[nodiscard]] MemoryRule* RuleOf(MemoryTables& tables, const platform::Value& rule);
/// The number of the rule of that name, without regard to letter case and outer blanks; 0 when there is none.
[[nodiscard]] std::int32_t RuleNamed(const MemoryTables& tables, const std::string& name);
[[nodiscard]] bool IsRemoved(const MemoryRule& rule);
/// Names that are the same fold to the same text.
[[nodiscard]] std::string FoldedName(const std::string& name);

}  // namespace ferrowind::headless
