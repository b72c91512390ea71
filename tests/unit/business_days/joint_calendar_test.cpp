#include "ferrowind/business_days/joint_calendar.h"

#include <chrono>
#include <string>

#include <gtest/gtest.h>

#include "ferrowind/business_days/day_failures.h"

#include "calendars.h"

namespace ferrowind::business_days {
namespace {

using namespace std::chrono_literals;
using std::chrono::sys_days;

const BusinessCalendar& Dollar() {
  static const BusinessCalendar calendar("USD", {YearWith(2026, {std::chrono::July / 3}), YearWith(2027)});
  return calendar;
}

const BusinessCalendar& Yen() {
  static const BusinessCalendar calendar("JPY", {YearWith(2025), YearWith(2026, {std::chrono::May / 5})});
  return calendar;
}

TEST(JointCalendar, IsClosedWhenOneMemberIs) {
  const JointCalendar joint({Dollar(), Yen()});
  EXPECT_FALSE(joint.IsBusinessDay(2026y / 7 / 3));
  EXPECT_FALSE(joint.IsBusinessDay(2026y / 5 / 5));
  EXPECT_TRUE(joint.IsBusinessDay(2026y / 5 / 6));
}

TEST(JointCalendar, IsPreparedWhereAllMembersAreAndNamesTheOneThatIsNot) {
  const JointCalendar joint({Dollar(), Yen()});
  EXPECT_FALSE(joint.IsPrepared(2025y));
  EXPECT_TRUE(joint.IsPrepared(2026y));
  EXPECT_FALSE(joint.IsPrepared(2027y));
  for (const auto& [day, expected] : {std::pair(sys_days(2025y / 3 / 3), "USD 2025 is not prepared"),
                                      std::pair(sys_days(2027y / 3 / 3), "JPY 2027 is not prepared"),
                                      std::pair(sys_days(2031y / 3 / 3), "USD 2031 is not prepared")}) {
    try {
      (void)joint.IsBusinessDay(day);
      ADD_FAILURE() << "answered where the failure would be " << expected;
    } catch (const NotPrepared& failure) {
      EXPECT_EQ(failure.Description(), expected);
    }
  }
}

TEST(JointCalendar, TellsItsMembersEachOnce) {
  const JointCalendar joint({Dollar(), Yen(), Dollar()});
  EXPECT_EQ(joint.Name(), "USD+JPY");
  const auto members = joint.Members();
  ASSERT_EQ(members.size(), 2U);
  EXPECT_EQ(members[0].Code(), "USD");
  EXPECT_EQ(members[1].Code(), "JPY");
  EXPECT_FALSE(members[1].IsBusinessDay(2026y / 5 / 5));
}

TEST(JointCalendar, NeedsAMember) { EXPECT_THROW(JointCalendar({}), platform::Failure); }

TEST(JointCalendar, KnowsNoDayWhereTheMembersHaveNoYearInCommon) {
  const JointCalendar joint(
      {BusinessCalendar("AAA", {YearWith(2025)}), BusinessCalendar("BBB", {YearWith(2027)})});
  EXPECT_FALSE(joint.Horizon());
  EXPECT_EQ(joint.State(2025y / 3 / 3), DayState::kNotPrepared);
}

}  // namespace
}  // namespace ferrowind::business_days
