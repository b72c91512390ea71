#include <functional>

#include <gtest/gtest.h>

#include "ferrowind/adapters/headless/headless_date_picker.h"
#include "ferrowind/adapters/headless/headless_drop_down_list.h"

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

TEST(AssignHolidays, AWeekdayRuleForASingleDayTakesTheDayThatTheWindowWasOpenedFor) {
  RunInFreshThread([] {
    HolidaysWorld world;
    ASSERT_TRUE(world.InitWithUsualRules(0));
    world.Show([&] {
      world.Grid().ClickRow(world.RowOf("Saturday"));
      world.Action(5).Click();
    });
    ASSERT_EQ(world.world.commands.CallsOf("CldIUMain").size(), 1u);
    EXPECT_EQ(world.world.commands.CallsOf("CldIUMain")[0].parameters,
              (Parameters{{"@TID1", 2}, {"@ID1", 978}, {"@ID2", 2}, {"@Year1", 2026}, {"@Day1", 100}}));
    EXPECT_EQ(world.window->Result(), 1);
    EXPECT_TRUE(world.Form().HasUnloaded());
  });
}

TEST(AssignHolidays, AWeekdayRuleForTheCalendarPassesNoDay) {
  RunInFreshThread([] {
    HolidaysWorld world;
    ASSERT_TRUE(world.InitWithUsualRules(1));
    world.Show([&] {
      world.Grid().ClickRow(world.RowOf("Saturday"));
      world.Action(5).Click();
    });
    EXPECT_EQ(world.world.commands.CallsOf("CldIUMain").at(0).parameters,
              (Parameters{{"@TID1", 2}, {"@ID1", 978}, {"@ID2", 2}, {"@Year1", 2026}}));
  });
}

TEST(AssignHolidays, ADatedRuleMovesIntoTheCalendarsYear) {
  for (const std::int32_t mode : {0, 1}) {
    RunInFreshThread([&] {
      HolidaysWorld world;
      world.SetRules(HolidaysWorld::UsualRules());
      ASSERT_TRUE(world.Init(mode, 2004));
      world.Show([&] {
        world.Grid().ClickRow(world.RowOf("Christmas Day"));
        world.Action(5).Click();
      });
      EXPECT_EQ(world.world.commands.CallsOf("CldIUMain").at(0).parameters,
                (Parameters{{"@TID1", 3},
                            {"@ID1", 978},
                            {"@ID2", 4},
                            {"@Year1", 2004},
                            {"@ODate", Date(2004, 12, 25)},
                            {"@Day1", 360}}));
    });
  }
}

TEST(AssignHolidays, ARuleOn29FebruaryFallsOn28FebruaryOfACommonYear) {
  RunInFreshThread([] {
    HolidaysWorld world;
    world.SetRules({HolidaysWorld::Rule(9, "Leap day", 4, Date(2024, 2, 29), {})});
    ASSERT_TRUE(world.Init(1, 2026));
    world.Show([&] {
      world.Grid().ClickRow(1);
      world.Action(5).Click();
    });
    const auto call = world.world.commands.CallsOf("CldIUMain").at(0);
    EXPECT_EQ(call.Parameter("@ODate"), Value(Date(2026, 2, 28)));
    EXPECT_EQ(call.Parameter("@Day1"), Value(59));
  });
}

TEST(AssignHolidays, SeveralRulesAreStoredInTheOrderOfTheSelection) {
  RunInFreshThread([] {
    HolidaysWorld world;
    ASSERT_TRUE(world.InitWithUsualRules(1));
    world.Show([&] {
      world.Grid().ClickRow(world.RowOf("Easter"));
      world.Grid().ToggleRow(world.RowOf("Saturday"));
      world.Grid().ToggleRow(world.RowOf("Christmas Day"));
      world.Action(5).Click();
    });
    std::vector<Value> ids;
    for (const auto& call : world.world.commands.CallsOf("CldIUMain")) ids.push_back(call.Parameter("@ID2"));
    EXPECT_EQ(ids, (std::vector<Value>{5, 2, 4}));
  });
}

TEST(AssignHolidays, ARuleOfAnotherTypeStoresNothingAndTheWindowStillCloses) {
  RunInFreshThread([] {
    HolidaysWorld world;
    world.SetRules({HolidaysWorld::Rule(9, "Special", 5, Date(2024, 2, 29), {})});
    ASSERT_TRUE(world.Init(1));
    world.Show([&] {
      world.Grid().ClickRow(1);
      world.Action(5).Click();
    });
    EXPECT_TRUE(world.world.commands.CallsOf("CldIUMain").empty());
    EXPECT_EQ(world.window->Result(), 1);
    EXPECT_TRUE(world.Form().HasUnloaded());
  });
}

TEST(AssignHolidays, ARefusedAssignmentIsNotReportedAndTheNextRuleIsStored) {
  RunInFreshThread([] {
    HolidaysWorld world;
    ASSERT_TRUE(world.InitWithUsualRules(1));
    world.world.commands.FailAt(headless::CommandStep::kExecute, platform::Failure(77, "refused"));
    world.Show([&] {
      world.Grid().ClickRow(world.RowOf("Saturday"));
      world.Grid().ToggleRow(world.RowOf("Monday"));
      world.Action(5).Click();
    });
    EXPECT_EQ(world.world.commands.CallsOf("CldIUMain").size(), 2u);
    EXPECT_TRUE(world.Messages().empty());
    EXPECT_TRUE(world.Form().HasUnloaded());
  });
}

TEST(AssignHolidays, ADatedRuleWithoutADateIsReportedAndTheOthersAreStored) {
  RunInFreshThread([] {
    HolidaysWorld world;
    world.SetRules({HolidaysWorld::Rule(8, "No date", 3, {}, {}),
                    HolidaysWorld::Rule(9, "Easter", 4, Date(2026, 4, 5), {})});
    ASSERT_TRUE(world.Init(1));
    world.Show([&] {
      world.Grid().ClickRow(1);
      world.Grid().ToggleRow(2);
      world.Action(5).Click();
    });
    EXPECT_EQ(world.world.services->Reports().size(), 1u);
    ASSERT_EQ(world.world.commands.CallsOf("CldIUMain").size(), 1u);
    EXPECT_EQ(world.world.commands.CallsOf("CldIUMain")[0].Parameter("@ID2"), Value(9));
    EXPECT_TRUE(world.Form().HasUnloaded());
  });
}

TEST(AssignHolidays, TheAssignmentRunsWhileTheWindowThatOpenedItShowsThatItIsBusy) {
  RunInFreshThread([] {
    HolidaysWorld world;
    std::vector<std::size_t> calls_around;
    const auto calls = [&world] { return world.world.commands.CallsOf("CldIUMain").size(); };
    world.window = std::make_unique<fmEnterHolidays>(world.platform, [&](const std::function<void()>& work) {
      calls_around.push_back(calls());
      work();
      calls_around.push_back(calls());
    });
    ASSERT_TRUE(world.InitWithUsualRules(1));
    world.Show([&] {
      world.Grid().ClickRow(1);
      world.Grid().ToggleRow(2);
      world.Action(5).Click();
    });
    EXPECT_EQ(calls_around, (std::vector<std::size_t>{0, 2}));
  });
}

TEST(AddHoliday, HandsTheYearOfItsCalendarToTheEditor) {
  RunInFreshThread([] {
    HolidaysWorld world;
    world.SetRules(HolidaysWorld::UsualRules());
    ASSERT_TRUE(world.Init(1, 2028));
    world.world.toolkit.ScriptModal("fmAddHoliday", [&](headless::HeadlessForm& form) {
      for (const char* picker : {"dtpFullDate", "dtpHolidayPoint"})
        EXPECT_EQ(form.Part<headless::HeadlessDatePicker>(picker).Date(), Date(2028, 1, 15)) << picker;
      form.Part<headless::HeadlessButton>("cmdCancel").Click();
    });
    world.Show([&] { world.Action(0).Click(); });
  });
}

TEST(AddHoliday, OpensAnEmptyEditorAndReloadsWhenItReportsZero) {
  for (const bool cancel : {false, true}) {
    RunInFreshThread([&] {
      HolidaysWorld world;
      ASSERT_TRUE(world.InitWithUsualRules(1));
      world.world.toolkit.ScriptModal("fmAddHoliday", [&](headless::HeadlessForm& form) {
        EXPECT_EQ(form.Caption(), "Add holiday");
        if (cancel) {
          form.Part<headless::HeadlessButton>("cmdCancel").Click();
        } else {
          EXPECT_TRUE(form.CloseByOperator());
        }
      });
      world.Show([&] { world.Action(0).Click(); });
      EXPECT_EQ(world.world.commands.CallsOf("CldAllInfo").size(), cancel ? 1u : 2u);
    });
  }
}

TEST(AddHoliday, OffersTheWeekdaysFromTheFirstOneOfTheDatabase) {
  RunInFreshThread([] {
    HolidaysWorld world;
    world.world.commands.Answer("CldAllInfo")
        .Gives({"ID1", "Year1"}, {{978, 2026}})
        .Gives({"TID1", "Description1"}, {{2, "Holiday"}, {3, "Celebration"}, {4, "Holiday point"}})
        .Gives({"ID2", "Name1", "Comment", "TID1", "D1", "MY", "MD", "WD", "Del"}, {})
        .Gives({"FirstDay"}, {{std::int16_t{4}}});
    ASSERT_TRUE(world.Init(1));
    world.world.toolkit.ScriptModal("fmAddHoliday", [](headless::HeadlessForm& form) {
      EXPECT_EQ(form.Part<headless::HeadlessDropDownList>("cmbDayOfWeek").ItemText(0), "Wednesday");
      form.Part<headless::HeadlessButton>("cmdCancel").Click();
    });
    world.Show([&] { world.Action(0).Click(); });
    EXPECT_EQ(world.world.toolkit.WaitingScripts(), 0u);
  });
}

TEST(AddHoliday, AnEditorThatIsNotReadyIsUnloadedUnseen) {
  RunInFreshThread([] {
    HolidaysWorld world;
    ASSERT_TRUE(world.InitWithUsualRules(1));
    world.Show([&] {
      world.world.log.Clear();
      // A type without a text ends the editor's load.
      world.window.reset();
      world.window = std::make_unique<fmEnterHolidays>(world.platform);
      world.world.commands.Forget("CldAllInfo");
      world.world.commands.Answer("CldAllInfo")
          .Gives({"ID1", "Year1"}, {{978, 2026}})
          .Gives({"TID1", "Description1"},
                 {{2, "Holiday"}, {3, "Celebration"}, {4, "Holiday point"}, {"x", "Broken"}})
          .Gives({"ID2", "Name1", "Comment", "TID1", "D1", "MY", "MD", "WD", "Del"}, {})
          .Gives({"FirstDay"}, {{1}});
    });
    ASSERT_TRUE(world.Init(1));
    world.Show([&] { world.Action(0).Click(); });
    EXPECT_EQ(world.Messages(), Names{"Tessaro Calendar. Can't load holiday types from database"});
    EXPECT_TRUE(world.world.log.Contains("fmAddHoliday.Unload()"));
    EXPECT_TRUE(world.world.log.StartingWith("fmAddHoliday.ShowModal").empty());
  });
}

TEST(EditHoliday, OpensTheEditorOnTheSelectedRule) {
  for (const std::int32_t mode : {0, 1}) {
    RunInFreshThread([&] {
      HolidaysWorld world;
      ASSERT_TRUE(world.InitWithUsualRules(mode));
      world.world.toolkit.ScriptModal("fmAddHoliday", [&](headless::HeadlessForm& form) {
        EXPECT_EQ(form.Caption(), "Edit holiday");
        EXPECT_EQ(platform::ControlOf<platform::TextBox>(form, "txtName").Text(), "Christmas Day");
        EXPECT_TRUE(form.CloseByOperator());
      });
      world.Show([&] {
        world.Grid().ClickRow(world.RowOf("Christmas Day"));
        world.Action(1).Click();
      });
      EXPECT_EQ(world.world.commands.CallsOf("CldAllInfo").size(), 2u);
    });
  }
}

TEST(EditHoliday, SavesARuleWithoutADateWithTheCurrentDateWhateverTheYearOfTheCalendar) {
  for (const std::int32_t type : {3, 4}) {
    RunInFreshThread([type] {
      HolidaysWorld world;
      world.SetRules({HolidaysWorld::Rule(9, "Undated", type, {}, {})});
      ASSERT_TRUE(world.Init(0, 2028));
      world.world.commands.Forget("CldIUCelebrate");
      world.world.commands.Answer("CldIUCelebrate").Takes("@D1", platform::ParameterType::kDate);
      world.Answer("fmAddHoliday", "cmdOk");
      world.Show([&] {
        world.Grid().ClickRow(1);
        world.Action(1).Click();
      });
      EXPECT_EQ(world.world.commands.CallsOf("CldIUCelebrate").at(0).Parameter("@D1"),
                Value(Date(2026, 1, 15)));
    });
  }
}

TEST(EditHoliday, KeepsItsRuleWhilePaintingMovesTheListsCursor) {
  RunInFreshThread([] {
    HolidaysWorld world;
    ASSERT_TRUE(world.InitWithUsualRules(0));
    world.world.commands.Forget("CldIUCelebrate");
    world.world.commands.Answer("CldIUCelebrate").Takes("@ID2", platform::ParameterType::kInt32);
    world.world.toolkit.ScriptModal("fmAddHoliday", [&](headless::HeadlessForm& form) {
      EXPECT_EQ(world.Grid().CellText(1, "FullDate"), "Saturday") << "as painting does";
      form.Part<headless::HeadlessButton>("cmdOk").Click();
    });
    world.Show([&] {
      world.Grid().ClickRow(world.RowOf("Christmas Day"));
      world.Action(1).Click();
    });
    EXPECT_EQ(world.world.commands.CallsOf("CldIUCelebrate").at(0).Parameter("@ID2"), Value(4));
  });
}

TEST(EditHoliday, OfARuleWhoseTypeIsNotOfferedReportsErrorEightAndShowsNoEditor) {
  RunInFreshThread([] {
    HolidaysWorld world;
    world.SetRules({HolidaysWorld::Rule(9, "Special", 5, Date(2024, 2, 29), {})});
    ASSERT_TRUE(world.Init(0));
    world.Show([&] {
      world.Grid().ClickRow(1);
      world.Action(1).Click();
    });
    EXPECT_EQ(world.Messages(), Names{"Tessaro Calendar. Can't define correction holiday type"});
    EXPECT_TRUE(world.world.log.StartingWith("fmAddHoliday.ShowModal").empty());
    EXPECT_TRUE(world.world.log.Contains("fmAddHoliday.Unload()"));
    EXPECT_EQ(world.world.commands.CallsOf("CldAllInfo").size(), 1u) << "nothing is reloaded";
  });
}

TEST(EditHoliday, WithTwoRulesSelectedReportsErrorSevenAndOpensNoEditor) {
  RunInFreshThread([] {
    HolidaysWorld world;
    ASSERT_TRUE(world.InitWithUsualRules(1));
    world.Show([&] {
      world.Grid().ClickRow(1);
      world.Grid().ToggleRow(2);
      world.Action(1).Click();
    });
    EXPECT_EQ(world.Messages(), Names{"Tessaro Calendar. Can't edit multi rows"});
    EXPECT_EQ(world.world.toolkit.CountOfForms("fmAddHoliday"), 0u);
  });
}

TEST(AssignRule, OfTypeOneStoresNothing) {
  RunInFreshThread([] {
    HolidaysWorld world;
    AssignRule({.type = 1, .id = 1, .full_date = Date(2026, 1, 1)},
               {.mode = 1, .year = 2026, .currency_id = 978});
    EXPECT_TRUE(world.world.commands.Calls().empty());
  });
}

/// What the operator does in the window, with every dialog that it opens answered.
struct Command {
  const char* name;
  std::function<void(HolidaysWorld&)> play;
};

TEST(HolidaysWindow, WhateverCallFailsDuringACommandNothingIsThrownOrLockedAndTheWindowGoesOn) {
  const auto click = [](int action, const char* dialog, const char* button) {
    return [=](HolidaysWorld& world) {
      if (dialog != nullptr) world.Answer(dialog, button);
      if (world.Action(action).Enabled()) world.Action(action).Click();
    };
  };
  const std::vector<Command> commands = {
      {"Add", click(0, "fmAddHoliday", "cmdCancel")}, {"Edit", click(1, "fmAddHoliday", "cmdOk")},
      {"Remove", click(2, "fmMessage", "cmdOk")},     {"Restore", click(3, nullptr, nullptr)},
      {"Toggle", click(4, nullptr, nullptr)},         {"Assign", click(5, nullptr, nullptr)},
  };
  for (const auto& command : commands) {
    for (int n = 1;; ++n) {
      bool fired = true;
      RunInFreshThread([&] {
        HolidaysWorld world;
        ASSERT_TRUE(world.InitWithUsualRules(0));
        world.Show([&] {
          world.Action(4).Click();
          world.Grid().ClickRow(
              world.RowOf(std::string(command.name) == "Restore" ? "Old holiday" : "Easter"));
          world.world.faults.FailAtCall(n);
          EXPECT_NO_THROW(command.play(world)) << command.name << ": " << world.world.faults.FailedCall();
          fired = world.world.faults.HasFired();
          world.world.faults.Disarm();
          EXPECT_EQ(world.world.toolkit.LockedElement(), "") << world.world.faults.FailedCall();
          if (world.Form().IsShown()) {
            world.Action(4).Click();
            EXPECT_FALSE(world.Names().empty()) << command.name << ": " << world.world.faults.FailedCall();
          }
        });
        (void)world.world.script_errors.Take();
      });
      if (!fired) break;
      ASSERT_LT(n, 500);
    }
  }
}

TEST(ForceClosing, OfTheHolidaysWindowUnloadsItAndNeverRefuses) {
  RunInFreshThread([] {
    HolidaysWorld world;
    ASSERT_TRUE(world.InitWithUsualRules(1));
    world.Show([&] { EXPECT_TRUE(world.window->ForceClosing()); });
    EXPECT_TRUE(world.Form().HasUnloaded());
    EXPECT_EQ(world.window->Result(), 0);
    EXPECT_TRUE(world.window->ForceClosing());
  });
}

}  // namespace
}  // namespace ferrowind
