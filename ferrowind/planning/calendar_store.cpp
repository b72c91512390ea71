#include "ferrowind/planning/calendar_store.h"

#include <cstdint>
#include <initializer_list>
#include <string>
#include <utility>

#include "ferrowind/planning/database_call.h"
#include "ferrowind/planning/in_words.h"
#include "ferrowind/platform/values/conversion.h"

namespace ferrowind::planning {
namespace {

using almanac::CalendarContent;
using almanac::KnownRule;
using almanac::MarkedDay;
using almanac::RuleKind;
using platform::RecordSet;
using platform::Value;

std::string Reading(const Currency& currency, int year) {
  return InWords("Reading the calendar %1 %2", {UnmistakableCode(currency), std::to_string(year)});
}

SourceValues CalendarParameters(const Currency& currency, int year) {
  SourceValues parameters;
  parameters.Add("ID1", currency.id);
  parameters.Add("Year1", static_cast<std::int32_t>(year));
  return parameters;
}

/// Columns of whole numbers are of the type that the engine found them to be, mostly this one.
std::int32_t Number(const Value& value) {
  const auto* const number = value.If<std::int32_t>();
  return number != nullptr ? *number : platform::ToInt32(value);
}

/// The places of what makes a marked day, looked up once for many rows.
struct DayFields {
  explicit DayFields(const RecordSet& rows)
      : day(rows.FieldNamed("Day1")),
        kind(rows.FieldNamed("TID1")),
        rule(rows.FieldNamed("ID2")),
        comment(rows.FieldNamed("Comment")) {}

  [[nodiscard]] MarkedDay Read(const RecordSet& rows, RecordSet::Bookmark row) const {
    MarkedDay marked;
    marked.day_of_year = static_cast<std::int16_t>(Number(rows.Cell(row, day)));
    marked.kind = static_cast<RuleKind>(Number(rows.Cell(row, kind)));
    marked.rule = Number(rows.Cell(row, rule));
    if (const Value& text = rows.Cell(row, comment); !text.IsEmpty()) marked.comment = platform::ToText(text);
    return marked;
  }

  std::size_t day, kind, rule, comment;
};

/// The same of what makes a rule.
struct RuleFields {
  explicit RuleFields(const RecordSet& rows)
      : id(rows.FieldNamed("ID2")),
        name(rows.FieldNamed("Name1")),
        kind(rows.FieldNamed("TID1")),
        month(rows.FieldNamed("MY")),
        day(rows.FieldNamed("MD")),
        removal(rows.FieldNamed("Del")) {}

  [[nodiscard]] KnownRule Read(const RecordSet& rows, RecordSet::Bookmark row) const {
    constexpr std::int32_t kRemoved = 2;
    KnownRule rule;
    rule.id = Number(rows.Cell(row, id));
    rule.name = platform::ToTextOrEmpty(rows.Cell(row, name));
    rule.kind = static_cast<RuleKind>(Number(rows.Cell(row, kind)));
    const Value& month_of_date = rows.Cell(row, month);
    const Value& day_of_date = rows.Cell(row, day);
    if (rule.kind == RuleKind::kCelebration && !month_of_date.IsEmpty() && !day_of_date.IsEmpty()) {
      rule.month = platform::ToInt32(month_of_date);
      rule.day = platform::ToInt32(day_of_date);
    }
    const Value& mark = rows.Cell(row, removal);
    rule.is_removed = !mark.IsEmpty() && platform::ToInt32(mark) == kRemoved;
    return rule;
  }

  std::size_t id, name, kind, month, day, removal;
};

/// Nothing when the procedure returns one of `no_calendar`.
std::optional<CalendarContent> ReadDays(const Currency& currency, int year,
                                        std::initializer_list<std::int32_t> no_calendar) {
  const CallAnswer days =
      CallDatabase(Reading(currency, year), "CldGetMain", CalendarParameters(currency, year), 1, no_calendar);
  if (days.return_value != return_value::kDone) return std::nullopt;
  CalendarContent content{year, {}};
  const RecordSet& rows = *days.record_sets.front();
  const DayFields fields(rows);
  for (std::size_t i = 0; i < rows.RowCount(); ++i) {
    const auto row = rows.BookmarkAt(i);
    if (!rows.Cell(row, fields.rule).IsEmpty()) content.days.push_back(fields.Read(rows, row));
  }
  return content;
}

}  // namespace

StoredCalendar LoadCalendar(const Currency& currency, int year) {
  StoredCalendar calendar;
  const auto shared = ShareConnections();
  const CallAnswer fingerprint =
      CallDatabase(Reading(currency, year), "CldGetFingerprint", CalendarParameters(currency, year), 1);
  auto days = ReadDays(currency, year, {return_value::kUnknownCalendar});
  RecordSet& fingerprints = *fingerprint.record_sets.front();
  fingerprints.MoveFirst();
  calendar.fingerprint = fingerprints.Eof() ? "" : platform::ToTextOrEmpty(fingerprints["Fingerprint"]);
  calendar.exists = days.has_value();
  calendar.content = days ? *std::move(days) : CalendarContent{year, {}};
  return calendar;
}

std::optional<CalendarContent> LoadDays(const Currency& currency, int year) {
  return ReadDays(currency, year, {return_value::kUnknownCalendar, return_value::kUnknownCurrency});
}

std::vector<KnownRule> RulesIn(const RecordSet& rows) {
  const RuleFields fields(rows);
  std::vector<KnownRule> rules;
  rules.reserve(rows.RowCount());
  for (std::size_t i = 0; i < rows.RowCount(); ++i) rules.push_back(fields.Read(rows, rows.BookmarkAt(i)));
  return rules;
}

StoredRules LoadRules() {
  const CallAnswer answer = CallDatabase(InWords("Reading the rules"), "CldAllInfo", {}, 3);
  StoredRules stored;
  const RecordSet& calendars = *answer.record_sets[0];
  const std::size_t currency = calendars.FieldNamed("ID1");
  const std::size_t year = calendars.FieldNamed("Year1");
  stored.calendars.reserve(calendars.RowCount());
  for (std::size_t i = 0; i < calendars.RowCount(); ++i) {
    const auto row = calendars.BookmarkAt(i);
    stored.calendars.emplace_back(Number(calendars.Cell(row, currency)), Number(calendars.Cell(row, year)));
  }
  stored.rules = RulesIn(*answer.record_sets[2]);
  return stored;
}

std::vector<std::pair<CalendarKey, CalendarContent>> LoadMarkedDays(int first_year, int last_year) {
  SourceValues parameters;
  parameters.Add("FromYear", static_cast<std::int32_t>(first_year));
  parameters.Add("ToYear", static_cast<std::int32_t>(last_year));
  const CallAnswer answer =
      CallDatabase(InWords("Reading the days of all calendars"), "CldGetMarkedDays", parameters, 1);
  const RecordSet& rows = *answer.record_sets.front();
  const std::size_t currency = rows.FieldNamed("ID1");
  const std::size_t year = rows.FieldNamed("Year1");
  const DayFields fields(rows);
  // The weekends of a year and its holidays.
  constexpr std::size_t kUsualDays = 128;
  std::vector<std::pair<CalendarKey, CalendarContent>> contents;
  for (std::size_t i = 0; i < rows.RowCount(); ++i) {
    const auto row = rows.BookmarkAt(i);
    const CalendarKey key(Number(rows.Cell(row, currency)), Number(rows.Cell(row, year)));
    if (contents.empty() || contents.back().first != key) {
      contents.push_back({key, {key.second, {}}});
      contents.back().second.days.reserve(kUsualDays);
    }
    contents.back().second.days.push_back(fields.Read(rows, row));
  }
  return contents;
}

}  // namespace ferrowind::planning
