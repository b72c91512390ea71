#include "ferrowind/adapters/year_engine/year_days.h"

#include <gtest/gtest.h>

#include "ferrowind/platform/values/failure.h"

#include "tests/unit/adapters/year_engine/small_years.h"

namespace ferrowind::year_engine {
namespace {

using platform::DayLook;
using platform::DayShape;
using platform::DayTint;
using platform::Failure;
using platform::YearContent;

TEST(YearDaysTest, TellsLookAndDescriptionOfDaysThatAreListed) {
  YearContent content = ContentOf(2028, {"EUR", "USD"});
  const DayLook holiday{DayTint::kRed, DayShape::kSquare, "C"};
  content.calendars[1].days = {{105, holiday, "Good Friday, closed"}};
  const YearDays days(content);
  EXPECT_EQ(days.LookOf(1, 105), holiday);
  EXPECT_EQ(days.DescriptionOf(1, 105), "Good Friday, closed");
}

TEST(YearDaysTest, TakesAllOtherDaysForOrdinaryOnes) {
  YearContent content = ContentOf(2028, {"EUR", "USD"});
  content.calendars[1].days = {{105, {DayTint::kRed, DayShape::kSquare, "C"}, "Good Friday, closed"}};
  const YearDays days(content);
  EXPECT_EQ(days.LookOf(0, 105), DayLook());
  EXPECT_EQ(days.LookOf(1, 366), DayLook());
  EXPECT_EQ(days.DescriptionOf(0, 105), "working day");
}

TEST(YearDaysTest, KnowsTheDatesOfItsDays) {
  EXPECT_EQ(DaysOf(2028, {}).DateOf(60), platform::Date(2028, 2, 29));
  EXPECT_EQ(DaysOf(2027, {}).DateOf(60), platform::Date(2027, 3, 1));
  EXPECT_EQ(DaysOf(2028, {}).DayCount(), 366);
}

TEST(YearDaysTest, FindsCalendarsByKey) {
  const YearDays days = DaysOf(2028, {"EUR", "USD"});
  EXPECT_EQ(days.PositionOf("USD"), 1);
  EXPECT_EQ(days.PositionOf("JPY"), std::nullopt);
}

TEST(YearDaysTest, KnowsThePlacesOfItsCells) {
  const YearDays days = DaysOf(2027, {"EUR", "USD"});
  EXPECT_EQ(days.PlaceOf({"USD", 365}), (YearPlace{1, 365}));
  EXPECT_EQ(days.CellAt({1, 365}), (platform::YearCell{"USD", 365}));
  EXPECT_EQ(days.PlaceOf({"USD", 366}), std::nullopt);
  EXPECT_EQ(days.PlaceOf({"USD", 0}), std::nullopt);
  EXPECT_EQ(days.PlaceOf({"JPY", 1}), std::nullopt);
}

TEST(YearDaysTest, RefusesContentThatIsNotAsDescribed) {
  const auto refuses = [](YearContent content) { EXPECT_THROW(YearDays{std::move(content)}, Failure); };
  refuses(ContentOf(0, {}));
  refuses(ContentOf(10000, {}));
  refuses(ContentOf(2028, {"EUR", "EUR"}));
  refuses(ContentOf(2028, {""}));
  YearContent content = ContentOf(2027, {"EUR"});
  content.today = 366;
  refuses(content);
  content = ContentOf(2027, {"EUR"});
  content.calendars[0].days = {{366, {}, ""}};
  refuses(content);
  content.calendars[0].days = {{2, {}, ""}, {2, {}, ""}};
  refuses(content);
  content.calendars[0].days = {{3, {}, ""}, {2, {}, ""}};
  refuses(content);
  content = ContentOf(2027, {"EUR"});
  content.notes = {{0, "New Year"}};
  refuses(content);
}

}  // namespace
}  // namespace ferrowind::year_engine
