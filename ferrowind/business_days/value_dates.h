#pragma once

#include <array>
#include <chrono>
#include <cstdint>
#include <string_view>
#include <vector>

#include "ferrowind/business_days/business_calendar.h"
#include "ferrowind/business_days/calendar_set.h"
#include "ferrowind/business_days/currency_pair.h"
#include "ferrowind/business_days/joint_calendar.h"
#include "ferrowind/business_days/market_conventions.h"
#include "ferrowind/business_days/tenor.h"
#include "ferrowind/export.h"

namespace ferrowind::business_days {

/// What a trade date is on which a currency of the pair is closed.
enum class FERROWIND_EXPORT ClosedTradeDate : std::uint8_t {
  /// The trade counts as done on the next day on which both are open.
  kCountsAsNext,
  /// The days are counted from it as it is.
  kStays,
};

/// On which days trades in one currency pair settle. Made once for a pair, asked by any number of threads.
///
/// Trades settle by way of the dollar, also between two other currencies. So each currency counts for itself,
/// in its own business days from the trade date on, as many as it takes against the dollar, unless the
/// conventions say how many the pair takes. The dollar counts as many days as the longer of them: those from
/// Monday to Friday, its holidays among them, and its own business days where the conventions say that its
/// holidays stop one of the currencies. The latest of these days counts. The spot date must be a business day
/// of both currencies and of the dollar; otherwise it is the next such day.
///
/// All questions throw `NotPrepared` and `NoBusinessDay` as `BusinessDays` does.
class FERROWIND_EXPORT ValueDates {
 public:
  /// A day of the civil calendar, without a time zone.
  using Day = std::chrono::sys_days;

  /// `calendars` must have the two currencies and USD; the failure is that of `CalendarSet::Of`.
  ValueDates(CurrencyPair pair, const CalendarSet& calendars, const MarketConventions& conventions);

  /// The pair that the dates are of.
  [[nodiscard]] const CurrencyPair& Pair() const { return pair_; }
  /// 0, 1 or 2 business days, as the conventions said: those of the currency that takes longer.
  [[nodiscard]] int DaysToSpot() const { return days_to_spot_; }
  /// The days on which the pair settles: open for both currencies and for the dollar.
  [[nodiscard]] const JointCalendar& Settlement() const { return settlement_; }

  /// The day on which a spot trade of that day settles.
  [[nodiscard]] Day SpotDate(Day trade_date, ClosedTradeDate closed = ClosedTradeDate::kCountsAsNext) const;

  /// The day on which a trade of that tenor settles. One that is none (`IsTenor`) is the failure
  /// InvalidArgument.
  ///
  /// Days and weeks after spot end on the next settlement day, months and years by Modified Following; when
  /// spot is the last settlement day of its month, they end on the last one of theirs (end-end). TN of a pair
  /// that settles in two days is the failure InvalidArgument when ON reaches the spot date already.
  [[nodiscard]] Day ValueDate(Day trade_date, const Tenor& tenor,
                              ClosedTradeDate closed = ClosedTradeDate::kCountsAsNext) const;

 private:
  [[nodiscard]] Day Started(Day trade_date, ClosedTradeDate closed) const;
  [[nodiscard]] Day SpotFrom(Day started) const;
  [[nodiscard]] Day TomorrowNext(Day started) const;
  [[nodiscard]] Day MonthsAfter(Day spot, int months) const;
  [[nodiscard]] Day ImmDate(Day spot, int count) const;

  CurrencyPair pair_;
  int days_to_spot_;
  /// How many days each of `counting_` counts, in the same order: the two of the pair, and the dollar.
  std::array<std::uint8_t, 3> counts_{};
  /// The currencies whose business days count.
  std::vector<BusinessCalendar> counting_;
  JointCalendar trading_;
  JointCalendar settlement_;
};

}  // namespace ferrowind::business_days
