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

}  // namespace
}  // namespace ferrowind
