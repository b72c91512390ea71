#include "ferrowind/business_days/value_dates.h"

#include <algorithm>
#include <cstddef>
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

/// The codes of the currencies whose business days count.
std::vector<std::string> CountingCurrencies(const CurrencyPair& pair, const MarketConventions& conventions) {
  std::vector<std::string> counting;
  for (const std::string& code : {pair.base, pair.quote}) {
    if (code != kDollar) counting.push_back(code);
  }
  if (conventions.DollarHolidayStops(pair.base) || conventions.DollarHolidayStops(pair.quote))
    counting.emplace_back(kDollar);
  return counting;
}

/// The `count`th day from Monday to Friday after `day`; with 0 the last one up to it.
sys_days AddWeekdays(sys_days day, int count) {
  constexpr int kWeekdays = 5;
  constexpr int kWeekendDays = 2;
  const int number = static_cast<int>(std::chrono::weekday(day).iso_encoding());
  // From the Friday before a weekend, past the weekends that begin on the way.
  const int weekday = std::min(number, kWeekdays);
  return day + days(weekday - number + count + (weekday - 1 + count) / kWeekdays * kWeekendDays);
}

year_month MonthOf(sys_days day) {
  const year_month_day date(day);
  return date.year() / date.month();
}

}  // namespace

ValueDates::ValueDates(CurrencyPair pair, const CalendarSet& calendars, const MarketConventions& conventions)
    : pair_(std::move(pair)),
      days_to_spot_(conventions.DaysToSpot(pair_)),
      trading_(calendars.Joint({pair_.base, pair_.quote})),
      settlement_(calendars.Joint({pair_.base, pair_.quote, std::string(kDollar)})) {
  for (const std::string& code : CountingCurrencies(pair_, conventions)) {
    const int count = code == kDollar ? days_to_spot_ : conventions.DaysOfCurrency(code, pair_);
    counts_.at(counting_.size()) = static_cast<std::uint8_t>(count);
    counting_.push_back(calendars.Of(code));
  }
}

sys_days ValueDates::Started(Day trade_date, ClosedTradeDate closed) const {
  return closed == ClosedTradeDate::kStays ? trade_date : trading_.Adjust(trade_date, Convention::kFollowing);
}

sys_days ValueDates::SpotFrom(Day started) const {
  Day spot = std::max<Day>(started, AddWeekdays(started, days_to_spot_));
  for (std::size_t i = 0; i < counting_.size(); ++i)
    spot = std::max(spot, counting_[i].AddBusinessDays(started, counts_[i]));
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
  if (!IsTenor(tenor)) {
    throw platform::Failure(
        platform::failure_number::kInvalidArgument,
        std::to_string(tenor.count) + " is no count of the tenor's unit, up to 100 years or IMM4");
  }
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
