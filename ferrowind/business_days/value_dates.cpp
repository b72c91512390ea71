#include "ferrowind/business_days/value_dates.h"

#include <algorithm>
#include <string>
#include <utility>

#include "ferrowind/platform/values/failure.h"

namespace ferrowind::business_days {
namespace {

using std::chrono::days;
using std::chrono::months;
using std::chrono::sys_days;
using std::chrono::year_month;
using std::chrono::year_month_day;

constexpr std::string_view kDollar = "USD";

std::vector<BusinessCalendar> CountingCurrencies(const CurrencyPair& pair, const CalendarSet& calendars,
                                                 const MarketConventions& conventions) {
  const bool dollar_counts =
      conventions.DollarHolidayStops(pair.base) || conventions.DollarHolidayStops(pair.quote);
  std::vector<BusinessCalendar> counting;
  for (const std::string& code : {pair.base, pair.quote}) {
    if (code != kDollar) counting.push_back(calendars.Of(code));
  }
  if (dollar_counts) counting.push_back(calendars.Of(kDollar));
  return counting;
}

year_month MonthOf(sys_days day) {
  const year_month_day date(day);
  return date.year() / date.month();
}

}  // namespace

ValueDates::ValueDates(CurrencyPair pair, const CalendarSet& calendars, const MarketConventions& conventions)
    : pair_(std::move(pair)),
      days_to_spot_(conventions.DaysToSpot(pair_)),
      counting_(CountingCurrencies(pair_, calendars, conventions)),
      trading_(calendars.Joint({pair_.base, pair_.quote})),
      settlement_(calendars.Joint({pair_.base, pair_.quote, std::string(kDollar)})) {}

sys_days ValueDates::Started(Day trade_date, ClosedTradeDate closed) const {
  return closed == ClosedTradeDate::kStays ? trade_date : trading_.Adjust(trade_date, Convention::kFollowing);
}

sys_days ValueDates::SpotFrom(Day started) const {
  Day spot = started;
  for (const BusinessCalendar& calendar : counting_)
    spot = std::max(spot, calendar.AddBusinessDays(started, days_to_spot_));
  return settlement_.Adjust(spot, Convention::kFollowing);
}

sys_days ValueDates::SpotDate(Day trade_date, ClosedTradeDate closed) const {
  return SpotFrom(Started(trade_date, closed));
}

sys_days ValueDates::TomorrowNext(Day started) const {
  const Day overnight = settlement_.Next(started);
  if (days_to_spot_ < 2) return settlement_.Next(overnight);
  const Day spot = SpotFrom(started);
  if (overnight < spot) return spot;
  throw platform::Failure(platform::failure_number::kInvalidArgument,
                          pair_.Text() + " has no TN on that day: its ON settles on the spot date already");
}

sys_days ValueDates::MonthsAfter(Day spot, int count) const {
  const year_month month = MonthOf(spot) + months(count);
  if (settlement_.IsLastBusinessDayOfMonth(spot)) return settlement_.LastBusinessDayOfMonth(month / 1);
  const year_month_day same = month / year_month_day(spot).day();
  const Day day = same.ok() ? Day(same) : Day(month / std::chrono::last);
  return settlement_.Adjust(day, Convention::kModifiedFollowing);
}

sys_days ValueDates::ImmDate(Day spot, int count) const {
  for (year_month month = MonthOf(spot);; month += months(1)) {
    if (static_cast<unsigned>(month.month()) % 3 != 0) continue;
    const Day third_wednesday = month / std::chrono::Wednesday[3];
    if (third_wednesday > spot && --count == 0)
      return settlement_.Adjust(third_wednesday, Convention::kFollowing);
  }
}

sys_days ValueDates::ValueDate(Day trade_date, const Tenor& tenor, ClosedTradeDate closed) const {
  const Day started = Started(trade_date, closed);
  switch (tenor.unit) {
    case Tenor::Unit::kOvernight:
      return settlement_.Next(started);
    case Tenor::Unit::kTomorrowNext:
      return TomorrowNext(started);
    default:
      break;
  }
  const Day spot = SpotFrom(started);
  switch (tenor.unit) {
    case Tenor::Unit::kSpotNext:
      return settlement_.Next(spot);
    case Tenor::Unit::kDays:
      return settlement_.Adjust(spot + days(tenor.count), Convention::kFollowing);
    case Tenor::Unit::kWeeks:
      return settlement_.Adjust(spot + std::chrono::weeks(tenor.count), Convention::kFollowing);
    case Tenor::Unit::kMonths:
      return MonthsAfter(spot, tenor.count);
    case Tenor::Unit::kYears:
      return MonthsAfter(spot, 12 * tenor.count);
    case Tenor::Unit::kImm:
      return ImmDate(spot, tenor.count);
    default:
      return spot;
  }
}

}  // namespace ferrowind::business_days
