#include "ferrowind/adapters/headless/memory_history.h"

#include <algorithm>

namespace ferrowind::headless {
namespace {

std::map<std::int32_t, MemoryCurrency> ById(const std::vector<MemoryCurrency>& currencies) {
  std::map<std::int32_t, MemoryCurrency> by_id;
  for (const MemoryCurrency& currency : currencies) by_id[currency.id] = currency;
  return by_id;
}

template <typename Key, typename Row>
std::optional<Row> Find(const std::map<Key, Row>& rows, const Key& key) {
  const auto found = rows.find(key);
  return found == rows.end() ? std::nullopt : std::optional<Row>(found->second);
}

template <typename Key, typename Row>
std::map<Key, MemoryChange<Row>> Compare(const std::map<Key, Row>& before, const std::map<Key, Row>& after) {
  std::map<Key, MemoryChange<Row>> changes;
  for (const auto& [key, row] : before) {
    auto now = Find(after, key);
    if (now != row) changes[key] = {row, std::move(now)};
  }
  for (const auto& [key, row] : after) {
    if (!before.contains(key)) changes[key] = {std::nullopt, row};
  }
  return changes;
}

void CompareDays(const CalendarKey& key, const std::vector<MemoryDay>& before,
                 const std::vector<MemoryDay>& after, MemoryChanges& changes) {
  for (std::size_t i = 0; i < before.size(); ++i) {
    if (before[i] != after[i]) changes.days[{key, static_cast<std::int32_t>(i) + 1}] = {before[i], after[i]};
  }
}

template <typename Key, typename Row>
void PutBackRows(const std::map<Key, MemoryChange<Row>>& changes, std::map<Key, Row>& rows) {
  for (const auto& [key, change] : changes) {
    if (change.before) {
      rows[key] = *change.before;
    } else {
      rows.erase(key);
    }
  }
}

template <typename Key, typename Row>
bool AreAsLeft(const std::map<Key, MemoryChange<Row>>& changes, const std::map<Key, Row>& rows) {
  return std::all_of(changes.begin(), changes.end(),
                     [&](const auto& change) { return Find(rows, change.first) == change.second.after; });
}

}  // namespace

std::int32_t MemoryChanges::CountRows() const {
  std::size_t count = days.size() + calendars.size() + rules.size() + currencies.size() + conventions.size();
  for (const auto& [key, change] : calendars)
    count += (change.before ? *change.before : *change.after).size();
  for (const auto& [key, change] : books) {
    count += 1 + std::max(change.before ? change.before->rules.size() : 0,
                          change.after ? change.after->rules.size() : 0);
  }
  return static_cast<std::int32_t>(count);
}

MemoryChanges ChangesBetween(const MemoryTables& before, const MemoryTables& after) {
  MemoryChanges changes;
  changes.calendars = Compare(before.calendars, after.calendars);
  std::erase_if(changes.calendars, [&](const auto& calendar) {
    const auto& [key, change] = calendar;
    if (!change.before || !change.after) return false;
    CompareDays(key, *change.before, *change.after, changes);
    return true;
  });
  changes.rules = Compare(before.rules, after.rules);
  changes.books = Compare(before.books, after.books);
  changes.conventions = Compare(before.conventions, after.conventions);
  changes.currencies = Compare(ById(before.currencies), ById(after.currencies));
  return changes;
}

void PutBack(const MemoryChanges& changes, MemoryTables& tables) {
  PutBackRows(changes.calendars, tables.calendars);
  for (const auto& [key, change] : changes.days) {
    tables.calendars.at(key.first)[static_cast<std::size_t>(key.second) - 1] = *change.before;
  }
  PutBackRows(changes.rules, tables.rules);
  PutBackRows(changes.books, tables.books);
  PutBackRows(changes.conventions, tables.conventions);
  auto currencies = ById(tables.currencies);
  PutBackRows(changes.currencies, currencies);
  tables.currencies.clear();
  for (auto& [id, currency] : currencies) tables.currencies.push_back(std::move(currency));
}

bool AreAsLeft(const MemoryChanges& changes, const MemoryTables& tables) {
  const bool are_days = std::all_of(changes.days.begin(), changes.days.end(), [&](const auto& change) {
    const auto& [key, day] = change;
    const auto calendar = tables.calendars.find(key.first);
    return calendar != tables.calendars.end() &&
           calendar->second[static_cast<std::size_t>(key.second) - 1] == *day.after;
  });
  return are_days && AreAsLeft(changes.calendars, tables.calendars) &&
         AreAsLeft(changes.rules, tables.rules) && AreAsLeft(changes.books, tables.books) &&
         AreAsLeft(changes.conventions, tables.conventions) &&
         AreAsLeft(changes.currencies, ById(tables.currencies));
}

}  // namespace ferrowind::headless
