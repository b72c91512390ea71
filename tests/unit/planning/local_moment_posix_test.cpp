#include <gtest/gtest.h>

#include "ferrowind/planning/local_moment.h"

#include "tests/unit/planning/time_zone.h"

namespace ferrowind::planning {
namespace {

using platform::Date;

TEST(LocalMoment, IsToldUpToTheLastYears) {
  const TimeZone zone("XST-9");
  EXPECT_EQ(LocalMoment("9998-12-31T15:00:00.000Z"), "9999-01-01 00:00:00");
}

/// As in the middle of Europe.
constexpr const char* kWithSummerTime = "CET-1CEST,M3.5.0,M10.5.0/3";

TEST(MomentOfLocalTime, IsThatOfSummerInSummer) {
  const TimeZone zone(kWithSummerTime);
  EXPECT_EQ(MomentOf({Date(2026, 7, 1), 12, 0, 0}), "2026-07-01T10:00:00.999Z");
  EXPECT_EQ(MomentOf({Date(2026, 12, 1), 12, 0, 0}), "2026-12-01T11:00:00.999Z");
}

TEST(MomentOfLocalTime, IsTheLaterOfTwoAndNoneWhereTheClockIsSetForward) {
  const TimeZone zone(kWithSummerTime);
  EXPECT_EQ(MomentOf({Date(2026, 10, 25), 2, 30, 0}), "2026-10-25T01:30:00.999Z");
  EXPECT_EQ(MomentOf({Date(2026, 3, 29), 2, 30, 0}), std::nullopt);
  EXPECT_EQ(MomentOf({Date(2026, 3, 29), 3, 0, 0}), "2026-03-29T01:00:00.999Z");
}

}  // namespace
}  // namespace ferrowind::planning
