// The tree of the Calendars window, and expanding and collapsing all of it.
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/unit/views/calendars/calendars_world.h"

namespace ferrowind {
namespace {

using testing::CalendarsWorld;
using ::testing::ElementsAre;
using testing::ExpectDaysAsked;
using testing::ExpectInOrder;
using testing::RunInFreshThread;
using Rows = std::vector<std::vector<platform::Value>>;
using Texts = std::vector<std::string>;

TEST(CurrencyTree, ListsTheCurrenciesInTheOrderOfTheDictionaryWithTheirCalendarsBelow) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.Open();
    EXPECT_EQ(calendars.Tree().Roots(), (Texts{"K978", "K840", "K392"}));
    EXPECT_EQ(calendars.Tree().Children("K978"), (Texts{"K978_2026", "K978_2027"}));
    EXPECT_EQ(calendars.Tree().Children("K840"), Texts{"K840_2026"});
    EXPECT_TRUE(calendars.Tree().Children("K392").empty());
  });
}

TEST(CurrencyTree, ShowsCodesAndYearsWithTheirImages) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.Open();
    EXPECT_EQ(calendars.Tree().Text("K840"), "USD");
    EXPECT_EQ(calendars.Tree().Image("K840"), "Currency");
    EXPECT_EQ(calendars.Tree().Text("K840_2026"), "2026");
    EXPECT_EQ(calendars.Tree().Image("K840_2026"), "Calendar");
  });
}

TEST(CurrencyTree, ExplainsACurrencyByItsNameInTheDictionary) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.Open();
    EXPECT_EQ(calendars.Tree().Description("K840"), "Name of USD");
    EXPECT_EQ(calendars.Tree().Description("K840_2026"), "");
  });
}

TEST(CurrencyTree, DoesWithoutExplanationsWhenTheDictionaryHasNoNames) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.world.dictionary->SetTable("Ccy", std::make_shared<platform::RecordSet>(
                                                    Texts{"CcyID", "Ccy", "CcyType"},
                                                    Rows{{978, "EUR", 0}, {840, "USD", 0}, {392, "JPY", 0}}));
    calendars.Open();
    EXPECT_EQ(calendars.Tree().Roots(), (Texts{"K978", "K840", "K392"}));
    EXPECT_EQ(calendars.Tree().Description("K978"), "");
  });
}

TEST(CurrencyTree, StartsWithACurrencyWhoseNameIsEmptyOrNoText) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    const auto no_text = std::make_shared<platform::RecordSet>(Texts{}, Rows{});
    calendars.world.dictionary->SetTable(
        "Ccy", std::make_shared<platform::RecordSet>(
                   Texts{"CcyID", "Ccy", "CcyType", "Name"},
                   Rows{{978, "EUR", 0, {}}, {840, "USD", 0, no_text}, {392, "JPY", 0, "Yen"}}));
    calendars.Open();
    EXPECT_EQ(calendars.Tree().Roots(), (Texts{"K978", "K840", "K392"}));
    EXPECT_EQ(calendars.Tree().Description("K978"), "");
    EXPECT_EQ(calendars.Tree().Description("K840"), "");
    EXPECT_EQ(calendars.Tree().Description("K392"), "Yen");
  });
}

TEST(CurrencyTree, WithoutCurrenciesIsEmptyAndItsToolsAreDisabled) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.world.dictionary->SetCurrencies({});
    calendars.AnswerAllInfo({});
    calendars.Open();
    EXPECT_EQ(calendars.Tree().Count(), 0);
    for (const char* tool : {"ID_New", "ID_Expand", "ID_Collapse"}) {
      EXPECT_FALSE(calendars.Tools().ToolEnabled(tool)) << tool;
    }
    EXPECT_TRUE(calendars.Tools().ToolEnabled("ID_Refresh"));
  });
}

TEST(CurrencyTree, ClickingACalendarShowsItsDays) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.Open();
    calendars.SelectNode("K978_2027");
    ASSERT_EQ(calendars.CallsOf("CldGetMain").size(), 1u);
    ExpectDaysAsked(calendars.CallsOf("CldGetMain")[0], 978, 2027);
    EXPECT_EQ(calendars.Grid().RowCount(), 5);
  });
}

TEST(CurrencyTree, ExpandingACurrencyWhileItsCalendarIsShownAsksForNothing) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.OpenAt("K978_2026");
    calendars.Tree().ToggleNode("K840");
    calendars.Tree().ToggleNode("K840");
    EXPECT_TRUE(calendars.world.log.StartingWith("command.").empty());
    EXPECT_TRUE(calendars.Grid().Enabled());
  });
}

TEST(CurrencyTree, AClickedNodeIsTheCurrentOneEvenWhenItsDaysCannotBeRead) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.OpenAt("K978_2026");
    calendars.world.commands.FailAt(headless::CommandStep::kExecute, platform::Failure(5, "locked"));
    calendars.Tree().ClickNode("K978_2027");
    calendars.world.log.Clear();
    calendars.Tree().ToggleNode("K840");
    EXPECT_TRUE(calendars.world.log.StartingWith("command.").empty());
  });
}

TEST(CurrencyTree, CollapsingTheCurrencyOfTheShownCalendarEmptiesTheGrid) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.OpenAt("K978_2026");
    calendars.Tree().ToggleNode("K978");
    ASSERT_EQ(calendars.Tree().Selected(), "K978");
    EXPECT_FALSE(calendars.Grid().Enabled());
    EXPECT_EQ(calendars.Grid().Records(), nullptr);
  });
}

TEST(CurrencyTree, ExpandingShowsTheSelectedNodeWhenItIsNotTheCurrentOne) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.OpenAt("K978_2026");
    calendars.Tree().Select("K840_2026");
    EXPECT_EQ(calendars.CallsOf("CldGetMain").size(), 2u);
    ExpectDaysAsked(calendars.CallsOf("CldGetMain").back(), 840, 2026);
  });
}

TEST(ExpandAll, ExpandsTheCollapsedCurrenciesAloneUnderALockOfTheWindowAndShowsTheDaysAgain) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.OpenAt("K978_2026");
    calendars.Click("ID_Expand");
    const auto& log = calendars.world.log;
    EXPECT_THAT(log.Between(R"(operator.ssatb.ClickTool("ID_Expand"))", "toolkit.UnlockUpdates()"),
                ElementsAre(R"(operator.ssatb.ClickTool("ID_Expand"))", "toolkit.LockUpdates(fmCalendar)",
                            R"(tvCalendar.SetExpanded("K840", True))",
                            R"(tvCalendar.SetExpanded("K392", True))", "toolkit.UnlockUpdates()"));
    ExpectInOrder(log, {R"(tvCalendar.SetExpanded("K392", True))", "toolkit.UnlockUpdates()",
                        R"(command.SetText("CldGetMain"))"});
    EXPECT_EQ(calendars.CallsOf("CldGetMain").size(), 2u);
    EXPECT_TRUE(calendars.Tree().Expanded("K840"));
  });
}

TEST(ExpandAll, WithoutASelectionShowsNothing) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.Open();
    calendars.Click("ID_Expand");
    EXPECT_TRUE(calendars.Tree().Expanded("K978"));
    EXPECT_TRUE(calendars.world.log.StartingWith("command.").empty());
    EXPECT_TRUE(calendars.world.log.StartingWith("gexCalendar.").empty());
    EXPECT_EQ(calendars.world.toolkit.LockedElement(), "");
  });
}

TEST(ExpandAll, OfAnEmptyTreeLocksNothing) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.world.dictionary->SetCurrencies({});
    calendars.AnswerAllInfo({});
    calendars.Open();
    calendars.Tools().SetToolEnabled("ID_Expand", true);
    calendars.world.log.Clear();
    calendars.Click("ID_Expand");
    EXPECT_THAT(calendars.world.log.Calls(), ElementsAre(R"(operator.ssatb.ClickTool("ID_Expand"))"));
  });
}

TEST(CollapseAll, CollapsesTheExpandedCurrenciesAloneAndShowsTheSelectedNode) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.OpenAt("K978_2026");
    calendars.Click("ID_Collapse");
    EXPECT_THAT(calendars.world.log.StartingWith("tvCalendar.SetExpanded"),
                ElementsAre(R"(tvCalendar.SetExpanded("K978", False))"));
    EXPECT_FALSE(calendars.Tree().Expanded("K978"));
    EXPECT_EQ(calendars.Tree().Selected(), "K978");
    EXPECT_FALSE(calendars.Grid().Enabled());
    EXPECT_EQ(calendars.world.toolkit.LockedElement(), "");
  });
}

TEST(CollapseAll, LocksTheWindowAround) {
  RunInFreshThread([] {
    CalendarsWorld calendars;
    calendars.OpenAt("K978_2026");
    calendars.Click("ID_Collapse");
    ExpectInOrder(calendars.world.log,
                  {"toolkit.LockUpdates(fmCalendar)", R"(tvCalendar.SetExpanded("K978", False))",
                   "toolkit.UnlockUpdates()"});
  });
}

}  // namespace
}  // namespace ferrowind
