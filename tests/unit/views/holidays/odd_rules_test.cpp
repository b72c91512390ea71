// Rules whose fields are empty or of no known meaning, in the Holidays window.
#include <gtest/gtest.h>

#include "tests/support/run_in_fresh_thread.h"
#include "tests/unit/views/holidays/holidays_world.h"

namespace ferrowind {
namespace {

using testing::Date;
using testing::HolidaysWorld;
using testing::RunInFreshThread;
using testing::Value;
using Names = std::vector<std::string>;
using Parameters = std::vector<std::pair<std::string, Value>>;

TEST(HolidaysWindow, ARuleWithoutDateOrWeekdayShowsAnEmptyDateAndSaysNothing) {
  RunInFreshThread([] {
    HolidaysWorld world;
    world.SetRules(
        {HolidaysWorld::Rule(2, "No weekday", 2, {}, {}), HolidaysWorld::Rule(3, "No date", 3, {}, {})});
    ASSERT_TRUE(world.Init(0));
    EXPECT_EQ(world.Grid().CellText(1, "FullDate"), "");
    EXPECT_EQ(world.Grid().CellText(2, "FullDate"), "");
    EXPECT_TRUE(world.world.services->Reports().empty());
  });
}

TEST(HolidaysWindow, ARuleOfAnUnknownTypeShowsItsCodeUnformattedAndOneWithoutATypeIsNotListed) {
  RunInFreshThread([] {
    HolidaysWorld world;
    world.SetRules({HolidaysWorld::Rule(8, "Special", 5, Date(1999, 5, 1), {}),
                    {9, "Typeless", {}, {}, Date(1999, 5, 2), {}, {}, {}, {}}});
    ASSERT_TRUE(world.Init(0));
    EXPECT_EQ(world.Names(), Names{"Special"});
    EXPECT_EQ(world.Grid().CellText(1, "HolidayType"), "5");
    EXPECT_EQ(world.Grid().CellText(1, "FullDate"), "1 May");
    EXPECT_EQ(world.Grid().RowStyle(1), headless::GridRowStyle());
  });
}

TEST(HolidaysWindow, ARuleWithNothingButAnIdentifierAndATypeIsListedAndCanBeUsed) {
  for (const std::int32_t type : {2, 3, 4}) {
    RunInFreshThread([type] {
      HolidaysWorld world;
      world.SetRules({{9, {}, {}, type, {}, {}, {}, {}, {}}});
      ASSERT_TRUE(world.Init(0));
      EXPECT_EQ(world.Names(), Names{""});
      world.Show([&] {
        world.Grid().ClickRow(1);
        for (int i : {1, 2, 5}) EXPECT_TRUE(world.Action(i).Enabled()) << i;
        EXPECT_FALSE(world.Action(3).Enabled()) << "an empty mark is no removal";
        world.world.toolkit.ScriptModal("fmAddHoliday", [](headless::HeadlessForm& form) {
          EXPECT_EQ(platform::ControlOf<platform::TextBox>(form, "txtName").Text(), "");
          form.Part<headless::HeadlessButton>("cmdCancel").Click();
        });
        world.Action(1).Click();
        world.Answer("fmMessage", "cmdOk");
        world.Action(2).Click();
      });
      EXPECT_EQ(world.world.toolkit.WaitingScripts(), 0u) << "editor and question were opened";
      ASSERT_EQ(world.world.commands.CallsOf("CldIUCelebrate").size(), 1u);
      EXPECT_EQ(world.world.commands.CallsOf("CldIUCelebrate")[0].Parameter("@ID2"), Value(9));
      EXPECT_TRUE(world.Messages().empty());
      EXPECT_TRUE(world.world.services->Reports().empty());
    });
  }
}

TEST(HolidaysWindow, AWeekdayIsReadAsADaysSerialWhateverTheNumber) {
  RunInFreshThread([] {
    HolidaysWorld world;
    world.SetRules({HolidaysWorld::Rule(2, "Zero", 2, {}, 0), HolidaysWorld::Rule(3, "One", 2, {}, 1),
                    HolidaysWorld::Rule(4, "Seven", 2, {}, 7), HolidaysWorld::Rule(5, "Eight", 2, {}, 8)});
    ASSERT_TRUE(world.Init(0));
    EXPECT_EQ(world.Grid().CellText(world.RowOf("Zero"), "FullDate"), "Saturday");
    EXPECT_EQ(world.Grid().CellText(world.RowOf("One"), "FullDate"), "Sunday");
    EXPECT_EQ(world.Grid().CellText(world.RowOf("Seven"), "FullDate"), "Saturday");
    EXPECT_EQ(world.Grid().CellText(world.RowOf("Eight"), "FullDate"), "Sunday");
  });
}

TEST(HolidaysWindow, FollowsTheFieldsThatTheMapGives) {
  RunInFreshThread([] {
    HolidaysWorld world;
    const std::pair<const char*, const char*> fields[] = {{"Del", "Mark"},
                                                          {"HolidayType", "Kind"},
                                                          {"FullDate", "Falls"},
                                                          {"DayOfWeek", "Weekday"},
                                                          {"ID_Holiday", "Number"}};
    for (const auto& [column, field] : fields) world.headers->LocalNames(column)->SetFieldName(field);
    world.world.commands.Answer("CldAllInfo")
        .Gives({"ID1", "Year1"}, {{978, 2026}})
        .Gives({"TID1", "Description1"},
               {{1, "Working day"}, {2, "Holiday"}, {3, "Celebration"}, {4, "Holiday point"}})
        .Gives({"Number", "Name1", "Comment", "Kind", "Falls", "MY", "MD", "Weekday", "Mark"},
               HolidaysWorld::UsualRules())
        .Gives({"FirstDay"}, {{1}});
    ASSERT_TRUE(world.Init(1));
    EXPECT_EQ(world.Grid().Records()->Filter(), "(Mark <> 2 and Kind <> 1) or (Mark = NULL and Kind <> 1)");
    EXPECT_EQ(world.Grid().CellText(world.RowOf("Monday"), "FullDate"), "Monday");
    EXPECT_EQ(world.Grid().CellText(world.RowOf("Christmas Day"), "FullDate"), "25 December");
    world.Show([&] {
      world.Grid().ClickRow(world.RowOf("Christmas Day"));
      world.Action(5).Click();
    });
    EXPECT_EQ(world.world.commands.CallsOf("CldIUMain").at(0).parameters,
              (Parameters{{"@TID1", 3},
                          {"@ID1", 978},
                          {"@ID2", 4},
                          {"@Year1", 2026},
                          {"@ODate", Date(2026, 12, 25)},
                          {"@Day1", 359}}));
  });
}

TEST(HolidaysWindow, RulesThatCannotBeReadAreReportedAndTheCommandStillEnds) {
  RunInFreshThread([] {
    HolidaysWorld world;
    world.headers->LocalNames("ID_Holiday")->SetFieldName("Absent");
    ASSERT_TRUE(world.InitWithUsualRules(1));
    world.Show([&] {
      world.Grid().ClickRow(1);
      world.Answer("fmMessage", "cmdOk");
      world.Action(2).Click();
      EXPECT_EQ(world.world.services->Reports().size(), 1u);
      EXPECT_EQ(world.world.commands.CallsOf("CldAllInfo").size(), 2u) << "reloaded all the same";
      world.Grid().ClickRow(1);
      world.Action(5).Click();
      EXPECT_EQ(world.world.services->Reports().size(), 2u);
    });
    EXPECT_EQ(world.window->Result(), 1);
    EXPECT_TRUE(world.Form().HasUnloaded());
    EXPECT_TRUE(world.world.commands.CallsOf("CldIUCelebrate").empty());
    EXPECT_TRUE(world.world.commands.CallsOf("CldIUMain").empty());
  });
}

TEST(HolidaysWindow, AGroupRowIsNoRule) {
  RunInFreshThread([] {
    HolidaysWorld world;
    ASSERT_TRUE(world.InitWithUsualRules(1));
    world.Show([&] {
      world.Grid().GroupKeys().Add(world.Grid().ColumnByKey("HolidayType").Index(), platform::kSortAscending,
                                   0);
      world.Grid().Refresh(true);
      ASSERT_TRUE(world.Grid().IsGroupRow(1));
      ASSERT_EQ(world.Grid().CellText(2, "Name"), "Saturday");
      world.Grid().ClickRow(1);
      for (int i : {1, 2, 3, 5}) EXPECT_FALSE(world.Action(i).Enabled()) << i;
      world.Grid().ToggleRow(2);
      world.Action(5).Click();
    });
    ASSERT_EQ(world.world.commands.CallsOf("CldIUMain").size(), 1u);
    EXPECT_EQ(world.world.commands.CallsOf("CldIUMain")[0].Parameter("@ID2"), Value(2));
    EXPECT_TRUE(world.world.services->Reports().empty());
  });
}

}  // namespace
}  // namespace ferrowind
