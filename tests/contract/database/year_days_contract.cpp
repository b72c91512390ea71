// What CldGetClosedDays, CldGetMarkedDays and CldGetContent give.

#include <gmock/gmock.h>

#include "ferrowind/platform/values/conversion.h"

#include "tests/contract/database/procedures_contract.h"

namespace ferrowind::contract {
namespace {

using platform::Value;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr const char* kDays = R"([
  {"Name1": "Saturday", "TID1": 2, "Dates": ["2028-01-01"], "DayComment": "letter"},
  {"Name1": "A", "TID1": 3, "Dates": ["2028-12-31"]}, {"Name1": "B", "TID1": 4, "Dates": ["2028-01-02"]},
  {"TID1": 1, "Dates": ["2028-01-03"], "DayComment": "open"}])";

TEST_P(ProceduresContract, ClosedDaysAreATextOfEveryCalendar) {
  ASSERT_EQ(Apply(kEuro, 2028, kDays), 0);
  ASSERT_EQ(CreateCalendar(kEuro, 2026), 0);
  ASSERT_EQ(CreateCalendar(kEuro, 2029), 0);
  ASSERT_EQ(CreateCalendar(kDollar, 2027), 0);
  ASSERT_EQ(Apply(kDollar, 2028, R"([{"Name1": "Saturday", "TID1": 2, "Dates": ["2028-01-01"]}])"), 0);
  const auto closed = caller().Call("CldGetClosedDays", {{"FromYear", 2027}, {"ToYear", 2028}});
  EXPECT_EQ(closed.return_value, 0);
  EXPECT_THAT(RowsOf(*closed.record_sets.at(0)),
              ElementsAre(Row{kDollar, 2027, std::string(365, '0'), "USD", 0, ""},
                          Row{kDollar, 2028, "1" + std::string(365, '0'), "USD", 0, "2"},
                          Row{kEuro, 2028, "11" + std::string(363, '0') + "1", "EUR", 1, "2,4,3"}));
  EXPECT_THAT(RowsOf(*closed.record_sets.at(1)),
              ElementsAre(Row{1, "Working day by exception"}, Row{2, "Saturday"}, Row{3, "A"}, Row{4, "B"}));
}

TEST_P(ProceduresContract, MarkedDaysAreThoseThatHaveARule) {
  ASSERT_EQ(Apply(kEuro, 2028, kDays), 0);
  ASSERT_EQ(Apply(kEuro, 2026, R"([{"TID1": 1, "Dates": ["2026-12-31"], "DayComment": "open"}])"), 0);
  ASSERT_EQ(Apply(kDollar, 2028, R"([{"Name1": "B", "TID1": 4, "Dates": ["2028-02-29"]}])"), 0);
  ASSERT_EQ(CreateCalendar(kDollar, 2027), 0);
  const auto marked = [&](int from, int to) {
    return RowsOf(*caller().Call("CldGetMarkedDays", {{"FromYear", from}, {"ToYear", to}}).record_sets.at(0));
  };
  EXPECT_THAT(marked(2026, 2028),
              ElementsAre(Row{kDollar, 2028, 60, 4, 4, {}}, Row{kEuro, 2026, 365, 1, 1, "open"},
                          Row{kEuro, 2028, 1, 2, 2, "letter"}, Row{kEuro, 2028, 2, 4, 4, {}},
                          Row{kEuro, 2028, 3, 1, 1, "open"}, Row{kEuro, 2028, 366, 3, 3, {}}));
  EXPECT_THAT(marked(2026, 2026), ElementsAre(Row{kEuro, 2026, 365, 1, 1, "open"}));
  EXPECT_THAT(marked(2027, 2027), IsEmpty());
}

TEST_P(ProceduresContract, TheContentHasTheMarkedDaysOfEveryCalendarAsATextAndRulesAndCurrencies) {
  ASSERT_EQ(Apply(kEuro, 2028, kDays), 0);
  ASSERT_EQ(Apply(kEuro, 2026, R"([{"TID1": 1, "Dates": ["2026-12-31"], "DayComment": "Größe"}])"), 0);
  ASSERT_EQ(CreateCalendar(kDollar, 2027), 0);
  const auto content = caller().Call("CldGetContent");
  EXPECT_EQ(content.return_value, 0);
  ASSERT_EQ(content.record_sets.size(), 5U);
  EXPECT_THAT(RowsOf(*content.record_sets[0]),
              ElementsAre(Row{kDollar, 2027, ""}, Row{kEuro, 2026, "365,1,1,7:Größe"},
                          Row{kEuro, 2028, "1,2,2,6:letter2,4,4,0:3,1,1,4:open366,3,3,0:"}));
  const auto rules = RowsOf(*content.record_sets[1]);
  ASSERT_EQ(rules.size(), 4U);
  EXPECT_EQ(rules[1][1], Value("Saturday"));
  EXPECT_EQ(platform::ToText(rules[2][3]) + "-" + platform::ToText(rules[2][4]), "12-31");
  EXPECT_THAT(RowsOf(*content.record_sets[2]), IsEmpty());
  EXPECT_THAT(RowsOf(*content.record_sets[3]), IsEmpty());
  EXPECT_EQ(RowsOf(*content.record_sets[4]), RowsOf(*caller().Call("CldGetCurrencies").record_sets.at(0)));
}

TEST_P(ProceduresContract, YearsThatAreNoSpanAreRefused) {
  for (const std::string procedure : {"CldGetClosedDays", "CldGetMarkedDays"}) {
    EXPECT_EQ(caller().Return(procedure), 7);
    EXPECT_EQ(caller().Return(procedure, {{"FromYear", 2028}}), 7);
    EXPECT_EQ(caller().Return(procedure, {{"ToYear", 2028}}), 7);
    EXPECT_EQ(caller().Return(procedure, {{"FromYear", 2029}, {"ToYear", 2028}}), 7);
    EXPECT_EQ(caller().Return(procedure, {{"FromYear", -2147483647}, {"ToYear", 2147483647}}), 0);
  }
}

}  // namespace
}  // namespace ferrowind::contract
