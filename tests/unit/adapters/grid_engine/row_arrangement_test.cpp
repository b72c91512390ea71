#include "ferrowind/adapters/grid_engine/row_arrangement.h"

#include <algorithm>

#include <gtest/gtest.h>

#include "ferrowind/adapters/grid_engine/value_order.h"

#include "tests/unit/adapters/grid_engine/value_table.h"

namespace ferrowind::grid_engine {
namespace {

using platform::Value;

constexpr ArrangementKey kByName{1, KeyDirection::kAscending};
constexpr ArrangementKey kByType{2, KeyDirection::kAscending};

Value Number(int number) { return Value(static_cast<std::int32_t>(number)); }

class RowArrangementTest : public ::testing::Test {
 protected:
  RowArrangementTest()
      : table_({{Value("b"), Value("a"), Value("c"), Value("A"), Value("d")},
                {Number(2), Number(1), Number(2), Number(1), Number(3)}}),
        rows_(table_) {
    rows_.SetRecords(table_.RecordCount());
  }

  void Arrange(const std::vector<ArrangementKey>& groups, const std::vector<ArrangementKey>& sorts) {
    rows_.Arrange(groups, sorts);
  }

  /// Records by their number, groups as "g" with their value.
  std::vector<std::string> Shown() const {
    std::vector<std::string> shown;
    for (std::uint32_t row = 0; row < rows_.RowCount(); ++row) {
      const VisibleRow at = rows_.RowAt(row);
      if (at.is_group) {
        const Value& value = rows_.GroupValue(at.group);
        const auto* text = value.If<std::string>();
        shown.push_back("g" + (text != nullptr ? *text : std::to_string(AsWholeNumber(value).amount)));
      } else {
        shown.push_back(std::to_string(rows_.RecordAt(at.position)));
      }
    }
    return shown;
  }

  ValueTable table_;
  RowArrangement rows_;
};

using Texts = std::vector<std::string>;

TEST_F(RowArrangementTest, ShowsRecordsInTheirOwnOrderAtFirst) {
  EXPECT_EQ(Shown(), (Texts{"0", "1", "2", "3", "4"}));
}

TEST_F(RowArrangementTest, SortsByAllKeysAndLeavesEqualRecordsInOrder) {
  Arrange({}, {kByName});
  EXPECT_EQ(Shown(), (Texts{"1", "3", "0", "2", "4"}));
  Arrange({}, {{2, KeyDirection::kDescending}, {1, KeyDirection::kDescending}});
  EXPECT_EQ(Shown(), (Texts{"4", "2", "0", "1", "3"}));
}

TEST_F(RowArrangementTest, IgnoresASortKeyWithoutDirection) {
  Arrange({}, {{1, KeyDirection::kNone}});
  EXPECT_EQ(Shown(), (Texts{"0", "1", "2", "3", "4"}));
}

TEST_F(RowArrangementTest, GroupsAndCounts) {
  Arrange({kByType}, {kByName});
  EXPECT_EQ(Shown(), (Texts{"g1", "1", "3", "g2", "0", "2", "g3", "4"}));
  EXPECT_EQ(rows_.RecordCountOf({0, 1}), 2U);
}

TEST_F(RowArrangementTest, GroupsWithoutDirectionInTheOrderOfMeeting) {
  Arrange({{2, KeyDirection::kNone}}, {});
  EXPECT_EQ(Shown(), (Texts{"g2", "0", "2", "g1", "1", "3", "g3", "4"}));
}

TEST_F(RowArrangementTest, PutsTextsOfAnyLetterCaseIntoOneGroup) {
  Arrange({kByName}, {});
  EXPECT_EQ(Shown(), (Texts{"ga", "1", "3", "gb", "0", "gc", "2", "gd", "4"}));
}

TEST_F(RowArrangementTest, FindsTheRowOfARecordOrOfTheGroupThatHidesIt) {
  Arrange({kByType}, {kByName});
  EXPECT_EQ(rows_.RowOfRecord(2), 5U);
  rows_.SetExpanded({0, 1}, false);
  EXPECT_EQ(Shown(), (Texts{"g1", "1", "3", "g2", "g3", "4"}));
  EXPECT_FALSE(rows_.RowOfRecord(2).has_value());
  EXPECT_EQ(rows_.RowShowing(2), 3U);
  EXPECT_EQ(rows_.RowShowing(4), 5U);
}

TEST_F(RowArrangementTest, FindsTheRowOfARecordWithoutGroups) {
  Arrange({}, {kByName});
  for (std::uint32_t row = 0; row < rows_.RowCount(); ++row) {
    EXPECT_EQ(rows_.RowOfRecord(rows_.RecordAt(row)), row);
  }
}

TEST_F(RowArrangementTest, RemembersCollapsedGroupsWhenSortedRefilledAndGroupedFurther) {
  Arrange({kByType}, {});
  rows_.SetExpanded({0, 0}, false);
  const Texts expected{"g1", "g2", "0", "2", "g3", "4"};
  EXPECT_EQ(Shown(), expected);
  Arrange({kByType}, {kByName});
  EXPECT_EQ(Shown(), expected);
  rows_.SetRecords(table_.RecordCount());
  EXPECT_EQ(rows_.RowCount(), 5U);
  Arrange({kByType}, {});
  EXPECT_EQ(Shown(), expected);
  Arrange({{2, KeyDirection::kDescending}}, {});
  EXPECT_EQ(Shown(), (Texts{"g3", "4", "g2", "0", "2", "g1"}));
  Arrange({kByType, kByName}, {});
  EXPECT_EQ(Shown(), (Texts{"g1", "g2", "gb", "0", "gc", "2", "g3", "gd", "4"}));
  Arrange({kByName}, {});
  EXPECT_EQ(Shown().size(), 9U) << "a group of another column is another group";
}

TEST_F(RowArrangementTest, AppliesAllCollapsedToGroupsThatComeLater) {
  Arrange({kByType}, {});
  rows_.SetAllExpanded(false);
  rows_.SetExpanded({0, 2}, true);
  EXPECT_EQ(Shown(), (Texts{"g1", "g2", "g3", "4"}));
  table_.Set(2, 0, Number(9));
  rows_.SetRecords(table_.RecordCount());
  Arrange({kByType}, {});
  EXPECT_EQ(Shown(), (Texts{"g1", "g2", "g3", "4", "g9"}));
  rows_.SetAllExpanded(true);
  EXPECT_EQ(rows_.RowCount(), 9U);
}

TEST_F(RowArrangementTest, ExpandsAGroupWithAllThatIsInAndAroundIt) {
  Arrange({kByType, kByName}, {});
  rows_.SetAllExpanded(false);
  const std::vector<GroupId> inner{{1, 1}};
  rows_.ExpandAround(inner);
  EXPECT_EQ(Shown(), (Texts{"g1", "g2", "gb", "0", "gc", "g3"}));
  const std::vector<GroupId> outer{{0, 1}};
  rows_.ExpandAround(outer);
  EXPECT_EQ(Shown(), (Texts{"g1", "g2", "gb", "0", "gc", "2", "g3"}));
}

TEST_F(RowArrangementTest, FindsGroupsByTheirPath) {
  Arrange({{2, KeyDirection::kDescending}, kByName}, {});
  for (std::uint32_t level = 0; level < 2; ++level) {
    for (std::uint32_t number = 0; number < rows_.Groups().GroupCount(level); ++number) {
      EXPECT_EQ(rows_.GroupOf(rows_.PathOf({level, number})), (GroupId{level, number}));
    }
  }
  EXPECT_FALSE(rows_.GroupOf({{2, Number(7)}}).has_value());
  EXPECT_FALSE(rows_.GroupOf({{1, Value("a")}}).has_value());
  EXPECT_FALSE(rows_.GroupOf({}).has_value());
}

TEST_F(RowArrangementTest, ReadsAKeyColumnOnceUntilItIsForgotten) {
  Arrange({}, {kByName});
  const int reads = table_.Reads();
  Arrange({}, {{1, KeyDirection::kDescending}});
  EXPECT_EQ(table_.Reads(), reads);
  table_.Set(1, 4, Value("0"));
  rows_.ForgetColumn(1);
  Arrange({}, {kByName});
  EXPECT_EQ(Shown().front(), "4");
}

TEST(RowArrangement, AgreesWithComparingAllValues) {
  std::mt19937 random(11);
  std::vector<std::vector<Value>> columns(3);
  for (int i = 0; i < 3000; ++i) {
    for (auto& column : columns) column.push_back(AnyValue(random));
  }
  const ValueTable table(columns);
  RowArrangement rows(table);
  rows.SetRecords(table.RecordCount());
  const std::vector<ArrangementKey> groups{{2, KeyDirection::kAscending}};
  const std::vector<ArrangementKey> sorts{{1, KeyDirection::kDescending}, {3, KeyDirection::kAscending}};
  rows.Arrange(groups, sorts);
  for (std::uint32_t position = 1; position < rows.RecordCount(); ++position) {
    const Record left = rows.RecordAt(position - 1);
    const Record right = rows.RecordAt(position);
    const auto compare = [&](std::int16_t column) {
      return CompareValues(table.KeyValue(column, left), table.KeyValue(column, right));
    };
    int order = compare(2);
    if (order == 0) order = -compare(1);
    if (order == 0) order = compare(3);
    if (order == 0) order = left < right ? -1 : 1;
    ASSERT_LT(order, 0) << "position " << position;
  }
}

TEST_F(RowArrangementTest, LeavesRecordsOutAndTakesThemBackIn) {
  Arrange({}, {kByName});
  ASSERT_EQ(Shown(), (Texts{"1", "3", "0", "2", "4"}));
  rows_.ShowOnly([](Record record) { return record >= 2; });
  EXPECT_EQ(Shown(), (Texts{"3", "2", "4"}));
  EXPECT_EQ(rows_.RecordCount(), 5U);
  EXPECT_EQ(rows_.RowOfRecord(2), 1U);
  EXPECT_FALSE(rows_.RowOfRecord(0).has_value());
  EXPECT_FALSE(rows_.RowShowing(1).has_value());
  rows_.ShowOnly([](Record record) { return record < 2; });
  EXPECT_EQ(Shown(), (Texts{"1", "0"})) << "one that was left out before";
  rows_.ShowOnly({});
  EXPECT_EQ(Shown(), (Texts{"1", "3", "0", "2", "4"}));
}

TEST_F(RowArrangementTest, LeavesOutGroupsWithoutAShownRecordAndKeepsTheOthersCollapsed) {
  Arrange({kByType}, {kByName});
  rows_.SetExpanded({0, 1}, false);
  ASSERT_EQ(Shown(), (Texts{"g1", "1", "3", "g2", "g3", "4"}));
  rows_.ShowOnly([](Record record) { return record == 0 || record == 3; });
  EXPECT_EQ(Shown(), (Texts{"g1", "3", "g2"}));
  EXPECT_EQ(rows_.RecordCountOf({0, 0}), 1U);
  EXPECT_EQ(rows_.RowShowing(0), 2U);
  EXPECT_FALSE(rows_.RowShowing(2).has_value());
  rows_.ShowOnly({});
  EXPECT_EQ(Shown(), (Texts{"g1", "1", "3", "g2", "g3", "4"}));
}

TEST_F(RowArrangementTest, StillLeavesRecordsOutUnderOtherKeys) {
  rows_.ShowOnly([](Record record) { return record != 4; });
  Arrange({{2, KeyDirection::kNone}}, {{1, KeyDirection::kDescending}});
  EXPECT_EQ(Shown(), (Texts{"g2", "2", "0", "g1", "1", "3"}));
  rows_.ForgetColumn(2);
  rows_.ShowOnly([](Record record) { return record == 4 || record == 1; });
  EXPECT_EQ(Shown(), (Texts{"g1", "1", "g3", "4"})) << "by the codes that the rows were grouped by";
  Arrange({}, {});
  EXPECT_EQ(Shown(), (Texts{"1", "4"}));
}

TEST_F(RowArrangementTest, ShowsNothingWhenAllRecordsAreLeftOut) {
  Arrange({kByType}, {});
  rows_.ShowOnly([](Record) { return false; });
  EXPECT_EQ(rows_.RowCount(), 0U);
  rows_.SetRecords(3);
  EXPECT_EQ(rows_.RowCount(), 3U) << "other records are all shown";
}

}  // namespace
}  // namespace ferrowind::grid_engine
