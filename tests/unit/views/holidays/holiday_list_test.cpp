#include <algorithm>
#include <functional>

#include <gtest/gtest.h>

#include "ferrowind/platform/values/conversion.h"

#include "tests/support/run_in_fresh_thread.h"
#include "tests/unit/views/holidays/holidays_world.h"

namespace ferrowind {
namespace {

using testing::Date;
using testing::HolidaysWorld;
using testing::RunInFreshThread;
using testing::Value;
using Names = std::vector<std::string>;

TEST(HolidaysWindow, FirstHidesRemovedRulesShowsRestoredOnesAndNeverTypeOne) {
  RunInFreshThread([] {
    HolidaysWorld world;
    ASSERT_TRUE(world.InitWithUsualRules(1));
    EXPECT_EQ(world.Action(4).Caption(), "Show all");
    EXPECT_EQ(world.Names(), (Names{"Saturday", "Monday", "Christmas Day", "Easter", "Back again"}))
        << "sorted by removal mark and then by type, empty marks first";
  });
}

TEST(HolidaysWindow, TheFilterButtonShowsRemovedRulesAndHidesThemAgain) {
  RunInFreshThread([] {
    HolidaysWorld world;
    ASSERT_TRUE(world.InitWithUsualRules(1));
    world.Show([&] {
      world.Action(4).Click();
      EXPECT_EQ(world.Action(4).Caption(), "Hide removed");
      EXPECT_EQ(world.Names(),
                (Names{"Saturday", "Monday", "Christmas Day", "Easter", "Old holiday", "Back again"}));
      world.Action(4).Click();
      EXPECT_EQ(world.Action(4).Caption(), "Show all");
      EXPECT_EQ(world.Names(), (Names{"Saturday", "Monday", "Christmas Day", "Easter", "Back again"}));
    });
    EXPECT_EQ(world.world.commands.CallsOf("CldAllInfo").size(), 3u) << "each toggle reloads";
  });
}

TEST(HolidaysWindow, CallsCldAllInfoWithoutParametersAndShowsTheRulesAsRecordSetThree) {
  RunInFreshThread([] {
    HolidaysWorld world;
    ASSERT_TRUE(world.InitWithUsualRules(0));
    EXPECT_TRUE(world.world.commands.CallsOf("CldAllInfo").at(0).parameters.empty());
    EXPECT_EQ(world.Grid().Records()->Filter(), "(Del <> 2 and TID1 <> 1) or (Del = NULL and TID1 <> 1)");
  });
}

TEST(HolidaysWindow, AddsTheInitialSortKeysByRemovalMarkAndThenByType) {
  RunInFreshThread([] {
    HolidaysWorld world;
    ASSERT_TRUE(world.InitWithUsualRules(0));
    const auto added = world.world.log.StartingWith("gexHolidays.SortKeys.Add");
    ASSERT_GE(added.size(), 2u);
    EXPECT_EQ(added[0], "gexHolidays.SortKeys.Add(9, 1, 0)");
    EXPECT_EQ(added[1], "gexHolidays.SortKeys.Add(3, 1, 0)");
    ASSERT_EQ(world.Grid().SortKeys().Count(), 2) << "they survive the fill";
    EXPECT_EQ(world.Grid().SortKeys().Item(1)->ColIndex, 9);
    EXPECT_EQ(world.Grid().SortKeys().Item(2)->ColIndex, 3);
  });
}

TEST(HolidaysWindow, ModeZeroIsForASingleDayWithOneRuleSelected) {
  RunInFreshThread([] {
    HolidaysWorld world;
    ASSERT_TRUE(world.InitWithUsualRules(0));
    EXPECT_EQ(world.Form().Caption(), "Assign holiday for single day");
    EXPECT_FALSE(world.Grid().MultiSelect());
  });
}

TEST(HolidaysWindow, ModeOneIsForTheCalendarWithSeveralRulesSelected) {
  RunInFreshThread([] {
    HolidaysWorld world;
    ASSERT_TRUE(world.InitWithUsualRules(1));
    EXPECT_EQ(world.Form().Caption(), "Assign groups holidays for calendar");
    EXPECT_TRUE(world.Grid().MultiSelect());
  });
}

TEST(HolidaysWindow, AnyOtherModeLeavesTitleAndSelectionAlone) {
  RunInFreshThread([] {
    HolidaysWorld world;
    ASSERT_TRUE(world.InitWithUsualRules(7));
    EXPECT_EQ(world.Form().Caption(), "Holidays");
    EXPECT_TRUE(world.world.log.StartingWith("gexHolidays.SetMultiSelect").empty());
  });
}

TEST(HolidaysWindow, WithoutAnyRecordSetIsNotReadyAndSaysNothing) {
  RunInFreshThread([] {
    HolidaysWorld world;
    world.world.commands.Answer("CldAllInfo").Returns(5);
    EXPECT_FALSE(world.Init(0));
    EXPECT_TRUE(world.Messages().empty());
    EXPECT_TRUE(world.world.services->Reports().empty());
  });
}

TEST(HolidaysWindow, WithoutHolidayTypesReportsErrorThree) {
  RunInFreshThread([] {
    HolidaysWorld world;
    world.world.commands.Answer("CldAllInfo").Gives({"ID1", "Year1"}, {{978, 2026}});
    EXPECT_FALSE(world.Init(0));
    EXPECT_EQ(world.Messages(), Names{"Tessaro Calendar. Can't load holiday types from database"});
  });
}

TEST(HolidaysWindow, WithoutRulesReportsErrorTwo) {
  RunInFreshThread([] {
    HolidaysWorld world;
    world.world.commands.Answer("CldAllInfo")
        .Gives({"ID1", "Year1"}, {{978, 2026}})
        .Gives({"TID1", "Description1"}, {{2, "Holiday"}});
    EXPECT_FALSE(world.Init(0));
    EXPECT_EQ(world.Messages(), Names{"Tessaro Calendar. Can't load holidays from database"});
  });
}

TEST(HolidaysWindow, WithoutAFirstWeekdayReportsTheFailureAndErrorFour) {
  RunInFreshThread([] {
    HolidaysWorld world;
    world.world.commands.Answer("CldAllInfo")
        .Gives({"ID1", "Year1"}, {{978, 2026}})
        .Gives({"TID1", "Description1"}, {{2, "Holiday"}})
        .Gives({"ID2", "Name1", "Comment", "TID1", "D1", "MY", "MD", "WD", "Del"},
               HolidaysWorld::UsualRules());
    EXPECT_FALSE(world.Init(0));
    EXPECT_EQ(world.world.services->Reports().size(), 1u) << "the last record set has no such field";
    EXPECT_EQ(world.Messages(), Names{"Tessaro Calendar. Can't load first weekday"});
  });
}

TEST(HolidaysWindow, WithNoRowOfHolidayTypesIsNotReadyAndSaysNothing) {
  RunInFreshThread([] {
    HolidaysWorld world;
    world.world.commands.Answer("CldAllInfo")
        .Gives({"ID1", "Year1"}, {{978, 2026}})
        .Gives({"TID1", "Description1"}, {})
        .Gives({"ID2", "Name1", "Comment", "TID1", "D1", "MY", "MD", "WD", "Del"}, {})
        .Gives({"FirstDay"}, {{1}});
    EXPECT_FALSE(world.Init(0));
    EXPECT_TRUE(world.Messages().empty());
  });
}

TEST(HolidaysWindow, AWeekdayRuleShowsItsWeekdayAndEveryOtherRuleItsDayAndMonth) {
  RunInFreshThread([] {
    HolidaysWorld world;
    ASSERT_TRUE(world.InitWithUsualRules(0));
    EXPECT_EQ(world.Grid().CellText(world.RowOf("Monday"), "FullDate"), "Monday");
    EXPECT_EQ(world.Grid().CellText(world.RowOf("Saturday"), "FullDate"), "Saturday");
    EXPECT_EQ(world.Grid().CellText(world.RowOf("Christmas Day"), "FullDate"), "25 December");
    EXPECT_EQ(world.Grid().CellText(world.RowOf("Easter"), "FullDate"), "5 April");
  });
}

TEST(HolidaysWindow, FormatsRowsByRemovalFirstAndThenByType) {
  RunInFreshThread([] {
    HolidaysWorld world;
    ASSERT_TRUE(world.InitWithUsualRules(0));
    world.Show([&] { world.Action(4).Click(); });
    const auto& formats = world.Grid().Formats();
    ASSERT_EQ(formats.size(), 4u) << "created at every fill, once each";
    EXPECT_EQ(formats[0].key, "FC_DeletedPoint");
    EXPECT_EQ(formats[0].column_key, "Del");
    EXPECT_EQ(formats[0].comparison, 0);
    EXPECT_EQ(formats[0].compared, Value(std::int16_t{2}));
    const char* const kKeys[] = {"FC_Holiday", "FC_Celebrate", "FC_HolidayPoint"};
    const char* const kTexts[] = {"Holiday", "Celebration", "Holiday point"};
    for (std::size_t i = 0; i < 3; ++i) {
      EXPECT_EQ(formats[i + 1].key, kKeys[i]);
      EXPECT_EQ(formats[i + 1].column_key, "HolidayType");
      EXPECT_EQ(formats[i + 1].comparison, 0);
      EXPECT_EQ(formats[i + 1].compared, Value(kTexts[i]));
    }
    const auto removed = world.Grid().RowStyle(world.RowOf("Old holiday"));
    EXPECT_TRUE(removed.strike_through);
    EXPECT_EQ(removed.fore_color, (platform::Color{128, 128, 128}));
    const auto holiday = world.Grid().RowStyle(world.RowOf("Saturday"));
    EXPECT_EQ(holiday.fore_color, (platform::Color{255, 0, 0}));
    EXPECT_TRUE(holiday.bold);
    EXPECT_FALSE(holiday.strike_through);
  });
}

TEST(HolidaysWindow, AReloadKeepsKeysPositionsAndColumnAndRedrawsOnce) {
  RunInFreshThread([] {
    HolidaysWorld world;
    ASSERT_TRUE(world.InitWithUsualRules(0));
    world.Show([&] {
      world.Grid().ClickRow(2);
      world.Grid().SetFirstVisibleRow(2);
      world.Grid().SetCurrentColumn(4);
      world.world.log.Clear();
      world.Action(4).Click();
      const auto calls =
          world.world.log.Between("toolkit.LockUpdates(gexHolidays)", "toolkit.UnlockUpdates()");
      const auto position = [&](const std::string& call) {
        const auto found = std::find(calls.begin(), calls.end(), call);
        EXPECT_NE(found, calls.end()) << call;
        return found - calls.begin();
      };
      EXPECT_LT(position("gexHolidays.AttachRecords(records 6 rows)"), position("gexHolidays.Rebind()"));
      EXPECT_LT(position("gexHolidays.Rebind()"), position("gexHolidays.Refresh(True)"));
      EXPECT_LT(position("gexHolidays.Refresh(True)"), position("gexHolidays.SetFirstVisibleRow(2)"));
      EXPECT_LT(position("gexHolidays.SetFirstVisibleRow(2)"), position("gexHolidays.SetCurrentRow(2)"));
      EXPECT_LT(position("gexHolidays.SetCurrentRow(2)"), position("gexHolidays.SetCurrentColumn(4)"));
      EXPECT_EQ(std::count(calls.begin(), calls.end(), "gexHolidays.Refresh(True)"), 1);
    });
    EXPECT_EQ(world.world.toolkit.LockedElement(), "");
  });
}

TEST(HolidaysWindow, ARowThatIsNoLongerBelowTheRowCountIsNotPutBack) {
  RunInFreshThread([] {
    HolidaysWorld world;
    ASSERT_TRUE(world.InitWithUsualRules(0));
    world.Show([&] {
      world.Grid().ClickRow(5);
      world.SetRules({HolidaysWorld::Rule(2, "Saturday", 2, {}, 7)});
      world.Action(4).Click();
      EXPECT_EQ(world.Grid().CurrentRow(), 0);
    });
    EXPECT_TRUE(world.world.services->Reports().empty());
  });
}

TEST(HolidaysWindow, ARowEqualToTheRowCountIsNotPutBack) {
  RunInFreshThread([] {
    HolidaysWorld world;
    ASSERT_TRUE(world.InitWithUsualRules(0));
    world.Show([&] {
      world.SetRules(
          {HolidaysWorld::Rule(2, "Saturday", 2, {}, 7), HolidaysWorld::Rule(3, "Monday", 2, {}, 2)});
      world.Grid().ClickRow(2);
      world.Grid().SetFirstVisibleRow(2);
      world.world.log.Clear();
      world.Action(4).Click();
      EXPECT_EQ(world.Grid().RowCount(), 2);
      EXPECT_EQ(world.Grid().CurrentRow(), 0);
      EXPECT_TRUE(world.world.log.StartingWith("gexHolidays.SetFirstVisibleRow").empty());
      world.Grid().ClickRow(1);
      world.Action(4).Click();
      EXPECT_EQ(world.Grid().CurrentRow(), 1) << "a row below it is";
    });
  });
}

/// Record sets that a reload gives in place of the usual ones, and the message that it shows.
struct BrokenReload {
  const char* what;
  std::function<void(headless::ProcedureScript&)> answer;
  std::string message;
};

TEST(HolidaysWindow, AReloadThatFailsShowsItsMessageAndLeavesTheListAsItWasAndUsable) {
  const std::vector<std::string> fields = {"ID2", "Name1", "Comment", "TID1", "D1", "MY", "MD", "WD", "Del"};
  const auto calendars = [](headless::ProcedureScript& script) {
    script.Gives({"ID1", "Year1"}, {{978, 2026}});
  };
  const auto types = [](headless::ProcedureScript& script) {
    script.Gives({"TID1", "Description1"}, {{2, "Holiday"}, {3, "Celebration"}, {4, "Holiday point"}});
  };
  const std::vector<BrokenReload> reloads = {
      {"nothing", [](headless::ProcedureScript& script) { script.Returns(5); }, ""},
      {"no types", calendars, "Tessaro Calendar. Can't load holiday types from database"},
      {"no rules",
       [&](headless::ProcedureScript& script) {
         calendars(script);
         types(script);
       },
       "Tessaro Calendar. Can't load holidays from database"},
      {"no first weekday",
       [&](headless::ProcedureScript& script) {
         calendars(script);
         types(script);
         script.Gives(fields, {HolidaysWorld::Rule(99, "Other", 3, Date(2026, 1, 1), {})});
       },
       "Tessaro Calendar. Can't load first weekday"},
      {"no rows of types",
       [&](headless::ProcedureScript& script) {
         calendars(script);
         script.Gives({"TID1", "Description1"}, {});
         script.Gives(fields, {HolidaysWorld::Rule(99, "Other", 3, Date(2026, 1, 1), {})});
         script.Gives({"FirstDay"}, {{1}});
       },
       ""},
  };
  for (const auto& reload : reloads) {
    RunInFreshThread([&] {
      HolidaysWorld world;
      ASSERT_TRUE(world.InitWithUsualRules(1));
      world.Show([&] {
        world.world.commands.Forget("CldAllInfo");
        reload.answer(world.world.commands.Answer("CldAllInfo"));
        world.Action(4).Click();
        EXPECT_EQ(world.Messages(), reload.message.empty() ? Names{} : Names{reload.message}) << reload.what;
        EXPECT_EQ(world.Names(), (Names{"Saturday", "Monday", "Christmas Day", "Easter", "Back again"}))
            << reload.what;
        const std::int32_t christmas = world.RowOf("Christmas Day");
        EXPECT_EQ(world.Grid().CellText(christmas, "FullDate"), "25 December") << reload.what;
        world.Grid().ClickRow(christmas);
        world.world.toolkit.ScriptModal("fmAddHoliday", [&](headless::HeadlessForm& form) {
          EXPECT_EQ(platform::ControlOf<platform::TextBox>(form, "txtName").Text(), "Christmas Day")
              << reload.what;
          form.Part<headless::HeadlessButton>("cmdCancel").Click();
        });
        world.Action(1).Click();
        world.Grid().ClickRow(christmas);
        world.Action(5).Click();
      });
      ASSERT_EQ(world.world.commands.CallsOf("CldIUMain").size(), 1u) << reload.what;
      EXPECT_EQ(world.world.commands.CallsOf("CldIUMain")[0].Parameter("@ID2"), Value(4)) << reload.what;
    });
  }
}

TEST(HolidaysWindow, AReloadThatFailsKeepsTheTypesAndTheFirstWeekdayThatItLoadedBefore) {
  RunInFreshThread([] {
    HolidaysWorld world;
    ASSERT_TRUE(world.InitWithUsualRules(0));
    const auto& commands = world.world.commands;
    const auto expect_in_editor = [&](const Names& types, const std::string& first_weekday) {
      world.world.toolkit.ScriptModal("fmAddHoliday", [=](headless::HeadlessForm& form) {
        const auto& list = platform::ControlOf<platform::DropDownList>(form, "cmbHolidayType");
        Names offered;
        for (std::int32_t i = 0; i < list.Count(); ++i) offered.push_back(list.ItemText(i));
        EXPECT_EQ(offered, types);
        EXPECT_EQ(platform::ControlOf<platform::DropDownList>(form, "cmbDayOfWeek").ItemText(0),
                  first_weekday);
        form.Part<headless::HeadlessButton>("cmdCancel").Click();
      });
      world.Action(0).Click();
    };
    world.Show([&] {
      world.world.commands.Forget("CldAllInfo");
      world.world.commands.Answer("CldAllInfo")
          .Gives({"ID1", "Year1"}, {})
          .Gives({"TID1", "Description1"}, {{2, "Free day"}});
      world.Action(4).Click();
      expect_in_editor({"Free day"}, "Sunday");
      world.world.commands.Forget("CldAllInfo");
      world.world.commands.Answer("CldAllInfo")
          .Gives({"ID1", "Year1"}, {})
          .Gives({"TID1", "Description1"}, {})
          .Gives({"ID2", "Name1", "Comment", "TID1", "D1", "MY", "MD", "WD", "Del"}, {})
          .Gives({"FirstDay"}, {{2}});
      world.Action(4).Click();
      expect_in_editor({}, "Monday");
    });
    EXPECT_EQ(commands.CallsOf("CldAllInfo").size(), 3u);
    EXPECT_EQ(world.Names(), (Names{"Saturday", "Monday", "Christmas Day", "Easter", "Back again"}));
  });
}

TEST(HolidaysWindow, EnablesTheButtonsThatTheCurrentRowAllows) {
  RunInFreshThread([] {
    HolidaysWorld world;
    ASSERT_TRUE(world.InitWithUsualRules(0));
    const auto enabled = [&] {
      std::string text;
      for (int i = 0; i < 6; ++i) text += world.Action(i).Enabled() ? '1' : '0';
      return text;
    };
    EXPECT_EQ(enabled(), "100010") << "no current row";
    world.Show([&] {
      world.Action(4).Click();
      world.Grid().ClickRow(world.RowOf("Saturday"));
      EXPECT_EQ(enabled(), "111011");
      world.Grid().ClickRow(world.RowOf("Old holiday"));
      EXPECT_EQ(enabled(), "100110") << "a removed row";
      world.Grid().ClickRow(world.RowOf("Back again"));
      EXPECT_EQ(enabled(), "111011") << "a restored row";
    });
  });
}

TEST(HolidaysWindow, OnAnEmptyGridOnlyAddAndTheFilterAreEnabled) {
  RunInFreshThread([] {
    HolidaysWorld world;
    world.SetRules({});
    ASSERT_TRUE(world.Init(1));
    for (int i : {1, 2, 3, 5}) EXPECT_FALSE(world.Action(i).Enabled()) << i;
    EXPECT_TRUE(world.Action(0).Enabled());
    EXPECT_TRUE(world.Action(4).Enabled());
  });
}

TEST(HolidaysWindow, RestoresItsPlacementWhenItLoadsAndSavesItFirstWhenItCloses) {
  RunInFreshThread([] {
    HolidaysWorld world;
    const std::string section = "\\Tessaro\\Calendar\\7E34C663-43BF-11d6-8AE5-0050228F1EE8\\Window Holidays";
    world.world.services->PutSetting(section, "Left", 300.0F);
    ASSERT_TRUE(world.InitWithUsualRules(0));
    EXPECT_EQ(world.Form().Left(), 300.0F);
    world.Show([&] {
      world.world.log.Clear();
      EXPECT_TRUE(world.Form().CloseByOperator());
    });
    EXPECT_EQ(world.world.log.StartingWith("services.").at(0),
              "services.WriteSetting(\"" + section + "\", \"Left\", 300)");
    EXPECT_EQ(world.window->Result(), 0);
  });
}

TEST(HolidaysWindow, EscClosesItAsItsCloseBoxDoes) {
  RunInFreshThread([] {
    HolidaysWorld world;
    ASSERT_TRUE(world.InitWithUsualRules(1));
    world.Show([&] {
      world.world.log.Clear();
      world.Form().PressEscape();
      EXPECT_TRUE(world.Form().HasUnloaded());
    });
    EXPECT_EQ(world.world.log.StartingWith("services.WriteSetting").size(), 4u);
    EXPECT_EQ(world.window->Result(), 0);
  });
}

TEST(HolidaysWindow, TheToolShowsAndHidesTheGroupByHeader) {
  RunInFreshThread([] {
    HolidaysWorld world;
    ASSERT_TRUE(world.InitWithUsualRules(0));
    auto& tools = world.Form().Part<headless::HeadlessToolBar>("ssatb");
    EXPECT_EQ(tools.Design("ID_ShowHide").description, "Show or hide headers group");
    EXPECT_EQ(tools.Design("ID_ShowHide").category, "General");
    world.Show([&] {
      tools.ClickTool("ID_ShowHide");
      EXPECT_TRUE(world.Grid().GroupByBoxVisible());
      EXPECT_EQ(world.world.log.Between("toolkit.LockUpdates(fmEnterHolidays)", "toolkit.UnlockUpdates()"),
                (Names{"toolkit.LockUpdates(fmEnterHolidays)", "gexHolidays.SetGroupByBoxVisible(True)",
                       "toolkit.UnlockUpdates()"}));
      tools.ClickTool("ID_ShowHide");
      EXPECT_FALSE(world.Grid().GroupByBoxVisible());
      world.Grid().ToggleGroupByBox();
      EXPECT_TRUE(tools.ToolPressed("ID_ShowHide"));
    });
  });
}

TEST(HolidaysWindow, ButtonsReadAsDesignedAndAddIsTheDefault) {
  RunInFreshThread([] {
    HolidaysWorld world;
    ASSERT_TRUE(world.InitWithUsualRules(0));
    const char* const kTexts[] = {"Add", "Edit", "Remove", "Restore", "Show all", "Assign"};
    for (int i = 0; i < 6; ++i) EXPECT_EQ(world.Action(i).Caption(), kTexts[i]);
    for (const auto& control : world.Form().Design().controls) {
      EXPECT_EQ(control.is_default_button, control.name == "cmdAction0") << control.name;
    }
  });
}

TEST(HolidaysWindow, WhateverCallFailsAtTheStartItNeverThrowsAndLeavesNothingLocked) {
  for (int n = 1;; ++n) {
    bool fired = true;
    RunInFreshThread([&] {
      HolidaysWorld world;
      world.SetRules(HolidaysWorld::UsualRules());
      world.world.faults.FailAtCall(n);
      EXPECT_NO_THROW((void)world.Init(1)) << world.world.faults.FailedCall();
      EXPECT_EQ(world.world.toolkit.LockedElement(), "") << world.world.faults.FailedCall();
      fired = world.world.faults.HasFired();
      world.world.faults.Disarm();
      world.window->Unload();
    });
    if (!fired) break;
    ASSERT_LT(n, 500);
  }
}

TEST(HolidaysWindow, HasTheColumnsOfTheHostAsTheHostSetsThem) {
  RunInFreshThread([] {
    HolidaysWorld holidays;
    holidays.headers->Add("Length", "Length", "Length");
    holidays.headers->LocalNames("Length")->SetFunction([](const platform::RecordSet& rule) {
      return Value(static_cast<std::int32_t>(platform::ToText(rule["Name1"]).size()));
    });
    ASSERT_TRUE(holidays.InitWithUsualRules(1));
    const auto row = holidays.RowOf("Saturday");
    EXPECT_EQ(holidays.Grid().CellValue(row, "Length"), Value(8));
    holidays.headers->LocalNames("Length")->SetCaption("Letters");
    EXPECT_EQ(holidays.Grid().ColumnByKey("Length").Caption(), "Letters");
  });
}

}  // namespace
}  // namespace ferrowind
