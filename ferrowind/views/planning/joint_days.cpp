#include "ferrowind/views/planning/joint_days.h"

#include <algorithm>
#include <array>
#include <numeric>
#include <utility>

#include "ferrowind/almanac/day_counts.h"
#include "ferrowind/planning/in_words.h"
#include "ferrowind/views/planning/year_content.h"

namespace ferrowind {
namespace {

using almanac::MarkedDay;
using almanac::Readiness;
using almanac::RuleKind;
using planning::InWords;
using planning::YearOverview;
using platform::DayLook;
using platform::DayShape;
using platform::DayTint;

constexpr std::size_t kDaysOfAnyYear = 366;

/// A day of one of the calendars.
struct Mark {
  const YearOverview::Calendar* calendar;
  const MarkedDay* day;
};

/// The marked days of all calendars, by day of the year.
std::array<std::vector<Mark>, kDaysOfAnyYear + 1> MarksByDay(const YearOverview& overview) {
  std::array<std::vector<Mark>, kDaysOfAnyYear + 1> marks;
  for (const auto& calendar : overview.Calendars()) {
    for (const MarkedDay& day : calendar.content.days) {
      marks[static_cast<std::size_t>(day.day_of_year)].push_back({&calendar, &day});
    }
  }
  return marks;
}

void AppendTo(std::string& list, const std::string& item, const char* separator = ", ") {
  if (!list.empty()) list += separator;
  list += item;
}

/// The codes of the calendars that tell less than they should.
struct Gaps {
  std::string missing;
  std::string not_prepared;
  std::string weekends_only;

  [[nodiscard]] bool IsAnyUnknown() const { return !missing.empty() || !not_prepared.empty(); }
};

Gaps GapsIn(const YearOverview& overview) {
  Gaps gaps;
  for (const auto& calendar : overview.Calendars()) {
    if (!calendar.exists) {
      AppendTo(gaps.missing, planning::UnmistakableCode(calendar.currency));
    } else if (calendar.readiness == Readiness::kNotPrepared) {
      AppendTo(gaps.not_prepared, planning::UnmistakableCode(calendar.currency));
    } else if (calendar.readiness == Readiness::kWeekendsOnly) {
      AppendTo(gaps.weekends_only, planning::UnmistakableCode(calendar.currency));
    }
  }
  return gaps;
}

/// "no calendar of JPY; not prepared: EUR".
std::string UnknownInWords(const Gaps& gaps) {
  std::string words;
  if (!gaps.missing.empty()) AppendTo(words, InWords("no calendar of %1", {gaps.missing}));
  if (!gaps.not_prepared.empty()) AppendTo(words, InWords("not prepared: %1", {gaps.not_prepared}), "; ");
  return words;
}

bool IsKnown(const YearOverview::Calendar& calendar) { return calendar.readiness != Readiness::kNotPrepared; }

/// Names and the codes of the calendars whose days are called so, in the order of the calendars.
using Named = std::vector<std::pair<std::string, std::string>>;

void Add(Named& named, const std::string& name, const std::string& code) {
  const auto known =
      std::find_if(named.begin(), named.end(), [&](const auto& entry) { return entry.first == name; });
  if (known != named.end()) {
    AppendTo(known->second, code);
  } else {
    named.emplace_back(name, code);
  }
}

/// "Good Friday (EUR, USD); Spring Day (GBP)".
std::string ListOf(const Named& named) {
  std::string words;
  for (const auto& [name, codes] : named) AppendTo(words, name + " (" + codes + ")", "; ");
  return words;
}

std::string NameOfClosing(const YearOverview& overview, const MarkedDay& day) {
  return day.kind == RuleKind::kWeekday ? InWords("weekend") : overview.NameOf(day);
}

struct JointDay {
  DayLook look;
  std::string description;
};

JointDay JointDayOf(const YearOverview& overview, const std::vector<Mark>& marks, const Gaps& gaps) {
  const bool is_any_unknown = gaps.IsAnyUnknown();
  const std::size_t known = static_cast<std::size_t>(
      std::count_if(overview.Calendars().begin(), overview.Calendars().end(), IsKnown));
  Named closing;
  std::size_t closed = 0;
  bool is_weekend = true;
  for (const auto& [calendar, day] : marks) {
    if (!day->IsClosed()) continue;
    ++closed;
    is_weekend = is_weekend && day->kind == RuleKind::kWeekday;
    Add(closing, NameOfClosing(overview, *day), planning::UnmistakableCode(calendar->currency));
  }
  JointDay joint;
  if (closed == known && closed != 0) {
    joint.look = is_weekend ? DayLook{DayTint::kGrey, DayShape::kBar, ""}
                            : DayLook{DayTint::kRed, DayShape::kSquare, std::to_string(closed)};
  } else if (closed != 0) {
    joint.look = SomeAreClosedLook(closed);
  } else if (is_any_unknown) {
    joint.look = {DayTint::kNone, DayShape::kNone, "?"};
  }
  if (closed == 0) {
    joint.description = InWords(is_any_unknown ? "open as far as known" : "all open");
  } else if (closed == known && closing.size() == 1) {
    joint.description = InWords("all closed: %1", {closing.front().first});
  } else {
    joint.description = InWords(closed == known ? "all closed: %1" : "closed: %1", {ListOf(closing)});
  }
  if (is_any_unknown) AppendTo(joint.description, UnknownInWords(gaps), "; ");
  return joint;
}

std::array<int, 12> CommonOpenDays(const YearOverview& overview) {
  std::vector<const almanac::CalendarContent*> contents;
  for (const auto& calendar : overview.Calendars()) {
    if (IsKnown(calendar)) contents.push_back(&calendar.content);
  }
  return almanac::CountCommonOpenDays(contents);
}

}  // namespace

DayLook SomeAreClosedLook(std::size_t closed) {
  return {DayTint::kAmber, DayShape::kNone, std::to_string(closed)};
}

platform::YearCalendar JointRow(const YearOverview& overview) {
  platform::YearCalendar row;
  row.key = kJointCalendar;
  row.caption = InWords("All");
  row.description = InWords("All calendars together");
  const Gaps gaps = GapsIn(overview);
  const bool is_any_unknown = gaps.IsAnyUnknown();
  row.ordinary = InWords("all open");
  const auto marks = MarksByDay(overview);
  for (int day = 1; day <= platform::DaysInYear(overview.Year()); ++day) {
    const auto& of_day = marks[static_cast<std::size_t>(day)];
    if (of_day.empty() && !is_any_unknown) continue;
    JointDay joint = JointDayOf(overview, of_day, gaps);
    row.days.push_back({static_cast<std::int16_t>(day), std::move(joint.look), std::move(joint.description)});
  }
  const std::array<int, 12> open = CommonOpenDays(overview);
  for (std::size_t month = 0; month < open.size(); ++month) {
    // What nobody knows of one calendar nobody knows of all of them.
    row.months[month].text = is_any_unknown ? "-" : std::to_string(open[month]);
    row.months[month].description = is_any_unknown
                                        ? UnknownInWords(gaps)
                                        : InWords(static_cast<std::size_t>(open[month]),
                                                  "open together on %n day", "open together on %n days");
  }
  return row;
}

std::string JointSummary(const YearOverview& overview) {
  const Gaps gaps = GapsIn(overview);
  if (std::none_of(overview.Calendars().begin(), overview.Calendars().end(), IsKnown))
    return InWords("Nothing is known: %1", {UnknownInWords(gaps)});
  const std::array<int, 12> months = CommonOpenDays(overview);
  const int days = std::accumulate(months.begin(), months.end(), 0);
  std::string words =
      InWords(static_cast<std::size_t>(days), "Open together on %n day", "Open together on %n days");
  if (gaps.IsAnyUnknown()) words = InWords("%1 as far as known; %2", {words, UnknownInWords(gaps)});
  if (!gaps.weekends_only.empty()) words = InWords("%1; weekends only: %2", {words, gaps.weekends_only});
  return words;
}

std::vector<platform::YearNote> NotesOf(const YearOverview& overview) {
  const bool is_only_one = overview.Calendars().size() == 1;
  const auto marks = MarksByDay(overview);
  std::vector<platform::YearNote> notes;
  for (int day = 1; day <= platform::DaysInYear(overview.Year()); ++day) {
    Named named;
    for (const auto& [calendar, marked] : marks[static_cast<std::size_t>(day)]) {
      if (marked->kind == RuleKind::kWeekday) continue;
      std::string name = marked->IsClosed() ? overview.NameOf(*marked) : InWords(almanac::kExceptionName);
      if (!marked->comment.empty()) name += ": " + marked->comment;
      Add(named, name, planning::UnmistakableCode(calendar->currency));
    }
    if (named.empty()) continue;
    notes.push_back({static_cast<std::int16_t>(day), is_only_one ? named.front().first : ListOf(named)});
  }
  return notes;
}

}  // namespace ferrowind
