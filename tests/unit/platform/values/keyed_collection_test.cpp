#include "ferrowind/platform/values/keyed_collection.h"

#include <cstdint>
#include <limits>
#include <memory>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ferrowind/platform/values/record_set.h"

#include "tests/support/failure_of.h"

namespace ferrowind::platform {
namespace {

using ::ferrowind::testing::FailureOf;
using ::testing::ElementsAre;

using Collection = KeyedCollection<std::string>;

Collection OfThree() {
  Collection collection;
  collection.Append("Year", "2026");
  collection.Append("Month", "May");
  collection.Append("Day", "Friday");
  return collection;
}

std::vector<std::string> AllOf(const Collection& collection) {
  std::vector<std::string> all;
  for (std::int32_t position = 1; position <= collection.Count(); ++position)
    all.push_back(collection.At(position));
  return all;
}

TEST(KeyedCollection, StartsEmpty) { EXPECT_EQ(Collection().Count(), 0); }

TEST(KeyedCollection, CountsPositionsFromOneInTheOrderOfInsertion) {
  EXPECT_THAT(AllOf(OfThree()), ElementsAre("2026", "May", "Friday"));
}

TEST(KeyedCollection, FindsElementsByKeyWithoutRegardToCase) {
  const Collection collection = OfThree();
  EXPECT_EQ(collection.At("year"), "2026");
  EXPECT_EQ(collection.At("MONTH"), "May");
}

TEST(KeyedCollection, FindsKeysOfOtherScriptsWithoutRegardToCase) {
  Collection collection;
  collection.Append("ГОД", "2026");
  EXPECT_EQ(collection.At("год"), "2026");
}

TEST(KeyedCollection, RefusesAKeyInUseInAnyLetterCaseAndChangesNothing) {
  Collection collection = OfThree();
  const Failure failure = FailureOf([&] { collection.Append("YEAR", "2027"); });
  EXPECT_EQ(failure.Number(), 457);
  EXPECT_EQ(failure.Description(), "This key is already associated with an element of this collection");
  EXPECT_THAT(AllOf(collection), ElementsAre("2026", "May", "Friday"));
}

TEST(KeyedCollection, TakesAnEmptyTextForAKeyLikeAnyOther) {
  Collection collection;
  collection.Append("", "nameless");
  EXPECT_EQ(collection.At(""), "nameless");
  EXPECT_EQ(FailureOf([&] { collection.Append("", "again"); }).Number(), 457);
}

TEST(KeyedCollection, FailsWithInvalidArgumentForAnUnknownKey) {
  Collection collection = OfThree();
  const Failure failure = FailureOf([&] { (void)collection.At("Week"); });
  EXPECT_EQ(failure.Number(), 5);
  EXPECT_EQ(failure.Description(), "Invalid procedure call or argument");
  EXPECT_EQ(FailureOf([&] { collection.Remove("Week"); }).Number(), 5);
  EXPECT_EQ(collection.Count(), 3);
}

TEST(KeyedCollection, TakesTextForAKeyEvenWhenItLooksLikeANumber) {
  EXPECT_EQ(FailureOf([] { (void)OfThree().At("1"); }).Number(), 5);
}

TEST(KeyedCollection, FailsWithSubscriptOutOfRangeForAPositionThatIsNone) {
  Collection collection = OfThree();
  const std::vector<Value> positions = {
      0, -1, 4, true, std::int64_t{1} << 40, 1e300, std::numeric_limits<double>::infinity(), 3.6F};
  for (const Value& position : positions) {
    const Failure failure = FailureOf([&] { (void)collection.At(position); });
    EXPECT_EQ(failure.Number(), 9);
    EXPECT_EQ(failure.Description(), "Subscript out of range");
    EXPECT_EQ(FailureOf([&] { collection.Remove(position); }).Number(), 9);
  }
  EXPECT_EQ(collection.Count(), 3);
}

TEST(KeyedCollection, TakesEveryKindOfNumberForAPosition) {
  const Collection collection = OfThree();
  EXPECT_EQ(collection.At(std::int16_t{2}), "May");
  EXPECT_EQ(collection.At(std::int64_t{2}), "May");
  EXPECT_EQ(collection.At(2.0F), "May");
  EXPECT_EQ(collection.At(2.4), "May");
}

TEST(KeyedCollection, FailsWithTypeMismatchForAnIndexThatIsNeitherTextNorNumber) {
  Collection collection = OfThree();
  const auto object =
      std::make_shared<RecordSet>(std::vector<std::string>{"F"}, std::vector<std::vector<Value>>{});
  for (const Value& index : {Value(), Value(object), Value(Date(1900, 1, 1))}) {
    const Failure failure = FailureOf([&] { (void)collection.At(index); });
    EXPECT_EQ(failure.Number(), 13);
    EXPECT_EQ(failure.Description(), "Type mismatch");
    EXPECT_EQ(FailureOf([&] { collection.Remove(index); }).Number(), 13);
  }
  EXPECT_EQ(collection.Count(), 3);
}

TEST(KeyedCollection, MovesTheFollowingElementsUpWhenOneIsRemoved) {
  Collection collection = OfThree();
  collection.Remove("year");
  EXPECT_THAT(AllOf(collection), ElementsAre("May", "Friday"));
  EXPECT_EQ(collection.At("Day"), "Friday");
  collection.Remove(2);
  EXPECT_THAT(AllOf(collection), ElementsAre("May"));
  EXPECT_EQ(collection.At("Month"), "May");
}

TEST(KeyedCollection, FreesTheKeyOfARemovedElement) {
  Collection collection = OfThree();
  collection.Remove("Year");
  EXPECT_EQ(FailureOf([&] { (void)collection.At("Year"); }).Number(), 5);
  collection.Append("year", "2027");
  EXPECT_THAT(AllOf(collection), ElementsAre("May", "Friday", "2027"));
}

}  // namespace
}  // namespace ferrowind::platform
