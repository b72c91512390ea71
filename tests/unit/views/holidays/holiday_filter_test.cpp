#include "ferrowind/views/holidays/holiday_filter.h"

#include <gtest/gtest.h>

namespace ferrowind {
namespace {

TEST(HolidayFilter, BeginsByHidingRemovedRules) {
  HolidayFilter filter("Del", "HolidayType");
  filter.Toggle();
  EXPECT_EQ(filter.ButtonText(), "Show all");
  EXPECT_EQ(filter.Text(), "(Del <> 2 and HolidayType <> 1) or (Del = NULL and HolidayType <> 1)");
}

TEST(HolidayFilter, ThenShowsThemAndThenHidesThemAgain) {
  HolidayFilter filter("Del", "TID1");
  filter.Toggle();
  filter.Toggle();
  EXPECT_EQ(filter.ButtonText(), "Hide removed");
  EXPECT_EQ(filter.Text(), "TID1 <> 1");
  filter.Toggle();
  EXPECT_EQ(filter.ButtonText(), "Show all");
  EXPECT_EQ(filter.Text(), "(Del <> 2 and TID1 <> 1) or (Del = NULL and TID1 <> 1)");
}

}  // namespace
}  // namespace ferrowind
