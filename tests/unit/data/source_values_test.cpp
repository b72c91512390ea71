#include "ferrowind/data/source_values.h"

#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "ferrowind/platform/values/record_set.h"

namespace ferrowind {
namespace {

using platform::Date;
using platform::RecordSet;
using platform::Value;

std::vector<std::string> NamesOf(const SourceValues& values) {
  std::vector<std::string> names;
  for (std::int32_t i = 1; i <= values.Count(); ++i) names.push_back(values.Values(i)->Name);
  return names;
}

SourceValues ThreeEntries() {
  SourceValues values;
  values.Add("a", 1);
  values.Add("b", 2);
  values.Add("c", 3);
  return values;
}

TEST(SourceValues, StartsEmpty) { EXPECT_EQ(SourceValues().Count(), 0); }

TEST(SourceValues, KeepsNameAndValueInTheOrderOfAdding) {
  const SourceValues values = ThreeEntries();
  EXPECT_EQ(NamesOf(values), (std::vector<std::string>{"a", "b", "c"}));
  EXPECT_EQ(values.Values(2)->Value, Value(2));
}

TEST(SourceValues, RefusesANameInUseInAnyLetterCaseAndKeepsTheOldEntry) {
  SourceValues values;
  EXPECT_TRUE(values.Add("year", 2026));
  EXPECT_FALSE(values.Add("Year", 2027));
  EXPECT_EQ(values.Count(), 1);
  EXPECT_EQ(values.Values("YEAR")->Name, "year");
  EXPECT_EQ(values.Values("YEAR")->Value, Value(2026));
}

TEST(SourceValues, SharesARecordSetInsteadOfCopyingIt) {
  const auto records =
      std::make_shared<RecordSet>(std::vector<std::string>{"ID1"}, std::vector<std::vector<Value>>{{978}});
  SourceValues values;
  ASSERT_TRUE(values.Add("1", records));
  EXPECT_EQ(*values.Values("1")->Value.If<Value::Object>(), records);
}

TEST(SourceValues, CopiesAPlainValue) {
  SourceValues values;
  Value text("before");
  values.Add("Name1", text);
  text = "after";
  EXPECT_EQ(values.Values("Name1")->Value, Value("before"));
}

TEST(SourceValues, KeepsTheTypeOfAValue) {
  SourceValues values;
  values.Add("Day1", std::int16_t{7});
  values.Add("ODate", Date(2026, 2, 28));
  EXPECT_TRUE(values.Values("Day1")->Value.Is<std::int16_t>());
  EXPECT_EQ(values.Values("ODate")->Value, Value(Date(2026, 2, 28)));
}

TEST(SourceValues, AnEntryAddedWithoutAValueIsEmpty) {
  SourceValues values;
  ASSERT_TRUE(values.Add("Comment"));
  EXPECT_TRUE(values.Values("Comment")->Value.IsEmpty());
}

TEST(SourceValues, GivesTheCellItselfSoThatItsValueCanBeChanged) {
  const SourceValues values = ThreeEntries();
  values.Values("b")->Value = 20;
  EXPECT_EQ(values.Values(2)->Value, Value(20));
}

TEST(SourceValues, ANumberIsAPositionAndATextANameEvenOfDigits) {
  SourceValues values;
  values.Add("2", "named two");
  values.Add("1", "named one");
  EXPECT_EQ(values.Values(1)->Name, "2");
  EXPECT_EQ(values.Values("1")->Value, Value("named one"));
}

TEST(SourceValues, GivesNoCellForAnIndexOfNoEntry) {
  const SourceValues values = ThreeEntries();
  EXPECT_EQ(values.Values(0), nullptr);
  EXPECT_EQ(values.Values(4), nullptr);
  EXPECT_EQ(values.Values(-1), nullptr);
  EXPECT_EQ(values.Values("unknown"), nullptr);
  EXPECT_EQ(values.Values(Value()), nullptr);
  EXPECT_EQ(values.Values(Value(std::shared_ptr<RecordSet>())), nullptr);
}

TEST(SourceValues, RemovesAnEntryByNameInAnyLetterCase) {
  SourceValues values = ThreeEntries();
  EXPECT_TRUE(values.Remove("B"));
  EXPECT_EQ(NamesOf(values), (std::vector<std::string>{"a", "c"}));
}

TEST(SourceValues, RemovesAnEntryByPositionAndTheOthersMoveUp) {
  SourceValues values = ThreeEntries();
  EXPECT_TRUE(values.Remove(1));
  EXPECT_EQ(NamesOf(values), (std::vector<std::string>{"b", "c"}));
  EXPECT_EQ(values.Values("c")->Value, Value(3));
}

TEST(SourceValues, AFailedRemovalChangesNothing) {
  SourceValues values = ThreeEntries();
  EXPECT_FALSE(values.Remove("unknown"));
  EXPECT_FALSE(values.Remove(0));
  EXPECT_FALSE(values.Remove(4));
  EXPECT_EQ(values.Count(), 3);
}

TEST(SourceValues, RemovesAllEntriesWithoutAnIndex) {
  SourceValues values = ThreeEntries();
  EXPECT_TRUE(values.Remove());
  EXPECT_EQ(values.Count(), 0);
}

TEST(SourceValues, RemovingAllFromAnEmptyListIsDone) {
  SourceValues values;
  EXPECT_TRUE(values.Remove());
  EXPECT_EQ(values.Count(), 0);
}

TEST(SourceValues, ANameCanBeAddedAgainAfterItsRemoval) {
  SourceValues values = ThreeEntries();
  values.Remove("b");
  EXPECT_TRUE(values.Add("B", 22));
  EXPECT_EQ(NamesOf(values), (std::vector<std::string>{"a", "c", "B"}));
}

}  // namespace
}  // namespace ferrowind
