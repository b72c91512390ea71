#include "ferrowind/planning/plan_lines.h"

#include <gmock/gmock.h>

#include "ferrowind/planning/plan_batch.h"

#include "tests/support/run_in_fresh_thread.h"
#include "tests/unit/planning/memory_planning_world.h"

namespace ferrowind::planning {
namespace {

using almanac::PlanAction;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using testing::RunInFreshThread;
using ::testing::SizeIs;

constexpr const char* kWeekendAndChristmas =
    "weekday | Sunday | weekday Sunday | Weekend\n"
    "celebration | Christmas Day | 12-25 | 25 December\n";
const almanac::DateTables kNoTables;

std::vector<std::string> KeysOf(const PlanBatch& batch, const PlanLineFilter& filter = {}) {
  std::vector<std::string> keys;
  for (const PlanLine& line : LinesOf(batch.Calendars(), filter)) keys.push_back(line.key);
  return keys;
}

PlanLine LineOf(const PlanBatch& batch, const std::string& key) {
  for (PlanLine& line : LinesOf(batch.Calendars(), {std::nullopt, true})) {
    if (line.key == key) return std::move(line);
  }
  ADD_FAILURE() << "no line " << key;
  return {};
}

TEST(PlanLines, SayWhatStandsThereWhatShouldAndWhy) {
  RunInFreshThread([] {
    MemoryPlanningWorld world;
    MemoryPlanningWorld::GiveBook(kEuro, "EUR", kWeekendAndChristmas);
    const PlanBatch batch(kNoTables, {{kEuro, 2028}});
    const PlanLine line = LineOf(batch, "978/2028/360");
    EXPECT_EQ(line.kind, PlanLine::Kind::kDay);
    EXPECT_EQ(line.date, platform::Date(2028, 12, 25));
    EXPECT_EQ(line.now, std::nullopt);
    EXPECT_EQ(line.should, "Christmas Day");
    EXPECT_EQ(line.action, PlanAction::kAdd);
    EXPECT_EQ(line.why, "25 December");
    EXPECT_EQ(line.is_taken, true);
    EXPECT_FALSE(line.is_conflict);
  });
}

TEST(PlanLines, OnlyCountTheWeekendsOfANewCalendarUntilAllAreAskedFor) {
  RunInFreshThread([] {
    MemoryPlanningWorld world;
    MemoryPlanningWorld::GiveBook(kEuro, "EUR", kWeekendAndChristmas);
    PlanBatch batch(kNoTables, {{kEuro, 2028}});
    EXPECT_THAT(KeysOf(batch), ElementsAre("978/2028/360"));
    EXPECT_THAT(KeysOf(batch, {std::nullopt, true}), SizeIs(54));
    EXPECT_EQ(CountOf(batch.Calendars()[0]), "a new calendar, 54 days, 53 of them weekends");
    batch.At(0).Take(2, false);
    EXPECT_THAT(KeysOf(batch), ElementsAre("978/2028/2", "978/2028/360")) << "no matter of course any more";
  });
}

TEST(PlanLines, ShowTheDaysThatStayWhenAllAreAskedFor) {
  RunInFreshThread([] {
    MemoryPlanningWorld world;
    MemoryPlanningWorld::GiveBook(kEuro, "EUR", "celebration | Christmas Day | 12-25 | 25 December\n");
    PlanBatch batch(kNoTables, {{kEuro, 2028}});
    (void)batch.Apply();
    EXPECT_THAT(KeysOf(batch), SizeIs(0));
    EXPECT_THAT(KeysOf(batch, {std::nullopt, true}), ElementsAre("978/2028/360"));
    EXPECT_EQ(LineOf(batch, "978/2028/360").is_taken, std::nullopt) << "there is nothing to decide";
    EXPECT_EQ(CountOf(batch.Calendars()[0]), "as planned");
  });
}

TEST(PlanLines, TellACauseThatManyCalendarsHaveOfTheFirstOfThemAlone) {
  RunInFreshThread([] {
    MemoryPlanningWorld world;
    world.world.faults.FailAtCall(1);
    const PlanBatch batch(kNoTables, {{kEuro, 2028}, {kDollar, 2028}});
    world.world.faults.Disarm();
    const std::string cause = batch.Calendars()[0].WhyNot();
    EXPECT_EQ(LineOf(batch, "978/2028/not-planned").why, cause);
    EXPECT_EQ(LineOf(batch, "840/2028/not-planned").why, "As 978 2028");
    EXPECT_EQ(LinesOf(batch.Calendars(), {1, false}).front().why, cause) << "where it stands alone";
  });
}

TEST(PlanLines, StandConflictsFirstTheGravestBefore) {
  RunInFreshThread([] {
    MemoryPlanningWorld world;
    MemoryPlanningWorld::GiveBook(kEuro, "EUR",
                                  "point | Good Friday | easter-2 |\n"
                                  "celebration | Christmas Day | 12-25 |\n"
                                  "celebration | New Year | 01-01 |\n"
                                  "point | Vesak Day | table vesak |\n");
    MemoryPlanningWorld::CreateCalendar(kEuro, 2028);
    const std::int32_t fair = MemoryPlanningWorld::AddPoint("Fair", "2028-03-01");
    MemoryPlanningWorld::Assign(kEuro, "2028-03-01", 4, fair);
    MemoryPlanningWorld::Except(kEuro, "2028-04-14", "Stock-taking");
    // A point stands in the way of the celebration.
    (void)MemoryPlanningWorld::AddPoint("Christmas Day", "2028-12-24");
    almanac::DateTables tables;
    tables.Add({"vesak", 2020, 2027, {platform::Date(2020, 5, 1)}});
    const PlanBatch batch(tables, {{826, 2028}, {kEuro, 2028}});
    EXPECT_THAT(KeysOf(batch), ElementsAre("826/2028/not-planned", "978/2028/360", "978/2028/incomplete/1",
                                           "978/2028/105", "978/2028/61", "978/2028", "978/2028/1"));
    const PlanLine blocked = LineOf(batch, "978/2028/360");
    EXPECT_TRUE(blocked.is_blocked);
    EXPECT_EQ(blocked.is_taken, std::nullopt);
    EXPECT_EQ(blocked.why,
              "The rule \"Christmas Day\" is a holiday point, and the plan needs a celebration of that name; "
              "rename it before. 25 December");
    EXPECT_THAT(LineOf(batch, "978/2028/incomplete/1").why, HasSubstr("Vesak Day"));
    EXPECT_EQ(LineOf(batch, "978/2028/105").is_taken, false);
    EXPECT_THAT(LineOf(batch, "978/2028/105").why, HasSubstr("now open by exception: Stock-taking"));
    EXPECT_EQ(LineOf(batch, "978/2028/61").is_taken, false);
    EXPECT_EQ(LineOf(batch, "978/2028/61").why, "Not in the rule book: Fair");
  });
}

TEST(PlanLines, GoCalendarByCalendarWithALineForEachWholeWhenThereAreSeveral) {
  RunInFreshThread([] {
    MemoryPlanningWorld world;
    for (const auto& [id, code] : {std::pair(kEuro, "EUR"), std::pair(kDollar, "USD")}) {
      MemoryPlanningWorld::GiveBook(id, code, kWeekendAndChristmas);
    }
    PlanBatch batch(kNoTables, {{kEuro, 2028}, {kDollar, 2028}});
    EXPECT_THAT(KeysOf(batch), ElementsAre("978/2028", "978/2028/360", "840/2028", "840/2028/360"));
    EXPECT_THAT(KeysOf(batch, {1, false}), ElementsAre("840/2028", "840/2028/360"));
    EXPECT_EQ(LineOf(batch, "840/2028").is_taken, true);
    batch.At(1).TakeAll(false);
    EXPECT_EQ(LineOf(batch, "840/2028").is_taken, false);
    EXPECT_EQ(LineOf(batch, "840/2028").why, "no calendar is made");
  });
}

}  // namespace
}  // namespace ferrowind::planning
