#include <algorithm>
#include <set>
#include <utility>

#include "ferrowind/adapters/headless/memory_database.h"
#include "ferrowind/adapters/headless/memory_history.h"
#include "ferrowind/adapters/headless/memory_lookup.h"
#include "ferrowind/adapters/headless/memory_procedures.h"
#include "ferrowind/platform/values/conversion.h"

namespace ferrowind::headless {
namespace {

using platform::CallOutcome;
using platform::ParameterType;
using platform::Value;

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
    return HasLiveMoney(tables) && HasCurrenciesOfConventions(tables);
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

  [[nodiscard]] static bool HasCurrenciesOfConventions(const MemoryTables& tables) {
    return std::all_of(tables.conventions.begin(), tables.conventions.end(), [&](const auto& convention) {
      return CurrencyOf(tables, convention.first.first) != nullptr &&
             CurrencyOf(tables, convention.first.second) != nullptr;
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

}  // namespace

void AddUndoProcedure(MemoryDatabase& database) {
  const MemoryHistory& history = database.History();
  database.AddProcedure(
      "CldUndo", {{"@EntryID", ParameterType::kInt32}},
      [&history](MemoryTables& tables, const std::vector<Value>& inputs) {
        return Undo(history, tables, inputs);
      },
      MemoryProcedure::Kind::kRecorded);
}

}  // namespace ferrowind::headless
