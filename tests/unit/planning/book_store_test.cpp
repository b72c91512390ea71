#include "ferrowind/planning/book_store.h"

#include <gmock/gmock.h>

#include "ferrowind/almanac/book_text.h"
#include "ferrowind/planning/database_call.h"

#include "tests/unit/planning/planning_world.h"

namespace ferrowind::planning {
namespace {

using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using testing::RunInFreshThread;
using ::testing::SizeIs;

void TakeBook(PlanningWorld& component) {
  component.world.commands.Answer("CldIUBook")
      .Takes("@ID1", ParameterType::kInt32)
      .Takes("@Expected", ParameterType::kText)
      .Takes("@Publisher", ParameterType::kText)
      .Takes("@Document", ParameterType::kText)
      .Takes("@Rules", ParameterType::kText)
      .Takes("@FromYear", ParameterType::kInt32);
}

TEST(BookStore, ReadsTheBooksOfAllCurrencies) {
  RunInFreshThread([] {
    PlanningWorld component;
    component.AnswerBooks(
        {{840, "Federal Reserve", "Holidays", "f1", {}}, {978, "ECB", "Closing days", "f2", {}}},
        {{840, 1, "Sunday", 2, "weekday Sunday", {}, {}},
         {840, 2, "Veterans Day", 3, "11-11 sunday to monday", "11 November", "Day off"},
         {978, 1, "Good Friday", 4, "easter-2", "", {}}});
    const auto books = LoadBooks({});
    ASSERT_THAT(books, SizeIs(2));
    EXPECT_EQ(books[0].currency, 840);
    EXPECT_EQ(books[0].fingerprint, "f1");
    EXPECT_THAT(books[0].faults, IsEmpty());
    ASSERT_TRUE(books[0].book);
    EXPECT_EQ(
        *books[0].book,
        almanac::ReadBook("publisher Federal Reserve\ndocument Holidays\n"
                          "weekday | Sunday | weekday Sunday |\n"
                          "celebration | Veterans Day | 11-11 sunday to monday | 11 November | Day off\n"));
    ASSERT_TRUE(books[1].book);
    EXPECT_THAT(books[1].book->rules, SizeIs(1));
    EXPECT_TRUE(component.world.commands.CallsOf("CldGetBook").front().Parameter("@ID1").IsEmpty());
  });
}

TEST(BookStore, ReadsAndWritesTheFirstYearThatABookTellsOf) {
  RunInFreshThread([] {
    PlanningWorld component;
    component.AnswerBooks(
        {{840, "Fed", "Holidays", "f1", {}}, {978, "ECB", "Closing days", "f2", 2015}},
        {{840, 1, "Sunday", 2, "weekday Sunday", {}, {}}, {978, 1, "Sunday", 2, "weekday Sunday", {}, {}}});
    const auto books = LoadBooks({});
    ASSERT_THAT(books, SizeIs(2));
    EXPECT_EQ(books[0].book->since, std::nullopt);
    EXPECT_EQ(books[1].book->since, 2015);
    for (const StoredBook& stored : books) {
      TakeBook(component);
      StoreBook(stored.currency, "CCY", stored.fingerprint, *stored.book);
    }
    const auto calls = component.world.commands.CallsOf("CldIUBook");
    EXPECT_FALSE(calls[0].HasParameter("@FromYear"));
    EXPECT_EQ(calls[1].Parameter("@FromYear"), Value(2015));
  });
}

TEST(BookStore, TellsOfRulesThatCannotBeReadAndKeepsTheOtherBooks) {
  RunInFreshThread([] {
    PlanningWorld component;
    component.AnswerBooks({{840, "Fed", "Holidays", "f1", {}}, {978, "ECB", "Closing days", "f2", {}}},
                          {{840, 1, "Fine", 4, "easter-2", {}, {}},
                           {840, 2, "Odd", 4, "12-32", {}, {}},
                           {840, 3, "Odder", 5, "12-31", {}, {}},
                           {978, 1, "Sunday", 2, "weekday Sunday", {}, {}},
                           {978, 2, "Good Friday", 4, "easter-2", {}, {}}});
    const auto books = LoadBooks({});
    ASSERT_THAT(books, SizeIs(2));
    EXPECT_FALSE(books[0].book);
    EXPECT_THAT(books[0].faults, ElementsAre(AllOf(HasSubstr("rule 2, \"Odd\""), HasSubstr("12-32")),
                                             AllOf(HasSubstr("rule 3, \"Odder\""), HasSubstr("no type 5"))));
    EXPECT_TRUE(books[1].book);
    EXPECT_THAT(books[1].faults, IsEmpty());
  });
}

TEST(BookStore, TellsOfTheFaultsOfABookThatCanBeRead) {
  RunInFreshThread([] {
    PlanningWorld component;
    component.AnswerBooks({{978, "ECB", "Closing days", "f2", {}}},
                          {{978, 1, "Sunday", 2, "weekday Sunday", {}, {}},
                           {978, 2, "Fair", 4, "table no-such-table", {}, {}}});
    const auto books = LoadBooks({});
    ASSERT_THAT(books, SizeIs(1));
    EXPECT_TRUE(books[0].book);
    EXPECT_THAT(books[0].faults, ElementsAre(HasSubstr("no-such-table")));
  });
}

TEST(BookStore, ReadsTheBookOfOneCurrencyIfThereIsOne) {
  RunInFreshThread([] {
    PlanningWorld component;
    component.AnswerBooks({{978, "ECB", "Closing days", "f2", {}}}, {});
    component.AnswerBooks({}, {});
    const auto book = LoadBook(978, "EUR", {});
    ASSERT_TRUE(book);
    EXPECT_EQ(book->book->publisher, "ECB");
    EXPECT_EQ(component.world.commands.CallsOf("CldGetBook").front().Parameter("@ID1"), Value(978));
    EXPECT_FALSE(LoadBook(840, "USD", {}));
  });
}

TEST(BookStore, WritesABookWithAllItsTexts) {
  RunInFreshThread([] {
    PlanningWorld component;
    TakeBook(component);
    almanac::RuleBook book = almanac::ReadBook(
        "publisher Fed\ndocument Holidays\n"
        "weekday | Sunday | weekday Sunday |\n"
        "celebration | Veterans \"Day\" | 11-11 sunday to monday | 11 \\ November | Day off\n");
    StoreBook(840, "USD", "old", book);
    const auto call = component.world.commands.CallsOf("CldIUBook").front();
    EXPECT_EQ(call.Parameter("@ID1"), Value(840));
    EXPECT_EQ(call.Parameter("@Expected"), Value("old"));
    EXPECT_EQ(call.Parameter("@Publisher"), Value("Fed"));
    EXPECT_EQ(call.Parameter("@Document"), Value("Holidays"));
    EXPECT_EQ(call.Parameter("@Rules"),
              Value(R"([{"Name1":"Sunday","TID1":2,"Expression":"weekday Sunday"},)"
                    R"({"Name1":"Veterans \"Day\"","TID1":3,"Expression":"11-11 Sunday to Monday",)"
                    R"("Comment":"11 \\ November","MovedName":"Day off"}])"));
  });
}

TEST(BookStore, RemovesABookByGivingNoneOfItsTexts) {
  RunInFreshThread([] {
    PlanningWorld component;
    TakeBook(component);
    RemoveBook(840, "USD", "old");
    const auto call = component.world.commands.CallsOf("CldIUBook").front();
    EXPECT_EQ(call.Parameter("@Expected"), Value("old"));
    EXPECT_FALSE(call.HasParameter("@Publisher"));
    EXPECT_FALSE(call.HasParameter("@Rules"));
  });
}

TEST(BookStore, NamesTheCurrencyWhoseBookWasChangedMeanwhile) {
  RunInFreshThread([] {
    PlanningWorld component;
    component.world.commands.Answer("CldIUBook").Returns(8);
    EXPECT_THAT(testing::FailureOf([] { StoreBook(840, "USD", "old", {}); }).Description(),
                HasSubstr("Writing the book of USD: it was changed meanwhile"));
    EXPECT_THAT(testing::FailureOf([] { RemoveBook(840, "USD", "old"); }).Description(),
                HasSubstr("Removing the book of USD: it was changed meanwhile"));
  });
}

}  // namespace
}  // namespace ferrowind::planning
