#include <algorithm>
#include <iterator>
#include <utility>

#include "ferrowind/adapters/headless/memory_database.h"
#include "ferrowind/adapters/headless/memory_history.h"
#include "ferrowind/adapters/headless/memory_lookup.h"
#include "ferrowind/adapters/headless/memory_procedures.h"
#include "ferrowind/platform/database/json_object.h"
#include "ferrowind/platform/values/conversion.h"
#include "ferrowind/platform/values/json_value.h"

namespace ferrowind::headless {
namespace {

using platform::CallOutcome;
using platform::Date;
using platform::ParameterType;
using platform::Value;

// CldGetHistory
// ------------------------------------------------------------------------------------------------------

bool Concerns(const MemoryEntry& entry, const CalendarKey& calendar, std::int32_t day) {
  return entry.changes.calendars.contains(calendar) || entry.changes.days.contains({calendar, day});
}

/// The name that the rule of the parameter ID2 had behind the call; empty when there is no such parameter.
Value RuleNameBehind(MemoryHistory::const_iterator call, const MemoryHistory& history,
                     const MemoryTables& tables) {
  const auto parameters = platform::ReadJson(call->parameters);
  const platform::JsonValue* const number = parameters ? parameters->Find("ID2") : nullptr;
  if (number == nullptr || number->kind != platform::JsonValue::Kind::kNumber) return {};
  const std::int32_t rule = platform::ToInt32(number->text);
  for (auto later = std::next(call); later != history.end(); ++later) {
    const auto change = later->changes.rules.find(rule);
    if (change != later->changes.rules.end()) {
      return change->second.before ? Value(change->second.before->name) : Value();
    }
  }
  const auto now = tables.rules.find(rule);
  return now == tables.rules.end() ? Value() : Value(now->second.name);
}

Value ContentOf(const std::optional<MemoryRule>& rule) {
  if (!rule) return {};
  platform::JsonObject json;
  json.Add("Name1", rule->name);
  json.Add("Comment", rule->comment);
  json.Add("TID1", rule->type);
  json.Add("D1", rule->date);
  json.Add("MY", rule->month);
  json.Add("MD", rule->day);
  json.Add("WD", rule->weekday);
  json.Add("Del", rule->removal_mark);
  return json.Text();
}

Value ContentOf(const std::optional<MemoryCurrency>& currency) {
  if (!currency) return {};
  platform::JsonObject json;
  json.Add("Ccy", currency->code);
  json.Add("CcyType", currency->type);
  json.Add("Name", currency->name);
  json.Add("LastDay", currency->last_day);
  return json.Text();
}

Value ContentOf(const std::optional<MemoryConvention>& convention) {
  if (!convention) return {};
  platform::JsonObject json;
  json.Add("SpotDays", convention->spot_days);
  json.Add("DollarStops", convention->dollar_stops);
  return json.Text();
}

/// Of the book's own row, without its rules.
Value ContentOf(const std::optional<MemoryBook>& book) {
  if (!book) return {};
  platform::JsonObject json;
  json.Add("Publisher", book->publisher);
  json.Add("Document", book->document);
  json.Add("FromYear", book->from_year);
  return json.Text();
}

Value ContentOf(const std::optional<MemoryBook>& book, std::size_t place) {
  if (!book || place >= book->rules.size()) return {};
  const MemoryRecurrence& rule = book->rules[place];
  platform::JsonObject json;
  json.Add("Name1", rule.name);
  json.Add("TID1", rule.type);
  json.Add("Expression", rule.expression);
  json.Add("Comment", rule.comment);
  json.Add("MovedName", rule.moved_name);
  return json.Text();
}

/// What the call changed besides days and calendars, in the order of tables and keys.
Rows RowsOf(const MemoryChanges& changes) {
  Rows rows;
  const auto add = [&](const char* table, const Value& currency, const Value& rule, const Value& position,
                       const Value& before, const Value& after) {
    if (before != after) rows.push_back({table, currency, rule, position, before, after});
  };
  for (const auto& [id, change] : changes.books) {
    add("CldBook", id, {}, {}, ContentOf(change.before), ContentOf(change.after));
  }
  for (const auto& [key, change] : changes.conventions) {
    add("CldConvention", key.first, {}, key.second, ContentOf(change.before), ContentOf(change.after));
  }
  for (const auto& [id, change] : changes.rules) {
    add("CldHoliday", {}, id, {}, ContentOf(change.before), ContentOf(change.after));
  }
  for (const auto& [id, change] : changes.books) {
    const std::size_t count = std::max(change.before ? change.before->rules.size() : 0,
                                       change.after ? change.after->rules.size() : 0);
    for (std::size_t place = 0; place < count; ++place) {
      add("CldRecurrence", id, {}, static_cast<std::int32_t>(place) + 1, ContentOf(change.before, place),
          ContentOf(change.after, place));
    }
  }
  for (const auto& [id, change] : changes.currencies) {
    add("DicCcy", id, {}, {}, ContentOf(change.before), ContentOf(change.after));
  }
  return rows;
}

/// Which entries are asked for.
struct Wanted {
  explicit Wanted(const std::vector<Value>& inputs)
      : currency(inputs[0]),
        year(inputs[1]),
        day(inputs[2]),
        before(inputs[3]),
        count(inputs[4]),
        user(inputs[5]),
        entry(inputs[6]) {}

  [[nodiscard]] bool IsInRange() const {
    constexpr std::int32_t kMostEntries = 10000;
    if (!count.IsEmpty() && !IsBetween(count, 1, kMostEntries)) return false;
    return day.IsEmpty() || !(currency.IsEmpty() || year.IsEmpty());
  }

  [[nodiscard]] bool Fits(const MemoryEntry& found) const {
    const auto is_wanted = [](const Value& wanted, const Value& value) {
      return wanted.IsEmpty() || wanted == value;
    };
    return is_wanted(currency, found.currency) && is_wanted(year, found.year) &&
           is_wanted(user, found.user) && is_wanted(entry, found.id) &&
           (before.IsEmpty() || found.id < platform::ToInt32(before)) &&
           (day.IsEmpty() ||
            Concerns(found, {platform::ToInt32(currency), platform::ToInt32(year)}, platform::ToInt32(day)));
  }

  [[nodiscard]] std::size_t Most() const {
    constexpr std::size_t kUsualCount = 100;
    return count.IsEmpty() ? kUsualCount : static_cast<std::size_t>(platform::ToInt32(count));
  }

  const Value& currency;
  const Value& year;
  const Value& day;
  const Value& before;
  const Value& count;
  const Value& user;
  const Value& entry;
};

CallOutcome GetHistory(const MemoryDatabase& database, const MemoryTables& tables,
                       const std::vector<Value>& inputs) {
  const MemoryHistory& history = database.History();
  const Wanted wanted(inputs);
  if (!wanted.IsInRange()) return {kWrongValue, {}};
  Rows rows;
  Rows replaced;
  for (auto next = history.end(); next != history.begin() && rows.size() < wanted.Most(); --next) {
    const auto entry = std::prev(next);
    if (!wanted.Fits(*entry)) continue;
    rows.push_back({entry->id, entry->moment, entry->user, entry->procedure, entry->currency, entry->year,
                    entry->parameters, entry->changes.CountRows(), RuleNameBehind(entry, history, tables),
                    std::int32_t{entry->changes.CountRows() == 0 ? 0 : 1}});
  }
  if (!wanted.entry.IsEmpty() && IsBetween(wanted.entry, 1, static_cast<std::int32_t>(history.size()))) {
    replaced = RowsOf(history[static_cast<std::size_t>(platform::ToInt32(wanted.entry)) - 1].changes);
  }
  return {kDone,
          {Records({"EntryID", "Moment", "UserName", "ProcedureName", "ID1", "Year1", "Parameters",
                    "RowsChanged", "Name1", "KeepsRows"},
                   std::move(rows)),
           Records({"UserName"}, {{database.User()}}),
           Records({"TableName", "ID1", "ID2", "Position", "OldRow", "NewRow"}, std::move(replaced))}};
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
  const Value& currency = inputs[0];
  const Value& year = inputs[1];
  const Value& wanted_moment = inputs[2];
  const Value& wanted_entry = inputs[3];
  const std::string moment = WholeMoment(wanted_moment);
  if (currency.IsEmpty() || !IsYear(year) || wanted_moment.IsEmpty() == wanted_entry.IsEmpty() ||
      moment.empty() != wanted_moment.IsEmpty() ||
      (!wanted_entry.IsEmpty() && platform::ToInt32(wanted_entry) < 0)) {
    return {kWrongValue, {}};
  }
  const CalendarKey key{platform::ToInt32(currency), platform::ToInt32(year)};
  if (!tables.calendars.contains(key) && !IsMoney(tables, currency)) return {kUnknownCurrency, {}};
  const auto is_later = [&](const MemoryEntry& entry) {
    return wanted_entry.IsEmpty() ? entry.moment > moment : entry.id > platform::ToInt32(wanted_entry);
  };
  MemoryTables then = tables;
  for (auto entry = history.rbegin(); entry != history.rend() && is_later(*entry); ++entry) {
    PutBack(entry->changes, then);
  }
  if (!then.calendars.contains(key)) return {kUnknownCalendar, {}};
  return {
      kDone,
      {Records({"ODate", "TID1", "Name1", "Comment2", "Comment", "ID2", "Day1"}, RowsOfCalendar(then, key))}};
}

}  // namespace

void AddPastProcedures(MemoryDatabase& database) {
  constexpr auto kNumber = ParameterType::kInt32;
  const MemoryHistory& history = database.History();
  database.AddProcedure("CldGetHistory",
                        {{"@ID1", kNumber},
                         {"@Year1", kNumber},
                         {"@Day1", kNumber},
                         {"@Before", kNumber},
                         {"@Count", kNumber},
                         {"@UserName", ParameterType::kText},
                         {"@EntryID", kNumber}},
                        [&database](MemoryTables& tables, const std::vector<Value>& inputs) {
                          return GetHistory(database, tables, inputs);
                        });
  database.AddProcedure(
      "CldGetAsOf",
      {{"@ID1", kNumber}, {"@Year1", kNumber}, {"@Moment", ParameterType::kText}, {"@EntryID", kNumber}},
      [&history](MemoryTables& tables, const std::vector<Value>& inputs) {
        return GetAsOf(history, tables, inputs);
      });
}

}  // namespace ferrowind::headless
