#include "host/business_days/ferrowind_business_days.h"

#include <algorithm>
#include <chrono>
#include <cstring>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "ferrowind/business_days/business_calendar.h"
#include "ferrowind/business_days/calendar_set.h"
#include "ferrowind/business_days/convention.h"
#include "ferrowind/business_days/currency_codes.h"
#include "ferrowind/business_days/currency_pair.h"
#include "ferrowind/business_days/day_failures.h"
#include "ferrowind/business_days/day_table.h"
#include "ferrowind/business_days/joint_calendar.h"
#include "ferrowind/business_days/market_conventions.h"
#include "ferrowind/business_days/prepared_year.h"
#include "ferrowind/business_days/tenor.h"
#include "ferrowind/business_days/value_dates.h"
#include "ferrowind/loading/convention_rows.h"
#include "ferrowind/loading/loaded_days.h"
#include "ferrowind/platform/values/failure.h"
#include "ferrowind/version.h"

#include "host/business_days/day_source.h"
#include "host/business_days/outcome.h"

using namespace ferrowind;
using business_days::BusinessCalendar;
using business_days::ClosedTradeDate;
using business_days::Convention;
using business_days::PreparedYear;
using host::FailInvalid;
using host::Outcome;
using host::Required;
using std::chrono::sys_days;

struct ferrowind_bd_set {
  host::DaySource days;
};

struct ferrowind_bd_calendar {
  business_days::JointCalendar days;
};

struct ferrowind_bd_pair {
  business_days::ValueDates dates;
};

namespace {

// Days and numbers
// -----------------------------------------------------------------------------------------------------------

constexpr sys_days kFirstDay = std::chrono::year(1) / 1 / 1;
constexpr sys_days kLastDay = std::chrono::year(9999) / 12 / 31;

sys_days DayOf(ferrowind_bd_day number) {
  const sys_days day{std::chrono::days(number)};
  if (day >= kFirstDay && day <= kLastDay) return day;
  FailInvalid("the day " + std::to_string(number) + " is not from 0001-01-01 to 9999-12-31");
}

ferrowind_bd_day NumberOf(sys_days day) {
  return static_cast<ferrowind_bd_day>(day.time_since_epoch().count());
}

Convention ConventionOf(int32_t number) {
  if (number >= FERROWIND_BD_UNADJUSTED && number <= FERROWIND_BD_NEAREST) {
    return static_cast<Convention>(number);
  }
  FailInvalid("there is no convention " + std::to_string(number));
}
static_assert(static_cast<int>(Convention::kUnadjusted) == FERROWIND_BD_UNADJUSTED);
static_assert(static_cast<int>(Convention::kFollowing) == FERROWIND_BD_FOLLOWING);
static_assert(static_cast<int>(Convention::kModifiedFollowing) == FERROWIND_BD_MODIFIED_FOLLOWING);
static_assert(static_cast<int>(Convention::kModifiedFollowingBimonthly) ==
              FERROWIND_BD_MODIFIED_FOLLOWING_BIMONTHLY);
static_assert(static_cast<int>(Convention::kPreceding) == FERROWIND_BD_PRECEDING);
static_assert(static_cast<int>(Convention::kModifiedPreceding) == FERROWIND_BD_MODIFIED_PRECEDING);
static_assert(static_cast<int>(Convention::kNearest) == FERROWIND_BD_NEAREST);

ClosedTradeDate ClosedTradeDateOf(int32_t number) {
  switch (number) {
    case FERROWIND_BD_TRADE_DATE_COUNTS_AS_NEXT:
      return ClosedTradeDate::kCountsAsNext;
    case FERROWIND_BD_TRADE_DATE_STAYS:
      return ClosedTradeDate::kStays;
    default:
      FailInvalid("there is no rule " + std::to_string(number) + " for closed trade dates");
  }
}

int32_t StateNumber(business_days::DayState state) {
  switch (state) {
    case business_days::DayState::kOpen:
      return FERROWIND_BD_OPEN;
    case business_days::DayState::kClosed:
      return FERROWIND_BD_CLOSED;
    default:
      return FERROWIND_BD_DAY_NOT_PREPARED;
  }
}

std::string Joined(const std::vector<std::string>& codes) {
  std::string text;
  for (const std::string& code : codes) text.append(text.empty() ? "" : ",").append(code);
  return text;
}

const char* TextOf(const char* text, const char* name) { return &Required(text, name); }

// Sets
// -----------------------------------------------------------------------------------------------------------

/// Callers that were compiled with a later header have larger years, whose ends mean nothing here.
ferrowind_bd_year YearAt(const ferrowind_bd_year* years, std::size_t size, std::size_t position) {
  ferrowind_bd_year year{};
  std::memcpy(&year, reinterpret_cast<const char*>(years) + size * position, sizeof year);
  return year;
}

loading::LoadedDays Given(const ferrowind_bd_year* years, std::size_t count, std::size_t size,
                          const char* conventions) {
  if (size < sizeof(ferrowind_bd_year)) FailInvalid("size_of_year is too small");
  if (count > 0) (void)Required(years, "years");
  std::map<std::string, std::vector<PreparedYear>> years_of;
  // As the caller writes them: one currency in two ways is two calendars that nobody could tell apart.
  std::map<std::string, std::string> written;
  for (std::size_t i = 0; i < count; ++i) {
    const ferrowind_bd_year year = YearAt(years, size, i);
    const std::string text = TextOf(year.currency, "currency");
    const std::string code = business_days::ReadCurrencyCode(text);
    if (written.try_emplace(code, text).first->second != text)
      FailInvalid("there are two calendars of " + code);
    years_of[code].push_back({business_days::CalendarYear(year.year), TextOf(year.days, "days")});
  }
  std::vector<BusinessCalendar> calendars;
  for (auto& [code, prepared] : years_of) calendars.emplace_back(code, std::move(prepared));
  return {business_days::CalendarSet(calendars), conventions == nullptr
                                                     ? loading::DeliveredConventions()
                                                     : business_days::ReadMarketConventions(conventions)};
}

/// What the caller's pointers lead to until the next reload.
struct ToldChanges {
  std::string added;
  std::string changed;
  std::string removed;
};
thread_local ToldChanges t_changes;
thread_local std::string t_currencies;

}  // namespace

const char* ferrowind_bd_version() { return FERROWIND_VERSION; }

const char* ferrowind_bd_message() { return host::LastMessage(); }

ferrowind_bd_status ferrowind_bd_day_of(int32_t year, int32_t month, int32_t day, ferrowind_bd_day* answer) {
  return Outcome([&] {
    const bool is_in_range = year >= 1 && year <= 9999 && month >= 1 && month <= 12 && day >= 1 && day <= 31;
    const std::chrono::year_month_day date(std::chrono::year(is_in_range ? year : 1),
                                           std::chrono::month(is_in_range ? static_cast<unsigned>(month) : 0),
                                           std::chrono::day(is_in_range ? static_cast<unsigned>(day) : 0));
    if (!date.ok()) {
      FailInvalid("there is no day " + std::to_string(year) + "-" + std::to_string(month) + "-" +
                  std::to_string(day));
    }
    Required(answer, "answer") = NumberOf(date);
  });
}

ferrowind_bd_status ferrowind_bd_date_of(ferrowind_bd_day day, int32_t* year, int32_t* month,
                                         int32_t* day_of_month) {
  return Outcome([&] {
    const std::chrono::year_month_day date(DayOf(day));
    auto& day_answer = Required(day_of_month, "day_of_month");
    auto& month_answer = Required(month, "month");
    Required(year, "year") = static_cast<int>(date.year());
    month_answer = static_cast<int32_t>(static_cast<unsigned>(date.month()));
    day_answer = static_cast<int32_t>(static_cast<unsigned>(date.day()));
  });
}

ferrowind_bd_status ferrowind_bd_open(const char* url, ferrowind_bd_set** answer) {
  return Outcome([&] {
    auto& set = Required(answer, "answer");
    set = new ferrowind_bd_set{host::DaySource(TextOf(url, "url"))};
  });
}

ferrowind_bd_status ferrowind_bd_make(const ferrowind_bd_year* years, size_t count, size_t size_of_year,
                                      const char* conventions, ferrowind_bd_set** answer) {
  return Outcome([&] {
    auto& set = Required(answer, "answer");
    set = new ferrowind_bd_set{host::DaySource(Given(years, count, size_of_year, conventions))};
  });
}

ferrowind_bd_status ferrowind_bd_reload(ferrowind_bd_set* set, ferrowind_bd_changes* changes) {
  return Outcome([&] {
    const std::size_t size = Required(changes, "changes").size;
    if (size < sizeof(ferrowind_bd_changes)) FailInvalid("the size of changes is too small");
    const loading::DayChanges found = Required(set, "set").days.Reload();
    t_changes = {Joined(found.added), Joined(found.changed), Joined(found.removed)};
    *changes = {size, t_changes.added.c_str(), t_changes.changed.c_str(), t_changes.removed.c_str(),
                found.has_other_conventions ? 1 : 0};
  });
}

ferrowind_bd_status ferrowind_bd_currencies(const ferrowind_bd_set* set, const char** answer) {
  return Outcome([&] {
    auto& codes = Required(answer, "answer");
    t_currencies = Joined(Required(set, "set").days.Current()->calendars.Codes());
    codes = t_currencies.c_str();
  });
}

void ferrowind_bd_release_set(ferrowind_bd_set* set) { delete set; }

ferrowind_bd_status ferrowind_bd_calendar_of(const ferrowind_bd_set* set, const char* currencies,
                                             ferrowind_bd_calendar** answer) {
  return Outcome([&] {
    auto& calendar = Required(answer, "answer");
    const auto days = Required(set, "set").days.Current();
    calendar = new ferrowind_bd_calendar{
        days->calendars.Joint(business_days::ReadCurrencyCodes(TextOf(currencies, "currencies")))};
  });
}

void ferrowind_bd_release_calendar(ferrowind_bd_calendar* calendar) { delete calendar; }

ferrowind_bd_status ferrowind_bd_state(const ferrowind_bd_calendar* calendar, ferrowind_bd_day day,
                                       int32_t* answer) {
  return Outcome([&] {
    Required(answer, "answer") = StateNumber(Required(calendar, "calendar").days.State(DayOf(day)));
  });
}

ferrowind_bd_status ferrowind_bd_is_business_day(const ferrowind_bd_calendar* calendar, ferrowind_bd_day day,
                                                 int32_t* answer) {
  return Outcome([&] {
    Required(answer, "answer") = Required(calendar, "calendar").days.IsBusinessDay(DayOf(day)) ? 1 : 0;
  });
}

ferrowind_bd_status ferrowind_bd_next(const ferrowind_bd_calendar* calendar, ferrowind_bd_day day,
                                      ferrowind_bd_day* answer) {
  return Outcome(
      [&] { Required(answer, "answer") = NumberOf(Required(calendar, "calendar").days.Next(DayOf(day))); });
}

ferrowind_bd_status ferrowind_bd_previous(const ferrowind_bd_calendar* calendar, ferrowind_bd_day day,
                                          ferrowind_bd_day* answer) {
  return Outcome([&] {
    Required(answer, "answer") = NumberOf(Required(calendar, "calendar").days.Previous(DayOf(day)));
  });
}

ferrowind_bd_status ferrowind_bd_adjust(const ferrowind_bd_calendar* calendar, ferrowind_bd_day day,
                                        int32_t convention, ferrowind_bd_day* answer) {
  return Outcome([&] {
    Required(answer, "answer") =
        NumberOf(Required(calendar, "calendar").days.Adjust(DayOf(day), ConventionOf(convention)));
  });
}

ferrowind_bd_status ferrowind_bd_convention_named(const char* name, int32_t* answer) {
  return Outcome([&] {
    const auto convention = business_days::ConventionNamed(TextOf(name, "name"));
    if (!convention) FailInvalid('"' + std::string(name) + "\" is no convention");
    Required(answer, "answer") = static_cast<int32_t>(*convention);
  });
}

ferrowind_bd_status ferrowind_bd_add(const ferrowind_bd_calendar* calendar, ferrowind_bd_day day,
                                     int32_t count, ferrowind_bd_day* answer) {
  return Outcome([&] {
    Required(answer, "answer") =
        NumberOf(Required(calendar, "calendar").days.AddBusinessDays(DayOf(day), count));
  });
}

ferrowind_bd_status ferrowind_bd_between(const ferrowind_bd_calendar* calendar, ferrowind_bd_day from,
                                         ferrowind_bd_day to, int32_t* answer) {
  return Outcome([&] {
    Required(answer, "answer") =
        Required(calendar, "calendar").days.BusinessDaysBetween(DayOf(from), DayOf(to));
  });
}

ferrowind_bd_status ferrowind_bd_month_end(const ferrowind_bd_calendar* calendar, ferrowind_bd_day day,
                                           ferrowind_bd_day* answer) {
  return Outcome([&] {
    Required(answer, "answer") =
        NumberOf(Required(calendar, "calendar").days.LastBusinessDayOfMonth(DayOf(day)));
  });
}

ferrowind_bd_status ferrowind_bd_closed_days(const ferrowind_bd_calendar* calendar, ferrowind_bd_day first,
                                             ferrowind_bd_day last, ferrowind_bd_day* days, size_t capacity,
                                             size_t* count) {
  return Outcome([&] {
    auto& number = Required(count, "count");
    if (capacity > 0) (void)Required(days, "days");
    const std::vector<sys_days> closed =
        Required(calendar, "calendar").days.ClosedDays(DayOf(first), DayOf(last));
    for (std::size_t i = 0; i < std::min(capacity, closed.size()); ++i) days[i] = NumberOf(closed[i]);
    number = closed.size();
  });
}

ferrowind_bd_status ferrowind_bd_horizon(const ferrowind_bd_calendar* calendar, ferrowind_bd_day* first,
                                         ferrowind_bd_day* last) {
  return Outcome([&] {
    auto& last_answer = Required(last, "last");
    auto& first_answer = Required(first, "first");
    const auto& days = Required(calendar, "calendar").days;
    const auto span = days.Horizon();
    if (!span) {
      throw platform::Failure(business_days::failure_number::kNotPrepared,
                              "no day of " + days.Name() + " is prepared");
    }
    first_answer = NumberOf(span->first);
    last_answer = NumberOf(span->last);
  });
}

ferrowind_bd_status ferrowind_bd_is_prepared(const ferrowind_bd_calendar* calendar, int32_t year,
                                             int32_t* answer) {
  return Outcome([&] {
    if (year < 1 || year > 9999) FailInvalid("the year " + std::to_string(year) + " is not from 1 to 9999");
    Required(answer, "answer") =
        Required(calendar, "calendar").days.IsPrepared(std::chrono::year(year)) ? 1 : 0;
  });
}

ferrowind_bd_status ferrowind_bd_pair_of(const ferrowind_bd_set* set, const char* pair,
                                         ferrowind_bd_pair** answer) {
  return Outcome([&] {
    auto& made = Required(answer, "answer");
    const auto days = Required(set, "set").days.Current();
    made = new ferrowind_bd_pair{business_days::ValueDates(
        business_days::ReadCurrencyPair(TextOf(pair, "pair")), days->calendars, days->conventions)};
  });
}

void ferrowind_bd_release_pair(ferrowind_bd_pair* pair) { delete pair; }

ferrowind_bd_status ferrowind_bd_days_to_spot(const ferrowind_bd_pair* pair, int32_t* answer) {
  return Outcome([&] { Required(answer, "answer") = Required(pair, "pair").dates.DaysToSpot(); });
}

ferrowind_bd_status ferrowind_bd_spot_date(const ferrowind_bd_pair* pair, ferrowind_bd_day trade_date,
                                           int32_t closed_trade_date, ferrowind_bd_day* answer) {
  return Outcome([&] {
    Required(answer, "answer") = NumberOf(
        Required(pair, "pair").dates.SpotDate(DayOf(trade_date), ClosedTradeDateOf(closed_trade_date)));
  });
}

ferrowind_bd_status ferrowind_bd_value_date(const ferrowind_bd_pair* pair, ferrowind_bd_day trade_date,
                                            const char* tenor, int32_t closed_trade_date,
                                            ferrowind_bd_day* answer) {
  return Outcome([&] {
    Required(answer, "answer") =
        NumberOf(Required(pair, "pair")
                     .dates.ValueDate(DayOf(trade_date), business_days::ReadTenor(TextOf(tenor, "tenor")),
                                      ClosedTradeDateOf(closed_trade_date)));
  });
}
