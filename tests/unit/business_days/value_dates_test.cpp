#include "ferrowind/business_days/value_dates.h"

#include <chrono>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "ferrowind/almanac/year_plan.h"

#include "calendars.h"
#include "database/seed/delivered_conventions.h"
#include "failure_of.h"
#include "tests/unit/almanac/delivered_plans.h"

namespace ferrowind::business_days {
namespace {

using namespace std::chrono_literals;
using std::chrono::sys_days;

PreparedYear PlannedYear(const std::string& code, int number) {
  const std::chrono::year year(number);
  PreparedYear prepared{year, std::string(year.is_leap() ? 366 : 365, '0')};
  const almanac::YearPlan plan = testing::DeliveredPlan(code, number);
  for (const almanac::PlannedDay& day : plan.Days()) {
    if (plan.KindOf(day) != almanac::RuleKind::kWorkingDay)
      prepared.days.at(static_cast<std::size_t>(day.day_of_year) - 1) = '1';
  }
  return prepared;
}

/// Some years of the delivered books.
CalendarSet Planned(const std::vector<std::string>& codes, int first_year, int last_year) {
  std::vector<BusinessCalendar> calendars;
  for (const std::string& code : codes) {
    std::vector<PreparedYear> years;
    for (int year = first_year; year <= last_year; ++year) years.push_back(PlannedYear(code, year));
    calendars.emplace_back(code, std::move(years));
  }
  return CalendarSet(calendars);
}

const CalendarSet& Delivered() {
  static const CalendarSet set =
      Planned({"EUR", "USD", "GBP", "JPY", "CAD", "MXN", "TRY", "ILS", "HUF", "CNY"}, 2023, 2029);
  return set;
}

const MarketConventions& DeliveredConventions() {
  static const MarketConventions conventions = ReadMarketConventions(embedded::kMarketConventions);
  return conventions;
}

ValueDates DatesOf(std::string_view pair) {
  return {ReadCurrencyPair(pair), Delivered(), DeliveredConventions()};
}

std::string Iso(sys_days day) {
  const std::chrono::year_month_day date(day);
  return platform::Date(static_cast<int>(date.year()), static_cast<int>(static_cast<unsigned>(date.month())),
                        static_cast<int>(static_cast<unsigned>(date.day())))
      .ToIso();
}

std::string Spot(std::string_view pair, sys_days trade_date) {
  return Iso(DatesOf(pair).SpotDate(trade_date));
}

std::string Value(std::string_view pair, sys_days trade_date, std::string_view tenor) {
  return Iso(DatesOf(pair).ValueDate(trade_date, ReadTenor(tenor)));
}

TEST(SpotDate, IsTwoBusinessDaysAfterTheTrade) {
  EXPECT_EQ(Spot("EURUSD", 2026y / 3 / 9), "2026-03-11");
  // Thursday to Monday, over the weekend.
  EXPECT_EQ(Spot("EURUSD", 2026y / 3 / 12), "2026-03-16");
}

TEST(SpotDate, IsNotStoppedByADollarHolidayOnTheNextDay) {
  // Juneteenth is the Monday after.
  EXPECT_EQ(Spot("EURUSD", 2023y / 6 / 16), "2023-06-20");
}

TEST(SpotDate, IsStoppedByADollarHolidayForTheCurrenciesThatSettleSo) {
  EXPECT_EQ(Spot("USDMXN", 2023y / 6 / 16), "2023-06-21");
  // Such a currency against another is settled by way of the dollar.
  EXPECT_EQ(Spot("EURMXN", 2023y / 6 / 16), "2023-06-21");
}

TEST(SpotDate, IsNoDollarHolidayEvenBetweenOtherCurrencies) {
  EXPECT_EQ(Spot("GBPEUR", 2024y / 7 / 2), "2024-07-05");
}

TEST(SpotDate, IsCountedByEachCurrencyForItselfInGoldenWeek) {
  // 1 May is closed for the euro, 4 to 6 May for the yen: the euro counts to Tuesday, the yen to Thursday.
  EXPECT_EQ(Spot("EURJPY", 2026y / 4 / 30), "2026-05-07");
  EXPECT_EQ(Spot("EURUSD", 2026y / 4 / 30), "2026-05-05");
  EXPECT_EQ(Spot("USDJPY", 2026y / 4 / 30), "2026-05-07");
}

TEST(SpotDate, PassesTheEndOfTheYear) { EXPECT_EQ(Spot("EURUSD", 2026y / 12 / 30), "2027-01-04"); }

TEST(SpotDate, IsTheNextDayForNextDayPairs) {
  EXPECT_EQ(Spot("USDCAD", 2026y / 3 / 9), "2026-03-10");
  EXPECT_EQ(Spot("USDTRY", 2026y / 3 / 9), "2026-03-10");
  // Canada Day.
  EXPECT_EQ(Spot("USDCAD", 2026y / 6 / 30), "2026-07-02");
  // Independence Day cannot be the spot date itself.
  EXPECT_EQ(Spot("USDCAD", 2025y / 7 / 3), "2025-07-07");
}

TEST(SpotDate, OfACrossIsTheLaterOneOfItsCurrenciesAgainstTheDollar) {
  EXPECT_EQ(Spot("EURCAD", 2026y / 3 / 9), "2026-03-11");
  // Canada Day is on the day after the trade: one business day leads behind it, and so do two of the euro.
  EXPECT_EQ(Spot("EURCAD", 2026y / 6 / 30), "2026-07-02");
  EXPECT_EQ(Spot("CADTRY", 2026y / 3 / 9), "2026-03-10");
  EXPECT_EQ(DatesOf("CADTRY").DaysToSpot(), 1);
  EXPECT_EQ(DatesOf("EURTRY").DaysToSpot(), 2);
}

TEST(SpotDate, CountsBothCurrenciesOfACrossThatTheConventionsName) {
  const ValueDates dates({"CAD", "TRY"}, Delivered(),
                         ReadMarketConventions("spot USDCAD 1\nspot USDTRY 1\nspot CADTRY 2"));
  EXPECT_EQ(Iso(dates.SpotDate(2026y / 3 / 9)), "2026-03-11");
  EXPECT_EQ(dates.DaysToSpot(), 2);
}

/// Trade dates of a month and their settlement dates, as a broker publishes them for the pair.
struct PublishedMonth {
  std::string pair;
  std::chrono::year_month month;
  /// "4:8" is traded on the 4th and settles on the 8th, "28:+1" on the 1st of the next month.
  std::string dates;
};

// The margin FX of the Tokyo Financial Exchange, by the tables of GMO Click Securities (click-sec.com, swap
// points of Click 365, November 2026). They leave a trade date as it is.
const std::vector<PublishedMonth>& PublishedMonths() {
  static const std::vector<PublishedMonth> months = {
      {"TRYJPY", 2020y / 5,
       "1:8 4:8 5:8 6:8 7:11 8:12 11:13 12:14 13:15 14:18 15:20 18:20 19:21 20:22 21:27 22:27 25:27 26:28 "
       "27:29 28:+1 29:+2"},
      {"CADJPY", 2020y / 4,
       "1:3 2:6 3:7 6:8 7:9 8:13 9:13 10:14 13:15 14:16 15:17 16:20 17:21 20:22 21:23 22:24 23:27 24:28 "
       "27:30 28:+1 29:+1 30:+7"},
      {"TRYJPY", 2022y / 3,
       "1:3 2:4 3:7 4:8 7:9 8:10 9:11 10:14 11:15 14:16 15:17 16:18 17:22 18:23 21:23 22:24 23:25 24:28 "
       "25:29 28:30 29:31 30:+1 31:+4"},
      {"USDJPY", 2019y / 11,
       "1:6 4:6 5:7 6:8 7:12 8:12 11:13 12:14 13:15 14:18 15:19 18:20 19:21 20:22 21:25 22:26 25:27 26:29 "
       "27:29 28:+2 29:+3"},
      {"USDJPY", 2022y / 1,
       "3:5 4:6 5:7 6:11 7:12 10:12 11:13 12:14 13:18 14:18 17:19 18:20 19:21 20:24 21:25 24:26 25:27 26:28 "
       "27:31 28:+1 31:+2"},
      {"USDJPY", 2023y / 10,
       "2:4 3:5 4:6 5:10 6:11 9:11 10:12 11:13 12:16 13:17 16:18 17:19 18:20 19:23 20:24 23:25 24:26 25:27 "
       "26:30 27:31 30:+1 31:+2"},
  };
  return months;
}

TEST(SpotDate, IsWhatABrokerPublishes) {
  const CalendarSet calendars = Planned({"USD", "JPY", "CAD", "TRY"}, 2019, 2023);
  int compared = 0;
  for (const auto& [pair, month, dates] : PublishedMonths()) {
    const ValueDates ours(ReadCurrencyPair(pair), calendars, DeliveredConventions());
    std::istringstream rest(dates);
    char colon = 0;
    for (unsigned traded = 0, settled = 0; rest >> traded >> colon; ++compared) {
      const bool is_next_month = rest.peek() == '+';
      ASSERT_TRUE(rest >> settled) << dates;
      const sys_days trade_date = month / std::chrono::day(traded);
      const sys_days spot = (month + std::chrono::months(is_next_month ? 1 : 0)) / std::chrono::day(settled);
      EXPECT_EQ(Iso(ours.SpotDate(trade_date, ClosedTradeDate::kStays)), Iso(spot))
          << pair << ' ' << Iso(trade_date);
    }
  }
  EXPECT_EQ(compared, 130);
}

TEST(SpotDate, WaitsForTheWeekdaysOfTheDollar) {
  // Open on Sunday 10 May, on Saturday 12 December and on Sunday 20 September, when no dollar is paid.
  EXPECT_EQ(Spot("USDILS", 2026y / 5 / 8), "2026-05-12");
  EXPECT_EQ(Spot("USDHUF", 2026y / 12 / 11), "2026-12-15");
  EXPECT_EQ(Spot("USDCNY", 2026y / 9 / 18), "2026-09-22");
}

TEST(SpotDate, CountsATradeOnAClosedDayAsDoneOnTheNextOpenOne) {
  const ValueDates dates = DatesOf("EURUSD");
  const sys_days saturday = 2026y / 3 / 7;
  EXPECT_EQ(Iso(dates.SpotDate(saturday)), "2026-03-11");
  EXPECT_EQ(Iso(dates.SpotDate(saturday, ClosedTradeDate::kStays)), "2026-03-10");
}

TEST(SpotDate, TakesWeekendsFromTheCalendars) {
  // One currency rests on Friday and Saturday, as its calendar says.
  PreparedYear gulf{2026y, {}};
  for (sys_days day = 2026y / 1 / 1; day <= sys_days(2026y / 12 / 31); day += std::chrono::days(1)) {
    const std::chrono::weekday weekday(day);
    gulf.days += weekday == std::chrono::Friday || weekday == std::chrono::Saturday ? '1' : '0';
  }
  const CalendarSet set({BusinessCalendar("USD", {YearWith(2026)}), BusinessCalendar("XGU", {gulf})});
  const ValueDates dates({"USD", "XGU"}, set, {});
  // Wednesday: Thursday and Sunday are business days of the Gulf, and the dollar is open on Monday.
  EXPECT_EQ(Iso(dates.SpotDate(2026y / 3 / 11)), "2026-03-16");
  // Tuesday: Wednesday and Thursday.
  EXPECT_EQ(Iso(dates.SpotDate(2026y / 3 / 10)), "2026-03-12");
  // Thursday: Sunday and Monday of the Gulf, Friday and Monday of the dollar.
  EXPECT_EQ(Iso(dates.SpotDate(2026y / 3 / 12)), "2026-03-16");
}

TEST(SpotDate, NamesCurrencyAndYearThatAreNotPrepared) {
  const CalendarSet set(
      {BusinessCalendar("USD", {YearWith(2026), YearWith(2027)}), BusinessCalendar("EUR", {YearWith(2026)})});
  const ValueDates dates({"EUR", "USD"}, set, {});
  EXPECT_EQ(FailureOf([&] { return dates.SpotDate(2026y / 12 / 30); }), "EUR 2027 is not prepared");
  EXPECT_EQ(Iso(dates.SpotDate(2026y / 12 / 29)), "2026-12-31");
}

TEST(SpotDate, NeedsTheCalendarsOfBothAndOfTheDollar) {
  const CalendarSet set(
      {BusinessCalendar("EUR", {YearWith(2026)}), BusinessCalendar("GBP", {YearWith(2026)})});
  EXPECT_EQ(FailureOf([&] { return ValueDates({"EUR", "JPY"}, set, {}); }), "There is no calendar of JPY");
  EXPECT_EQ(FailureOf([&] { return ValueDates({"EUR", "GBP"}, set, {}); }), "There is no calendar of USD");
}

TEST(ValueDate, OfShortTenorsIsADayWithoutHolidaysAnywhere) {
  const sys_days monday = 2026y / 3 / 9;
  EXPECT_EQ(Value("EURUSD", monday, "ON"), "2026-03-10");
  EXPECT_EQ(Value("EURUSD", monday, "TN"), "2026-03-11");
  EXPECT_EQ(Value("EURUSD", monday, "SPOT"), "2026-03-11");
  EXPECT_EQ(Value("EURUSD", monday, "SN"), "2026-03-12");
  EXPECT_EQ(Value("EURUSD", monday, "SW"), "2026-03-18");
  EXPECT_EQ(Value("EURUSD", monday, "3D"), "2026-03-16");
}

TEST(ValueDate, OfTomorrowNextIsOneDayBehindSpotForNextDayPairs) {
  EXPECT_EQ(Value("USDCAD", 2026y / 3 / 9, "ON"), "2026-03-10");
  EXPECT_EQ(Value("USDCAD", 2026y / 3 / 9, "TN"), "2026-03-11");
}

TEST(ValueDate, OfTomorrowNextDoesNotExistWhereOvernightReachesSpot) {
  EXPECT_EQ(Value("EURUSD", 2023y / 6 / 16, "ON"), "2023-06-20");
  EXPECT_EQ(FailureOf([&] { return Value("EURUSD", 2023y / 6 / 16, "TN"); }),
            "EUR/USD has no TN on that day: its ON settles on the spot date already");
}

TEST(ValueDate, OfTomorrowNextExistsOnAFridayThoughTheOtherCurrencyIsPaidOnSundays) {
  EXPECT_EQ(Value("USDILS", 2026y / 5 / 8, "ON"), "2026-05-11");
  EXPECT_EQ(Value("USDILS", 2026y / 5 / 8, "TN"), "2026-05-12");
}

TEST(ValueDate, OfMonthsIsModifiedFollowing) {
  EXPECT_EQ(Value("EURUSD", 2026y / 3 / 9, "1M"), "2026-04-13");
  // Spot is 29 January; 28 February is a Saturday, and the Monday after would be in March.
  EXPECT_EQ(Value("EURUSD", 2026y / 1 / 27, "1M"), "2026-02-27");
}

TEST(ValueDate, GoesFromTheLastBusinessDayOfAMonthToTheLastOne) {
  // Spot is Friday, 30 January, the last business day.
  EXPECT_EQ(Value("EURUSD", 2026y / 1 / 28, "1M"), "2026-02-27");
  EXPECT_EQ(Value("EURUSD", 2026y / 1 / 28, "2M"), "2026-03-31");
  // Spot is Friday, 27 February: not 27 March.
  EXPECT_EQ(Value("EURUSD", 2026y / 2 / 25, "1M"), "2026-03-31");
}

TEST(ValueDate, OfAYearFromALeapDayIsTheEndOfFebruary) {
  EXPECT_EQ(Spot("EURUSD", 2024y / 2 / 27), "2024-02-29");
  EXPECT_EQ(Value("EURUSD", 2024y / 2 / 27, "1Y"), "2025-02-28");
  EXPECT_EQ(Value("EURUSD", 2024y / 2 / 27, "4Y"), "2028-02-29");
}

TEST(ValueDate, IsRefusedForATenorThatIsNone) {
  const ValueDates dates = DatesOf("EURUSD");
  for (const Tenor& tenor : {Tenor{Tenor::Unit::kImm, 0}, Tenor{Tenor::Unit::kMonths, 786432},
                             Tenor{Tenor::Unit::kYears, 357913942}}) {
    EXPECT_EQ(FailureOf([&] { return dates.ValueDate(2026y / 3 / 9, tenor); }),
              std::to_string(tenor.count) + " is no count of the tenor's unit, up to 100 years or IMM4");
  }
}

TEST(ValueDate, OfAnImmTenorIsTheNextThirdWednesdayAfterSpot) {
  EXPECT_EQ(Value("EURUSD", 2026y / 3 / 9, "IMM1"), "2026-03-18");
  EXPECT_EQ(Value("EURUSD", 2026y / 3 / 9, "IMM2"), "2026-06-17");
  EXPECT_EQ(Value("EURUSD", 2026y / 3 / 9, "IMM4"), "2026-12-16");
  // Spot is the third Wednesday of March itself.
  EXPECT_EQ(Value("EURUSD", 2026y / 3 / 16, "IMM1"), "2026-06-17");
}

}  // namespace
}  // namespace ferrowind::business_days
