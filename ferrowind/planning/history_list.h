#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "ferrowind/planning/currency_list.h"
#include "ferrowind/planning/history_store.h"
#include "ferrowind/planning/history_words.h"
#include "ferrowind/planning/undo_state.h"

namespace ferrowind::planning {

/// The history as an operator reads it: the newest first, page by page, in words, and with what can be undone
/// and redone. All fail as database_call.h says, and leave the list as it was.
class HistoryList {
 public:
  struct Line {
    HistoryEntry entry;
    ToldEntry told;
    /// "EUR 2028"; empty when it was of none.
    std::string calendar;
  };

  /// Reads the currencies; `Show` fills the list.
  HistoryList();
  HistoryList(const HistoryList&) = delete;
  HistoryList& operator=(const HistoryList&) = delete;

  /// The newest entries of `filter`, whose user counts for nothing: those of the user of this program when
  /// `is_own`, else everybody's.
  void Show(const HistoryFilter& filter, bool is_own);
  /// What was asked for last.
  [[nodiscard]] const HistoryFilter& Shown() const { return filter_; }
  /// Reads as many as there are in the list now, or a page at least.
  void Reload();
  void ShowOlder();
  [[nodiscard]] bool HasOlder() const { return has_older_; }

  [[nodiscard]] const std::vector<Line>& Lines() const { return lines_; }
  /// Null when the entry is not in the list.
  [[nodiscard]] const Line* Find(std::int32_t entry) const;
  /// Whether what the entry did is not in force any more.
  [[nodiscard]] bool IsUndone(const Line& line) const { return state_.IsUndone(line.entry.id); }
  /// Nothing for a call that left everything as it was.
  [[nodiscard]] std::optional<UndoStep> StepOf(const Line& line) const;
  /// Does it. Empty when it is done, else why not, in sentences. The list stays as it is.
  [[nodiscard]] std::string Do(const UndoStep& step) const;

  [[nodiscard]] const CurrencyList& Currencies() const { return currencies_; }

 private:
  [[nodiscard]] std::optional<HistoryEntry> EntryOf(std::int32_t id) const;
  void Load(std::optional<std::int32_t> before, std::int32_t count);

  CurrencyList currencies_;
  HistoryWords words_;
  HistoryFilter filter_;
  bool is_own_ = false;
  std::vector<Line> lines_;
  UndoState state_;
  bool has_older_ = false;
  /// All entries that were ever read, since none changes; nothing where there is none of that number.
  mutable std::map<std::int32_t, std::optional<HistoryEntry>> known_;
};

}  // namespace ferrowind::planning
