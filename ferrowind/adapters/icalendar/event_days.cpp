#include "ferrowind/adapters/icalendar/event_days.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdint>
#include <string_view>
#include <utility>
#include <vector>

#include "ferrowind/adapters/icalendar/components.h"

namespace ferrowind::icalendar {
namespace {

using exchange::WantedYears;
using platform::Date;
/// Of days (`platform::Date`).
using Serials = std::vector<std::int32_t>;

constexpr int kMostDaysOfEvent = 366;
/// Behind it libical repeats nothing.
constexpr int kLastRepeatedYear = 2500;
/// For how long an event is followed that says how often it repeats, and not until when.
constexpr int kMostYears = 200;

/// Thrown where an event cannot be read, and caught where its reading began.
struct NoDays {
  std::string why;
};

icalproperty* First(icalcomponent* event, icalproperty_kind kind) {
  return icalcomponent_get_first_property(event, kind);
}

Date DateOf(const icaltimetype& time, const std::string& what) {
  const bool is_day = time.year >= exchange::kFirstListedYear && time.year <= exchange::kLastListedYear &&
                      Date::IsValid(time.year, time.month, time.day);
  if (!is_day) {
    throw NoDays{"its " + what + " is no day of a year from " + std::to_string(exchange::kFirstListedYear) +
                 " to " + std::to_string(exchange::kLastListedYear)};
  }
  return {time.year, time.month, time.day};
}

bool IsMidnight(const icaltimetype& time) { return time.hour == 0 && time.minute == 0 && time.second == 0; }
/// What some programs write for the end of a day.
bool IsLastMinute(const icaltimetype& time) { return time.hour == 23 && time.minute == 59; }

class Reader {
 public:
  Reader(icalcomponent* event, const std::optional<WantedYears>& wanted, Patience& patience)
      : event_(event), wanted_(wanted), patience_(patience) {}

  EventDays Read() {
    RequireSound();
    icalproperty* const start = First(event_, ICAL_DTSTART_PROPERTY);
    if (start == nullptr) throw NoDays{"it has no beginning (DTSTART)"};
    start_ = icalproperty_get_dtstart(start);
    const Date first = DateOf(start_, "beginning (DTSTART)");
    ReadLength(first);
    Serials days;
    for (const std::int32_t begin : BeginsOf(first)) {
      for (int i = 0; i < length_; ++i) {
        LookAtOne();
        days.push_back(begin + i);
      }
    }
    Sort(days);
    for (const std::int32_t day : days) {
      const Date date = Date::FromSerial(day);
      const bool is_wanted =
          !repeats_ || !wanted_ || (date.Year() >= wanted_->first && date.Year() <= wanted_->last);
      if (is_wanted && date.Year() <= exchange::kLastListedYear) result_.days.push_back(date);
    }
    return std::move(result_);
  }

 private:
  /// libical leaves out what it cannot read of an event, and says so in a property.
  void RequireSound() {
    if (First(event_, ICAL_RECURRENCEID_PROPERTY) != nullptr) {
      throw NoDays{
          "it changes one day of an event that repeats (RECURRENCE-ID), which is not read; export the days "
          "as "
          "events of their own"};
    }
    constexpr std::array<std::string_view, 6> kNeeded = {"DTSTART", "DTEND", "DURATION",
                                                         "RRULE",   "RDATE", "EXDATE"};
    for (icalproperty* property = First(event_, ICAL_XLICERROR_PROPERTY); property != nullptr;
         property = icalcomponent_get_next_property(event_, ICAL_XLICERROR_PROPERTY)) {
      const char* const said = icalproperty_get_xlicerror(property);
      if (said == nullptr) continue;
      for (const std::string_view name : kNeeded) {
        if (std::string_view(said).find(name) != std::string_view::npos) {
          throw NoDays{"its " + std::string(name) + " cannot be read"};
        }
      }
    }
  }

  /// How many days it lasts, and whether these are whole ones.
  void ReadLength(const Date& first) {
    icaltimetype end = start_;
    if (icalproperty* const property = First(event_, ICAL_DTEND_PROPERTY); property != nullptr) {
      end = icalproperty_get_dtend(property);
    } else if (icalproperty* const duration = First(event_, ICAL_DURATION_PROPERTY); duration != nullptr) {
      const icaldurationtype lasts = icalproperty_get_duration(duration);
      // Longer ones are refused below; here they must only be small enough to be added.
      constexpr unsigned kMostWeeks = 1000;
      constexpr unsigned kMostUnits = 7 * kMostWeeks * 24 * 3600;
      if (lasts.is_neg != 0 || lasts.weeks > kMostWeeks || lasts.days > 7 * kMostWeeks ||
          lasts.hours > kMostUnits || lasts.minutes > kMostUnits || lasts.seconds > kMostUnits) {
        throw NoDays{"its duration is negative or longer than a year"};
      }
      end = icaltime_add(start_, lasts);
    } else if (start_.is_date != 0) {
      return;
    }
    const Date last = DateOf(end, "end (DTEND)");
    const int between = last.Serial() - first.Serial();
    if (between < 0 || between > kMostDaysOfEvent)
      throw NoDays{"it ends before it begins, or lasts longer than a year"};
    if (start_.is_date != 0) {
      // The end is the day behind the last one, but some programs write the same day.
      length_ = std::max(between, 1);
      return;
    }
    if (IsMidnight(start_) && IsMidnight(end) && between > 0) {
      length_ = between;
    } else if (IsMidnight(start_) && IsLastMinute(end)) {
      length_ = between + 1;
    } else {
      result_.are_whole = false;
      length_ = IsMidnight(end) && between > 0 ? between : between + 1;
    }
  }

  static void Sort(Serials& days) {
    std::sort(days.begin(), days.end());
    days.erase(std::unique(days.begin(), days.end()), days.end());
  }

  /// The days on which it begins.
  Serials BeginsOf(const Date& first) {
    Serials begins = {first.Serial()};
    for (icalproperty* property = First(event_, ICAL_RRULE_PROPERTY); property != nullptr;
         property = icalcomponent_get_next_property(event_, ICAL_RRULE_PROPERTY)) {
      Repeat(icalproperty_get_rrule(property), begins);
    }
    for (icalproperty* property = First(event_, ICAL_RDATE_PROPERTY); property != nullptr;
         property = icalcomponent_get_next_property(event_, ICAL_RDATE_PROPERTY)) {
      const icaldatetimeperiodtype more = icalproperty_get_rdate(property);
      const bool is_period = icaltime_is_null_time(more.time) != 0;
      begins.push_back(DateOf(is_period ? more.period.start : more.time, "further day (RDATE)").Serial());
    }
    Sort(begins);
    for (icalproperty* property = First(event_, ICAL_EXDATE_PROPERTY); property != nullptr;
         property = icalcomponent_get_next_property(event_, ICAL_EXDATE_PROPERTY)) {
      const Date left_out = DateOf(icalproperty_get_exdate(property), "left-out day (EXDATE)");
      const auto found = std::lower_bound(begins.begin(), begins.end(), left_out.Serial());
      if (found != begins.end() && *found == left_out.Serial()) begins.erase(found);
    }
    return begins;
  }

  void Repeat(const icalrecurrencetype& rule, Serials& begins) {
    repeats_ = true;
    if (rule.freq == ICAL_SECONDLY_RECURRENCE || rule.freq == ICAL_MINUTELY_RECURRENCE ||
        rule.freq == ICAL_HOURLY_RECURRENCE || rule.freq == ICAL_NO_RECURRENCE) {
      throw NoDays{"it repeats more often than daily (RRULE)"};
    }
    const bool has_end = icaltime_is_null_time(rule.until) == 0;
    if (rule.count == 0 && !has_end && !wanted_) {
      throw NoDays{"it repeats without an end (RRULE); say with --year which years are wanted"};
    }
    int last = has_end ? rule.until.year : start_.year + kMostYears;
    if (wanted_) last = wanted_->last;
    if (last > kLastRepeatedYear) {
      throw NoDays{"it repeats (RRULE), which is not read for years after " +
                   std::to_string(kLastRepeatedYear)};
    }
    const int seen = Iterate(rule, last, begins);
    if (rule.count > seen && !has_end && !wanted_) {
      throw NoDays{"it repeats for more than " + std::to_string(kMostYears) +
                   " years, or on days that never come (RRULE)"};
    }
  }

  /// How many of its days there are to the end of the year `last`.
  int Iterate(icalrecurrencetype rule, int last, Serials& begins) {
    // libical looks for a day that never comes as far as it is let.
    if (icaltime_is_null_time(rule.until) != 0 || rule.until.year > last) {
      rule.until = start_;
      rule.until.year = last;
      rule.until.month = 12;
      rule.until.day = 31;
    }
    LookAtOne();
    const Iterator iterator(icalrecur_iterator_new(rule, start_));
    if (iterator == nullptr) throw NoDays{"it repeats in a way that cannot be read (RRULE)"};
    for (int seen = 0;; ++seen) {
      const icaltimetype next = icalrecur_iterator_next(iterator.get());
      if (icaltime_is_null_time(next) != 0 || next.year > last) return seen;
      LookAtOne();
      begins.push_back(DateOf(next, "repetition (RRULE)").Serial());
    }
  }

  void LookAtOne() {
    if (patience_.days == 0 || std::chrono::steady_clock::now() > patience_.end)
      throw NoDays{"the file has too many days; ask for fewer years, or split it"};
    --patience_.days;
  }

  icalcomponent* event_;
  const std::optional<WantedYears>& wanted_;
  Patience& patience_;
  icaltimetype start_ = icaltime_null_time();
  int length_ = 1;
  bool repeats_ = false;
  EventDays result_;
};

}  // namespace

EventDays DaysOf(icalcomponent* event, const std::optional<WantedYears>& wanted, Patience& patience) {
  try {
    return Reader(event, wanted, patience).Read();
  } catch (const NoDays& none) {
    return {{}, true, none.why};
  }
}

}  // namespace ferrowind::icalendar
