#include <gtest/gtest.h>

#include "tests/unit/planning/time_zone.h"
#include "tests/unit/views/planning/past_world.h"

namespace ferrowind {
namespace {

using testing::Question;
using testing::WithQuestion;

TEST(CalendarAtAMoment, IsNoneThatTheClockNeverShowed) {
  WithQuestion([](Question& question) {
    const planning::TimeZone with_summer_time("CET-1CEST,M3.5.0,M10.5.0/3");
    question.Type("2026-03-29", "02:30");
    EXPECT_EQ(question.Meaning(), "The clock was set forward then, and never showed this time.");
  });
}

}  // namespace
}  // namespace ferrowind
