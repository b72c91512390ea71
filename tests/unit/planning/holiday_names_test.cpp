#include "ferrowind/planning/holiday_names.h"

#include <gmock/gmock.h>

#include "tests/support/run_in_fresh_thread.h"
#include "tests/unit/planning/memory_planning_world.h"

namespace ferrowind::planning {
namespace {

using almanac::RuleKind;
using platform::Date;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using testing::RunInFreshThread;

const std::vector<Date> kChristmas = {Date(2028, 12, 25)};
const std::vector<Date> kOtherDay = {Date(2028, 5, 5)};

/// The points "Fair" and "Wake", which is removed, and the weekday "Sunday"; a book of EUR has "Christmas
/// Day" and "Labour Day", which moves.
class NamesWorld : public MemoryPlanningWorld {
 public:
  NamesWorld() {
    AddPoint("Fair", "2026-03-01");
    const std::int32_t wake = AddPoint("Wake", "2026-03-02");
    Call("CldIUCelebrate", {{"ID2", wake}, {"Del", 2}});
    Call("CldIUCelebrate", {{"Name1", "Sunday"}, {"TID1", 2}, {"WD", 1}});
    GiveBook(kEuro, "EUR",
             "celebration | Christmas Day | 12-25 |\n"
             "celebration | Labour Day | 05-01 to next free day | | Labour Day off\n");
  }

  [[nodiscard]] HolidayNames Names() const { return HolidayNames(YearPlanner({})); }
};

TEST(HolidayNames, AreThoseThatTheDaysCanBeClosedAs) {
  RunInFreshThread([] {
    const NamesWorld world;
    EXPECT_THAT(world.Names().For(kOtherDay), ElementsAre("Fair", "Labour Day off"));
    EXPECT_THAT(world.Names().For(kChristmas), ElementsAre("Christmas Day", "Fair", "Labour Day off"));
  });
}

TEST(HolidayNames, MakeANewNameThatOfAPoint) {
  RunInFreshThread([] {
    const NamesWorld world;
    const HolidayName name = world.Names().Read("  National Day of Mourning ", kOtherDay);
    EXPECT_EQ(name.name, "National Day of Mourning");
    EXPECT_EQ(name.kind, RuleKind::kPoint);
    EXPECT_TRUE(name.is_new);
    EXPECT_THAT(name.refusal, IsEmpty());
  });
}

TEST(HolidayNames, KnowARuleWhateverTheLetterCase) {
  RunInFreshThread([] {
    const NamesWorld world;
    const HolidayName name = world.Names().Read("fAIR ", kOtherDay);
    EXPECT_EQ(name.name, "Fair");
    EXPECT_FALSE(name.is_new);
    EXPECT_THAT(name.refusal, IsEmpty());
  });
}

TEST(HolidayNames, KnowWhatABookHasAlthoughNoCalendarHasItYet) {
  RunInFreshThread([] {
    const NamesWorld world;
    const HolidayName name = world.Names().Read("christmas day", kChristmas);
    EXPECT_EQ(name.kind, RuleKind::kCelebration);
    EXPECT_FALSE(name.is_new);
    EXPECT_THAT(name.refusal, IsEmpty());
  });
}

TEST(HolidayNames, SayWhyANameCannotBeTaken) {
  RunInFreshThread([] {
    const NamesWorld world;
    const auto refusal = [&](const char* typed) { return world.Names().Read(typed, kOtherDay).refusal; };
    EXPECT_THAT(refusal(" "), HasSubstr("Type what the holiday is called"));
    EXPECT_THAT(refusal("wake"), HasSubstr("The rule Wake is removed. Restore it"));
    EXPECT_THAT(refusal("Sunday"), HasSubstr("one weekday of every week"));
    EXPECT_THAT(refusal("working day by exception"), HasSubstr("opens days"));
    EXPECT_THAT(refusal("Christmas Day"), HasSubstr("Christmas Day is on 25 December each year"));
  });
}

}  // namespace
}  // namespace ferrowind::planning
