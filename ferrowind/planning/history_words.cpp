#include "ferrowind/planning/history_words.h"

#include <charconv>
#include <optional>
#include <string_view>
#include <utility>

#include "ferrowind/data/module_state.h"
#include "ferrowind/planning/in_words.h"
#include "ferrowind/planning/moment_text.h"
#include "ferrowind/planning/one_line.h"
#include "ferrowind/platform/values/json_value.h"

namespace ferrowind::planning {
namespace {

using platform::Date;
using platform::JsonValue;
using platform::ReadJson;

/// Thrown for parameters that no call of the procedure has, and caught where the entry is told.
struct CannotBeTold {};

std::vector<ReplacedRow> RowsOfEntry(std::int32_t id) {
  auto detailed = LoadEntry(id);
  if (!detailed) return {};
  return std::move(detailed->rows);
}

/// The parameters of a call by name.
class Parameters {
 public:
  explicit Parameters(const std::string& json) {
    auto object = ReadJson(json);
    if (!object || object->kind != JsonValue::Kind::kObject) throw CannotBeTold();
    object_ = std::move(*object);
  }

  [[nodiscard]] bool Has(std::string_view name) const {
    const JsonValue* const value = object_.Find(name);
    return value != nullptr && value->kind != JsonValue::Kind::kNull;
  }
  /// Empty when it was not given.
  [[nodiscard]] std::string Text(std::string_view name) const {
    if (!Has(name)) return "";
    const JsonValue& value = *object_.Find(name);
    if (value.kind != JsonValue::Kind::kText) throw CannotBeTold();
    return value.text;
  }
  [[nodiscard]] std::string NeededText(std::string_view name) const {
    std::string text = Text(name);
    if (text.empty()) throw CannotBeTold();
    return text;
  }
  [[nodiscard]] std::int32_t Number(std::string_view name) const {
    const JsonValue* const value = object_.Find(name);
    if (value == nullptr || value->kind != JsonValue::Kind::kNumber) throw CannotBeTold();
    std::int32_t number = 0;
    const std::string& digits = value->text;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    if (error != std::errc() || end != digits.data() + digits.size()) throw CannotBeTold();
    return number;
  }
  /// The items of a list that was given as a text.
  [[nodiscard]] std::vector<JsonValue> List(std::string_view name) const {
    auto list = ReadJson(Text(name));
    if (!list || list->kind != JsonValue::Kind::kList) throw CannotBeTold();
    return std::move(list->items);
  }

 private:
  JsonValue object_;
};

/// Of the year and the day that a call was of.
Date DayOf(const Parameters& parameters) {
  const std::int32_t year = parameters.Number("Year1");
  const std::int32_t day = parameters.Number("Day1");
  if (year < 1 || year > 9999 || day < 1 || day > platform::DaysInYear(year)) throw CannotBeTold();
  return Date(year, 1, 1).AddDays(day - 1);
}

std::string NeededRule(const HistoryEntry& entry) {
  if (entry.rule.empty()) throw CannotBeTold();
  return entry.rule;
}

std::string WordsOfDays(const HistoryEntry& entry, const std::string& calendar, const DayTeller& tell_day) {
  const Parameters parameters(entry.parameters);
  if (!parameters.Has("TID1")) return InWords("Created the calendar %1", {calendar});
  constexpr std::int32_t kWorkingDay = 1;
  if (parameters.Number("TID1") == kWorkingDay) {
    const std::string reason = parameters.Text("Comment");
    if (reason.empty()) return InWords("Excepted %1", {tell_day(DayOf(parameters))});
    return InWords("Excepted %1: %2", {tell_day(DayOf(parameters)), reason});
  }
  if (parameters.Has("Day1")) {
    return InWords("Assigned %1 to %2", {NeededRule(entry), tell_day(DayOf(parameters))});
  }
  return InWords(static_cast<std::size_t>(entry.rows_changed), "Assigned %1 to %n day of %2",
                 "Assigned %1 to %n days of %2",
                 {NeededRule(entry), std::to_string(parameters.Number("Year1"))});
}

const std::vector<JsonValue>& DatesOf(const JsonValue& item) {
  const JsonValue* const dates = item.Find("Dates");
  if (dates == nullptr || dates->kind != JsonValue::Kind::kList) throw CannotBeTold();
  return dates->items;
}

/// The text of the member, empty when the item has none.
std::string MemberText(const JsonValue& item, std::string_view name) {
  const JsonValue* const member = item.Find(name);
  return member != nullptr && member->kind == JsonValue::Kind::kText ? member->text : "";
}

/// "Friday 14 April 2028", "3 days of EUR 2028".
std::string WordsOfDates(const std::vector<JsonValue>& dates, const std::string& calendar,
                         const DayTeller& tell_day) {
  if (dates.size() != 1) return InWords(dates.size(), "%n day of %1", "%n days of %1", {calendar});
  const auto date = Date::FromIso(dates.front().text);
  if (!date) throw CannotBeTold();
  return tell_day(*date);
}

/// What a call did that gave days of a calendar which was there one and the same: by hand, mostly. Nothing
/// when the days are no exceptions and no holiday.
std::optional<std::string> WordsOfOneChange(const JsonValue& item, const std::string& calendar,
                                            const DayTeller& tell_day) {
  const std::string type = item.Find("TID1") != nullptr ? item.Find("TID1")->text : "";
  const std::string rule = MemberText(item, "Name1");
  if (type == "1" && rule.empty() && item.Find("DayComment") != nullptr) {
    const std::string reason = MemberText(item, "DayComment");
    const std::string days = WordsOfDates(DatesOf(item), calendar, tell_day);
    return reason.empty() ? InWords("Excepted %1", {days}) : InWords("Excepted %1: %2", {days, reason});
  }
  if ((type == "3" || type == "4") && !rule.empty()) {
    return InWords("Closed %1 as %2", {WordsOfDates(DatesOf(item), calendar, tell_day), rule});
  }
  return std::nullopt;
}

std::string WordsOfPlan(const HistoryEntry& entry, const std::string& calendar, const DayTeller& tell_day) {
  const Parameters parameters(entry.parameters);
  const std::vector<JsonValue> items = parameters.List("Days");
  if (items.size() == 1 && !parameters.Text("Expected").empty()) {
    if (auto words = WordsOfOneChange(items.front(), calendar, tell_day)) return *std::move(words);
  }
  std::size_t days = 0;
  for (const JsonValue& item : items) days += DatesOf(item).size();
  return InWords(days, "Prepared %1: %n day", "Prepared %1: %n days", {calendar});
}

std::string WordsOfRule(const HistoryEntry& entry) {
  const Parameters parameters(entry.parameters);
  constexpr std::int32_t kRemoved = 2;
  if (parameters.Has("Del")) {
    return parameters.Number("Del") == kRemoved ? InWords("Removed the rule %1", {NeededRule(entry)})
                                                : InWords("Restored the rule %1", {NeededRule(entry)});
  }
  const std::string name = parameters.NeededText("Name1");
  return parameters.Has("ID2") ? InWords("Changed the rule %1", {name})
                               : InWords("Added the rule %1", {name});
}

std::string WordsOfBook(const HistoryEntry& entry, const std::string& currency) {
  const Parameters parameters(entry.parameters);
  if (!parameters.Has("Rules")) return InWords("Removed the rule book of %1", {currency});
  const std::size_t rules = parameters.List("Rules").size();
  if (parameters.Text("Expected").empty()) {
    return InWords(rules, "Added the rule book of %1: %n rule", "Added the rule book of %1: %n rules",
                   {currency});
  }
  return InWords(rules, "Changed the rule book of %1: %n rule", "Changed the rule book of %1: %n rules",
                 {currency});
}

/// A currency, as the history keeps it.
struct CurrencyRow {
  std::string code;
  std::string name;
};

std::optional<CurrencyRow> CurrencyIn(const std::string& json) {
  const auto row = ReadJson(json);
  if (!row) return std::nullopt;
  return CurrencyRow{MemberText(*row, "Ccy"), MemberText(*row, "Name")};
}

/// What of a currency the rows tell that its call replaced; nothing when it has its code and its name from
/// before, or the history does not keep them.
std::optional<std::string> WordsOfNewNames(const std::vector<ReplacedRow>& rows, bool is_money) {
  for (const ReplacedRow& row : rows) {
    const auto after = CurrencyIn(row.behind);
    if (row.table != "DicCcy" || !after) continue;
    const auto before = CurrencyIn(row.before);
    if (!before) {
      const std::vector<std::string> names = {after->code, after->name};
      return is_money ? InWords("Added the currency %1 (%2)", names)
                      : InWords("Added the currency %1 (%2), no money", names);
    }
    if (before->code != after->code || before->name != after->name) {
      return InWords("Renamed the currency %1 (%2) to %3 (%4)",
                     {before->code, before->name, after->code, after->name});
    }
  }
  return std::nullopt;
}

std::string WordsOfConvention(const HistoryEntry& entry, const CurrencyList& currencies) {
  const Parameters parameters(entry.parameters);
  const auto code = [&](std::string_view name) {
    return UnmistakableCode(currencies.FindOrNumber(parameters.Number(name)));
  };
  const std::string subject =
      parameters.Has("OtherID") ? code("CcyID") + "/" + code("OtherID") : code("CcyID");
  if (parameters.Has("SpotDays")) {
    return InWords(static_cast<std::size_t>(parameters.Number("SpotDays")),
                   "Set the convention of %1: %n business day to spot",
                   "Set the convention of %1: %n business days to spot", {subject});
  }
  if (!parameters.Has("DollarStops")) return InWords("Removed the convention of %1", {subject});
  return parameters.Number("DollarStops") != 0
             ? InWords("Set the convention of %1: holidays of the dollar stop the count to spot", {subject})
             : InWords("Set the convention of %1: holidays of the dollar do not stop the count to spot",
                       {subject});
}

}  // namespace

std::string ToldEntry::Sentence() const {
  if (turns == 0) return change;
  return IsDoing() ? InWords("Redid: %1", {change}) : InWords("Undid: %1", {change});
}

std::optional<std::int32_t> UndoneEntry(const HistoryEntry& entry) {
  if (entry.procedure != "CldUndo") return std::nullopt;
  try {
    const std::int32_t undone = Parameters(entry.parameters).Number("EntryID");
    // An entry undoes older ones alone, whatever else somebody may have written there.
    if (undone < entry.id) return undone;
  } catch (const CannotBeTold&) {
    // Nobody knows which.
  }
  return std::nullopt;
}

HistoryWords::HistoryWords(const CurrencyList& currencies, EntryLookup find)
    : HistoryWords(currencies, std::move(find),
                   [](const Date& day) { return AttachedPlatform().locale.LongDayText(day); }) {}

HistoryWords::HistoryWords(const CurrencyList& currencies, EntryLookup find, DayTeller tell_day,
                           RowLookup find_rows)
    : currencies_(currencies),
      find_(std::move(find)),
      tell_day_(std::move(tell_day)),
      find_rows_(find_rows ? std::move(find_rows) : RowsOfEntry) {}

std::string HistoryWords::WordsOf(const HistoryEntry& entry) const {
  try {
    const std::string calendar = Calendar(entry);
    if (entry.procedure == "CldIUMain") return OneLine(WordsOfDays(entry, calendar, tell_day_));
    if (entry.procedure == "CldApplyPlan") return OneLine(WordsOfPlan(entry, calendar, tell_day_));
    if (entry.procedure == "CldIUCelebrate") return OneLine(WordsOfRule(entry));
    if (entry.procedure == "CldIUBook") return OneLine(WordsOfBook(entry, calendar));
    if (entry.procedure == "CldIUCurrency") return OneLine(WordsOfCurrency(entry));
    if (entry.procedure == "CldIUConvention") return OneLine(WordsOfConvention(entry, currencies_));
  } catch (const CannotBeTold&) {
    // As it stands, below.
  }
  return OneLine(entry.procedure + " " + entry.parameters);
}

std::string HistoryWords::WordsOfCurrency(const HistoryEntry& entry) const {
  const Parameters parameters(entry.parameters);
  const std::string code = parameters.NeededText("Ccy");
  const std::string name = parameters.NeededText("Name");
  const bool is_money = parameters.Number("CcyType") == 0;
  const auto last_day = Date::FromIso(parameters.Text("LastDay"));
  if (parameters.Has("LastDay") && !last_day) throw CannotBeTold();
  if (auto words = WordsOfNewNames(find_rows_(entry.id), is_money)) return *std::move(words);
  if (!is_money) return InWords("Set the currency %1 (%2), no money", {code, name});
  if (!last_day) return InWords("Set the currency %1 (%2)", {code, name});
  return InWords("Set the currency %1 (%2), money until %3", {code, name, tell_day_(*last_day)});
}

std::string HistoryWords::Calendar(const HistoryEntry& entry) const {
  if (!entry.currency) return "";
  const Currency currency = currencies_.FindOrNumber(*entry.currency);
  return entry.year ? CalendarName(currency, *entry.year) : UnmistakableCode(currency);
}

std::string HistoryWords::WhyNotUndone(const HistoryEntry& entry, const UndoOutcome& outcome) const {
  if (outcome.kind == UndoOutcome::Kind::kNoSuchEntry) {
    return InWords("The history has no entry %1.", {std::to_string(entry.id)});
  }
  if (outcome.undoer) {
    return InWords(
        "That is undone already (%1, %2).",
        {outcome.undoer->user, ExactMomentText(AttachedPlatform().locale, outcome.undoer->moment)});
  }
  const std::string why = InWords(
      "This cannot be undone: a later change is of the same, or the history does not keep what was there "
      "before.");
  if (!outcome.later) return why;
  const std::string what = Tell(*outcome.later).Sentence();
  const std::string& who = outcome.later->user;
  const std::string when = ExactMomentText(AttachedPlatform().locale, outcome.later->moment);
  const std::string of_what = Calendar(*outcome.later);
  return why + " " +
         (of_what.empty() ? InWords("The newest change of the same is \"%1\" (%2, %3). Undo that first.",
                                    {what, who, when})
                          : InWords("The newest change of %1 is \"%2\" (%3, %4). Undo that first.",
                                    {of_what, what, who, when}));
}

ToldEntry HistoryWords::Tell(const HistoryEntry& entry) const {
  HistoryEntry first = entry;
  int turns = 0;
  for (auto undone = UndoneEntry(first); undone; undone = UndoneEntry(first)) {
    auto found = find_(*undone);
    if (!found) break;
    first = std::move(*found);
    ++turns;
  }
  return {first.id, WordsOf(first), turns};
}

}  // namespace ferrowind::planning
