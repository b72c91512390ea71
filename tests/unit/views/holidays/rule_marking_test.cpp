// Removing and restoring the selected rules of the Holidays window.
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

TEST(RemoveHoliday, AsksFirstAndDoesNothingOnCancel) {
  RunInFreshThread([] {
    HolidaysWorld world;
    ASSERT_TRUE(world.InitWithUsualRules(1));
    world.Show([&] {
      world.Grid().ClickRow(1);
      world.world.toolkit.ScriptModal("fmMessage", [](headless::HeadlessForm& form) {
        EXPECT_EQ(form.Caption(), "Remove holiday");
        EXPECT_EQ(platform::ControlOf<platform::Label>(form, "lblMessage").Text(), "Are you sure ?");
        EXPECT_TRUE(form.ControlNamed("cmdCancel").Visible());
        form.Part<headless::HeadlessButton>("cmdCancel").Click();
      });
      world.Action(2).Click();
    });
    EXPECT_TRUE(world.world.commands.CallsOf("CldIUCelebrate").empty());
    EXPECT_EQ(world.world.commands.CallsOf("CldAllInfo").size(), 1u) << "nothing is reloaded";
  });
}

TEST(RemoveHoliday, MarksEachSelectedRuleAndReloads) {
  RunInFreshThread([] {
    HolidaysWorld world;
    ASSERT_TRUE(world.InitWithUsualRules(1));
    world.Show([&] {
      world.Grid().ClickRow(world.RowOf("Easter"));
      world.Grid().ToggleRow(world.RowOf("Saturday"));
      world.Answer("fmMessage", "cmdOk");
      world.Action(2).Click();
    });
    const auto calls = world.world.commands.CallsOf("CldIUCelebrate");
    ASSERT_EQ(calls.size(), 2u);
    EXPECT_EQ(calls[0].parameters, (Parameters{{"@ID2", 5}, {"@Del", std::int16_t{2}}}));
    EXPECT_EQ(calls[1].parameters, (Parameters{{"@ID2", 2}, {"@Del", std::int16_t{2}}}));
    EXPECT_EQ(world.world.commands.CallsOf("CldAllInfo").size(), 2u);
    EXPECT_EQ(world.window->Result(), 0);
  });
}

TEST(RemoveHoliday, ARefusalReportsErrorOneEndsTheLoopAndStillReloads) {
  RunInFreshThread([] {
    HolidaysWorld world;
    world.AnswerMarking(4);
    ASSERT_TRUE(world.InitWithUsualRules(1));
    world.Show([&] {
      world.Grid().ClickRow(1);
      world.Grid().ToggleRow(2);
      world.Answer("fmMessage", "cmdOk");
      world.Action(2).Click();
    });
    EXPECT_EQ(world.world.commands.CallsOf("CldIUCelebrate").size(), 1u);
    EXPECT_EQ(world.Messages(), Names{"Tessaro Calendar. Can't remove holiday"});
    EXPECT_EQ(world.world.commands.CallsOf("CldAllInfo").size(), 2u);
  });
}

TEST(RestoreHoliday, MarksWithoutAQuestionAndReloads) {
  RunInFreshThread([] {
    HolidaysWorld world;
    ASSERT_TRUE(world.InitWithUsualRules(0));
    world.Show([&] {
      world.Action(4).Click();
      world.Grid().ClickRow(world.RowOf("Old holiday"));
      world.Action(3).Click();
    });
    ASSERT_EQ(world.world.commands.CallsOf("CldIUCelebrate").size(), 1u);
    EXPECT_EQ(world.world.commands.CallsOf("CldIUCelebrate")[0].parameters,
              (Parameters{{"@ID2", 6}, {"@Del", std::int16_t{4}}}));
    EXPECT_EQ(world.world.toolkit.CountOfForms("fmMessage"), 0u);
    EXPECT_EQ(world.world.commands.CallsOf("CldAllInfo").size(), 3u);
  });
}

TEST(RestoreHoliday, ARefusalReportsErrorEleven) {
  RunInFreshThread([] {
    HolidaysWorld world;
    world.AnswerMarking(4);
    ASSERT_TRUE(world.InitWithUsualRules(0));
    world.Show([&] {
      world.Action(4).Click();
      world.Grid().ClickRow(world.RowOf("Old holiday"));
      world.Action(3).Click();
    });
    EXPECT_EQ(world.Messages(), Names{"Tessaro Calendar. Can't restore holiday"});
  });
}

TEST(RestoreHoliday, ARefusalIsReportedForEachRuleAndTheOthersAreStillMarkedBeforeTheOneReload) {
  RunInFreshThread([] {
    HolidaysWorld world;
    world.AnswerMarking(4);
    world.SetRules({HolidaysWorld::Rule(6, "Old holiday", 3, Date(1999, 7, 4), {}, std::int16_t{2}),
                    HolidaysWorld::Rule(7, "Older holiday", 3, Date(1999, 8, 1), {}, std::int16_t{2})});
    ASSERT_TRUE(world.Init(1));
    world.Show([&] {
      world.Action(4).Click();
      world.Grid().ClickRow(1);
      world.Grid().ToggleRow(2);
      world.Action(3).Click();
    });
    std::vector<Value> ids;
    for (const auto& call : world.world.commands.CallsOf("CldIUCelebrate")) {
      ids.push_back(call.Parameter("@ID2"));
    }
    EXPECT_EQ(ids, (std::vector<Value>{6, 7}));
    EXPECT_EQ(world.Messages(), Names(2, "Tessaro Calendar. Can't restore holiday"));
    EXPECT_EQ(world.world.commands.CallsOf("CldAllInfo").size(), 3u);
  });
}

TEST(RestoreHoliday, EnablesTheButtonsThatTheRuleAllowsAfterIt) {
  RunInFreshThread([] {
    HolidaysWorld world;
    world.SetRules({HolidaysWorld::Rule(6, "Old holiday", 3, Date(1999, 7, 4), {}, std::int16_t{2}),
                    HolidaysWorld::Rule(7, "Older holiday", 3, Date(1999, 8, 1), {}, std::int16_t{2})});
    ASSERT_TRUE(world.Init(0));
    world.Show([&] {
      world.Action(4).Click();
      world.Grid().ClickRow(1);
      EXPECT_FALSE(world.Action(1).Enabled());
      world.SetRules({HolidaysWorld::Rule(6, "Old holiday", 3, Date(1999, 7, 4), {}, std::int16_t{4}),
                      HolidaysWorld::Rule(7, "Older holiday", 3, Date(1999, 8, 1), {}, std::int16_t{4})});
      world.Action(3).Click();
      ASSERT_EQ(world.Grid().CurrentRow(), 1);
      for (int i : {1, 2, 5}) EXPECT_TRUE(world.Action(i).Enabled()) << i;
      EXPECT_FALSE(world.Action(3).Enabled());
    });
  });
}

TEST(RemoveHoliday, OfTheLastRuleLeavesOnlyAddAndTheFilterEnabled) {
  RunInFreshThread([] {
    HolidaysWorld world;
    world.SetRules({HolidaysWorld::Rule(2, "Saturday", 2, {}, 7)});
    ASSERT_TRUE(world.Init(0));
    world.Show([&] {
      world.Grid().ClickRow(1);
      world.SetRules({HolidaysWorld::Rule(2, "Saturday", 2, {}, 7, std::int16_t{2})});
      world.Answer("fmMessage", "cmdOk");
      world.Action(2).Click();
      EXPECT_TRUE(world.Names().empty());
      for (int i : {1, 2, 3, 5}) EXPECT_FALSE(world.Action(i).Enabled()) << i;
    });
  });
}

}  // namespace
}  // namespace ferrowind
