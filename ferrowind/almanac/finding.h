#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "ferrowind/platform/values/date.h"
#include "ferrowind/platform/values/phrase.h"

namespace ferrowind::almanac {

enum class FindingLevel : std::uint8_t {
  /// Worth to know; nothing needs to be done.
  kNote,
  /// A trade may settle on a wrong day, or nobody can tell.
  kWarning,
  /// Trades of today would.
  kError,
};

/// "note", "warning" or "error".
[[nodiscard]] std::string_view TextOf(FindingLevel level);

enum class FindingSubject : std::uint8_t {
  /// The database has no calendar at all.
  kNoCalendar,
  kMissingYear,
  kNoWeekends,
  kDiffersFromPlan,
  kIncompletePlan,
  /// A holiday on a weekday on which its name never stood in other years.
  kOtherWeekday,
  /// A celebration on another date than its own.
  kOtherDate,
  kExceptionWithoutReason,
  /// A working day by exception, with its reason, where the plan has a holiday or a weekend.
  kExceptionWithReason,
  kUnusualNumber,
  /// A currency whose calendars are compared with nothing.
  kNoBook,
  /// Calendars of years that the book does not tell of.
  kBeforeBook,
  kFaultyBook,
};

/// Something about the calendars of a currency that an operator should look at.
struct Finding {
  FindingLevel level = FindingLevel::kNote;
  FindingSubject subject = FindingSubject::kNoBook;
  /// The code of the currency; empty when the finding is about the whole database.
  std::string currency;
  /// Nothing when the finding is about all years of the currency.
  std::optional<int> year;
  /// Nothing when the finding is about no single day.
  std::optional<platform::Date> day;
  /// For operators, with the currency, the year and the day in it; ends with a full stop.
  platform::Phrase sentence;
};

/// Worst first; of one level by currency, year and day. What is about a whole year or currency stands before
/// what is about its parts.
[[nodiscard]] bool ComesBefore(const Finding& left, const Finding& right);

}  // namespace ferrowind::almanac
