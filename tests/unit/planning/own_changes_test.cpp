#include "ferrowind/planning/own_changes.h"

#include <gmock/gmock.h>

#include "tests/unit/planning/memory_world.h"

namespace ferrowind::planning {
namespace {

using platform::Date;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using testing::RunInFreshThread;

void Except(MemoryWorld& component, int day) {
  ASSERT_EQ(
      component.Call("CldIUMain", {{"ID1", 978}, {"Year1", 2028}, {"TID1", 1}, {"ID2", 1}, {"Day1", day}}),
      0);
}

class OwnChanges : public ::testing::Test {
 protected:
  /// Bob made EUR 2028 and its Good Friday; anna is the user.
  static void With(const std::function<void(MemoryWorld&)>& body) {
    RunInFreshThread([&] {
      MemoryWorld component;
      component.ActAs("bob");
      component.AddSundayAndGoodFriday();
      component.Call("CldIUMain", {{"ID1", 978}, {"Year1", 2028}});
      component.AssignGoodFriday();
      component.ActAs("anna");
      body(component);
    });
  }
};

TEST_F(OwnChanges, AreNoneOfWhatOthersChanged) {
  With([](auto&) { EXPECT_THAT(LoadOwnDays(978, 2028), IsEmpty()); });
}

TEST_F(OwnChanges, AreTheDaysThatOnesCallsWereFor) {
  With([](MemoryWorld& component) {
    Except(component, 7);
    Except(component, 200);
    component.ActAs("bob");
    Except(component, 7);
    Except(component, 8);
    component.ActAs("anna");
    EXPECT_THAT(LoadOwnDays(978, 2028), ElementsAre(7, 200)) << "whoever changed them since";
  });
}

TEST_F(OwnChanges, AreTheDaysThatACallForManyChanged) {
  With([](MemoryWorld& component) {
    Except(component, 2);
    component.Call("CldIUMain", {{"ID1", 978}, {"Year1", 2028}, {"TID1", 2}, {"ID2", 2}});
    const auto days = LoadOwnDays(978, 2028);
    EXPECT_EQ(days.size(), 53U) << "the exception of the Sunday 2 January, and the other Sundays";
    EXPECT_TRUE(days.contains(9));
    EXPECT_FALSE(days.contains(10));
  });
}

TEST_F(OwnChanges, AreTheDaysOfAnUndo) {
  With([](MemoryWorld& component) {
    ASSERT_EQ(component.Call("CldUndo", {{"EntryID", 4}}), 0);
    EXPECT_THAT(LoadOwnDays(978, 2028), ElementsAre(105));
  });
}

TEST_F(OwnChanges, AreNoneOfANewCalendarOrAnotherOne) {
  With([](MemoryWorld& component) {
    component.Call("CldIUMain", {{"ID1", 978}, {"Year1", 2029}});
    EXPECT_THAT(LoadOwnDays(978, 2029), IsEmpty());
    Except(component, 7);
    EXPECT_THAT(LoadOwnDays(978, 2029), IsEmpty());
  });
}

}  // namespace
}  // namespace ferrowind::planning
