#include "ferrowind/planning/year_planner.h"

#include <gmock/gmock.h>

#include "ferrowind/planning/database_call.h"

#include "tests/unit/planning/planning_world.h"

namespace ferrowind::planning {
namespace {

using almanac::ExceptionHandling;
using platform::Date;
using ::testing::HasSubstr;
using testing::RunInFreshThread;
using ::testing::SizeIs;

/// Books of EUR (25 December) and USD (a faulty one).
class PlannerWorld : public PlanningWorld {
 public:
  PlannerWorld() {
    AnswerCurrencies();
    AnswerRules({});
    AnswerBooks({{840, "Fed", "Holidays", "f1", {}}, {978, "ECB", "Closing days", "f2", {}}},
                {{840, 1, "Odd", 4, "12-32", {}, {}},
                 {978, 1, "Christmas Day", 3, "12-25", "25 December", {}},
                 // Closed in years that no test looks at, so that the days are few.
                 {978, 2, "Sunday", 2, "weekday Sunday to 1950", {}, {}}});
  }

  void TakePlan(std::int32_t return_value = 0) {
    world.commands.Answer("CldApplyPlan")
        .Takes("@ID1", ParameterType::kInt32)
        .Takes("@Year1", ParameterType::kInt32)
        .Takes("@Expected", ParameterType::kText)
        .Takes("@Days", ParameterType::kText)
        .Returns(return_value);
  }
};

TEST(YearPlanner, ListsTheCurrenciesThatHaveABookByCode) {
  RunInFreshThread([] {
    PlannerWorld component;
    const YearPlanner planner({});
    const auto with_books = planner.WithBooks();
    ASSERT_THAT(with_books, SizeIs(2));
    EXPECT_EQ(with_books[0]->code, "EUR");
    EXPECT_EQ(with_books[1]->code, "USD");
  });
}

TEST(YearPlanner, KnowsWhoseBooksHaveARule) {
  RunInFreshThread([] {
    PlannerWorld component;
    const YearPlanner planner({});
    EXPECT_EQ(planner.Owners(), (YearPlanner::RuleOwners{{2, {978}}, {3, {978}}}));
  });
}

TEST(YearPlanner, SaysWhyACurrencyCannotBePlanned) {
  RunInFreshThread([] {
    PlannerWorld component;
    const YearPlanner planner({});
    const auto reason_of = [&](const char* code) {
      const Currency& currency = planner.Currencies().Named(code);
      return testing::FailureOf([&] { (void)planner.Prepare(currency, 2028); }).Description();
    };
    EXPECT_THAT(reason_of("HRK"), HasSubstr("HRK has no book"));
    EXPECT_EQ(testing::FailureOf([&] {
                (void)planner.Prepare(planner.Currencies().Named("EUR"), 1899);
              }).Description(),
              "Years can be planned from 1900 to 2199, not 1899");
    EXPECT_THAT(reason_of("USD"), HasSubstr("The book of USD cannot be used: The rule 1, \"Odd\""));
  });
}

TEST(YearPlanner, PlansNoYearBeforeTheFirstOfTheBook) {
  RunInFreshThread([] {
    PlanningWorld component;
    component.AnswerCurrencies();
    component.AnswerRules({});
    component.AnswerBooks({{978, "ECB", "Closing days", "f1", 2015}},
                          {{978, 1, "Sunday", 2, "weekday Sunday", {}, {}}});
    component.AnswerCalendar("f9", {});
    const YearPlanner planner({});
    const Currency& euro = planner.Currencies().Named("EUR");
    EXPECT_EQ(testing::FailureOf([&] { (void)planner.Prepare(euro, 2014); }).Description(),
              "The book of EUR holds from 2015 on, so it does not tell what 2014 should be");
    EXPECT_EQ(planner.Prepare(euro, 2015)->Year(), 2015);
  });
}

TEST(YearPlanner, HasNoCalendarAfterTheLastDayOfAMoney) {
  RunInFreshThread([] {
    PlanningWorld component;
    component.AnswerCurrencies();
    component.AnswerRules({});
    component.AnswerBooks({{191, "HNB", "Holidays", "f1", {}}},
                          {{191, 1, "Christmas Day", 3, "12-25", {}, {}}});
    const YearPlanner planner({});
    EXPECT_EQ(testing::FailureOf([&] {
                (void)planner.Prepare(planner.Currencies().Named("HRK"), 2023);
              }).Description(),
              "HRK is money until 2022-12-31, so it has no calendar of 2023");
  });
}

TEST(YearPreparation, AppliesWhatDiffersFromTheCalendarThatItCompared) {
  RunInFreshThread([] {
    PlannerWorld component;
    component.AnswerCalendar("f9", {{Date(2028, 3, 1), 4, "Fair", {}, {}, 4, 61}});
    component.TakePlan();
    const YearPlanner planner({});
    const auto preparation = planner.Prepare(planner.Currencies().Named("EUR"), 2028);
    EXPECT_EQ(preparation->Name(), "EUR 2028");
    EXPECT_TRUE(preparation->CalendarExists());
    EXPECT_TRUE(preparation->Changes(ExceptionHandling::kOverwrite));
    preparation->Apply(ExceptionHandling::kOverwrite);
    const auto call = component.world.commands.CallsOf("CldApplyPlan").front();
    EXPECT_EQ(call.Parameter("@ID1"), Value(978));
    EXPECT_EQ(call.Parameter("@Year1"), Value(2028));
    EXPECT_EQ(call.Parameter("@Expected"), Value("f9"));
    EXPECT_EQ(call.Parameter("@Days"),
              Value(R"([{"Name1":"Christmas Day","TID1":3,"Comment":"25 December","Dates":["2028-12-25"]},)"
                    R"({"TID1":1,"Dates":["2028-03-01"]}])"));
  });
}

TEST(YearPreparation, HasNothingToDoWhenTheCalendarIsAsPlanned) {
  RunInFreshThread([] {
    PlannerWorld component;
    component.AnswerCalendar("f9", {{Date(2028, 12, 25), 3, "Christmas Day", {}, {}, 3, 360}});
    const YearPlanner planner({});
    EXPECT_FALSE(
        planner.Prepare(planner.Currencies().Named("EUR"), 2028)->Changes(ExceptionHandling::kOverwrite));
  });
}

TEST(YearPreparation, HasACalendarToCreateEvenWithoutAnyDayToChange) {
  RunInFreshThread([] {
    PlannerWorld component;
    component.AnswerCalendar("", {}).Returns(5);
    const YearPlanner planner({});
    const auto preparation = planner.Prepare(planner.Currencies().Named("EUR"), 2028);
    EXPECT_FALSE(preparation->CalendarExists());
    EXPECT_TRUE(preparation->Changes(ExceptionHandling::kKeep));
  });
}

TEST(YearPreparation, SaysThatTheCalendarWasChangedMeanwhile) {
  RunInFreshThread([] {
    PlannerWorld component;
    component.AnswerCalendar("f9", {});
    component.TakePlan(8);
    const YearPlanner planner({});
    const auto preparation = planner.Prepare(planner.Currencies().Named("EUR"), 2028);
    EXPECT_THAT(testing::FailureOf([&] { preparation->Apply(ExceptionHandling::kOverwrite); }).Description(),
                HasSubstr("Applying the plan of EUR 2028: it was changed meanwhile"));
  });
}

TEST(YearPreparation, NamesTheEntryThatAnUndoTakesBack) {
  RunInFreshThread([] {
    PlannerWorld component;
    component.AnswerCalendar("f9", {});
    const auto answer_newest = [&](const char* procedure) {
      component.world.commands.Answer("CldGetHistory")
          .Takes("@ID1", ParameterType::kInt32)
          .Takes("@Year1", ParameterType::kInt32)
          .Takes("@Count", ParameterType::kInt32)
          .Gives({"EntryID", "ProcedureName"}, {{57, procedure}});
    };
    answer_newest("CldApplyPlan");
    answer_newest("CldIUMain");
    const YearPlanner planner({});
    const auto preparation = planner.Prepare(planner.Currencies().Named("EUR"), 2028);
    EXPECT_EQ(preparation->NewestEntry(), 57);
    EXPECT_EQ(preparation->NewestEntry(), std::nullopt) << "somebody has changed the calendar since";
    const auto call = component.world.commands.CallsOf("CldGetHistory").front();
    EXPECT_EQ(call.Parameter("@Year1"), Value(2028));
    EXPECT_EQ(call.Parameter("@Count"), Value(1));
  });
}

}  // namespace
}  // namespace ferrowind::planning
