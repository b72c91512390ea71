// What a watch tells of the calls that others make, on every engine.

#include "tests/contract/database/procedures_contract.h"
#include "tests/contract/database/watch_looks.h"

namespace ferrowind::contract {
TEST_P(ProceduresContract, AWatchTellsOfACallThatChangedSomethingAndOnlyOnce) {
  const auto watch = database().Engine().Watch(database().ConnectionString());
  ASSERT_TRUE(SeesAChange(*watch)) << "the first look that reaches the database";
  EXPECT_FALSE(SeesAChange(*watch, kAMoment));

  ASSERT_EQ(CreateCalendar(kEuro, 2028), 0);
  EXPECT_TRUE(SeesAChange(*watch));
  EXPECT_FALSE(SeesAChange(*watch, kAMoment));
}

TEST_P(ProceduresContract, AWatchTellsOfManyChangesAtOnce) {
  const auto watch = database().Engine().Watch(database().ConnectionString());
  ASSERT_TRUE(SeesAChange(*watch));
  for (const int year : {2028, 2029, 2030}) ASSERT_EQ(CreateCalendar(kEuro, year), 0);
  std::this_thread::sleep_for(kAMoment);
  EXPECT_TRUE(watch->Look());
  EXPECT_FALSE(watch->Look());
}

TEST_P(ProceduresContract, AWatchTellsNothingOfCallsThatChangeNothing) {
  ASSERT_EQ(CreateCalendar(kEuro, 2028), 0);
  const auto watch = database().Engine().Watch(database().ConnectionString());
  ASSERT_TRUE(SeesAChange(*watch));
  ASSERT_NE(CreateCalendar(kEuro, 2028), 0) << "refused";
  static_cast<void>(Days(2028));
  static_cast<void>(Rules());
  EXPECT_FALSE(SeesAChange(*watch, kAMoment));
}

TEST_P(ProceduresContract, EveryWatchIsTold) {
  const auto first = database().Engine().Watch(database().ConnectionString());
  const auto second = database().Engine().Watch(database().ConnectionString());
  ASSERT_TRUE(SeesAChange(*first));
  ASSERT_TRUE(SeesAChange(*second));
  const std::int32_t rule = AddWeekdayRule("Saturday", 7);
  EXPECT_TRUE(SeesAChange(*first));
  EXPECT_TRUE(SeesAChange(*second));
  ASSERT_EQ(caller().Return("CldIUCelebrate", {{"ID2", rule}, {"Del", 2}}), 0);
  EXPECT_TRUE(SeesAChange(*first));
  EXPECT_TRUE(SeesAChange(*second));
}

TEST_P(ProceduresContract, AWatchTellsOfAnUndo) {
  ASSERT_EQ(CreateCalendar(kEuro, 2028), 0);
  const auto watch = database().Engine().Watch(database().ConnectionString());
  ASSERT_TRUE(SeesAChange(*watch));
  ASSERT_EQ(Undo(LastEntry()), 0);
  EXPECT_TRUE(SeesAChange(*watch));
}

TEST_P(ProceduresContract, AWatchWantsToLookSoonButNotAllTheTime) {
  const auto watch = database().Engine().Watch(database().ConnectionString());
  EXPECT_GT(watch->Pause().count(), 0);
  ASSERT_TRUE(SeesAChange(*watch));
  EXPECT_GE(watch->Pause(), std::chrono::seconds(2));
}

}  // namespace ferrowind::contract
