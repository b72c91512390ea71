#include "ferrowind/planning/entry_changes.h"

#include <cstddef>
#include <string_view>
#include <utility>

#include "ferrowind/almanac/date_words.h"
#include "ferrowind/data/module_state.h"
#include "ferrowind/planning/database_call.h"
#include "ferrowind/planning/in_words.h"
#include "ferrowind/planning/one_line.h"
#include "ferrowind/platform/values/conversion.h"
#include "ferrowind/platform/values/json_value.h"

namespace ferrowind::planning {
namespace {

using platform::Date;
using platform::JsonValue;

// Days
// -----------------------------------------------------------------------------------------------------------

std::string LongDay(const Date& date) { return AttachedPlatform().locale.LongDayText(date); }

bool IsSame(const PastDay& left, const PastDay& right) {
  return left.type == right.type && left.rule == right.rule && left.comment == right.comment;
}

bool IsOrdinary(const PastDay& day) { return !day.rule && day.comment.empty(); }

/// Days that stand in one of the two lists alone are told when they are not ordinary, or when both lists are
/// of a calendar that was there: then a day of the year is missing, which only a damaged database lets
/// happen.
void AddDifferences(const std::vector<PastDay>& before, const std::vector<PastDay>& behind,
                    bool are_of_one_calendar, EntryChanges& changes) {
  auto was = before.begin();
  auto is = behind.begin();
  while (was != before.end() || is != behind.end()) {
    const bool has_was = was != before.end() && (is == behind.end() || !(is->date < was->date));
    const bool has_is = is != behind.end() && (was == before.end() || !(was->date < is->date));
    const Date date = has_was ? was->date : is->date;
    const bool is_told =
        has_was && has_is ? !IsSame(*was, *is) : are_of_one_calendar || !IsOrdinary(has_was ? *was : *is);
    if (is_told) {
      changes.changes.push_back(
          {LongDay(date), has_was ? DayInWords(*was) : "", has_is ? DayInWords(*is) : ""});
    }
    if (has_was) ++was;
    if (has_is) ++is;
  }
}

void AddDays(const PastCalendar& before, const PastCalendar& behind, const std::string& calendar,
             EntryChanges& changes) {
  using State = PastCalendar::State;
  if (before.state == State::kNotKept || behind.state == State::kNotKept) {
    changes.remark =
        InWords("The history does not keep what was there before: the call is older than its upgrade.");
    return;
  }
  const bool was_there = before.state == State::kThere;
  const bool is_there = behind.state == State::kThere;
  const auto days_of = [](const PastCalendar& past) {
    return InWords(past.days.size(), "%n day", "%n days");
  };
  if (!was_there && !is_there) return;
  if (!was_there) changes.changes.push_back({InWords("Calendar %1", {calendar}), "", days_of(behind)});
  if (!is_there) changes.changes.push_back({InWords("Calendar %1", {calendar}), days_of(before), ""});
  AddDifferences(before.days, behind.days, was_there && is_there, changes);
}

// Rows
// -----------------------------------------------------------------------------------------------------------

/// The weekday that the rules' weekdays count from, 1 Sunday to 7 Saturday.
int LoadFirstDay() {
  const CallAnswer answer = CallDatabase(InWords("Reading the first day of the week"), "CldAllInfo", {}, 4);
  platform::RecordSet& setting = *answer.record_sets[3];
  setting.MoveFirst();
  return setting.Eof() ? 1 : platform::ToInt32(setting["FirstDay"]);
}

std::string TypeText(const std::string& number) {
  if (number == "1") return InWords("working day");
  if (number == "2") return InWords("weekday");
  if (number == "3") return InWords("celebration");
  if (number == "4") return InWords("holiday point");
  return number;
}

/// Without its weekday: the year of a celebration says nothing.
std::string DateText(const std::string& iso) {
  const auto date = Date::FromIso(iso);
  return date ? AttachedPlatform().locale.LongDateText(*date) : iso;
}

std::string DayText(const std::string& iso) {
  const auto date = Date::FromIso(iso);
  return date ? LongDay(*date) : iso;
}

std::string WeekdayText(const std::string& number) {
  if (number.size() != 1 || number < "1" || number > "7") return number;
  return InWords(almanac::Weekday((number.front() - '1' + LoadFirstDay() - 1) % 7 + 1));
}

std::string AsItStands(const std::string& text) { return text; }

/// How a column of any of the tables is told.
struct Column {
  std::string_view name;
  const char* label;
  std::string (*tell)(const std::string& value);
};

std::string RemovalText(const std::string& mark) { return mark == "2" ? InWords("yes") : InWords("no"); }
std::string MoneyText(const std::string& type) {
  return type == "0" ? InWords("money") : InWords("no money");
}

std::string YesOrNo(const std::string& number) { return number == "1" ? InWords("yes") : InWords("no"); }

//: said 2
const Column kColumns[] = {{"Name1", "name", AsItStands},
                           {"TID1", "type", TypeText},
                           {"D1", "date", DateText},
                           {"WD", "weekday", WeekdayText},
                           {"Del", "removed", RemovalText},
                           {"Expression", "dates", AsItStands},
                           {"MovedName", "name of a moved day", AsItStands},
                           {"Comment", "comment", AsItStands},
                           {"Publisher", "publisher", AsItStands},
                           {"Document", "document", AsItStands},
                           {"FromYear", "since", AsItStands},
                           {"Ccy", "code", AsItStands},
                           {"CcyType", "kind", MoneyText},
                           {"Name", "name", AsItStands},
                           {"LastDay", "last day as money", DayText},
                           {"SpotDays", "days to spot", AsItStands},
                           {"DollarStops", "stopped by holidays of the dollar", YesOrNo}};

/// Nothing when there was no such row, or no value in it.
std::string MemberText(const JsonValue& row, const Column& column) {
  const JsonValue* const value = row.Find(column.name);
  if (value == nullptr || value->kind == JsonValue::Kind::kNull) return "";
  return column.tell(value->text);
}

JsonValue RowIn(const std::string& json) { return platform::ReadJson(json).value_or(JsonValue()); }

std::string NameOf(const JsonValue& before, const JsonValue& behind, std::string_view member) {
  for (const JsonValue* const row : {&before, &behind}) {
    const JsonValue* const name = row->Find(member);
    if (name != nullptr && name->kind == JsonValue::Kind::kText) return name->text;
  }
  return "";
}

std::string CodeOf(std::optional<std::int32_t> number, const CurrencyList& currencies) {
  if (!number) return "";
  return UnmistakableCode(currencies.FindOrNumber(*number));
}

std::string SubjectOfConvention(const std::string& code, const std::string& other) {
  return InWords("Convention of %1", {code == other ? code : code + "/" + other});
}

std::string SubjectOf(const ReplacedRow& row, const JsonValue& before, const JsonValue& behind,
                      const CurrencyList& currencies) {
  if (row.table == "CldHoliday") return InWords("Rule %1", {NameOf(before, behind, "Name1")});
  if (row.table == "DicCcy") return InWords("Currency %1", {NameOf(before, behind, "Ccy")});
  const std::string code = CodeOf(row.currency, currencies);
  if (row.table == "CldConvention") return SubjectOfConvention(code, CodeOf(row.position, currencies));
  if (!row.position) return InWords("Rule book of %1", {code});
  return InWords("Rule book of %1, rule %2", {code, std::to_string(*row.position)});
}

void AddRow(const ReplacedRow& row, const CurrencyList& currencies, EntryChanges& changes) {
  const JsonValue before = RowIn(row.before);
  const JsonValue behind = RowIn(row.behind);
  const std::string subject = SubjectOf(row, before, behind, currencies);
  for (const Column& column : kColumns) {
    std::string was = MemberText(before, column);
    std::string is = MemberText(behind, column);
    if (was == is) continue;
    changes.changes.push_back({OneLine(InWords("%1: %2", {subject, InWords(column.label)})),
                               OneLine(std::move(was)), OneLine(std::move(is))});
  }
}

}  // namespace

std::string DayInWords(const PastDay& day) {
  std::string words = day.rule ? day.name : InWords("Working day");
  if (!day.comment.empty()) words += ": " + day.comment;
  return OneLine(std::move(words));
}

EntryChanges LoadChanges(const HistoryEntry& entry, const CurrencyList& currencies) {
  EntryChanges changes;
  if (const auto detailed = LoadEntry(entry.id)) {
    for (const ReplacedRow& row : detailed->rows) AddRow(row, currencies, changes);
  }
  if (entry.currency && entry.year) {
    const PastCalendar before = LoadCalendarBehind(*entry.currency, *entry.year, entry.id - 1);
    const PastCalendar behind = LoadCalendarBehind(*entry.currency, *entry.year, entry.id);
    AddDays(before, behind, CalendarName(currencies.FindOrNumber(*entry.currency), *entry.year), changes);
  }
  return changes;
}

}  // namespace ferrowind::planning
