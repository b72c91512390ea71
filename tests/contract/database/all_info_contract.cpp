// What CldAllInfo gives.

#include <gmock/gmock.h>

#include "tests/contract/database/procedures_contract.h"

namespace ferrowind::contract {
namespace {

using platform::Date;
using platform::Value;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST_P(ProceduresContract, AllInfoOfAnEmptyDatabaseHasTypesTheBuiltInRuleAndTheFirstWeekday) {
  const auto outcome = caller().Call("CldAllInfo");
  EXPECT_EQ(outcome.return_value, 0);
  ASSERT_EQ(outcome.record_sets.size(), 4U);
  EXPECT_THAT(RowsOf(*outcome.record_sets[0]), IsEmpty());
  EXPECT_THAT(RowsOf(*outcome.record_sets[1]),
              ElementsAre(Row{Value(1), Value("Working day")}, Row{Value(2), Value("Holiday")},
                          Row{Value(3), Value("Celebration")}, Row{Value(4), Value("Holiday point")}));
  EXPECT_THAT(
      RowsOf(*outcome.record_sets[2]),
      ElementsAre(Row{Value(1), Value("Working day by exception"), {}, Value(1), {}, {}, {}, {}, {}}));
  EXPECT_THAT(RowsOf(*outcome.record_sets[3]), ElementsAre(Row{Value(1)}));
}

TEST_P(ProceduresContract, AllInfoListsCalendarsByCurrencyAndYear) {
  for (const auto& [currency, year] :
       {std::pair{kEuro, 2027}, {kDollar, 2026}, {kEuro, 1900}, {kEuro, 2026}}) {
    ASSERT_EQ(CreateCalendar(currency, year), 0);
  }
  EXPECT_THAT(RowsOf(*caller().Call("CldAllInfo").record_sets.at(0)),
              ElementsAre(Row{Value(kDollar), Value(2026)}, Row{Value(kEuro), Value(1900)},
                          Row{Value(kEuro), Value(2026)}, Row{Value(kEuro), Value(2027)}));
}

TEST_P(ProceduresContract, AllInfoGivesEveryColumnOfARuleInItsType) {
  AddWeekdayRule("Saturday", 7);
  AddDatedRule("Leap day", 4, Date(2024, 2, 29));
  ASSERT_EQ(caller().Return("CldIUCelebrate", {{"ID2", 3}, {"Del", 2}}), 0);
  EXPECT_EQ(Rules().at(1),
            (Row{Value(2), Value("Saturday"), {}, Value(2), {}, {}, {}, Value(std::int16_t{7}), {}}));
  EXPECT_EQ(Rules().at(2), (Row{Value(3),
                                Value("Leap day"),
                                {},
                                Value(4),
                                Value(Date(2024, 2, 29)),
                                Value(std::int16_t{2}),
                                Value(std::int16_t{29}),
                                {},
                                Value(std::int16_t{2})}));
}

TEST_P(ProceduresContract, AllInfoGivesTheFirstWeekdayThatIsSet) {
  for (int first_day = 1; first_day <= 7; ++first_day) {
    database().SetFirstDay(first_day);
    EXPECT_EQ((*caller().Call("CldAllInfo").record_sets.at(3))["FirstDay"], Value(first_day));
  }
}

TEST_P(ProceduresContract, WritingProceduresGiveNoRecordSets) {
  EXPECT_THAT(caller().Call("CldIUMain", {{"ID1", kEuro}, {"Year1", 2026}}).record_sets, IsEmpty());
  EXPECT_THAT(caller().Call("CldIUCelebrate", {{"Name1", "Rule"}, {"TID1", 2}, {"WD", 1}}).record_sets,
              IsEmpty());
}

}  // namespace
}  // namespace ferrowind::contract
