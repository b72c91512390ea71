#include "ferrowind/planning/shown_calendar.h"

#include <gmock/gmock.h>

#include "ferrowind/planning/database_call.h"

#include "tests/unit/planning/memory_world.h"

namespace ferrowind::planning {
namespace {

using testing::RunInFreshThread;
using Kind = CalendarNews::Kind;

/// EUR 2028 with its Good Friday, by bob; anna acts next.
class ShownCalendar : public ::testing::Test {
 protected:
  static void With(
      const std::function<void(MemoryWorld& component, const platform::RecordSet& shown)>& body) {
    RunInFreshThread([&] {
      MemoryWorld component;
      component.ActAs("bob");
      component.AddSundayAndGoodFriday();
      component.Call("CldIUMain", {{"ID1", 978}, {"Year1", 2028}});
      component.AssignGoodFriday();
      SourceValues calendar;
      calendar.Add("ID1", 978);
      calendar.Add("Year1", 2028);
      const auto days = CallDatabase("Reading", "CldGetMain", calendar, 1).record_sets.front();
      component.ActAs("anna");
      body(component, *days);
    });
  }
};

void Except(MemoryWorld& component, int day) {
  component.Call("CldIUMain", {{"ID1", 978}, {"Year1", 2028}, {"TID1", 1}, {"ID2", 1}, {"Day1", day}});
}

void Rename(MemoryWorld& component, int rule, const char* name) {
  ASSERT_EQ(component.Call("CldIUCelebrate", {{"ID2", rule}, {"Name1", name}, {"TID1", 2}, {"WD", 1}}), 0);
}

TEST_F(ShownCalendar, IsNoNewsWhileItIsAsOnShow) {
  With([](MemoryWorld& component, const platform::RecordSet& shown) {
    EXPECT_EQ(NewsSince(shown, 978, 2028).kind, Kind::kNone);
    component.Call("CldIUMain", {{"ID1", 978}, {"Year1", 2029}});
    Rename(component, 2, "Sonntag");
    EXPECT_EQ(NewsSince(shown, 978, 2028).kind, Kind::kNone) << "no day has that rule";
  });
}

TEST_F(ShownCalendar, NamesTheCallThatChangedIt) {
  With([](MemoryWorld& component, const platform::RecordSet& shown) {
    Except(component, 105);
    component.ActAs("carol");
    component.Call("CldIUMain", {{"ID1", 978}, {"Year1", 2029}});
    Rename(component, 2, "Sonntag");
    const auto news = NewsSince(shown, 978, 2028);
    EXPECT_EQ(news.kind, Kind::kChanged);
    ASSERT_TRUE(news.call.has_value());
    EXPECT_EQ(news.call->user, "anna");
    EXPECT_EQ(news.call->id, 5);
  });
}

TEST_F(ShownCalendar, NamesTheCallThoughManyFollowedForOtherThings) {
  With([](MemoryWorld& component, const platform::RecordSet& shown) {
    Except(component, 105);
    for (int i = 0; i < 110; ++i) Rename(component, 2, i % 2 == 0 ? "Sonntag" : "Sunday");
    EXPECT_EQ(NewsSince(shown, 978, 2028).call.value().id, 5);
  });
}

TEST_F(ShownCalendar, IsNewsNoMoreOnceTheChangeIsUndone) {
  With([](MemoryWorld& component, const platform::RecordSet& shown) {
    Except(component, 105);
    component.Call("CldUndo", {{"EntryID", 5}});
    EXPECT_EQ(NewsSince(shown, 978, 2028).kind, Kind::kNone);
  });
}

TEST_F(ShownCalendar, IsNewsWhenItIsGone) {
  With([](MemoryWorld& component, const platform::RecordSet& shown) {
    component.Call("CldUndo", {{"EntryID", 4}});
    component.Call("CldUndo", {{"EntryID", 3}});
    const auto news = NewsSince(shown, 978, 2028);
    EXPECT_EQ(news.kind, Kind::kRemoved);
    EXPECT_EQ(news.call.value().user, "anna");
  });
}

}  // namespace
}  // namespace ferrowind::planning
