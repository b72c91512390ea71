#include "ferrowind/planning/moment_text.h"

#include <gtest/gtest.h>

#include "ferrowind/adapters/headless/headless_locale.h"

#include "tests/unit/planning/time_zone.h"

namespace ferrowind::planning {
namespace {

const headless::HeadlessLocale kLocale;

TEST(MomentText, HasTheDateOfTheLocaleWithItsWeekdayAndTheTimeOfThisComputer) {
  const TimeZone zone("XST-9");
  EXPECT_EQ(MomentText(kLocale, "2026-12-31T15:04:31.647Z"), "2027-01-01 Fri 00:04");
  EXPECT_EQ(ExactMomentText(kLocale, "2026-12-31T15:04:31.647Z"), "2027-01-01 Fri 00:04:31");
}

TEST(MomentText, LeavesWhatIsNoMomentAsItIs) {
  for (const char* text : {"", "now", "2026-11-22", "2026-13-22T19:05:31Z"}) {
    EXPECT_EQ(MomentText(kLocale, text), text);
    EXPECT_EQ(ExactMomentText(kLocale, text), text);
  }
}

}  // namespace
}  // namespace ferrowind::planning
