// What a host adds to the Holidays window.
#include <optional>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/fake_additions.h"
#include "tests/support/run_in_fresh_thread.h"
#include "tests/unit/views/holidays/holidays_world.h"

namespace ferrowind {
namespace {

using platform::CalendarOnShow;
using testing::Date;
using ::testing::ElementsAre;
using testing::FakeAdditions;
using testing::HolidaysWorld;
using testing::RunInFreshThread;
using testing::Value;
using Texts = std::vector<std::string>;

/// The Holidays window of EUR with additions that have a tool.
class AddedWorld : public HolidaysWorld {
 public:
  AddedWorld() {
    additions.holidays_parts = {.tools = {{"ID_Added", "Added", "General", "Adds"}}, .bar = {"ID_Added"}};
    platform.additions = &additions;
    window = std::make_unique<fmEnterHolidays>(
        platform, [](const auto& work) { work(); }, "EUR");
  }

  [[nodiscard]] std::size_t Assigned() const { return world.commands.CallsOf("CldIUMain").size(); }

  FakeAdditions additions{world.log};
};

TEST(HolidaysAdditions, StandBehindTheToolsOfTheWindowAndRunTheirs) {
  RunInFreshThread([] {
    AddedWorld holidays;
    ASSERT_TRUE(holidays.InitWithUsualRules(kWholeCalendarMode));
    auto& tools = holidays.Form().Part<headless::HeadlessToolBar>("ssatb");
    EXPECT_THAT(tools.Bar().ids, ElementsAre("ID_ShowHide", "-", "ID_Added"));
    holidays.Show([&] {
      tools.ClickTool("ID_ShowHide");
      tools.ClickTool("ID_Added");
    });
    EXPECT_EQ(holidays.world.log.StartingWith("additions.RunTool"),
              Texts{R"(additions.RunTool("ID_Added"))"});
  });
}

TEST(HolidaysAdditions, GiveTheWindowItsCaptionInBothModes) {
  for (const auto& [mode, caption] :
       {std::pair(kSingleDayMode, "Assign holiday for single day, added"),
        std::pair(kWholeCalendarMode, "Assign groups holidays for calendar, added")}) {
    RunInFreshThread([shown_mode = mode, expected = caption] {
      AddedWorld holidays;
      ASSERT_TRUE(holidays.InitWithUsualRules(shown_mode));
      EXPECT_EQ(holidays.Form().Caption(), expected);
    });
  }
}

TEST(HolidaysAdditions, SeeTheirTargetBeforeTheListIsFilled) {
  RunInFreshThread([] {
    AddedWorld holidays;
    holidays.additions.acts_in = "Opening";
    holidays.additions.act = [&] {
      EXPECT_EQ(holidays.additions.holidays->Target(), (CalendarOnShow{978, "EUR", 2026}));
      EXPECT_EQ(holidays.additions.holidays->TargetDay(), Date(2026, 4, 10));
      EXPECT_EQ(holidays.Grid().RowCount(), 0);
    };
    ASSERT_TRUE(holidays.InitWithUsualRules(kSingleDayMode));
    EXPECT_TRUE(holidays.world.log.Contains("additions.Opening()"));
    EXPECT_EQ(holidays.additions.holidays->FirstWeekday(), 1);
  });
}

TEST(HolidaysAdditions, SeeNoDayWhenRulesAreForTheWholeCalendar) {
  RunInFreshThread([] {
    AddedWorld holidays;
    ASSERT_TRUE(holidays.InitWithUsualRules(kWholeCalendarMode));
    EXPECT_EQ(holidays.additions.holidays->TargetDay(), std::nullopt);
  });
}

TEST(HolidaysAdditions, ChooseTheRulesThatTheListShows) {
  RunInFreshThread([] {
    AddedWorld holidays;
    holidays.additions.rules_to_show = [](const auto& rules) {
      rules->SetFilter("ID2 > 3");
      std::vector<std::vector<Value>> rows;
      for (; !rules->Eof(); rules->MoveNext()) {
        rows.emplace_back();
        for (std::size_t field = 0; field < rules->FieldCount(); ++field) {
          rows.back().push_back(rules->Cell(rules->CurrentBookmark(), field));
        }
      }
      return std::make_shared<platform::RecordSet>(
          std::vector<std::string>{"ID2", "Name1", "Comment", "TID1", "D1", "MY", "MD", "WD", "Del"},
          std::move(rows));
    };
    ASSERT_TRUE(holidays.InitWithUsualRules(kWholeCalendarMode));
    // The filter of the window holds for them as well: a removed one is hidden.
    EXPECT_THAT(holidays.Names(), ElementsAre("Christmas Day", "Easter", "Back again"));
    holidays.Show([&] {
      holidays.Grid().ClickRow(holidays.RowOf("Easter"));
      holidays.Action(5).Click();
    });
    ASSERT_EQ(holidays.Assigned(), 1u);
    EXPECT_EQ(holidays.world.commands.CallsOf("CldIUMain")[0].parameters[2].second, Value(5));
  });
}

TEST(HolidaysAdditions, LookAtTheChosenRulesBeforeTheyAreAssigned) {
  RunInFreshThread([] {
    AddedWorld holidays;
    holidays.additions.acts_in = "BeforeAssign";
    holidays.additions.act = [&] { EXPECT_EQ(holidays.Assigned(), 0u); };
    ASSERT_TRUE(holidays.InitWithUsualRules(kSingleDayMode));
    holidays.Show([&] {
      holidays.Grid().ClickRow(holidays.RowOf("Easter"));
      holidays.Action(5).Click();
    });
    EXPECT_EQ(holidays.Assigned(), 1u);
    ASSERT_EQ(holidays.additions.chosen_rules.size(), 1u);
    const auto& rule = holidays.additions.chosen_rules[0];
    EXPECT_EQ(rule.id, Value(5));
    EXPECT_EQ(rule.type, Value(4));
    EXPECT_EQ(rule.name, Value("Easter"));
    EXPECT_EQ(rule.date, Value(Date(2026, 4, 5)));
    EXPECT_TRUE(rule.weekday.IsEmpty());
  });
}

TEST(HolidaysAdditions, ThatSayNoOrFailLeaveTheWindowOpenAndNothingAssigned) {
  for (const bool fails : {false, true}) {
    RunInFreshThread([fails] {
      AddedWorld holidays;
      holidays.additions.lets_assign = false;
      if (fails) holidays.additions.fails_in = "BeforeAssign";
      ASSERT_TRUE(holidays.InitWithUsualRules(kSingleDayMode));
      holidays.Show([&] {
        holidays.Grid().ClickRow(1);
        holidays.Action(5).Click();
        EXPECT_TRUE(holidays.Form().IsShown());
      });
      EXPECT_EQ(holidays.Assigned(), 0u);
      EXPECT_EQ(holidays.window->Result(), 0);
    });
  }
}

TEST(HolidaysAdditions, ThatSawTheWindowClosedByTheProgramAssignNothing) {
  RunInFreshThread([] {
    AddedWorld holidays;
    holidays.additions.acts_in = "BeforeAssign";
    holidays.additions.act = [&] { holidays.window->ForceClosing(); };
    ASSERT_TRUE(holidays.InitWithUsualRules(kSingleDayMode));
    holidays.Show([&] {
      holidays.Grid().ClickRow(1);
      holidays.Action(5).Click();
    });
    EXPECT_EQ(holidays.Assigned(), 0u);
  });
}

TEST(HolidaysAdditions, ReadTheRulesAnew) {
  RunInFreshThread([] {
    AddedWorld holidays;
    ASSERT_TRUE(holidays.InitWithUsualRules(kSingleDayMode));
    holidays.SetRules({HolidaysWorld::Rule(2, "Saturday", 2, {}, 7)});
    holidays.additions.holidays->Reload();
    EXPECT_THAT(holidays.Names(), ElementsAre("Saturday"));
  });
}

TEST(HolidaysAdditions, ThatFailAreReportedAndLeaveTheWindowAsItIs) {
  for (const char* method : {"ForHolidays", "Opening", "Caption", "RulesToShow", "RunTool", "Closing"}) {
    RunInFreshThread([method] {
      SCOPED_TRACE(method);
      AddedWorld holidays;
      holidays.additions.fails_in = method;
      ASSERT_TRUE(holidays.InitWithUsualRules(kSingleDayMode));
      EXPECT_EQ(holidays.Grid().RowCount(), 5);
      holidays.Show([&] {
        holidays.Form().Part<headless::HeadlessToolBar>("ssatb").ClickTool("ID_Added");
        holidays.Grid().ClickRow(1);
        holidays.Action(5).Click();
      });
      EXPECT_EQ(holidays.Assigned(), 1u);
      EXPECT_EQ(holidays.world.log.StartingWith("services.ReportError(").size(), 1u);
    });
  }
}

}  // namespace
}  // namespace ferrowind
