#include "ferrowind/planning/local_moment.h"

#include <gtest/gtest.h>

#include "tests/unit/planning/time_zone.h"

namespace ferrowind::planning {
namespace {

using platform::Date;

TEST(LocalMoment, IsToldByThisComputersClock) {
  // Nine hours before UTC's, without daylight saving.
  const TimeZone zone("XST-9");
  EXPECT_EQ(LocalMoment("2026-11-22T19:05:31.647Z"), "2026-11-23 04:05:31");
  EXPECT_EQ(LocalMoment("2026-12-31T15:00:00.000Z"), "2027-01-01 00:00:00");
}

TEST(LocalMoment, LeavesWhatIsNoMomentAsItIs) {
  for (const char* text : {"", "now", "2026-11-22", "2026-13-22T19:05:31Z", "2026-11-22T1x:05:31Z"}) {
    EXPECT_EQ(LocalMoment(text), text);
  }
}

TEST(MomentOfLocalTime, IsTheEndOfTheSecondThatThisComputersClockShows) {
  const TimeZone zone("XST-9");
  EXPECT_EQ(MomentOf({Date(2026, 11, 23), 4, 5, 31}), "2026-11-22T19:05:31.999Z");
  EXPECT_EQ(LocalMoment("2026-11-22T19:05:31.999Z"), "2026-11-23 04:05:31");
}

}  // namespace
}  // namespace ferrowind::planning
