#include "ferrowind/views/planning/year_content.h"

#include <algorithm>
#include <numeric>
#include <vector>

#include "ferrowind/almanac/day_counts.h"
#include "ferrowind/planning/in_words.h"
#include "ferrowind/views/planning/joint_days.h"

namespace ferrowind {
namespace {

using almanac::DayCounts;
using almanac::MarkedDay;
using almanac::Readiness;
using almanac::RuleKind;
using planning::InWords;
using planning::YearOverview;
using platform::DayLook;
using platform::DayShape;
using platform::DayTint;
using platform::YearCalendar;
using platform::YearContent;

const DayLook kWeekendLook = {DayTint::kGrey, DayShape::kBar, ""};
const DayLook kCelebrationLook = {DayTint::kRed, DayShape::kSquare, "C"};
const DayLook kPointLook = {DayTint::kViolet, DayShape::kDiamond, "P"};
const DayLook kExceptionLook = {DayTint::kGreen, DayShape::kTriangle, "E"};
const DayLook kUnknownLook = {DayTint::kAmber, DayShape::kHatching, ""};

const DayLook& LookOf(const MarkedDay& day) {
  switch (day.kind) {
    case RuleKind::kWeekday:
      return kWeekendLook;
    case RuleKind::kCelebration:
      return kCelebrationLook;
    case RuleKind::kPoint:
      return kPointLook;
    case RuleKind::kWorkingDay:
      break;
  }
  return kExceptionLook;
}

/// "Good Friday, closed", with the day's own text behind it.
std::string Description(const YearOverview& overview, const MarkedDay& day) {
  const std::string comment = day.comment.empty() ? "" : ": " + day.comment;
  if (!day.IsClosed()) return InWords(almanac::kExceptionName) + comment;
  if (day.kind == RuleKind::kWeekday) return InWords("weekend, closed") + comment;
  return InWords("%1, closed", {overview.NameOf(day)}) + comment;
}

std::string Words(const DayCounts& counts) {
  //: says 2 3
  const auto count = [](int number, const char* one, const char* many) {
    return InWords(static_cast<std::size_t>(number), one, many);
  };
  std::string words = count(counts.Open(), "%n working day", "%n working days");
  if (counts.exceptions != 0)
    words += " (" + count(counts.exceptions, "%n by exception", "%n by exception") + ")";
  return words + ", " + count(counts.weekend, "%n weekend day", "%n weekend days") + ", " +
         count(counts.holidays, "%n holiday", "%n holidays");
}

YearCalendar RowOf(const planning::Currency& currency) {
  YearCalendar row;
  row.key = YearCalendarKey(currency);
  row.caption = planning::UnmistakableCode(currency);
  row.description = currency.name;
  return row;
}

/// Of a calendar that closes no day, be it that there is none: no day of it looks open, except where somebody
/// has said so.
YearCalendar UnknownRow(const YearOverview& overview, const YearOverview::Calendar& calendar) {
  YearCalendar row = RowOf(calendar.currency);
  row.ordinary = InWords(calendar.exists ? "not prepared" : "no calendar");
  auto marked = calendar.content.days.begin();
  for (int day = 1; day <= platform::DaysInYear(overview.Year()); ++day) {
    const auto number = static_cast<std::int16_t>(day);
    if (marked != calendar.content.days.end() && marked->day_of_year == number) {
      row.days.push_back({number, LookOf(*marked), Description(overview, *marked)});
      ++marked;
    } else {
      row.days.push_back({number, kUnknownLook, row.ordinary});
    }
  }
  row.months.fill({"-", row.ordinary});
  return row;
}

YearCalendar RowOf(const YearOverview& overview, const YearOverview::Calendar& calendar, bool is_only_one) {
  if (calendar.readiness == Readiness::kNotPrepared) return UnknownRow(overview, calendar);
  YearCalendar row = RowOf(calendar.currency);
  if (calendar.readiness == Readiness::kWeekendsOnly)
    row.description = InWords("%1: weekends only", {row.description});
  row.ordinary = InWords("working day");
  for (const MarkedDay& day : calendar.content.days) {
    row.days.push_back({day.day_of_year, LookOf(day), Description(overview, day)});
  }
  const almanac::MonthCounts months = almanac::CountDays(calendar.content);
  for (std::size_t month = 0; month < months.size(); ++month) {
    const int open = months[month].Open();
    row.months[month].text =
        is_only_one ? InWords(static_cast<std::size_t>(open), "%n working day", "%n working days")
                    : std::to_string(open);
    row.months[month].description = Words(months[month]);
  }
  return row;
}

/// What hatched days mean; "" when there are none.
std::string MeaningOfUnknown(const YearOverview& overview) {
  bool is_any_missing = false;
  bool is_any_empty = false;
  for (const auto& calendar : overview.Calendars()) {
    if (calendar.readiness != Readiness::kNotPrepared) continue;
    (calendar.exists ? is_any_empty : is_any_missing) = true;
  }
  if (is_any_missing && is_any_empty) return InWords("No calendar, or not prepared");
  if (is_any_missing) return InWords("No calendar");
  return is_any_empty ? InWords("Not prepared") : "";
}

bool HasNothingButWeekends(const YearOverview& overview) {
  const auto& calendars = overview.Calendars();
  return calendars.size() == 1 && calendars.front().readiness == Readiness::kWeekendsOnly;
}

std::vector<platform::YearLegendEntry> LegendOf(const YearOverview& overview) {
  //: said
  const char* const weekend = HasNothingButWeekends(overview) ? "Weekends only" : "Weekend";
  std::vector<platform::YearLegendEntry> legend = {{kWeekendLook, InWords(weekend)},
                                                   {kCelebrationLook, InWords("Celebration")},
                                                   {kPointLook, InWords("Holiday point")},
                                                   {kExceptionLook, InWords(almanac::kExceptionName)}};
  const auto& calendars = overview.Calendars();
  if (calendars.size() > 1) legend.push_back({SomeAreClosedLook(2), InWords("How many are closed")});
  const std::string unknown = MeaningOfUnknown(overview);
  if (!unknown.empty()) legend.push_back({kUnknownLook, unknown});
  return legend;
}

std::string SummaryOf(const YearOverview::Calendar& only) {
  if (!only.exists) return InWords("There is no such calendar");
  if (only.readiness == Readiness::kNotPrepared) return InWords("Not prepared: none of its days is closed");
  const std::string counts = Words(almanac::Total(almanac::CountDays(only.content)));
  return only.readiness == Readiness::kWeekendsOnly ? InWords("Weekends only: %1", {counts}) : counts;
}

std::string SummaryOf(const YearOverview& overview) {
  const auto& calendars = overview.Calendars();
  if (calendars.empty()) return {};
  return calendars.size() == 1 ? SummaryOf(calendars.front()) : JointSummary(overview);
}

}  // namespace

YearContent YearContentOf(const YearOverview& overview, const platform::Date& today) {
  YearContent content;
  content.year = overview.Year();
  if (today.Year() == overview.Year()) content.today = static_cast<std::int16_t>(today.DayOfYear());
  const auto& calendars = overview.Calendars();
  if (calendars.size() > 1) content.calendars.push_back(JointRow(overview));
  for (const auto& calendar : calendars) {
    content.calendars.push_back(RowOf(overview, calendar, calendars.size() == 1));
  }
  content.legend = LegendOf(overview);
  content.notes = NotesOf(overview);
  content.summary = SummaryOf(overview);
  return content;
}

std::string YearCalendarKey(const planning::Currency& currency) { return std::to_string(currency.id); }

std::optional<std::size_t> CalendarOfKey(const YearOverview& overview, const std::string& key) {
  const auto& calendars = overview.Calendars();
  const auto found = std::find_if(calendars.begin(), calendars.end(), [&](const auto& calendar) {
    return YearCalendarKey(calendar.currency) == key;
  });
  if (found == calendars.end()) return std::nullopt;
  return static_cast<std::size_t>(found - calendars.begin());
}

std::string HeadingOf(const YearOverview& overview) {
  std::string heading;
  for (const auto& calendar : overview.Calendars()) {
    heading += (heading.empty() ? "" : ", ") + planning::UnmistakableCode(calendar.currency);
  }
  return heading + " " + std::to_string(overview.Year());
}

}  // namespace ferrowind
