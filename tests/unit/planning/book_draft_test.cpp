#include "ferrowind/planning/book_draft.h"

#include <gmock/gmock.h>

#include "ferrowind/planning/database_call.h"

#include "tests/support/recording_action_observer.h"
#include "tests/unit/planning/memory_planning_world.h"
#include "tests/unit/planning/planning_world.h"

namespace ferrowind::planning {
namespace {

using almanac::RuleKind;
using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Optional;
using testing::RunInFreshThread;
using ::testing::SizeIs;
using ::testing::StartsWith;

constexpr int kYear = 2026;

/// Books of EUR (Sunday, 25 December, Good Friday) and USD (Sunday, "Fair" before Easter).
class DraftWorld : public PlanningWorld {
 public:
  DraftWorld() {
    AnswerCurrencies();
    AnswerBooks({{840, "Fed", "Holidays", "f1", {}}, {978, "ECB", "Closing days", "f2", {}}},
                {{840, 1, "Sunday", 2, "weekday Sunday", {}, {}},
                 {840, 2, "Fair", 4, "easter-3", {}, {}},
                 {978, 1, "Sunday", 2, "weekday Sunday", {}, {}},
                 {978, 2, "Christmas Day", 3, "12-25", "25 December", {}},
                 {978, 3, "Good Friday", 4, "easter-2", {}, {}}});
  }

  void TakeBook(std::int32_t return_value = 0) {
    world.commands.Answer("CldIUBook")
        .Takes("@ID1", ParameterType::kInt32)
        .Takes("@Expected", ParameterType::kText)
        .Takes("@Publisher", ParameterType::kText)
        .Takes("@Document", ParameterType::kText)
        .Takes("@Rules", ParameterType::kText)
        .Takes("@FromYear", ParameterType::kInt32)
        .Returns(return_value);
  }

  static Currency Euro() { return {978, "EUR", "Euro", true, {}}; }
  static Currency Franc() { return {756, "CHF", "Swiss Franc", true, {}}; }

  almanac::DateTables tables;
};

RuleDraft LabourDay() { return {"Labour Day", RuleKind::kCelebration, "05-01", "1 May", {}}; }

TEST(BookDraft, BeginsWithTheStoredBook) {
  RunInFreshThread([] {
    DraftWorld component;
    const BookDraft draft(DraftWorld::Euro(), component.tables);
    EXPECT_EQ(draft.Publisher(), "ECB");
    EXPECT_EQ(draft.Document(), "Closing days");
    ASSERT_THAT(draft.Rules(), SizeIs(3));
    EXPECT_EQ(draft.Rules()[1],
              (RuleDraft{"Christmas Day", RuleKind::kCelebration, "12-25", "25 December", {}}));
    EXPECT_FALSE(draft.IsChanged());
    EXPECT_THAT(draft.Faults(), IsEmpty());
  });
}

TEST(BookDraft, BeginsEmptyForACurrencyWithoutABook) {
  RunInFreshThread([] {
    DraftWorld component;
    BookDraft draft(DraftWorld::Franc(), component.tables);
    EXPECT_THAT(draft.Rules(), IsEmpty());
    EXPECT_FALSE(draft.IsChanged());
    draft.SetPublisher("SNB");
    EXPECT_TRUE(draft.IsChanged());
  });
}

TEST(BookDraft, OfABookThatCannotBeReadIsRefusedWithTheReason) {
  RunInFreshThread([] {
    PlanningWorld component;
    component.AnswerCurrencies();
    component.AnswerBooks({{978, "ECB", "Closing days", "f", {}}}, {{978, 1, "Odd", 4, "12-32", {}, {}}});
    const almanac::DateTables tables;
    const auto failure = testing::FailureOf([&] { BookDraft(DraftWorld::Euro(), tables); });
    EXPECT_THAT(failure.Description(), AllOf(HasSubstr("EUR cannot be read"), HasSubstr("12-32")));
  });
}

TEST(BookDraft, KnowsWhetherThereIsAnythingToStore) {
  RunInFreshThread([] {
    DraftWorld component;
    BookDraft draft(DraftWorld::Euro(), component.tables);
    draft.Insert(1, LabourDay());
    EXPECT_TRUE(draft.IsChanged());
    draft.Remove(1);
    EXPECT_FALSE(draft.IsChanged());
    draft.MoveDown(1);
    EXPECT_TRUE(draft.IsChanged());
    draft.MoveDown(1);
    EXPECT_FALSE(draft.IsChanged());
    RuleDraft broken = draft.Rules()[1];
    broken.expression = "12-";
    draft.Change(1, broken);
    EXPECT_TRUE(draft.IsChanged());
  });
}

TEST(BookDraft, WritingAnExpressionInOtherWordsOfTheSameMeaningIsNoChange) {
  RunInFreshThread([] {
    DraftWorld component;
    BookDraft draft(DraftWorld::Euro(), component.tables);
    RuleDraft rule = draft.Rules()[2];
    rule.expression = "  EASTER - 2 ";
    draft.Change(2, rule);
    EXPECT_FALSE(draft.IsChanged());
  });
}

TEST(BookDraft, TellsTheFaultOfAnExpression) {
  RunInFreshThread([] {
    DraftWorld component;
    BookDraft draft(DraftWorld::Euro(), component.tables);
    RuleDraft rule = LabourDay();
    rule.expression = "05-32";
    draft.Insert(3, rule);
    EXPECT_EQ(draft.FaultOfExpression(3),
              "\"05-32\" is no date expression: at 4, a day of the month is expected");
    EXPECT_FALSE(draft.FaultOfExpression(0));
    EXPECT_THAT(draft.Faults(), ElementsAre(AllOf(HasSubstr("rule 4, \"Labour Day\""), HasSubstr("05-32"))));
  });
}

TEST(BookDraft, TellsWhatANewRuleIsStillToBeGiven) {
  RunInFreshThread([] {
    DraftWorld component;
    BookDraft draft(DraftWorld::Euro(), component.tables);
    draft.Insert(0, {});
    EXPECT_THAT(draft.FaultOfExpression(0), Optional(HasSubstr("Choose when it is")));
    EXPECT_THAT(draft.Faults(), ElementsAre(StartsWith("The rule 1: Choose when it is")));
  });
}

TEST(BookDraft, TellsThatPublisherOrDocumentIsMissing) {
  RunInFreshThread([] {
    DraftWorld component;
    BookDraft draft(DraftWorld::Euro(), component.tables);
    draft.SetPublisher(" ");
    draft.SetDocument("");
    EXPECT_THAT(draft.Faults(), ElementsAre(HasSubstr("publisher"), HasSubstr("document")));
  });
}

TEST(BookDraft, TellsOfTheFaultsOfTheBookAndThoseAgainstOtherBooks) {
  RunInFreshThread([] {
    DraftWorld component;
    BookDraft draft(DraftWorld::Euro(), component.tables);
    draft.Insert(3, {"Saturday", RuleKind::kPoint, "weekday Saturday", {}, {}});
    EXPECT_THAT(draft.Faults(), ElementsAre(HasSubstr("Saturday")));
    draft.Remove(3);
    draft.Insert(3, {"Fair", RuleKind::kCelebration, "06-01", {}, {}});
    EXPECT_THAT(draft.Faults(), ElementsAre(AllOf(HasSubstr("\"Fair\""), HasSubstr("USD"))));
  });
}

TEST(BookDraft, ShowsTheYearsOfARuleBesideThoseThatCannotBeReadYet) {
  RunInFreshThread([] {
    DraftWorld component;
    BookDraft draft(DraftWorld::Euro(), component.tables);
    draft.Insert(0, {"Half written", RuleKind::kPoint, "east", {}, {}});
    const auto years = draft.YearsOf(3, kYear, 10);
    ASSERT_THAT(years, SizeIs(10));
    ASSERT_THAT(years[0].dates, SizeIs(1));
    EXPECT_EQ(years[0].dates[0].date, platform::Date(2026, 4, 3));
    EXPECT_THAT(draft.YearsOf(0, kYear, 10), IsEmpty());
  });
}

TEST(BookDraft, TellsWhichDaysOfThePlansItChanges) {
  RunInFreshThread([] {
    DraftWorld component;
    BookDraft draft(DraftWorld::Euro(), component.tables);
    EXPECT_THAT(draft.Changes(kYear, 2), IsEmpty());
    draft.Remove(1);
    draft.Insert(1, LabourDay());
    const auto changes = draft.Changes(kYear, 1);
    ASSERT_THAT(changes, SizeIs(2));
    EXPECT_EQ(changes[0].day, platform::Date(2026, 5, 1));
    EXPECT_EQ(changes[0].before, std::nullopt);
    EXPECT_EQ(changes[0].after, "Labour Day");
    EXPECT_EQ(changes[1].day, platform::Date(2026, 12, 25));
    EXPECT_EQ(changes[1].before, "Christmas Day");
    EXPECT_EQ(changes[1].after, std::nullopt);
  });
}

TEST(BookDraft, KnowsSinceWhenTheBookHolds) {
  RunInFreshThread([] {
    DraftWorld component;
    component.TakeBook();
    BookDraft draft(DraftWorld::Euro(), component.tables);
    EXPECT_EQ(draft.Since(), "");
    draft.SetSince("20l7");
    EXPECT_TRUE(draft.IsChanged());
    EXPECT_THAT(draft.Faults(), ElementsAre(HasSubstr("\"20l7\", which is no year")));
    draft.SetSince(" 2027 ");
    EXPECT_THAT(draft.Faults(), IsEmpty());
    // Ten years from 2026 on, but for the first.
    EXPECT_THAT(draft.YearsOf(1, kYear, 10), SizeIs(9));
    // What is told of no more is not planned to be open.
    EXPECT_THAT(draft.Changes(kYear, 2), IsEmpty());
    EXPECT_THAT(draft.YearsLost(kYear, 2), ElementsAre(2026));
    EXPECT_THAT(draft.YearsGained(kYear, 2), IsEmpty());
    draft.Store();
    EXPECT_EQ(component.world.commands.CallsOf("CldIUBook").front().Parameter("@FromYear"), Value(2027));
  });
}

TEST(BookDraft, IsStoredInPlaceOfTheBookThatItWasMadeOf) {
  RunInFreshThread([] {
    DraftWorld component;
    component.TakeBook();
    BookDraft draft(DraftWorld::Euro(), component.tables);
    draft.Insert(3, LabourDay());
    draft.Store();
    const auto call = component.world.commands.CallsOf("CldIUBook").front();
    EXPECT_EQ(call.Parameter("@ID1"), Value(978));
    EXPECT_EQ(call.Parameter("@Expected"), Value("f2"));
    EXPECT_THAT(platform::ToText(call.Parameter("@Rules")), HasSubstr("Labour Day"));
  });
}

TEST(BookDraft, TellsTheHostThatItIsStored) {
  RunInFreshThread([] {
    testing::RecordingActionObserver observer;
    const MemoryPlanningWorld component(&observer);
    MemoryPlanningWorld::GiveBook(kEuro, "EUR", "celebration | Christmas Day | 12-25 |\n");
    const almanac::DateTables tables;
    BookDraft draft(DraftWorld::Euro(), tables);
    BookDraft slower = draft;
    draft.Insert(0, LabourDay());
    draft.Store();
    EXPECT_THAT(observer.events, ElementsAre("began store book EUR", "write 0", "ended"));
    slower.Insert(0, LabourDay());
    EXPECT_THROW(slower.Store(), Refusal);
    EXPECT_THAT(std::vector(observer.events.begin() + 3, observer.events.end()),
                ElementsAre("began store book EUR", "write 8", "ended"));
  });
}

TEST(BookDraft, WithoutAnythingRemovesTheBook) {
  RunInFreshThread([] {
    DraftWorld component;
    component.TakeBook();
    BookDraft draft(DraftWorld::Euro(), component.tables);
    while (!draft.Rules().empty()) draft.Remove(0);
    draft.SetPublisher("");
    draft.SetDocument("");
    EXPECT_TRUE(draft.IsChanged());
    EXPECT_THAT(draft.Faults(), IsEmpty());
    draft.Store();
    EXPECT_TRUE(component.world.commands.CallsOf("CldIUBook").front().Parameter("@Rules").IsEmpty());
  });
}

TEST(BookDraft, IsKeptWhenSomebodyElseHasChangedTheBook) {
  RunInFreshThread([] {
    DraftWorld component;
    component.TakeBook(return_value::kContentIsAnother);
    BookDraft draft(DraftWorld::Euro(), component.tables);
    draft.Insert(3, LabourDay());
    EXPECT_THROW(draft.Store(), Refusal);
    EXPECT_THAT(draft.Rules(), SizeIs(4));
  });
}

}  // namespace
}  // namespace ferrowind::planning
