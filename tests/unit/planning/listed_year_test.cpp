#include "ferrowind/planning/listed_year.h"

#include <gmock/gmock.h>

#include "ferrowind/planning/currency_list.h"

#include "tests/support/run_in_fresh_thread.h"
#include "tests/unit/planning/memory_planning_world.h"

namespace ferrowind::planning {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using testing::RunInFreshThread;

const Currency kEuroCurrency = {kEuro, "EUR", "Euro", true, {}};
const Currency kDollarCurrency = {kDollar, "USD", "Dollar", true, {}};

/// "EUR 2028-04-14 Fair".
std::vector<std::string> InText(const exchange::DayList& list) {
  std::vector<std::string> days;
  for (const auto& day : list.days) days.push_back(day.currency + " " + day.date.ToIso() + " " + day.name);
  return days;
}

TEST(ListCalendars, GivesThemByCurrenciesAndYearsHoweverMany) {
  RunInFreshThread([] {
    MemoryPlanningWorld world;
    const std::int32_t fair = MemoryPlanningWorld::AddPoint("Fair", "2028-04-14");
    for (const std::int32_t currency : {kEuro, kDollar}) {
      for (int year = 2020; year <= 2042; ++year) MemoryPlanningWorld::CreateCalendar(currency, year);
    }
    MemoryPlanningWorld::Assign(kDollar, "2020-04-14", 4, fair);
    for (const char* day : {"2029-04-14", "2030-04-14", "2042-04-14", "2021-04-14"}) {
      MemoryPlanningWorld::Assign(kEuro, day, 4, fair);
    }
    EXPECT_THAT(InText(ListCalendars({kEuroCurrency, kDollarCurrency}, {2020, 2042}, false)),
                ElementsAre("EUR 2021-04-14 Fair", "EUR 2029-04-14 Fair", "EUR 2030-04-14 Fair",
                            "EUR 2042-04-14 Fair", "USD 2020-04-14 Fair"));
    EXPECT_THAT(InText(ListCalendars({kDollarCurrency}, {2021, 2042}, true)), IsEmpty());
  });
}

TEST(ListCalendars, AsksTheDatabaseNoOftenerForTenYearsThanForOne) {
  RunInFreshThread([] {
    MemoryPlanningWorld world;
    for (int year = 2020; year <= 2029; ++year) MemoryPlanningWorld::CreateCalendar(kEuro, year);
    const auto calls_up_to = [&](int last) {
      const int before = world.world.faults.CallCount();
      static_cast<void>(ListCalendars({kEuroCurrency}, {2020, last}, true));
      return world.world.faults.CallCount() - before;
    };
    EXPECT_EQ(calls_up_to(2029), calls_up_to(2020));
  });
}

TEST(ListCalendars, RefusesAYearOfWhichNothingIsKnown) {
  RunInFreshThread([] {
    MemoryPlanningWorld world;
    MemoryPlanningWorld::CreateCalendar(kEuro, 2028);
    try {
      static_cast<void>(ListCalendars({kEuroCurrency}, {2028, 2029}, false));
      FAIL() << "nothing was refused";
    } catch (const platform::Failure& failure) {
      EXPECT_EQ(failure.Description(), "There is no calendar EUR 2029, so nothing is known of its days");
    }
  });
}

}  // namespace
}  // namespace ferrowind::planning
