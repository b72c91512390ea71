// Finding rules in a Holidays window, by what stands in them and by their type.

#include <functional>
#include <memory>

#include <gmock/gmock.h>

#include "ferrowind/adapters/headless/headless_drop_down_list.h"
#include "ferrowind/adapters/headless/headless_label.h"
#include "ferrowind/adapters/headless/headless_text_box.h"
#include "ferrowind/views/planning/planning_additions.h"

#include "tests/support/fault_scenario.h"
#include "tests/unit/views/holidays/holidays_world.h"
#include "tests/unit/views/planning/planned_holidays.h"

namespace ferrowind {
namespace {

using headless::HeadlessDropDownList;
using headless::HeadlessLabel;
using headless::HeadlessTextBox;
using ::testing::ElementsAre;
using testing::HolidaysWorld;
using ::testing::IsEmpty;
using ::testing::SizeIs;

void WithRules(const std::function<void(HolidaysWorld&)>& body) {
  testing::RunInFreshThread([&] {
    HolidaysWorld holidays;
    almanac::DateTables tables;
    PlanningWindows windows(holidays.platform, tables);
    PlanningAdditions additions({holidays.platform, tables, windows});
    holidays.platform.additions = &additions;
    holidays.window = std::make_unique<fmEnterHolidays>(
        holidays.platform, [](const auto& work) { work(); }, "EUR");
    ASSERT_TRUE(holidays.InitWithUsualRules(kWholeCalendarMode));
    holidays.world.toolkit.ScriptModal("fmEnterHolidays", [&](auto& form) {
      body(holidays);
      if (form.IsShown()) holidays.window->ForceClosing();
    });
    holidays.window->ShowModal();
    // Before the additions that it has.
    holidays.window.reset();
  });
}

void Type(HolidaysWorld& holidays, const std::string& text) {
  holidays.Form().Part<HeadlessTextBox>("txtFind").ReplaceText(text);
}

TEST(RuleFinder, LeavesOutTheRulesThatHaveNotWhatIsTyped) {
  WithRules([](HolidaysWorld& holidays) {
    const std::size_t all = holidays.Names().size();
    holidays.Form().PressShortcut("Ctrl+F");
    EXPECT_THAT(holidays.Names(), SizeIs(all));
    Type(holidays, "MON");
    EXPECT_THAT(holidays.Names(), ElementsAre("Monday"));
    Type(holidays, "25 december");
    EXPECT_THAT(holidays.Names(), ElementsAre("Christmas Day"));
    Type(holidays, "1999");
    EXPECT_THAT(holidays.Names(), IsEmpty()) << "a rule is of no year";
  });
}

TEST(RuleFinder, FindsRulesByTheirType) {
  WithRules([](HolidaysWorld& holidays) {
    holidays.Form().PressShortcut("Ctrl+F");
    holidays.Form().Part<HeadlessDropDownList>("cboFind").ChooseByOperator("Holiday points");
    EXPECT_THAT(holidays.Names(), ElementsAre("Easter"));
    EXPECT_EQ(holidays.Form().Part<HeadlessLabel>("lblFound").Text(), "1 of 5 rules");
  });
}

TEST(RuleFinder, StillLeavesRulesOutWhenTheListIsReadAnew) {
  WithRules([](HolidaysWorld& holidays) {
    holidays.Form().PressShortcut("Ctrl+F");
    Type(holidays, "old");
    EXPECT_THAT(holidays.Names(), IsEmpty()) << "Old holiday is removed";
    holidays.Action(4).Click();
    EXPECT_THAT(holidays.Names(), ElementsAre("Old holiday"));
  });
}

TEST(RuleFinder, LeavesEscToTheWindowWhileTheBarIsClosed) {
  WithRules([](HolidaysWorld& holidays) {
    holidays.Form().PressShortcut("Ctrl+F");
    holidays.Form().PressEscape();
    EXPECT_FALSE(holidays.Form().ControlNamed("pnlFind").Visible());
    EXPECT_TRUE(holidays.Form().IsShown());
    holidays.Form().PressEscape();
    EXPECT_FALSE(holidays.Form().IsShown());
  });
}

class SearchedRules : public testing::PlannedHolidays {
 public:
  SearchedRules() {
    EXPECT_TRUE(Init(kWholeCalendarMode));
    Form().Show();
  }
  void Type(const std::string& text) { Form().Part<HeadlessTextBox>("txtFind").ReplaceText(text); }
  void ReadAnew() { Form().Part<headless::HeadlessButton>("cmdAction4").Click(); }
};

TEST(RuleFinder, KeepsWhatIsTypedAndFindsItOnceTheListCanBeReadAgain) {
  testing::FailEachCall<SearchedRules>({.arrange =
                                            [](SearchedRules& rules) {
                                              rules.Form().PressShortcut("Ctrl+F");
                                              rules.Type("");
                                            },
                                        .act =
                                            [](SearchedRules& rules) {
                                              rules.Type("FRI");
                                              rules.ReadAnew();
                                            },
                                        .look =
                                            [](SearchedRules& rules) {
                                              EXPECT_EQ(rules.Form().Part<HeadlessTextBox>("txtFind").Text(),
                                                        "FRI");
                                              rules.ReadAnew();
                                              EXPECT_THAT(rules.Names(), ElementsAre("Good Friday"));
                                              rules.Form().PressEscape();
                                              EXPECT_THAT(rules.Names(), ::testing::Contains("Saturday"));
                                            },
                                        // The window itself says nothing of its list.
                                        .is_silent = [](const std::string&) { return true; },
                                        .most_told = 2},
                                       15);
}

}  // namespace
}  // namespace ferrowind
