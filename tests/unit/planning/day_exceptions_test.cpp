#include "ferrowind/planning/day_exceptions.h"

#include <gmock/gmock.h>

#include "tests/unit/planning/planning_world.h"

namespace ferrowind::planning {
namespace {

using almanac::CalendarContent;
using almanac::RuleKind;
using platform::Date;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using testing::RunInFreshThread;

const Currency kEuro = {978, "EUR", "Euro", true, {}};
const std::vector<std::int16_t> kDays = {2, 3};

/// The calendar that the database answers with below: the 2nd of January is a Sunday.
CalendarContent Seen() { return {2028, {{.day_of_year = 2, .kind = RuleKind::kWeekday, .rule = 2}}}; }

class DayExceptionsWorld : public PlanningWorld {
 public:
  explicit DayExceptionsWorld(std::int32_t return_value = 0) {
    AnswerCalendar("f1", {{Date(2028, 1, 2), 2, "Sunday", "Weekend", {}, 2, 2}});
    world.commands.Answer("CldApplyPlan")
        .Takes("@ID1", ParameterType::kInt32)
        .Takes("@Year1", ParameterType::kInt32)
        .Takes("@Expected", ParameterType::kText)
        .Takes("@Days", ParameterType::kText)
        .Returns(return_value);
  }
};

TEST(DaysToExcept, AreClosedDaysAndExceptionsButNoOrdinaryOnes) {
  const CalendarContent calendar{2028,
                                 {{.day_of_year = 2, .kind = RuleKind::kWeekday},
                                  {.day_of_year = 9, .kind = RuleKind::kPoint},
                                  {.day_of_year = 10, .kind = RuleKind::kWorkingDay}}};
  const std::vector<std::int16_t> selected = {10, 9, 8};
  EXPECT_THAT(DaysToExcept(calendar, selected), ElementsAre(9, 10));
  EXPECT_THAT(DaysToExcept(calendar, {}), IsEmpty());
}

TEST(ExceptDays, ChangesAllDaysInOneCallThatExpectsTheCalendarAsItWasSeen) {
  RunInFreshThread([] {
    DayExceptionsWorld component;
    EXPECT_TRUE(ExceptDays(kEuro, Seen(), kDays, "Says \"the\" bank"));
    const auto& call = component.world.commands.Calls().back();
    EXPECT_EQ(call.procedure, "CldApplyPlan");
    EXPECT_EQ(call.Parameter("@ID1"), Value(978));
    EXPECT_EQ(call.Parameter("@Year1"), Value(2028));
    EXPECT_EQ(call.Parameter("@Expected"), Value("f1"));
    EXPECT_EQ(call.Parameter("@Days"),
              Value(R"([{"TID1":1,"Dates":["2028-01-02","2028-01-03"],"DayComment":"Says \"the\" bank"}])"));
  });
}

TEST(ExceptDays, ChangesNothingWhenTheCalendarIsAnotherByNow) {
  RunInFreshThread([] {
    DayExceptionsWorld component;
    CalendarContent other = Seen();
    other.days[0].comment = "Fair";
    EXPECT_FALSE(ExceptDays(kEuro, other, kDays, "reason"));
    EXPECT_NE(component.world.commands.Calls().back().procedure, "CldApplyPlan");
  });
}

TEST(ExceptDays, ChangesNothingWhenTheCalendarBecomesAnotherDuringTheCall) {
  RunInFreshThread([] {
    DayExceptionsWorld component(8);
    EXPECT_FALSE(ExceptDays(kEuro, Seen(), kDays, "reason"));
  });
}

TEST(ExceptDays, NamesTheCalendarThatTheDatabaseRefusesToChange) {
  RunInFreshThread([] {
    DayExceptionsWorld component(7);
    EXPECT_THAT(testing::FailureOf([] { (void)ExceptDays(kEuro, Seen(), kDays, "reason"); }).Description(),
                HasSubstr("Excepting days of EUR 2028: "));
  });
}

}  // namespace
}  // namespace ferrowind::planning
