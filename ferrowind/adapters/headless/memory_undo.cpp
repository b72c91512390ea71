#include <algorithm>
#include <set>
#include <tuple>
#include <utility>

#include "ferrowind/adapters/headless/memory_database.h"
#include "ferrowind/adapters/headless/memory_history.h"
#include "ferrowind/adapters/headless/memory_lookup.h"
#include "ferrowind/adapters/headless/memory_procedures.h"
#include "ferrowind/platform/values/conversion.h"

namespace ferrowind::headless {
namespace {

using platform::CallOutcome;
using platform::Date;
using platform::ParameterType;
using platform::Value;

// CldUndo
// ------------------------------------------------------------------------------------------------------------

/// Putting back what one call changed.
class Undoing {
 public:
  /// `later` are the calls behind it.
  Undoing(const MemoryChanges& changes, std::vector<const MemoryChanges*> later)
      : changes_(changes), later_(std::move(later)) {}

  /// Whether the rows are as the call left them, and what they need is there.
  [[nodiscard]] bool IsPossible(const MemoryTables& tables) const {
    return AreAsLeft(changes_, tables) && !HasItsCalendarsMadeOrRemoved() && HasItsRules(tables) &&
           HasItsNames(tables);
  }

  /// Whether what came back is of money, and of no year after it.
  [[nodiscard]] bool Run(MemoryTables& tables) const {
    PutBack(changes_, tables);
    KeepRulesInUse(tables);
    return HasLiveMoney(tables);
  }

 private:
  [[nodiscard]] std::set<CalendarKey> Calendars() const {
    std::set<CalendarKey> calendars;
    for (const auto& [key, change] : changes_.calendars) calendars.insert(key);
    for (const auto& [key, change] : changes_.days) calendars.insert(key.first);
    return calendars;
  }

  [[nodiscard]] bool HasItsCalendarsMadeOrRemoved() const {
    const auto calendars = Calendars();
    return std::any_of(later_.begin(), later_.end(), [&](const MemoryChanges* changes) {
      return std::any_of(changes->calendars.begin(), changes->calendars.end(),
                         [&](const auto& calendar) { return calendars.contains(calendar.first); });
    });
  }

  /// The rules that its days had are there, and are the same rules.
  [[nodiscard]] bool HasItsRules(const MemoryTables& tables) const {
    std::set<std::int32_t> needed;
    for (const auto& [key, change] : changes_.days) {
      if (change.before->rule) needed.insert(*change.before->rule);
    }
    for (const auto& [key, change] : changes_.calendars) {
      if (!change.before) continue;
      for (const MemoryDay& day : *change.before) {
        if (day.rule) needed.insert(*day.rule);
      }
    }
    return std::all_of(needed.begin(), needed.end(), [&](std::int32_t rule) {
      if (changes_.rules.contains(rule)) return true;
      const bool is_another = std::any_of(later_.begin(), later_.end(), [&](const MemoryChanges* changes) {
        const auto found = changes->rules.find(rule);
        return found != changes->rules.end() && !found->second.before;
      });
      return tables.rules.contains(rule) && !is_another;
    });
  }

  [[nodiscard]] bool HasItsNames(const MemoryTables& tables) const {
    for (const auto& [id, change] : changes_.rules) {
      if (!change.before) continue;
      const std::int32_t holder = RuleNamed(tables, change.before->name);
      if (holder != 0 && holder != id) return false;
    }
    return std::all_of(changes_.currencies.begin(), changes_.currencies.end(), [&](const auto& change) {
      return !change.second.before ||
             std::none_of(tables.currencies.begin(), tables.currencies.end(),
                          [&](const MemoryCurrency& other) {
                            return other.code == change.second.before->code && other.id != change.first;
                          });
    });
  }

  /// A rule that the call added stays when something else uses it.
  void KeepRulesInUse(MemoryTables& tables) const {
    for (const auto& [key, calendar] : tables.calendars) {
      for (const MemoryDay& day : calendar) {
        if (!day.rule || tables.rules.contains(*day.rule)) continue;
        tables.rules[*day.rule] = *changes_.rules.at(*day.rule).after;
      }
    }
  }

  [[nodiscard]] bool HasLiveMoney(const MemoryTables& tables) const {
    const bool has_books = std::all_of(tables.books.begin(), tables.books.end(),
                                       [&](const auto& book) { return IsMoney(tables, book.first); });
    return has_books &&
           std::all_of(tables.calendars.begin(), tables.calendars.end(), [&](const auto& calendar) {
             const auto& [currency, year] = calendar.first;
             const bool is_concerned =
                 changes_.calendars.contains(calendar.first) || changes_.currencies.contains(currency);
             return !is_concerned || IsLiveMoney(tables, currency, year);
           });
  }

  const MemoryChanges& changes_;
  std::vector<const MemoryChanges*> later_;
};

CallOutcome Undo(const MemoryHistory& history, MemoryTables& tables, const std::vector<Value>& inputs) {
  if (!IsBetween(inputs[0], 1, static_cast<std::int32_t>(history.size()))) return {kWrongValue, {}};
  const auto place = static_cast<std::size_t>(platform::ToInt32(inputs[0])) - 1;
  std::vector<const MemoryChanges*> later;
  for (std::size_t i = place + 1; i < history.size(); ++i) later.push_back(&history[i].changes);
  const MemoryTables before = tables;
  const Undoing undoing(history[place].changes, std::move(later));
  if (!undoing.IsPossible(tables) || !undoing.Run(tables)) return {kChangedSince, {}};
  return {ChangesBetween(before, tables).CountRows() == 0 ? kChangedSince : kDone, {}};
}

// CldGetHistory
// ------------------------------------------------------------------------------------------------------

bool Concerns(const MemoryEntry& entry, const CalendarKey& calendar, std::int32_t day) {
  return entry.changes.calendars.contains(calendar) || entry.changes.days.contains({calendar, day});
}

CallOutcome GetHistory(const MemoryHistory& history, const std::vector<Value>& inputs) {
  constexpr std::int32_t kUsualCount = 100;
  constexpr std::int32_t kMostEntries = 10000;
  const auto& [currency, year, day, before, count] =
      std::tie(inputs[0], inputs[1], inputs[2], inputs[3], inputs[4]);
  if (!count.IsEmpty() && !IsBetween(count, 1, kMostEntries)) return {kWrongValue, {}};
  if (!day.IsEmpty() && (currency.IsEmpty() || year.IsEmpty())) return {kWrongValue, {}};
  const auto most = static_cast<std::size_t>(count.IsEmpty() ? kUsualCount : platform::ToInt32(count));
  Rows rows;
  for (auto entry = history.rbegin(); entry != history.rend() && rows.size() < most; ++entry) {
    if (!before.IsEmpty() && entry->id >= platform::ToInt32(before)) continue;
    if (!currency.IsEmpty() && entry->currency != currency) continue;
    if (!year.IsEmpty() && entry->year != year) continue;
    if (!day.IsEmpty() &&
        !Concerns(*entry, {platform::ToInt32(currency), platform::ToInt32(year)}, platform::ToInt32(day))) {
      continue;
    }
    rows.push_back({entry->id, entry->moment, "memory", entry->procedure, entry->currency, entry->year,
                    entry->parameters, entry->changes.CountRows()});
  }
  return {kDone,
          {Records(
              {"EntryID", "Moment", "UserName", "ProcedureName", "ID1", "Year1", "Parameters", "RowsChanged"},
              std::move(rows))}};
}

// CldGetAsOf
// ---------------------------------------------------------------------------------------------------------

/// With milliseconds; empty when it is no moment.
std::string WholeMoment(const Value& input) {
  if (input.IsEmpty()) return "";
  std::string moment = platform::ToText(input);
  if (moment.size() == 20) moment.insert(19, ".000");
  const std::string form = "dddd-dd-ddTdd:dd:dd.dddZ";
  const auto fits = [](char wanted, char found) {
    return wanted == 'd' ? found >= '0' && found <= '9' : found == wanted;
  };
  if (!std::equal(form.begin(), form.end(), moment.begin(), moment.end(), fits)) return "";
  if (!Date::FromIso(moment.substr(0, 10))) return "";
  if (moment.substr(11, 2) > "23" || moment.substr(14, 2) > "59" || moment.substr(17, 2) > "59") return "";
  return moment;
}

CallOutcome GetAsOf(const MemoryHistory& history, const MemoryTables& tables,
                    const std::vector<Value>& inputs) {
  const std::string moment = WholeMoment(inputs[2]);
  if (inputs[0].IsEmpty() || !IsYear(inputs[1]) || moment.empty()) return {kWrongValue, {}};
  const CalendarKey key{platform::ToInt32(inputs[0]), platform::ToInt32(inputs[1])};
  if (!tables.calendars.contains(key) && !IsMoney(tables, inputs[0])) return {kUnknownCurrency, {}};
  MemoryTables then = tables;
  for (auto entry = history.rbegin(); entry != history.rend() && entry->moment > moment; ++entry) {
    PutBack(entry->changes, then);
  }
  if (!then.calendars.contains(key)) return {kUnknownCalendar, {}};
  return {
      kDone,
      {Records({"ODate", "TID1", "Name1", "Comment2", "Comment", "ID2", "Day1"}, RowsOfCalendar(then, key))}};
}

}  // namespace

void AddHistoryProcedures(MemoryDatabase& database) {
  constexpr auto kNumber = ParameterType::kInt32;
  const MemoryHistory& history = database.History();
  database.AddProcedure(
      "CldUndo", {{"@EntryID", kNumber}},
      [&history](MemoryTables& tables, const std::vector<Value>& inputs) {
        return Undo(history, tables, inputs);
      },
      MemoryProcedure::Kind::kRecorded);
  database.AddProcedure(
      "CldGetHistory",
      {{"@ID1", kNumber}, {"@Year1", kNumber}, {"@Day1", kNumber}, {"@Before", kNumber}, {"@Count", kNumber}},
      [&history](MemoryTables&, const std::vector<Value>& inputs) { return GetHistory(history, inputs); });
  database.AddProcedure("CldGetAsOf",
                        {{"@ID1", kNumber}, {"@Year1", kNumber}, {"@Moment", ParameterType::kText}},
                        [&history](MemoryTables& tables, const std::vector<Value>& inputs) {
                          return GetAsOf(history, tables, inputs);
                        });
}

}  // namespace ferrowind::headless
