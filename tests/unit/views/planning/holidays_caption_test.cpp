// The caption of the Holidays window with its target.
#include <gtest/gtest.h>

#include "ferrowind/adapters/headless/headless_locale.h"
#include "ferrowind/views/holidays/fm_enter_holidays.h"
#include "ferrowind/views/planning/planning_additions.h"

#include "tests/support/run_in_fresh_thread.h"
#include "tests/unit/views/holidays/holidays_world.h"

namespace ferrowind {
namespace {

std::string CaptionFor(std::int32_t mode) {
  std::string caption;
  testing::RunInFreshThread([&] {
    testing::HolidaysWorld holidays;
    almanac::DateTables tables;
    PlanningWindows windows(holidays.platform, tables);
    PlanningAdditions additions({holidays.platform, tables, windows});
    holidays.platform.additions = &additions;
    holidays.window = std::make_unique<fmEnterHolidays>(
        holidays.platform, [](const auto& work) { work(); }, "EUR");
    ASSERT_TRUE(holidays.InitWithUsualRules(mode));
    caption = holidays.Form().Caption();
  });
  return caption;
}

TEST(HolidaysCaption, TellsCurrencyAndYearOfAWholeCalendar) {
  EXPECT_EQ(CaptionFor(kWholeCalendarMode), "Assign groups holidays for calendar - EUR 2026");
}

TEST(HolidaysCaption, TellsCurrencyAndDateWithItsWeekdayOfASingleDay) {
  EXPECT_EQ(CaptionFor(kSingleDayMode), "Assign holiday for single day - EUR, Friday 10 April 2026");
}

}  // namespace
}  // namespace ferrowind
