#include "ferrowind/planning/holiday_closing.h"

#include <algorithm>
#include <utility>

#include "ferrowind/almanac/planner.h"
#include "ferrowind/planning/book_dates.h"
#include "ferrowind/planning/calendar_change.h"
#include "ferrowind/planning/in_words.h"
#include "ferrowind/planning/one_line.h"
#include "ferrowind/planning/plan_words.h"
#include "ferrowind/platform/values/case_fold.h"
#include "ferrowind/platform/values/failure.h"
#include "ferrowind/platform/values/json_text.h"

namespace ferrowind::planning {
namespace {

using almanac::MarkedDay;
using platform::Date;
using platform::Failure;

constexpr const char* kBook = "book";

}  // namespace

HolidayClosing::HolidayClosing(const almanac::DateTables& tables, YearOverview seen,
                               std::vector<SelectedDays> days)
    : tables_(tables), seen_(std::move(seen)), planner_(tables), names_(planner_) {
  for (const SelectedDays& selected : days) places_.push_back(PlaceOf(selected));
  SetName("");
}

HolidayClosing::Place HolidayClosing::PlaceOf(const SelectedDays& selected) const {
  Place place{.calendar = &seen_.Calendars()[selected.calendar], .days = selected.days};
  try {
    place.plan = planner_.Plan(place.calendar->currency, seen_.Year());
  } catch (const Failure& failure) {
    place.why_no_plan = failure.Description();
  }
  return place;
}

Date HolidayClosing::DateOf(std::int16_t day) const { return Date(seen_.Year(), 1, 1).AddDays(day - 1); }

std::string HolidayClosing::NameOf(const Place& place) const {
  return CalendarName(place.calendar->currency, seen_.Year());
}

const MarkedDay* HolidayClosing::MarkOf(const Place& place, std::int16_t day) {
  const auto& days = place.calendar->content.days;
  const auto found = std::lower_bound(
      days.begin(), days.end(), day,
      [](const MarkedDay& marked, std::int16_t sought) { return marked.day_of_year < sought; });
  return found == days.end() || found->day_of_year != day ? nullptr : &*found;
}

void HolidayClosing::SetName(const std::string& typed) { name_ = names_.Read(typed, {}); }

HolidayName HolidayClosing::Name() const { return names_.Read(name_.name, TakenDates()); }

std::vector<std::string> HolidayClosing::KnownNames() const { return names_.For(TakenDates()); }

// What is taken
// ------------------------------------------------------------------------------------------------

std::string HolidayClosing::KeyOf(const Place& place, const std::string& what) {
  return std::to_string(place.calendar->currency.id) + "/" + what;
}

bool HolidayClosing::IsTaken(const std::string& key, bool is_taken_at_first) const {
  const auto decided = decisions_.find(key);
  return decided == decisions_.end() ? is_taken_at_first : decided->second;
}

bool HolidayClosing::IsTaken(const Place& place, std::int16_t day) const {
  const MarkedDay* const marked = MarkOf(place, day);
  if (!place.calendar->exists || (marked != nullptr && marked->IsClosed())) return false;
  return IsTaken(KeyOf(place, std::to_string(day)), marked == nullptr || IsOpenByBook(place, day));
}

bool HolidayClosing::IsOpenByBook(const Place& place, std::int16_t day) {
  return place.plan && place.plan->Find(day) == nullptr;
}

std::vector<std::int16_t> HolidayClosing::TakenDays(const Place& place) const {
  std::vector<std::int16_t> taken;
  std::copy_if(place.days.begin(), place.days.end(), std::back_inserter(taken),
               [&](std::int16_t day) { return IsTaken(place, day); });
  return taken;
}

std::vector<Date> HolidayClosing::TakenDates() const {
  std::vector<Date> dates;
  for (const Place& place : places_) {
    for (const std::int16_t day : TakenDays(place)) dates.push_back(DateOf(day));
  }
  return dates;
}

std::vector<std::int16_t> HolidayClosing::DaysForBook(const Place& place) const {
  std::vector<std::int16_t> days;
  if (!place.plan) return days;
  for (const std::int16_t day : TakenDays(place)) {
    if (IsOpenByBook(place, day)) days.push_back(day);
  }
  return days;
}

bool HolidayClosing::CanClose() const {
  return Name().refusal.empty() && std::any_of(places_.begin(), places_.end(),
                                               [&](const auto& place) { return !TakenDays(place).empty(); });
}

// In words
// ------------------------------------------------------------------------------------------------

std::vector<ClosingLine> HolidayClosing::Lines() const {
  std::vector<ClosingLine> lines;
  for (const Place& place : places_) {
    if (!place.calendar->exists) {
      ClosingLine& line = lines.emplace_back();
      line.kind = ClosingLine::Kind::kNoCalendar;
      line.key = KeyOf(place, "calendar");
      line.calendar = NameOf(place);
      line.becomes = InWords("nothing: there is no such calendar. Prepare the year first");
      line.is_warning = true;
      continue;
    }
    for (const std::int16_t day : place.days) lines.push_back(LineOf(place, day));
    if (!TakenDays(place).empty()) lines.push_back(BookLineOf(place));
  }
  return lines;
}

ClosingLine HolidayClosing::LineOf(const Place& place, std::int16_t day) const {
  ClosingLine line;
  line.key = KeyOf(place, std::to_string(day));
  line.calendar = NameOf(place);
  line.date = DateOf(day);
  const MarkedDay* const marked = MarkOf(place, day);
  if (marked != nullptr) {
    line.now = seen_.NameOf(*marked);
    if (!marked->comment.empty()) line.now = OneLine(*line.now + ": " + marked->comment);
    if (marked->IsClosed()) {
      line.becomes = InWords("stays as it is: it is closed already");
      return line;
    }
  }
  line.is_taken = IsTaken(place, day);
  if (!*line.is_taken) {
    line.becomes = InWords("stays open");
    line.is_warning = marked != nullptr;
    return line;
  }
  line.becomes = marked == nullptr ? InWords("is closed")
                 : IsOpenByBook(place, day)
                     ? InWords("is closed; the exception goes, which has opened nothing")
                     : InWords("is closed; the exception goes");
  line.is_warning = marked != nullptr;
  const almanac::PlannedDay* const planned = place.plan ? place.plan->Find(day) : nullptr;
  if (planned != nullptr && platform::CompareIgnoringCase(place.plan->NameOf(*planned), name_.name) != 0) {
    line.becomes = InWords("is closed, but the rule book has %1 there", {place.plan->NameOf(*planned)});
    line.is_warning = true;
  }
  return line;
}

ClosingLine HolidayClosing::BookLineOf(const Place& place) const {
  ClosingLine line;
  line.kind = ClosingLine::Kind::kBook;
  line.key = KeyOf(place, kBook);
  line.calendar = UnmistakableCode(place.calendar->currency);
  const auto days = DaysForBook(place);
  if (days.empty()) {
    line.becomes = WhyNotInBook(place);
    line.is_warning = !place.plan;
    return line;
  }
  line.is_taken = IsTaken(line.key, true);
  line.is_warning = !*line.is_taken;
  line.becomes = BecomesOfBook(days.size(), *line.is_taken);
  return line;
}

std::string HolidayClosing::WhyNotInBook(const Place& place) const {
  if (!place.plan) return place.why_no_plan;
  const auto days = TakenDays(place);
  const bool has_all = std::all_of(days.begin(), days.end(), [&](std::int16_t day) {
    return platform::CompareIgnoringCase(place.plan->NameOf(*place.plan->Find(day)), name_.name) == 0;
  });
  return has_all ? InWords("has the day already") : InWords("has something else there, and stays as it is");
}

std::string HolidayClosing::Summary() const {
  std::size_t days = 0;
  std::size_t books = 0;
  for (const ClosingLine& line : Lines()) {
    if (!line.is_taken.value_or(false)) continue;
    ++(line.kind == ClosingLine::Kind::kBook ? books : days);
  }
  if (days == 0) return InWords("No day will be closed.");
  const std::string closed = InWords(days, "%n day will be closed", "%n days will be closed");
  if (books == 0) return InWords("%1, and entered in no rule book.", {closed});
  return InWords(books, "%1 and entered in %n rule book.", "%1 and entered in %n rule books.", {closed});
}

// Doing
// ------------------------------------------------------------------------------------------------

ClosingOutcome HolidayClosing::Close() const {
  ClosingOutcome outcome;
  std::vector<Entering> entering;
  for (const Place& place : places_) {
    if (TakenDays(place).empty() || !CloseDaysOf(place, outcome)) continue;
    auto days = DaysForBook(place);
    if (!days.empty() && IsTaken(KeyOf(place, kBook), true)) entering.push_back({&place, std::move(days)});
  }
  if (!entering.empty()) EnterInBooks(entering, outcome);
  return outcome;
}

bool HolidayClosing::CloseDaysOf(const Place& place, ClosingOutcome& outcome) const {
  const auto days = TakenDays(place);
  const std::string json = "[{\"Name1\":" + platform::JsonText(name_.name) +
                           ",\"TID1\":" + std::to_string(static_cast<int>(name_.kind)) +
                           ",\"Dates\":" + DatesJson(seen_.Year(), days) + "}]";
  try {
    //: said 1
    if (!ChangeSeenDays("Closing days of %1", place.calendar->currency, place.calendar->content, json)) {
      outcome.problems.push_back(ChangedMeanwhile(NameOf(place)));
      return false;
    }
  } catch (const Failure& failure) {
    outcome.may_have_changed = true;
    outcome.problems.push_back(failure.Description() + ".");
    return false;
  }
  outcome.may_have_changed = true;
  outcome.days += days.size();
  return true;
}

void HolidayClosing::EnterInBooks(const std::vector<Entering>& entering, ClosingOutcome& outcome) const {
  BookDates books(tables_);
  for (const auto& [place, days] : entering) {
    const Currency& currency = place->calendar->currency;
    std::vector<DatedHoliday> holidays;
    for (const std::int16_t day : days) holidays.push_back({DateOf(day), name_.name, name_.kind});
    const auto why_not = books.Enter(currency, holidays);
    if (!why_not) {
      ++outcome.books;
      continue;
    }
    outcome.problems.push_back(
        InWords("The rule book of %1 does not get the holiday, so that the board will "
                "call it a difference. %2.",
                {UnmistakableCode(currency), *why_not}));
  }
}

}  // namespace ferrowind::planning
