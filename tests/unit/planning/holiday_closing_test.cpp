#include "ferrowind/planning/holiday_closing.h"

#include <gmock/gmock.h>

#include "tests/support/run_in_fresh_thread.h"
#include "tests/unit/planning/memory_planning_world.h"

namespace ferrowind::planning {
namespace {

using ::testing::AllOf;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using testing::RunInFreshThread;

constexpr std::int32_t kYen = 392;
// 2028-05-05 and the day behind it.
constexpr std::int16_t kFriday = 126;
constexpr std::int16_t kSaturday = 127;

/// EUR, USD and JPY: the first two with calendars of 2028, in which the euro has a fair on 6 May 2028; books
/// of EUR, which has that fair, and USD.
class ClosingWorld : public MemoryPlanningWorld {
 public:
  ClosingWorld() {
    GiveBook(kEuro, "EUR", "point | Fair | 2028-05-06 |\n");
    GiveBook(kDollar, "USD", "celebration | Christmas Day | 12-25 |\n");
    const std::int32_t fair = AddPoint("Fair", "2028-05-06");
    for (const std::int32_t currency : {kEuro, kDollar}) CreateCalendar(currency, 2028);
    Assign(kEuro, "2028-05-06", 4, fair);
  }

  static YearOverview Seen() {
    return YearOverview::Load(std::vector<Currency>{{kEuro, "EUR", "Euro", true, {}},
                                                    {kDollar, "USD", "US Dollar", true, {}},
                                                    {kYen, "JPY", "Yen", true, {}}},
                              2028);
  }
  /// Friday 5 May of all three.
  HolidayClosing CloseFriday() { return Closing({{0, {kFriday}}, {1, {kFriday}}, {2, {kFriday}}}); }
  HolidayClosing Closing(std::vector<SelectedDays> days) {
    return HolidayClosing(tables, Seen(), std::move(days));
  }

  almanac::DateTables tables;
};

/// "EUR 2028 2028-05-05: [x] is closed" of a line whose box is checked; "(!)" behind one to look at.
std::vector<std::string> Told(const HolidayClosing& closing) {
  std::vector<std::string> told;
  for (const ClosingLine& line : closing.Lines()) {
    std::string text = line.calendar + (line.date ? " " + line.date->ToIso() : "") + ": ";
    if (line.is_taken) text += *line.is_taken ? "[x] " : "[ ] ";
    if (line.now) text += *line.now + " ";
    told.push_back(text + line.becomes + (line.is_warning ? " (!)" : ""));
  }
  return told;
}

std::string Planned(std::int32_t currency, std::int16_t day) {
  const YearPlanner planner{almanac::DateTables()};
  const almanac::YearPlan plan = planner.Plan(planner.Currencies().FindOrNumber(currency), 2028);
  const almanac::PlannedDay* const planned = plan.Find(day);
  return planned == nullptr ? "" : plan.NameOf(*planned);
}

TEST(HolidayClosing, TellsForEachCalendarAndDayWhatWillHappen) {
  RunInFreshThread([] {
    ClosingWorld world;
    HolidayClosing closing =
        world.Closing({{0, {kFriday, kSaturday}}, {1, {kFriday}}, {2, {kFriday, kSaturday}}});
    closing.SetName("Mourning");
    EXPECT_THAT(Told(closing),
                ElementsAre("EUR 2028 2028-05-05: [x] is closed",
                            "EUR 2028 2028-05-06: Fair stays as it is: it is closed already",
                            "EUR: [x] gets it as a date of its own", "USD 2028 2028-05-05: [x] is closed",
                            "USD: [x] gets it as a date of its own",
                            "JPY 2028: nothing: there is no such calendar. Prepare the year first (!)"));
    EXPECT_EQ(closing.Summary(), "2 days will be closed and entered in 2 rule books.");
  });
}

TEST(HolidayClosing, ClosesNothingWithoutANameAndNothingWithoutADay) {
  RunInFreshThread([] {
    ClosingWorld world;
    HolidayClosing closing = world.Closing({{0, {kFriday, kSaturday}}});
    EXPECT_FALSE(closing.CanClose());
    closing.SetName("Mourning");
    EXPECT_TRUE(closing.CanClose());
    closing.Take("978/126", false);
    EXPECT_FALSE(closing.CanClose());
    EXPECT_EQ(closing.Summary(), "No day will be closed.");
    EXPECT_THAT(Told(closing), ElementsAre("EUR 2028 2028-05-05: [ ] stays open",
                                           "EUR 2028 2028-05-06: Fair stays as it is: it is closed already"));
    closing.Take("978/127", true);
    EXPECT_FALSE(closing.CanClose()) << "it is closed, so that there is no choice";
  });
}

TEST(HolidayClosing, JudgesANameByTheDaysThatAreTaken) {
  RunInFreshThread([] {
    ClosingWorld world;
    constexpr std::int16_t kChristmas = 360;
    HolidayClosing closing = world.Closing({{0, {kFriday, kChristmas}}});
    closing.SetName("Christmas Day");
    EXPECT_THAT(closing.Name().refusal, HasSubstr("is on 25 December each year"));
    closing.Take("978/126", false);
    EXPECT_EQ(closing.Name().refusal, "");
    EXPECT_THAT(closing.KnownNames(), Contains("Christmas Day"));
    EXPECT_TRUE(closing.CanClose());
    closing.Take("978/126", true);
    EXPECT_FALSE(closing.CanClose());
  });
}

TEST(HolidayClosing, LeavesAnExceptionOpenUntilSomebodyTakesIt) {
  RunInFreshThread([] {
    ClosingWorld world;
    ClosingWorld::Except(kEuro, "2028-05-06", "stocktaking");
    HolidayClosing closing = world.Closing({{0, {kSaturday}}});
    closing.SetName("Fair");
    EXPECT_FALSE(closing.CanClose());
    EXPECT_THAT(Told(closing), ElementsAre("EUR 2028 2028-05-06: [ ] Working day by exception: stocktaking "
                                           "stays open (!)"));
    closing.Take("978/127", true);
    EXPECT_THAT(Told(closing), Contains("EUR 2028 2028-05-06: [x] Working day by exception: stocktaking "
                                        "is closed; the exception goes (!)"));
    EXPECT_EQ(closing.Close().days, 1U);
    EXPECT_THAT(ClosingWorld::DaysOf("EUR", kEuro, 2028), ElementsAre("2028-05-06 Fair"));
  });
}

TEST(HolidayClosing, ClosesADayByExceptionThatTheBookLeavesOpenAsAnyOpenDay) {
  RunInFreshThread([] {
    ClosingWorld world;
    ClosingWorld::CreateCalendar(kYen, 2028);
    ClosingWorld::Except(kDollar, "2028-05-05", "stocktaking");
    ClosingWorld::Except(kYen, "2028-05-05", "");
    HolidayClosing closing = world.Closing({{1, {kFriday}}, {2, {kFriday}}});
    closing.SetName("Mourning");
    EXPECT_THAT(
        Told(closing),
        AllOf(Contains("USD 2028 2028-05-05: [x] Working day by exception: stocktaking is closed; the "
                       "exception goes, which has opened nothing (!)"),
              Contains("USD: [x] gets it as a date of its own"),
              Contains("JPY 2028 2028-05-05: [ ] Working day by exception stays open (!)")))
        << "nobody knows what an exception has opened where there is no book";
    EXPECT_EQ(closing.Close().books, 1U);
    EXPECT_THAT(ClosingWorld::DaysOf("USD", kDollar, 2028), ElementsAre("2028-05-05 Mourning"));
  });
}

TEST(HolidayClosing, ClosesTheDaysOfEachCalendarInOneEntryOfTheHistory) {
  RunInFreshThread([] {
    ClosingWorld world;
    HolidayClosing closing = world.Closing({{0, {kFriday, kFriday + 3}}, {1, {kFriday, kFriday + 3}}});
    closing.SetName("Mourning");
    closing.Take("978/book", false);
    closing.Take("840/book", false);
    const std::size_t entries = world.world.database->History().size();
    const ClosingOutcome outcome = closing.Close();
    EXPECT_EQ(outcome.days, 4U);
    EXPECT_EQ(outcome.books, 0U);
    EXPECT_THAT(outcome.problems, IsEmpty());
    EXPECT_EQ(world.world.database->History().size(), entries + 2);
    EXPECT_THAT(ClosingWorld::DaysOf("USD", kDollar, 2028),
                ElementsAre("2028-05-05 Mourning", "2028-05-08 Mourning"));
    EXPECT_THAT(ClosingWorld::DaysOf("EUR", kEuro, 2028),
                ElementsAre("2028-05-05 Mourning", "2028-05-06 Fair", "2028-05-08 Mourning"));
    EXPECT_EQ(Planned(kEuro, kFriday), "") << "no book was to get it";
  });
}

TEST(HolidayClosing, EntersTheDaysInTheBooksAsDatesOfTheirOwn) {
  RunInFreshThread([] {
    ClosingWorld world;
    HolidayClosing closing = world.CloseFriday();
    closing.SetName("Mourning");
    closing.Take("840/book", false);
    EXPECT_EQ(closing.Close().books, 1U);
    EXPECT_EQ(Planned(kEuro, kFriday), "Mourning");
    EXPECT_EQ(Planned(kEuro, kSaturday), "Fair") << "what the book had stays";
    EXPECT_EQ(Planned(kDollar, kFriday), "");
    EXPECT_EQ(LoadBook(kEuro, "EUR", {})->book->rules.back().expression.ToText(), "2028-05-05");
  });
}

TEST(HolidayClosing, SaysWhatABookThatDoesNotGetTheDaysMeans) {
  RunInFreshThread([] {
    ClosingWorld world;
    HolidayClosing closing = world.Closing({{0, {kFriday}}});
    closing.SetName("Mourning");
    closing.Take("978/book", false);
    EXPECT_THAT(Told(closing), Contains("EUR: [ ] stays as it is: a difference on the board (!)"));
    EXPECT_EQ(closing.Summary(), "1 day will be closed, and entered in no rule book.");
  });
}

TEST(HolidayClosing, SaysWhyABookCannotGetTheDays) {
  RunInFreshThread([] {
    ClosingWorld world;
    ClosingWorld::CreateCalendar(kYen, 2028);
    ClosingWorld::Except(kEuro, "2028-05-06", "");
    HolidayClosing closing = world.Closing({{0, {kSaturday}}, {2, {kFriday}}});
    closing.SetName("fair");
    closing.Take("978/127", true);
    const std::string without = "JPY: JPY has no book, so nothing tells what its calendars should be (!)";
    EXPECT_THAT(Told(closing), Contains("EUR: has the day already"));
    EXPECT_THAT(Told(closing), Contains(without));
    closing.SetName("Mourning");
    EXPECT_THAT(Told(closing), Contains("EUR 2028 2028-05-06: [x] Working day by exception "
                                        "is closed, but the rule book has Fair there (!)"));
    EXPECT_THAT(Told(closing), Contains("EUR: has something else there, and stays as it is"));
    EXPECT_EQ(closing.Close().books, 0U);
  });
}

TEST(HolidayClosing, LeavesACalendarAloneThatSomebodyElseHasChangedAndClosesTheOthers) {
  RunInFreshThread([] {
    ClosingWorld world;
    HolidayClosing closing = world.CloseFriday();
    closing.SetName("Mourning");
    ClosingWorld::Except(kEuro, "2028-07-03", "another hand");
    const ClosingOutcome outcome = closing.Close();
    EXPECT_THAT(outcome.problems, ElementsAre(HasSubstr("EUR 2028 was changed by somebody else")));
    EXPECT_EQ(outcome.days, 1U);
    EXPECT_EQ(outcome.books, 1U);
    EXPECT_EQ(Planned(kEuro, kFriday), "") << "what is not closed is in no book";
    EXPECT_EQ(Planned(kDollar, kFriday), "Mourning");
  });
}

TEST(HolidayClosing, LosesNothingThatSomebodyElseHasEnteredInABookMeanwhile) {
  RunInFreshThread([] {
    ClosingWorld world;
    HolidayClosing closing = world.CloseFriday();
    closing.SetName("Mourning");
    ClosingWorld::GiveBook(kEuro, "EUR", "point | Wake | 2028-06-01 |\n");
    EXPECT_THAT(closing.Close().problems, IsEmpty());
    EXPECT_EQ(Planned(kEuro, kFriday), "Mourning");
    EXPECT_EQ(Planned(kEuro, 153), "Wake");
  });
}

TEST(HolidayClosing, TellsThatABookHasTakenTheNameForSomethingElseMeanwhile) {
  RunInFreshThread([] {
    ClosingWorld world;
    HolidayClosing closing = world.CloseFriday();
    closing.SetName("Mourning");
    ClosingWorld::GiveBook(kDollar, "USD", "celebration | Mourning | 06-01 |\n");
    const ClosingOutcome outcome = closing.Close();
    EXPECT_EQ(outcome.days, 2U);
    EXPECT_THAT(outcome.problems,
                ElementsAre(HasSubstr("The rule book of EUR does not get the holiday"),
                            AllOf(HasSubstr("The rule book of USD does not get the holiday"),
                                  HasSubstr("a name has one kind"))));
  });
}

TEST(HolidayClosing, TellsAFailureByItsCalendarAndClosesTheOthers) {
  RunInFreshThread([] {
    ClosingWorld world;
    HolidayClosing closing = world.CloseFriday();
    closing.SetName("Mourning");
    // The name becomes another rule's before the days are closed.
    ClosingWorld::Call("CldIUCelebrate", {{"Name1", "Mourning"}, {"TID1", 2}, {"WD", 1}});
    const ClosingOutcome outcome = closing.Close();
    EXPECT_EQ(outcome.days, 0U);
    EXPECT_THAT(outcome.problems, ElementsAre(HasSubstr("Closing days of EUR 2028"), HasSubstr("USD 2028")));
    EXPECT_THAT(ClosingWorld::DaysOf("USD", kDollar, 2028), IsEmpty());
  });
}

}  // namespace
}  // namespace ferrowind::planning
