// The business days of a database in a program's memory.

#include "ferrowind/loading/day_loader.h"

#include <atomic>
#include <chrono>
#include <memory>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ferrowind/adapters/headless/memory_engine.h"
#include "ferrowind/business_days/day_failures.h"
#include "ferrowind/loading/convention_rows.h"
#include "ferrowind/platform/values/date.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::loading {
namespace {

using namespace std::chrono_literals;
using std::chrono::sys_days;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

constexpr std::int32_t kEuro = 978;
constexpr std::int32_t kDollar = 840;
constexpr std::int32_t kPeso = 484;

class DayLoaderTest : public ::testing::Test {
 protected:
  DayLoaderTest() {
    engines_.Register("memory", engine_);
    database_.Tables().currencies.push_back({kPeso, "MXN", 0, "Mexican Peso"});
    Call("CldIUCelebrate", {"Saturday", {}, 2, std::int16_t{7}, {}, {}, {}, {}, {}});
    Call("CldIUCelebrate",
         {"Holiday", {}, 3, {}, platform::Date(2028, 1, 2), std::int16_t{1}, std::int16_t{2}, {}, {}});
    for (const auto& [currency, year] : {std::pair(kEuro, 2028), {kEuro, 2029}, {kDollar, 2028}})
      Prepare(currency, year);
  }

  void Call(const std::string& procedure, const std::vector<platform::Value>& inputs) {
    ASSERT_EQ(database_.Call(procedure, inputs).return_value, 0) << procedure;
  }
  /// With one holiday, on 2 January.
  void Prepare(std::int32_t currency, std::int32_t year) {
    Call("CldIUMain", {currency, year, {}, {}, {}, {}, {}});
    Call("CldIUMain", {currency, year, 3, 3, 2, platform::Date(year, 1, 2), {}});
  }
  void CloseSaturdays(std::int32_t currency, std::int32_t year) {
    Call("CldIUMain", {currency, year, 2, 2, {}, {}, {}});
  }
  [[nodiscard]] DayLoader Loader() { return DayLoader(engines_, "memory:days"); }

  std::shared_ptr<headless::MemoryEngine> engine_ = std::make_shared<headless::MemoryEngine>();
  headless::MemoryDatabase& database_ = engine_->CreateDatabase("days");
  platform::EngineRegistry engines_;
};

TEST_F(DayLoaderTest, LoadsAllCalendars) {
  CloseSaturdays(kEuro, 2028);
  const DayLoader loader = Loader();
  const auto days = loader.Current();
  EXPECT_THAT(days->calendars.Codes(), ElementsAre("EUR", "USD"));
  EXPECT_FALSE(days->calendars.Of("EUR").IsBusinessDay(2028y / 1 / 1));
  EXPECT_TRUE(days->calendars.Of("EUR").IsBusinessDay(2029y / 12 / 31));
  EXPECT_TRUE(days->calendars.Of("USD").IsBusinessDay(2028y / 1 / 1));
  EXPECT_THROW((void)days->calendars.Of("USD").IsBusinessDay(2029y / 1 / 1), business_days::NotPrepared);
}

TEST_F(DayLoaderTest, AYearWhoseHolidaysNobodyHasEnteredIsNotPrepared) {
  Call("CldIUMain", {kDollar, 2029, {}, {}, {}, {}, {}});
  Call("CldIUMain", {kPeso, 2028, {}, {}, {}, {}, {}});
  CloseSaturdays(kPeso, 2028);
  const DayLoader loader = Loader();
  const auto& calendars = loader.Current()->calendars;
  EXPECT_THROW((void)calendars.Of("USD").IsBusinessDay(2029y / 1 / 1), business_days::NotPrepared);
  EXPECT_THROW((void)calendars.Of("MXN").IsBusinessDay(2028y / 1 / 3), business_days::NotPrepared);
  EXPECT_FALSE(calendars.Of("MXN").Horizon());
}

TEST_F(DayLoaderTest, ConventionsOfTheDatabaseWinOverTheDeliveredOnes) {
  Call("CldIUConvention", {kEuro, kDollar, 1, {}});
  Call("CldIUConvention", {kPeso, {}, {}, 0});
  const DayLoader loader = Loader();
  const auto& conventions = loader.Current()->conventions;
  EXPECT_EQ(conventions.DaysToSpot({"EUR", "USD"}), 1);
  EXPECT_EQ(conventions.DaysToSpot({"USD", "CAD"}), 1) << "as delivered";
  EXPECT_FALSE(conventions.DollarHolidayStops("MXN"));
  EXPECT_TRUE(conventions.DollarHolidayStops("CLP")) << "as delivered";
  EXPECT_TRUE(DeliveredConventions().DollarHolidayStops("MXN"));
}

TEST_F(DayLoaderTest, ReloadTellsWhichCalendarsAreOthers) {
  DayLoader loader = Loader();
  EXPECT_FALSE(loader.Reload().Any());
  const auto before = loader.Current();
  CloseSaturdays(kEuro, 2029);
  Prepare(kPeso, 2028);
  database_.Tables().calendars.erase({kDollar, 2028});
  const DayChanges changes = loader.Reload();
  EXPECT_THAT(changes.added, ElementsAre("MXN"));
  EXPECT_THAT(changes.changed, ElementsAre("EUR"));
  EXPECT_THAT(changes.removed, ElementsAre("USD"));
  EXPECT_FALSE(changes.has_other_conventions);
  EXPECT_THAT(loader.Current()->calendars.Codes(), ElementsAre("EUR", "MXN"));
  EXPECT_FALSE(loader.Current()->calendars.Of("EUR").IsBusinessDay(2029y / 1 / 6));
  EXPECT_TRUE(before->calendars.Of("EUR").IsBusinessDay(2029y / 1 / 6)) << "the old days stay";
  EXPECT_TRUE(before->calendars.Of("USD").IsBusinessDay(2028y / 1 / 3));
}

TEST_F(DayLoaderTest, AYearMoreAndAConventionAreChanges) {
  DayLoader loader = Loader();
  Prepare(kDollar, 2029);
  EXPECT_THAT(loader.Reload().changed, ElementsAre("USD"));
  Call("CldIUConvention", {kEuro, kDollar, 1, {}});
  const DayChanges changes = loader.Reload();
  EXPECT_TRUE(changes.has_other_conventions);
  EXPECT_THAT(changes.changed, IsEmpty());
  EXPECT_EQ(loader.Current()->conventions.DaysToSpot({"EUR", "USD"}), 1);
}

TEST_F(DayLoaderTest, NamesOfClosedDaysComeInTheSameCallWhenTheyAreWanted) {
  CloseSaturdays(kEuro, 2028);
  DayLoader loader(engines_, "memory:days", DayLoader::Names::kLoaded);
  const auto before = loader.Current();
  EXPECT_EQ(before->names.Of("EUR", 2028y / 1 / 1), "Saturday");
  EXPECT_EQ(before->names.Of("EUR", 2028y / 1 / 2), "Holiday");
  EXPECT_EQ(before->names.Of("EUR", 2028y / 12 / 30), "Saturday");
  EXPECT_EQ(before->names.Of("EUR", 2028y / 1 / 3), "") << "an open day";
  EXPECT_EQ(before->names.Of("EUR", 2030y / 1 / 1), "") << "no calendar";
  EXPECT_EQ(before->names.Of("MXN", 2028y / 1 / 1), "") << "no currency";
  EXPECT_EQ(Loader().Current()->names, DayNames());
  Call("CldIUCelebrate",
       {"Feast", {}, 3, {}, platform::Date(2028, 1, 2), std::int16_t{1}, std::int16_t{2}, 3, {}});
  EXPECT_FALSE(loader.Reload().Any()) << "the days are the same";
  EXPECT_EQ(loader.Current()->names.Of("EUR", 2028y / 1 / 2), "Feast");
  EXPECT_EQ(before->names.Of("EUR", 2028y / 1 / 2), "Holiday") << "the old names stay";
}

TEST_F(DayLoaderTest, NamesThatTheDatabaseDoesNotTellAreNone) {
  DayNames names;
  names.AddRule(3, "Holiday");
  names.AddYear("EUR", 2028, "1101", "3,x");
  EXPECT_EQ(names.Of("EUR", 2028y / 1 / 1), "Holiday");
  EXPECT_EQ(names.Of("EUR", 2028y / 1 / 2), "") << "no number";
  EXPECT_EQ(names.Of("EUR", 2028y / 1 / 4), "") << "no more numbers";
  EXPECT_EQ(names.Of("EUR", 2028y / 1 / 5), "") << "no more days";
}

TEST_F(DayLoaderTest, AFailedReloadLeavesEverythingAsItWas) {
  DayLoader loader = Loader();
  const auto before = loader.Current();
  CloseSaturdays(kEuro, 2028);
  const auto years = database_.Tables().calendars[{kEuro, 2029}];
  database_.Tables().calendars[{kEuro, 2029}].pop_back();
  try {
    loader.Reload();
    FAIL() << "364 days are no year";
  } catch (const platform::Failure& failure) {
    EXPECT_THAT(failure.Description(), HasSubstr("EUR: The year 2029 has 365 days, not 364"));
  }
  EXPECT_EQ(loader.Current(), before);
  database_.Tables().calendars[{kEuro, 2029}] = years;
  EXPECT_THAT(loader.Reload().changed, ElementsAre("EUR"));
}

TEST_F(DayLoaderTest, ADatabaseWithoutCalendarsIsAnEmptySet) {
  database_.Tables().calendars.clear();
  EXPECT_THAT(Loader().Current()->calendars.Codes(), IsEmpty());
}

TEST_F(DayLoaderTest, ThreadsReadWhileOneReloads) {
  DayLoader loader = Loader();
  std::atomic<bool> is_done = false;
  std::vector<std::thread> readers;
  for (int i = 0; i < 3; ++i) {
    readers.emplace_back([&] {
      while (!is_done) {
        const auto days = loader.Current();
        const auto& euro = days->calendars.Of("EUR");
        EXPECT_EQ(euro.AddBusinessDays(euro.AddBusinessDays(sys_days(2028y / 6 / 1), 20), -20),
                  sys_days(2028y / 6 / 1));
      }
    });
  }
  for (int i = 0; i < 20; ++i) {
    CloseSaturdays(kEuro, 2028);
    EXPECT_TRUE(loader.Reload().Any());
    Call("CldUndo", {static_cast<std::int32_t>(database_.History().size())});
    EXPECT_TRUE(loader.Reload().Any());
  }
  is_done = true;
  for (std::thread& reader : readers) reader.join();
}

}  // namespace
}  // namespace ferrowind::loading
