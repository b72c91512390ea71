#include "ferrowind/planning/days_text.h"

#include <gmock/gmock.h>

#include "tests/unit/planning/planning_world.h"

namespace ferrowind::planning {
namespace {

using almanac::MarkedDay;
using almanac::RuleKind;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using testing::RunInFreshThread;

TEST(DaysText, HasADayBehindTheOtherAndCommentsOfAnyLetters) {
  const std::string comment("2,2,2,0:\0\n", 10);
  EXPECT_THAT(ReadDaysText("1,3,2147483647,0:2,1,1,10:" + comment + "366,2,7,3:Ü."),
              ElementsAre(MarkedDay{1, RuleKind::kCelebration, 2147483647, ""},
                          MarkedDay{2, RuleKind::kWorkingDay, 1, comment},
                          MarkedDay{366, RuleKind::kWeekday, 7, "Ü."}));
}

TEST(DaysText, OfNoDayIsEmpty) { EXPECT_THAT(ReadDaysText(""), IsEmpty()); }

TEST(DaysText, GivesDaysInTheirOrder) {
  EXPECT_THAT(ReadDaysText("9,2,7,0:3,2,8,0:"),
              ElementsAre(MarkedDay{3, RuleKind::kWeekday, 8, ""}, MarkedDay{9, RuleKind::kWeekday, 7, ""}));
}

TEST(DaysText, ThatIsMalformedIsAFailureThatSaysWhere) {
  RunInFreshThread([] {
    const PlanningWorld component;
    for (const char* text :
         {"1", "1,", "1,2,3", "1,2,3,0", "1,2,3,1:", "1,2,3,-1:", "1,2,,0:", " 1,2,3,0:", "1;2,3,0:",
          "99999,2,3,0:", "1,2,3000000000,0:", "1,2,3,99999999999999999999:", "1,2,3,0:x"}) {
      EXPECT_THAT(testing::FailureOf([&] { (void)ReadDaysText(text); }).Description(),
                  HasSubstr("in a form that this program does not know"))
          << text;
    }
    EXPECT_THAT(testing::FailureOf([] { (void)ReadDaysText("1,2,3,0:x"); }).Description(),
                HasSubstr("at byte 9 of their text"));
  });
}

}  // namespace
}  // namespace ferrowind::planning
