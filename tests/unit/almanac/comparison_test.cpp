#include "ferrowind/almanac/comparison.h"

#include <gmock/gmock.h>

#include "ferrowind/almanac/planner.h"

#include "tests/support/says.h"
#include "tests/unit/almanac/small_calendars.h"

namespace ferrowind::almanac {
namespace {

using ::ferrowind::testing::Says;
using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Optional;

/// 2028 has Good Friday on 14 April and 25 December on a Monday.
constexpr int kYear = 2028;
constexpr const char* kChristmasAndGoodFriday =
    "celebration | Christmas Day | 12-25 | 25 December\n"
    "point | Good Friday | easter-2 | Friday before Easter Sunday\n";

/// A plan, a calendar and their comparison.
struct Compared {
  explicit Compared(const std::string& book_lines, std::vector<MarkedDay> days,
                    std::vector<KnownRule> rules = SmallRules(), const DateTables& tables = {},
                    PlanSource source = PlanSource::kRuleBook)
      : book(BookOf(book_lines)),
        plan(PlanYear(book, kYear, tables)),
        content{kYear, std::move(days)},
        directory(std::move(rules)),
        matches(book, directory),
        comparison(plan, content, matches, source) {}

  /// "2028-04-14 add" for each day.
  [[nodiscard]] std::vector<std::string> Actions() const {
    std::vector<std::string> actions;
    for (const ComparedDay& day : comparison.Days()) {
      actions.push_back(comparison.LineOf(day).date.ToIso() + " " + std::string(TextOf(day.action)));
    }
    return actions;
  }

  RuleBook book;
  YearPlan plan;
  CalendarContent content;
  RuleDirectory directory;
  RuleMatches matches;
  Comparison comparison;
};

TEST(ComparisonOfAPlan, KeepsDaysThatHaveThePlannedRule) {
  const Compared compared(kChristmasAndGoodFriday,
                          {Marked("2028-04-14", rule::kGoodFriday), Marked("2028-12-25", rule::kChristmas)});
  EXPECT_THAT(compared.Actions(), ElementsAre("2028-04-14 keep", "2028-12-25 keep"));
  EXPECT_FALSE(compared.comparison.Differs());
}

TEST(ComparisonOfAPlan, AddsReplacesAndRemovesWhatDiffers) {
  const Compared compared(kChristmasAndGoodFriday,
                          {Marked("2028-04-13", rule::kGoodFriday), Marked("2028-12-25", rule::kFair)});
  EXPECT_THAT(compared.Actions(), ElementsAre("2028-04-13 remove", "2028-04-14 add", "2028-12-25 replace"));
  EXPECT_TRUE(compared.comparison.Differs());
}

TEST(ComparisonOfAPlan, TellsOfAWorkingDayByExceptionOnAPlannedHoliday) {
  const Compared compared(kChristmasAndGoodFriday, {Marked("2028-04-14", kExceptionRule, "Stock-taking"),
                                                    Marked("2028-12-25", rule::kChristmas)});
  EXPECT_THAT(compared.Actions(), ElementsAre("2028-04-14 exception", "2028-12-25 keep"));
  const ComparedDay& day = compared.comparison.Days().front();
  EXPECT_TRUE(day.Changes(ExceptionHandling::kOverwrite));
  EXPECT_FALSE(day.Changes(ExceptionHandling::kKeep));
  EXPECT_TRUE(compared.comparison.Differs());
}

TEST(ComparisonOfAPlan, TellsOfADayThatIsClosedByARuleWhichTheBookDoesNotHave) {
  const Compared compared(kChristmasAndGoodFriday,
                          {Marked("2028-03-01", rule::kFair), Marked("2028-04-13", rule::kGoodFriday)});
  const ComparedDay& fair = compared.comparison.Days()[0];
  EXPECT_EQ(fair.action, PlanAction::kRemove);
  EXPECT_TRUE(fair.IsOutsideBook());
  EXPECT_TRUE(fair.Changes(ExceptionHandling::kOverwrite));
  EXPECT_FALSE(fair.Changes(ExceptionHandling::kKeep));
  EXPECT_THAT(compared.comparison.LineOf(fair).why, Says("Not in the rule book: Fair"));
  const ComparedDay& shifted = compared.comparison.Days()[1];
  EXPECT_EQ(shifted.action, PlanAction::kRemove);
  EXPECT_FALSE(shifted.IsOutsideBook()) << "the book has the rule, and knows where its days are";
  EXPECT_TRUE(shifted.Changes(ExceptionHandling::kKeep));
}

TEST(ComparisonOfAPlan, TakesADayOfAnotherBooksRuleForAssignedByMistake) {
  const Compared compared(kChristmasAndGoodFriday, {Marked("2028-03-01", rule::kFair)});
  const Comparison comparison(compared.plan, compared.content, compared.matches, PlanSource::kRuleBook,
                              [](std::int32_t rule) { return rule == rule::kFair; });
  EXPECT_EQ(comparison.Days()[0].action, PlanAction::kRemove);
  EXPECT_FALSE(comparison.Days()[0].IsOutsideBook());
  EXPECT_TRUE(comparison.Days()[0].Changes(ExceptionHandling::kKeep));
}

TEST(ComparisonOfAPlan, TellsOfADayOutsideTheBookThatTheBookWouldOpenAsAWorkingDay) {
  const Compared compared(
      "weekday | Saturday | weekday Saturday |\nworking day | Working Saturday | 2028-03-04 |\n",
      {Marked("2028-03-04", rule::kFair)});
  constexpr int kFourthOfMarch = 64;
  const ComparedDay day = compared.comparison.DayAt(kFourthOfMarch);
  EXPECT_EQ(day.action, PlanAction::kReplace);
  EXPECT_FALSE(day.Changes(ExceptionHandling::kKeep));
  EXPECT_EQ(compared.comparison.LineOf(day).why.InEnglish(),
            "Not in the rule book: Fair; Once, on 4 March 2028; a working Saturday");
}

TEST(ComparisonOfAPlan, ClosesADayOutsideTheBookByThePlannedHoliday) {
  const Compared compared(kChristmasAndGoodFriday, {Marked("2028-12-25", rule::kFair)});
  EXPECT_TRUE(compared.comparison.Days()[1].Changes(ExceptionHandling::kKeep)) << "closed it is either way";
}

TEST(ComparisonOfAPlan, RemovesWhatAListDoesNotHave) {
  const Compared compared(kChristmasAndGoodFriday, {Marked("2028-03-01", rule::kFair)}, SmallRules(), {},
                          PlanSource::kList);
  const ComparedDay& fair = compared.comparison.Days()[0];
  EXPECT_TRUE(fair.Changes(ExceptionHandling::kKeep)) << "a list knows all closed days of its year";
  EXPECT_THAT(compared.comparison.LineOf(fair).why, Says("Not in the list"));
}

TEST(ComparisonOfAPlan, KeepsAnExceptionOnADayThatThePlanLeavesOpen) {
  const Compared compared("celebration | Christmas Day | 12-25 | 25 December\n",
                          {Marked("2028-04-14", kExceptionRule), Marked("2028-12-25", rule::kChristmas)});
  EXPECT_THAT(compared.Actions(), ElementsAre("2028-04-14 keep", "2028-12-25 keep"));
  const ComparisonLine line = compared.comparison.LineOf(compared.comparison.Days().front());
  EXPECT_EQ(line.now, "Working day by exception");
  EXPECT_EQ(line.should, std::nullopt);
}

TEST(ComparisonOfAPlan, MakesAPlannedWorkingDayOneByException) {
  const std::string book =
      "working day | Working Saturday | 2028-01-08 | Notice\n"
      "weekday | Saturday | weekday Saturday | Weekend\n";
  const auto first_days = [](const Compared& compared) {
    auto actions = compared.Actions();
    actions.resize(2);
    return actions;
  };
  const Compared closed(book, {Marked("2028-01-01", rule::kSaturday), Marked("2028-01-08", rule::kSaturday)});
  EXPECT_THAT(first_days(closed), ElementsAre("2028-01-01 keep", "2028-01-08 replace"));
  const ComparisonLine line = closed.comparison.LineOf(closed.comparison.Days()[1]);
  EXPECT_EQ(line.now, "Saturday");
  EXPECT_EQ(line.should, "Working day by exception");
  const Compared open(book, {Marked("2028-01-01", rule::kSaturday), Marked("2028-01-08", kExceptionRule)});
  EXPECT_THAT(first_days(open), ElementsAre("2028-01-01 keep", "2028-01-08 keep"));
}

TEST(ComparisonOfAPlan, KnowsRulesByTheirNamesWhateverTheirCaseBlanksAndType) {
  std::vector<KnownRule> rules = SmallRules();
  rules[4].name = " GOOD friday  ";
  rules[3].kind = RuleKind::kPoint;
  const Compared compared(kChristmasAndGoodFriday,
                          {Marked("2028-04-14", rule::kGoodFriday), Marked("2028-12-25", rule::kChristmas)},
                          rules);
  EXPECT_THAT(compared.Actions(), ElementsAre("2028-04-14 keep", "2028-12-25 keep"));
}

TEST(ComparisonOfAPlan, KnowsASubstituteByTheNameOfTheMovedDay) {
  const std::string book =
      "weekday | Saturday | weekday Saturday | Weekend\n"
      "celebration | Christmas Day | 01-01 to next free day | Moved | Fair\n";
  const Compared compared(book, {Marked("2028-01-01", rule::kChristmas), Marked("2028-01-02", rule::kFair)});
  auto actions = compared.Actions();
  actions.resize(2);
  EXPECT_THAT(actions, ElementsAre("2028-01-01 keep", "2028-01-02 keep"));
}

TEST(ComparisonOfAPlan, LeavesDaysAloneWhoseRuleHasDatesThatNobodyKnows) {
  DateTables tables;
  tables.Add({"fairs", 2020, 2027, {}});
  const Compared compared("point | Fair | table fairs | Announced\n",
                          {Marked("2028-03-01", rule::kFair), Marked("2028-03-02", rule::kGoodFriday)},
                          SmallRules(), tables);
  EXPECT_THAT(compared.Actions(), ElementsAre("2028-03-01 keep", "2028-03-02 remove"));
  const ComparisonLine line = compared.comparison.LineOf(compared.comparison.Days().front());
  EXPECT_EQ(line.should, "Fair");
  EXPECT_THAT(line.why.InEnglish(), AllOf(HasSubstr("Fair"), HasSubstr("fairs")));
}

TEST(ComparisonOfAPlan, KeepsDaysWhoseDatesTheBookSaysAreUnknown) {
  const Compared compared("point | Fair | unknown\n", {Marked("2028-05-03", rule::kFair)});
  EXPECT_THAT(compared.Actions(), ElementsAre("2028-05-03 keep"));
  EXPECT_EQ(compared.comparison.LineOf(compared.comparison.Days().front()).why.InEnglish(),
            "The plan does not know this year's dates of Fair");
}

TEST(ComparisonOfAPlan, LeavesExceptionsOnWeekendsAloneWhileWorkingWeekendsAreNotAnnounced) {
  DateTables tables;
  tables.Add({"fairs", 2020, 2027, {}});
  const Compared compared(
      "working day | Working Saturday | table fairs | Announced\n"
      "weekday | Saturday | weekday Saturday | Weekend\n"
      "celebration | Christmas Day | 12-25 | 25 December\n",
      {Marked("2028-01-08", kExceptionRule), Marked("2028-12-25", kExceptionRule)}, SmallRules(), tables);
  EXPECT_EQ(compared.comparison.DayAt(8).action, PlanAction::kKeep);
  EXPECT_EQ(compared.comparison.DayAt(360).action, PlanAction::kException);
}

TEST(ComparisonOfAPlan, SaysInLinesWhatAndWhy) {
  const Compared compared(kChristmasAndGoodFriday, {Marked("2028-12-26", rule::kFair)});
  const ComparisonLine added = compared.comparison.LineOf(compared.comparison.DayAt(105));
  EXPECT_EQ(added.date, platform::Date(2028, 4, 14));
  EXPECT_EQ(added.now, std::nullopt);
  EXPECT_EQ(added.should, "Good Friday");
  EXPECT_THAT(added.why.InEnglish(), HasSubstr("Easter Sunday 16 April 2028"));
  const ComparisonLine removed = compared.comparison.LineOf(compared.comparison.DayAt(361));
  EXPECT_EQ(removed.now, "Fair");
  EXPECT_EQ(removed.should, std::nullopt);
  EXPECT_FALSE(removed.why.IsEmpty());
  const ComparisonLine ordinary = compared.comparison.LineOf(compared.comparison.DayAt(200));
  EXPECT_EQ(ordinary.date.DayOfYear(), 200);
  EXPECT_EQ(ordinary.now, std::nullopt);
  EXPECT_EQ(ordinary.should, std::nullopt);
  EXPECT_FALSE(ordinary.why.IsEmpty());
}

TEST(ComparisonOfAPlan, NamesARuleThatTheDatabaseDoesNotTellOfByItsNumber) {
  const Compared compared(kChristmasAndGoodFriday, {Marked("2028-04-14", 99)});
  EXPECT_EQ(compared.comparison.LineOf(compared.comparison.Days().front()).now, "Rule 99");
}

TEST(ObstaclesOfAPlan, AreRemovedRulesAndRulesOfAnotherType) {
  std::vector<KnownRule> rules = SmallRules();
  rules[3].kind = RuleKind::kPoint;
  rules[4].is_removed = true;
  const Compared compared(kChristmasAndGoodFriday, {}, rules);
  EXPECT_THAT(compared.comparison.Obstacles(ExceptionHandling::kOverwrite),
              ElementsAre(Says(AllOf(HasSubstr("\"Good Friday\""), HasSubstr("removed"))),
                          Says(AllOf(HasSubstr("\"Christmas Day\""), HasSubstr("a holiday point"),
                                     HasSubstr("a celebration")))));
}

TEST(ObstaclesOfAPlan, AreOnlyRulesThatADayWouldGet) {
  std::vector<KnownRule> rules = SmallRules();
  rules[4].is_removed = true;
  const Compared kept(kChristmasAndGoodFriday, {Marked("2028-04-14", rule::kGoodFriday)}, rules);
  EXPECT_THAT(kept.comparison.Obstacles(ExceptionHandling::kOverwrite), IsEmpty());
  const Compared excepted(kChristmasAndGoodFriday, {Marked("2028-04-14", kExceptionRule)}, rules);
  EXPECT_THAT(excepted.comparison.Obstacles(ExceptionHandling::kKeep), IsEmpty());
  EXPECT_EQ(excepted.comparison.Obstacles(ExceptionHandling::kOverwrite).size(), 1U);
}

TEST(ObstaclesOfAPlan, AreNoneWhereTheDayIsLeftOut) {
  std::vector<KnownRule> rules = SmallRules();
  rules[4].is_removed = true;
  const Compared compared(kChristmasAndGoodFriday, {}, rules);
  DayChoice choice = ExceptionHandling::kOverwrite;
  choice.Decide(105, false);
  EXPECT_THAT(compared.comparison.Obstacles(choice), IsEmpty());
  EXPECT_THAT(compared.comparison.ObstacleOf(compared.comparison.DayAt(105)),
              Optional(Says(HasSubstr("\"Good Friday\" is removed"))));
  EXPECT_FALSE(compared.comparison.ObstacleOf(compared.comparison.DayAt(360)));
}

TEST(ObstaclesOfAPlan, AreToldOnceForEachRule) {
  std::vector<KnownRule> rules = SmallRules();
  rules[1].is_removed = true;
  const Compared compared("weekday | Saturday | weekday Saturday | Weekend\n", {}, rules);
  EXPECT_EQ(compared.comparison.Obstacles(ExceptionHandling::kOverwrite).size(), 1U);
}

}  // namespace
}  // namespace ferrowind::almanac
