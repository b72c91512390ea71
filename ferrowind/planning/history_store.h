#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "ferrowind/platform/values/date.h"

/// The history of the calling thread's database. All fail as database_call.h says.
namespace ferrowind::planning {

/// A call that changed something.
struct HistoryEntry {
  /// Counts the entries, the oldest first.
  std::int32_t id = 0;
  /// UTC, as YYYY-MM-DDTHH:MM:SS.sssZ.
  std::string moment;
  std::string user;
  std::string procedure;
  /// The calendar that the call was for; a rule book has no year, a holiday rule neither.
  std::optional<std::int32_t> currency;
  std::optional<std::int32_t> year;
  /// A JSON object.
  std::string parameters;
  std::int32_t rows_changed = 0;
  /// The name that the rule of the parameter ID2 had behind the call; empty without one.
  std::string rule;
  /// Otherwise nothing can be put back: the call left everything as it was, or the history does not reach
  /// there.
  bool keeps_rows = true;
};

/// Which entries are asked for; all of them when nothing is set.
struct HistoryFilter {
  std::optional<std::int32_t> currency = {};
  std::optional<std::int32_t> year = {};
  /// 1 to 366: those that changed that day. Needs the two above.
  std::optional<std::int32_t> day_of_year = {};
  std::optional<std::string> user = {};
};

struct HistoryPage {
  /// The newest first.
  std::vector<HistoryEntry> entries;
  /// As whom the history names the calls of this program.
  std::string asker;
  bool has_older = false;
};

/// The newest `count` entries, or the newest before the entry `before`. Precondition: `count` is 1 to 9,999.
[[nodiscard]] HistoryPage LoadHistory(const HistoryFilter& filter, std::optional<std::int32_t> before,
                                      std::int32_t count);

/// A row that is no day and no calendar, before and behind a call. Both texts are JSON objects, empty where
/// there was no such row.
struct ReplacedRow {
  std::string table;
  std::optional<std::int32_t> currency;
  std::optional<std::int32_t> rule;
  /// Of a rule in its book, from 1.
  std::optional<std::int32_t> position;
  std::string before;
  std::string behind;
};

struct DetailedEntry {
  HistoryEntry entry;
  std::vector<ReplacedRow> rows;
};

/// Nothing when there is no such entry.
[[nodiscard]] std::optional<DetailedEntry> LoadEntry(std::int32_t id);

/// The same without its rows.
[[nodiscard]] std::optional<HistoryEntry> FindEntry(std::int32_t id);

/// A day of a calendar as it was.
struct PastDay {
  platform::Date date;
  /// The number of its type (`almanac::RuleKind`).
  std::int32_t type = 0;
  /// Nothing on an ordinary working day.
  std::optional<std::int32_t> rule;
  /// The name of the rule then.
  std::string name;
  /// The day's own text.
  std::string comment;
};

struct PastCalendar {
  enum class State { kThere, kNotThere, kNotKept };
  /// `kNotKept`: the history does not reach back so far.
  State state = State::kNotThere;
  /// All days of the year when it was there.
  std::vector<PastDay> days;
};

/// The calendar behind the call of the entry `entry`; 0 for before all of them.
[[nodiscard]] PastCalendar LoadCalendarBehind(std::int32_t currency, std::int32_t year, std::int32_t entry);
/// The calendar behind the last call at or before `moment`, UTC as YYYY-MM-DDTHH:MM:SS.sssZ.
[[nodiscard]] PastCalendar LoadCalendarAsOf(std::int32_t currency, std::int32_t year,
                                            const std::string& moment);

struct UndoOutcome {
  enum class Kind {
    kDone,
    /// A later call changed the same, or the history does not keep what was there before.
    kRefused,
    kNoSuchEntry,
  };

  Kind kind = Kind::kDone;
  /// When it was refused, the newest later entry of the same calendar, rule book, rule, currency or
  /// convention, if there is one.
  std::optional<HistoryEntry> later = {};
  /// When it was refused because it is undone already, the entry that has undone it.
  std::optional<HistoryEntry> undoer = {};
};

/// Puts back what the call of the entry changed, as a call of its own; all of it or nothing. A failure says
/// that `what` failed, which by itself tells the number of the entry.
[[nodiscard]] UndoOutcome UndoEntry(const HistoryEntry& entry, const std::string& what = {});

}  // namespace ferrowind::planning
