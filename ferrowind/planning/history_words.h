#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "ferrowind/planning/currency_list.h"
#include "ferrowind/planning/history_store.h"
#include "ferrowind/platform/values/date.h"

namespace ferrowind::planning {

/// Finds an entry by its number; nothing when there is none.
using EntryLookup = std::function<std::optional<HistoryEntry>(std::int32_t id)>;

/// The rows that the call of an entry replaced (`DetailedEntry::rows`).
using RowLookup = std::function<std::vector<ReplacedRow>(std::int32_t id)>;

/// Says a day in words.
using DayTeller = std::function<std::string(const platform::Date& day)>;

/// What the call of an entry did in the end: an undone call's undoing does what the call did.
struct ToldEntry {
  /// The entry whose call did it first.
  std::int32_t first = 0;
  /// "Assigned Good Friday to Friday 14 April 2028".
  std::string change;
  /// How often that was turned round: 0 it was done, 1 undone, 2 done again.
  int turns = 0;

  [[nodiscard]] bool IsDoing() const { return turns % 2 == 0; }
  /// "Undid: Assigned Good Friday to Friday 14 April 2028"; "Redid: ..." of the undoing of an undo.
  [[nodiscard]] std::string Sentence() const;
};

/// Entries of the history in the words of operators, in one line. An entry that this program cannot read is
/// told as it stands: the procedure and its parameters.
class HistoryWords {
 public:
  /// `currencies` must outlive this. `find` is asked for the entries that others undid. Days are told with
  /// their weekday, as the operator's language writes them.
  HistoryWords(const CurrencyList& currencies, EntryLookup find);
  /// Tells days as `tell_day` does. What became of a currency is told by the rows that `find_rows` finds, in
  /// the calling thread's database when it is empty.
  HistoryWords(const CurrencyList& currencies, EntryLookup find, DayTeller tell_day,
               RowLookup find_rows = {});

  /// Fails as the lookups do.
  [[nodiscard]] ToldEntry Tell(const HistoryEntry& entry) const;
  /// Why the call of `entry` could not be undone, in sentences; `outcome` is not `kDone`. Fails as the
  /// lookups do.
  [[nodiscard]] std::string WhyNotUndone(const HistoryEntry& entry, const UndoOutcome& outcome) const;
  /// "EUR 2028", "EUR" of a rule book, or an empty text of what is of no currency.
  [[nodiscard]] std::string Calendar(const HistoryEntry& entry) const;

 private:
  /// Of an entry that undid no other.
  [[nodiscard]] std::string WordsOf(const HistoryEntry& entry) const;
  [[nodiscard]] std::string WordsOfCurrency(const HistoryEntry& entry) const;

  const CurrencyList& currencies_;
  EntryLookup find_;
  DayTeller tell_day_;
  RowLookup find_rows_;
};

/// The entry that the call of `entry` undid; nothing when it is no undoing.
[[nodiscard]] std::optional<std::int32_t> UndoneEntry(const HistoryEntry& entry);

}  // namespace ferrowind::planning
