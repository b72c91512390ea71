#include "ferrowind/planning/later_changes.h"

#include <algorithm>
#include <set>
#include <string>
#include <tuple>
#include <vector>

#include "ferrowind/planning/undo_state.h"

namespace ferrowind::planning {
namespace {

/// A rule, a currency or a convention.
using RowKey = std::tuple<std::string, std::optional<std::int32_t>, std::optional<std::int32_t>,
                          std::optional<std::int32_t>>;

std::set<RowKey> RowsChangedBy(std::int32_t entry) {
  std::set<RowKey> keys;
  const auto detailed = LoadEntry(entry);
  if (!detailed) return keys;
  for (const ReplacedRow& row : detailed->rows) {
    keys.emplace(row.table, row.currency, row.rule, row.position);
  }
  return keys;
}

/// Which entries changed the same as one did.
class Sameness {
 public:
  explicit Sameness(const HistoryEntry& entry) : entry_(entry) {
    if (!entry.currency) rows_ = RowsChangedBy(entry.id);
  }

  [[nodiscard]] bool Holds(const HistoryEntry& other) const {
    if (other.currency != entry_.currency || other.year != entry_.year) return false;
    if (entry_.currency) return true;
    const std::set<RowKey> rows = RowsChangedBy(other.id);
    return std::ranges::any_of(rows, [&](const RowKey& row) { return rows_.contains(row); });
  }

 private:
  const HistoryEntry& entry_;
  /// Of an entry that is of no calendar and no rule book.
  std::set<RowKey> rows_;
};

}  // namespace

LaterChanges LoadLaterChanges(const HistoryEntry& entry) {
  constexpr std::int32_t kPage = 1000;
  const Sameness same(entry);
  LaterChanges changes;
  UndoState state;
  std::vector<HistoryEntry> undoings;
  std::optional<std::int32_t> before;
  for (bool has_older = true; has_older;) {
    const HistoryPage page = LoadHistory({entry.currency, entry.year}, before, kPage);
    has_older = page.has_older;
    for (const HistoryEntry& later : page.entries) {
      before = later.id;
      if (later.id <= entry.id) {
        has_older = false;
        break;
      }
      state.Add(later);
      if (UndoneEntry(later)) undoings.push_back(later);
      if (!changes.newest && same.Holds(later)) changes.newest = later;
    }
  }
  const auto undoer = state.UndoerOf(entry.id);
  const auto found =
      std::ranges::find_if(undoings, [&](const HistoryEntry& undoing) { return undoing.id == undoer; });
  if (found != undoings.end()) changes.undoer = *found;
  return changes;
}

}  // namespace ferrowind::planning
