#include "ferrowind/views/planning/fm_rule_book.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include <gmock/gmock.h>

#include "ferrowind/adapters/headless/headless_button.h"
#include "ferrowind/adapters/headless/headless_drop_down_list.h"
#include "ferrowind/adapters/headless/headless_label.h"
#include "ferrowind/adapters/headless/headless_table.h"
#include "ferrowind/adapters/headless/headless_text_box.h"
#include "ferrowind/planning/database_call.h"

#include "tests/unit/planning/planning_world.h"

namespace ferrowind {
namespace {

using headless::HeadlessButton;
using headless::HeadlessDropDownList;
using headless::HeadlessForm;
using headless::HeadlessLabel;
using headless::HeadlessTable;
using headless::HeadlessTextBox;
using planning::ParameterType;
using planning::Value;
using platform::CellMark;
using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using testing::RunInFreshThread;
using ::testing::StartsWith;

constexpr std::int32_t kEuro = 978;
constexpr std::int32_t kDollar = 840;
constexpr std::int32_t kKuna = 191;

/// The rule book window on the book of the euro: Sunday, 25 December and Good Friday; the dollar has one,
/// too.
class BookWorld : public planning::PlanningWorld {
 public:
  BookWorld() {
    AnswerCurrencies();
    AnswerBooks({{kDollar, "Fed", "Holidays", "f1", {}}, {kEuro, "ECB", "Closing days", "f2", {}}},
                {{kDollar, 1, "Sunday", 2, "weekday Sunday", {}, {}},
                 {kEuro, 1, "Sunday", 2, "weekday Sunday", {}, {}},
                 {kEuro, 2, "Christmas Day", 3, "12-25", "25 December", {}},
                 {kEuro, 3, "Good Friday", 4, "easter-2", {}, {}}});
    tables.Add({"moons", 2026, 2026, {platform::Date(2026, 3, 10)}});
    window = fmRuleBook::Create({platform, tables, windows}, kEuro);
    window->ShowInFront();
  }

  void TakeBook(std::int32_t return_value) {
    world.commands.Answer("CldIUBook")
        .Takes("@ID1", ParameterType::kInt32)
        .Takes("@Expected", ParameterType::kText)
        .Takes("@Publisher", ParameterType::kText)
        .Takes("@Document", ParameterType::kText)
        .Takes("@Rules", ParameterType::kText)
        .Takes("@FromYear", ParameterType::kInt32)
        .Returns(return_value);
  }

  HeadlessForm& Form() { return world.toolkit.FormNamed("fmRuleBook"); }
  HeadlessTextBox& Box(const std::string& name) { return Form().Part<HeadlessTextBox>(name); }
  HeadlessDropDownList& List(const std::string& name) { return Form().Part<HeadlessDropDownList>(name); }
  HeadlessTable& Rules() { return Form().Part<HeadlessTable>("tblRules"); }
  HeadlessTable& Years() { return Form().Part<HeadlessTable>("tblYears"); }
  std::string TextOf(const std::string& label) { return Form().Part<HeadlessLabel>(label).Text(); }
  std::string Chosen(const std::string& list) { return List(list).ItemText(List(list).Chosen()); }
  void Click(const std::string& button) { Form().Part<HeadlessButton>(button).Click(); }
  bool CanSave() { return Form().ControlNamed("cmdSave").Enabled(); }

  /// The next question is answered by that button.
  void AnswerQuestion(const std::string& button) {
    world.toolkit.ScriptModal("fmMessage", [this, button](HeadlessForm& question) {
      asked = question.Part<HeadlessLabel>("lblMessage").Text();
      question.Part<HeadlessButton>(button).Click();
    });
  }

  almanac::DateTables tables;
  PlanningWindows windows{platform, tables};
  std::shared_ptr<fmRuleBook> window;
  std::string asked;
};

TEST(RuleBookWindow, ShowsTheBookOfTheCurrencyAndItsFirstRule) {
  RunInFreshThread([] {
    BookWorld book;
    EXPECT_EQ(book.Form().Caption(), "Rule book of EUR");
    EXPECT_EQ(book.Chosen("cmbCurrency"), "EUR - Euro");
    EXPECT_EQ(book.Box("txtPublisher").Text(), "ECB");
    EXPECT_EQ(book.Box("txtDocument").Text(), "Closing days");
    EXPECT_THAT(book.Rules().RowKeys(), ElementsAre("0", "1", "2"));
    EXPECT_THAT(book.Rules().Texts("1"), ElementsAre("Christmas Day", "Celebration", "12-25"));
    EXPECT_EQ(book.Box("txtName").Text(), "Sunday");
    EXPECT_FALSE(book.CanSave());
  });
}

TEST(RuleBookWindow, ListsOnlyMoney) {
  RunInFreshThread([] {
    BookWorld book;
    EXPECT_EQ(book.List("cmbCurrency").Count(), 3);
    EXPECT_EQ(book.List("cmbCurrency").ItemText(0), "EUR - Euro");
  });
}

TEST(RuleBookWindow, ShowsTheRuleThatIsChosenWithItsChoicesAndItsYears) {
  RunInFreshThread([] {
    BookWorld book;
    book.Rules().ClickRow("2");
    EXPECT_EQ(book.Box("txtName").Text(), "Good Friday");
    EXPECT_EQ(book.Box("txtExpression").Text(), "easter-2");
    EXPECT_EQ(book.Chosen("cmbKind"), "Holiday point");
    EXPECT_EQ(book.Chosen("cmbForm"), "By Easter Sunday");
    EXPECT_EQ(book.Chosen("cmbOffset"), "2 days before");
    EXPECT_TRUE(book.List("cmbOffset").Visible());
    EXPECT_FALSE(book.List("cmbMonth").Visible());
    // Ten years from last year on.
    EXPECT_EQ(book.Years().RowCount(), 10u);
    EXPECT_THAT(book.Years().Texts("2026-04-03"),
                ElementsAre("2026", "Friday 3 April 2026", "Easter Sunday 5 April 2026, two days before"));
  });
}

TEST(RuleBookWindow, CountsTheDaysOfAWeekdayRule) {
  RunInFreshThread([] {
    BookWorld book;
    EXPECT_THAT(book.Years().Texts("2026"),
                ElementsAre("2026", "52 days", "The first is Sunday 4 January 2026"));
  });
}

TEST(RuleBookWindow, ReadsTheExpressionWhileItIsTyped) {
  RunInFreshThread([] {
    BookWorld book;
    book.Rules().ClickRow("2");
    book.Box("txtExpression").ReplaceText("easter-");
    EXPECT_THAT(book.TextOf("lblFault"), HasSubstr("a number of days up to 366 is expected"));
    EXPECT_EQ(book.Rules().Cell("2", "expression").mark, CellMark::kError);
    EXPECT_EQ(book.Years().RowCount(), 0u);
    EXPECT_FALSE(book.CanSave());
    book.Box("txtExpression").TypeText("3");
    EXPECT_EQ(book.TextOf("lblFault"), "");
    EXPECT_EQ(book.Rules().Cell("2", "expression").mark, CellMark::kNone);
    EXPECT_THAT(book.Years().Texts("2026-04-02"),
                ElementsAre("2026", "Thursday 2 April 2026", HasSubstr("three days before")));
    EXPECT_EQ(book.Chosen("cmbOffset"), "3 days before");
    EXPECT_TRUE(book.CanSave());
  });
}

TEST(RuleBookWindow, WritesTheExpressionThatIsChosen) {
  RunInFreshThread([] {
    BookWorld book;
    book.Rules().ClickRow("2");
    book.List("cmbForm").ChooseByOperator("A weekday of a month");
    book.List("cmbOrdinal").ChooseByOperator("Last");
    book.List("cmbWeekday").ChooseByOperator("Thursday");
    book.List("cmbMonth").ChooseByOperator("November");
    book.List("cmbFrom").ChooseByOperator("2020");
    EXPECT_EQ(book.Box("txtExpression").Text(), "last Thursday of 11 from 2020");
    EXPECT_THAT(book.Rules().Texts("2"),
                ElementsAre("Good Friday", "Holiday point", "last Thursday of 11 from 2020"));
    EXPECT_FALSE(book.List("cmbOffset").Visible());
    EXPECT_TRUE(book.List("cmbOrdinal").Visible());
  });
}

TEST(RuleBookWindow, BeginsAHolidayOfOneDayInThisYear) {
  RunInFreshThread([] {
    BookWorld book;
    book.Rules().ClickRow("1");
    book.List("cmbForm").ChooseByOperator("Once");
    EXPECT_EQ(book.Box("txtExpression").Text(), "2026-12-25");
    EXPECT_TRUE(book.List("cmbYear").Visible());
  });
}

TEST(RuleBookWindow, KeepsTheChoicesOnShowWhileTheyAreNoDate) {
  RunInFreshThread([] {
    BookWorld book;
    book.Rules().ClickRow("1");
    book.List("cmbDay").ChooseByOperator("30");
    book.List("cmbMonth").ChooseByOperator("February");
    EXPECT_THAT(book.TextOf("lblFault"), HasSubstr("02-30"));
    EXPECT_EQ(book.Chosen("cmbForm"), "The same date each year");
    EXPECT_EQ(book.Chosen("cmbMonth"), "February");
    book.List("cmbDay").ChooseByOperator("28");
    EXPECT_EQ(book.Box("txtExpression").Text(), "02-28");
    EXPECT_EQ(book.TextOf("lblFault"), "");
  });
}

TEST(RuleBookWindow, OffersTheTablesOfDates) {
  RunInFreshThread([] {
    BookWorld book;
    book.Rules().ClickRow("2");
    book.List("cmbForm").ChooseByOperator("By a table of dates");
    EXPECT_EQ(book.Box("txtExpression").Text(), "table moons-2");
    book.List("cmbOffset").ChooseByOperator("on the day itself");
    EXPECT_EQ(book.Box("txtExpression").Text(), "table moons");
    EXPECT_THAT(book.Years().Texts("2027-none"),
                ElementsAre("2027", "The dates of this year are not known yet", ""));
  });
}

TEST(RuleBookWindow, SaysThatAnExpressionIsWrittenByHandWhichChoicesCannotSay) {
  RunInFreshThread([] {
    BookWorld book;
    book.Rules().ClickRow("2");
    book.Box("txtExpression").ReplaceText("Friday after 4th Thursday of 11");
    EXPECT_EQ(book.Chosen("cmbForm"), "Written by hand");
    EXPECT_FALSE(book.List("cmbClosedDay").Enabled());
    EXPECT_EQ(book.Box("txtExpression").Text(), "Friday after 4th Thursday of 11");
    book.Rules().ClickRow("1");
    EXPECT_TRUE(book.List("cmbClosedDay").Enabled());
    book.Rules().ClickRow("2");
    EXPECT_EQ(book.Chosen("cmbForm"), "Written by hand");
    EXPECT_FALSE(book.List("cmbClosedDay").Visible()) << "of another rule";
  });
}

TEST(RuleBookWindow, KeepsTheListsInTheirPlaceWhileAnExpressionIsWritten) {
  RunInFreshThread([] {
    BookWorld book;
    book.Rules().ClickRow("2");
    const auto shown = [&] {
      std::vector<std::string> names;
      for (const char* name : {"cmbOffset", "cmbOrdinal", "cmbWeekday", "cmbDay", "cmbMonth", "cmbClosedDay",
                               "cmbFrom", "cmbTo"}) {
        if (book.List(name).Visible()) names.emplace_back(name);
      }
      return names;
    };
    const auto at_first = shown();
    for (const char* typed : {"easter-", "easter", "", "l", "last Thursday of"}) {
      book.Box("txtExpression").ReplaceText(typed);
      EXPECT_EQ(shown(), at_first) << typed;
      EXPECT_EQ(book.List("cmbOffset").Enabled(), std::string_view(typed) == "easter") << typed;
      EXPECT_TRUE(book.List("cmbForm").Enabled());
    }
    book.Box("txtExpression").ReplaceText("last Thursday of 11");
    EXPECT_TRUE(book.List("cmbOrdinal").Enabled());
    EXPECT_TRUE(book.List("cmbOrdinal").Visible());
    EXPECT_FALSE(book.List("cmbOffset").Visible());
  });
}

TEST(RuleBookWindow, OffersTheListsOfAFormThatIsChosenInPlaceOfWhatCannotBeRead) {
  RunInFreshThread([] {
    BookWorld book;
    book.Rules().ClickRow("2");
    book.Box("txtExpression").ReplaceText("easter-");
    book.List("cmbForm").ChooseByOperator("By Easter Sunday");
    EXPECT_TRUE(book.List("cmbOffset").Enabled());
    EXPECT_EQ(book.TextOf("lblFault"), "");
  });
}

TEST(RuleBookWindow, ShowsADayThatAnotherRuleHasFaint) {
  RunInFreshThread([] {
    BookWorld book;
    book.Rules().ClickRow("2");
    book.Box("txtExpression").ReplaceText("12-25");
    EXPECT_EQ(book.Years().Cell("2026-12-25-", "date").mark, CellMark::kRemoved);
    EXPECT_EQ(book.Years().Cell("2026-12-25-", "date").tone, platform::CellTone::kQuiet);
    EXPECT_THAT(book.Years().Cell("2026-12-25-", "why").text, HasSubstr("on this day too"));
  });
}

TEST(RuleBookWindow, AddsARuleBehindTheCurrentOneAndAsksForItsName) {
  RunInFreshThread([] {
    BookWorld book;
    book.Rules().ClickRow("1");
    book.Click("cmdAdd");
    EXPECT_THAT(book.Rules().RowKeys(), ElementsAre("0", "1", "2", "3"));
    EXPECT_EQ(book.Rules().CurrentRow(), "2");
    EXPECT_EQ(book.Form().FocusedControl(), "txtName");
    book.Box("txtName").TypeText("Labour Day");
    EXPECT_EQ(book.Rules().Texts("2").front(), "Labour Day");
    EXPECT_EQ(book.Rules().Texts("3").front(), "Good Friday");
    EXPECT_THAT(book.TextOf("lblOutcome"), HasSubstr("rule 3, \"Labour Day\""));
  });
}

TEST(RuleBookWindow, RemovesTheCurrentRule) {
  RunInFreshThread([] {
    BookWorld book;
    book.Rules().ClickRow("1");
    book.Click("cmdRemove");
    EXPECT_THAT(book.Rules().RowKeys(), ElementsAre("0", "1"));
    EXPECT_EQ(book.Box("txtName").Text(), "Good Friday");
    EXPECT_TRUE(book.CanSave());
    book.Click("cmdRemove");
    book.Click("cmdRemove");
    EXPECT_THAT(book.Rules().RowKeys(), IsEmpty());
    EXPECT_FALSE(book.Form().ControlNamed("frmRule").Enabled());
    EXPECT_FALSE(book.Form().ControlNamed("cmdRemove").Enabled());
    EXPECT_EQ(book.Box("txtName").Text(), "");
  });
}

TEST(RuleBookWindow, MovesTheCurrentRuleUpAndDown) {
  RunInFreshThread([] {
    BookWorld book;
    EXPECT_FALSE(book.Form().ControlNamed("cmdUp").Enabled());
    book.Click("cmdDown");
    EXPECT_EQ(book.Rules().CurrentRow(), "1");
    EXPECT_EQ(book.Rules().Texts("1").front(), "Sunday");
    book.Click("cmdDown");
    EXPECT_FALSE(book.Form().ControlNamed("cmdDown").Enabled());
    book.Click("cmdUp");
    book.Click("cmdUp");
    EXPECT_EQ(book.Rules().Texts("0").front(), "Sunday");
    EXPECT_EQ(book.TextOf("lblOutcome"), "Nothing is changed.");
    EXPECT_FALSE(book.CanSave());
  });
}

TEST(RuleBookWindow, TellsWhichDaysWouldBePlannedOtherwise) {
  RunInFreshThread([] {
    BookWorld book;
    book.Rules().ClickRow("1");
    book.Box("txtExpression").ReplaceText("12-24 only 2026");
    EXPECT_THAT(book.TextOf("lblOutcome"),
                AllOf(HasSubstr("6 days of the plans of 2026 - 2030 change:"),
                      HasSubstr("Thursday 24 December 2026 from working day to Christmas Day"),
                      HasSubstr("Friday 25 December 2026 from Christmas Day to working day")));
  });
}

TEST(RuleBookWindow, TellsOfTheFirstFaultAndCountsTheOthers) {
  RunInFreshThread([] {
    BookWorld book;
    book.Box("txtPublisher").ReplaceText("");
    book.Box("txtDocument").ReplaceText("");
    EXPECT_EQ(book.TextOf("lblOutcome"), "The book names no publisher. 1 more fault.");
    EXPECT_FALSE(book.CanSave());
  });
}

TEST(RuleBookWindow, SavesSinceWhenTheBookHolds) {
  RunInFreshThread([] {
    BookWorld book;
    book.TakeBook(0);
    book.Rules().ClickRow("2");
    book.Box("txtSince").ReplaceText("2027");
    EXPECT_EQ(book.TextOf("lblOutcome"), "No plan any more for: 2026.");
    // Of the ten years from 2025 on.
    EXPECT_EQ(book.Years().RowCount(), 8u);
    book.Click("cmdSave");
    EXPECT_EQ(book.world.commands.CallsOf("CldIUBook").front().Parameter("@FromYear"), Value(2027));
  });
}

TEST(RuleBookWindow, SavesTheBookAndTellsTheOtherWindows) {
  RunInFreshThread([] {
    BookWorld book;
    book.TakeBook(0);
    int told = 0;
    const auto changed = book.windows.OnChanged([&](const auto&) { ++told; });
    book.Rules().ClickRow("2");
    book.Box("txtComment").ReplaceText("Friday before Easter");
    book.Click("cmdSave");
    const auto call = book.world.commands.CallsOf("CldIUBook").front();
    EXPECT_EQ(call.Parameter("@Expected"), Value("f2"));
    EXPECT_THAT(platform::ToText(call.Parameter("@Rules")), HasSubstr("Friday before Easter"));
    EXPECT_EQ(told, 1);
    EXPECT_THAT(book.TextOf("lblOutcome"), HasSubstr("The book of EUR is saved."));
    EXPECT_EQ(book.Rules().CurrentRow(), "2");
  });
}

TEST(RuleBookWindow, KeepsWhatWasTypedWhenSomebodyElseHasChangedTheBook) {
  RunInFreshThread([] {
    BookWorld book;
    book.TakeBook(planning::return_value::kContentIsAnother);
    book.Rules().ClickRow("2");
    book.Box("txtComment").ReplaceText("Friday before Easter");
    book.Click("cmdSave");
    EXPECT_THAT(book.SeenByOperator(), ElementsAre(HasSubstr("book of EUR")));
    EXPECT_EQ(book.Box("txtComment").Text(), "Friday before Easter");
    EXPECT_TRUE(book.CanSave());
  });
}

TEST(RuleBookWindow, AsksBeforeChangesAreLost) {
  RunInFreshThread([] {
    BookWorld book;
    book.Box("txtDocument").ReplaceText("Other days");
    book.AnswerQuestion("cmdCancel");
    EXPECT_FALSE(book.Form().CloseByOperator());
    EXPECT_THAT(book.asked, HasSubstr("not saved"));
    EXPECT_TRUE(book.window->IsOpen());
    book.AnswerQuestion("cmdOk");
    EXPECT_TRUE(book.Form().CloseByOperator());
    EXPECT_FALSE(book.window->IsOpen());
  });
}

TEST(RuleBookWindow, SaysThatThereIsNoBookYetAndWhatToDo) {
  RunInFreshThread([] {
    BookWorld book;
    book.window = fmRuleBook::Create({book.platform, book.tables, book.windows}, kKuna);
    EXPECT_THAT(book.TextOf("lblOutcome"), StartsWith("HRK has no rule book yet"));
  });
}

TEST(RuleBookWindow, ClosesWithoutAQuestionWhenNothingIsChanged) {
  RunInFreshThread([] {
    BookWorld book;
    book.Click("cmdClose");
    EXPECT_FALSE(book.window->IsOpen());
  });
}

TEST(RuleBookWindow, ShowsTheBookOfAnotherCurrency) {
  RunInFreshThread([] {
    BookWorld book;
    book.List("cmbCurrency").ChooseByOperator("USD - US Dollar");
    EXPECT_EQ(book.Form().Caption(), "Rule book of USD");
    EXPECT_EQ(book.Box("txtPublisher").Text(), "Fed");
    EXPECT_THAT(book.Rules().RowKeys(), ElementsAre("0"));
    book.List("cmbCurrency").ChooseByOperator("HRK - Kuna");
    EXPECT_EQ(book.Box("txtPublisher").Text(), "");
    EXPECT_THAT(book.Rules().RowKeys(), IsEmpty());
  });
}

TEST(RuleBookWindow, StaysWithItsCurrencyWhenChangesAreNotToBeLost) {
  RunInFreshThread([] {
    BookWorld book;
    book.Box("txtDocument").ReplaceText("Other days");
    book.AnswerQuestion("cmdCancel");
    book.List("cmbCurrency").ChooseByOperator("USD - US Dollar");
    EXPECT_EQ(book.Chosen("cmbCurrency"), "EUR - Euro");
    EXPECT_EQ(book.Box("txtDocument").Text(), "Other days");
  });
}

TEST(RuleBookWindow, StaysWithItsCurrencyWhenTheOtherBookCannotBeRead) {
  RunInFreshThread([] {
    BookWorld book;
    book.world.commands.FailAt(headless::CommandStep::kExecute, {-5, "line lost"});
    book.List("cmbCurrency").ChooseByOperator("USD - US Dollar");
    EXPECT_THAT(book.SeenByOperator(), ElementsAre(HasSubstr("line lost")));
    EXPECT_EQ(book.Chosen("cmbCurrency"), "EUR - Euro");
    EXPECT_EQ(book.Form().Caption(), "Rule book of EUR");
  });
}

TEST(RuleBookWindow, OfAnUnknownCurrencyIsAFailureThatNamesIt) {
  RunInFreshThread([] {
    BookWorld book;
    const auto failure = testing::FailureOf([&] {
      (void)fmRuleBook::Create({book.platform, book.tables, book.windows}, 12);
    });
    EXPECT_THAT(failure.Description(), HasSubstr("12"));
  });
}

}  // namespace
}  // namespace ferrowind
