#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "ferrowind/adapters/chain/chain_start.h"
#include "ferrowind/adapters/chain/content_rows.h"
#include "ferrowind/adapters/chain/history_entry.h"
#include "ferrowind/adapters/chain/problem_list.h"
#include "ferrowind/adapters/content/content_source.h"

namespace ferrowind::chain {

/// Does again what the entries of a history did to the content, and compares what comes of it with the
/// tables. What stood in a row before the first entry that changed it, and in the rows that none did, is what
/// was there at the start.
class HistoryReplay {
 public:
  /// `problems` must outlive the replay.
  explicit HistoryReplay(ProblemList& problems) : problems_(problems) {}

  /// Entries come in the order of their numbers.
  void Apply(const HistoryEntry& entry);
  /// Behind the last entry: compares with what `source` holds.
  void Compare(content::Source& source);
  /// What was there before the first entry; after `Compare`.
  [[nodiscard]] const StartContent& Start() const { return start_; }

 private:
  /// No text: there is no such row.
  using Text = std::optional<std::string>;
  /// What a row is, and by which entry, counted in `names_`.
  struct State {
    Text text;
    std::size_t by = 0;
  };

  void ApplyRow(const content::Row& row);
  void ReplaceCalendar(const RowKey& calendar, const Text& new_row);
  /// What a row is by the entries up to now; nothing when they do not tell.
  [[nodiscard]] std::optional<Text> Known(const RowKey& row) const;
  void CompareRow(const RowKey& row, std::string text);
  void AddDifference(const RowKey& row, const State& expected, const Text& found);

  ProblemList& problems_;
  StartContent start_;
  std::map<RowKey, State> rows_;
  /// Calendars that an entry made or removed: days of which nothing is known are ordinary.
  std::set<Part> calendars_;
  std::vector<std::string> names_;
};

/// The days of a text that `NewCalendarText` made, with their texts; nothing when it is no such text.
[[nodiscard]] std::optional<std::vector<std::pair<std::int64_t, std::string>>> DaysIn(std::string_view text);

}  // namespace ferrowind::chain
