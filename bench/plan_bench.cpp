// Planning one year by a delivered book against listing the holidays of the same calendar and year with
// QuantLib.

#include <cstddef>
#include <ql/time/calendars/japan.hpp>
#include <ql/time/calendars/target.hpp>
#include <ql/time/calendars/unitedkingdom.hpp>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "ferrowind/almanac/planner.h"

#include "bench/measurement.h"
#include "host/delivery/delivered_books.h"
#include "host/delivery/delivered_tables.h"

namespace {

using ferrowind::almanac::PlannedDay;
using ferrowind::almanac::Planner;
using ferrowind::almanac::RuleKind;
using ferrowind::almanac::YearPlan;
using ferrowind::bench::Benchmark;
using ferrowind::bench::KeepResult;

constexpr int kFirstYear = 2015;
constexpr int kLastYear = 2030;

Planner PlannerOf(std::string_view currency) {
  for (auto& delivered : ferrowind::host::DeliveredBooks()) {
    if (delivered.name == currency)
      return {std::move(delivered.book), ferrowind::host::DeliveredDateTables()};
  }
  throw std::runtime_error("no delivered book " + std::string(currency));
}

/// The closed days that the weekend leaves open.
std::size_t WeekdayHolidays(const YearPlan& plan) {
  std::size_t count = 0;
  for (const PlannedDay& day : plan.Days()) {
    const int weekday = plan.DateOf(day).Weekday();
    if (weekday != 1 && weekday != 7 && plan.KindOf(day) != RuleKind::kWorkingDay) ++count;
  }
  return count;
}

std::vector<QuantLib::Date> Listed(const QuantLib::Calendar& calendar, int year) {
  return calendar.holidayList(QuantLib::Date(1, QuantLib::January, year),
                              QuantLib::Date(31, QuantLib::December, year));
}

/// One year at a time, all years of the span in turn, so that no year is planned from what is at hand
/// already.
void MeasurePlan(const Benchmark& benchmark, const std::string& currency,
                 const QuantLib::Calendar& calendar) {
  const Planner planner = PlannerOf(currency);
  for (int year = kFirstYear; year <= kLastYear; ++year) {
    if (WeekdayHolidays(planner.Plan(year)) != Listed(calendar, year).size()) {
      throw std::runtime_error("the two sides differ in " + currency + ' ' + std::to_string(year));
    }
  }
  constexpr int kRounds = 200;
  benchmark.Compare("plan of a year, " + currency + " (3,200 years)", 0.2, {[&] {
                      std::size_t days = 0;
                      for (int round = 0; round < kRounds; ++round) {
                        for (int year = kFirstYear; year <= kLastYear; ++year)
                          days += planner.Plan(year).Days().size();
                      }
                      KeepResult(days);
                    }},
                    {[&] {
                      std::size_t days = 0;
                      for (int round = 0; round < kRounds; ++round) {
                        for (int year = kFirstYear; year <= kLastYear; ++year)
                          days += Listed(calendar, year).size();
                      }
                      KeepResult(days);
                    }});
}

}  // namespace

int main(int argc, char** argv) {
  return ferrowind::bench::RunBenchmark(argc, argv, [](const Benchmark& benchmark) {
    MeasurePlan(benchmark, "EUR", QuantLib::TARGET());
    // Substitutes, which look at other holidays; and equinoxes, days between holidays.
    MeasurePlan(benchmark, "GBP", QuantLib::UnitedKingdom(QuantLib::UnitedKingdom::Settlement));
    MeasurePlan(benchmark, "JPY", QuantLib::Japan());
  });
}
