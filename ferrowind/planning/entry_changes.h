#pragma once

#include <optional>
#include <string>
#include <vector>

#include "ferrowind/planning/currency_list.h"
#include "ferrowind/planning/history_store.h"
#include "ferrowind/platform/values/date.h"

namespace ferrowind::planning {

/// One thing that a call changed. Texts for operators in one line, empty where there was nothing.
struct EntryChange {
  /// "Friday 14 April 2028", "Rule Good Friday: date".
  std::string what;
  std::string before;
  std::string behind;
};

struct EntryChanges {
  std::vector<EntryChange> changes;
  /// Why days are missing among them, a sentence with its full stop; empty when none are.
  std::string remark;
};

/// What the call of the entry changed: rules, books and currencies, and the days of its calendar. An entry
/// that does not exist has changed nothing. Fails as database_call.h says.
[[nodiscard]] EntryChanges LoadChanges(const HistoryEntry& entry, const CurrencyList& currencies);

/// "Working day", or the name of its rule, with the day's own text: "Good Friday: half day".
[[nodiscard]] std::string DayInWords(const PastDay& day);

}  // namespace ferrowind::planning
