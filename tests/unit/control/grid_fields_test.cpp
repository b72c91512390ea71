#include "ferrowind/control/grid_fields.h"

#include <gtest/gtest.h>

#include "ferrowind/control/component_error.h"
#include "ferrowind/control/default_headers.h"
#include "ferrowind/control/grid_field_constancy.h"
#include "ferrowind/platform/values/failure.h"

#include "tests/support/expect_failure.h"

namespace ferrowind {
namespace {

using platform::Date;
using testing::ExpectFailure;
namespace failure_number = platform::failure_number;

class GridFieldsTest : public ::testing::Test {
 protected:
  void AddConstant(const std::string& local_name, const std::string& field_name) {
    map_.Add(local_name, field_name);
    GridFieldConstancy::SetConst(*map_.LocalNames(local_name), true);
  }

  [[nodiscard]] int FieldCount() const {
    int count = 0;
    try {
      while (true) {
        (void)map_.Fields(count + 1);
        ++count;
      }
    } catch (const platform::Failure&) {
      return count;
    }
  }

  GridFields map_;
};

TEST_F(GridFieldsTest, AddWithTwoNamesGivesAVisibleColumnCaptionedNoneName) {
  map_.Add("Extra", "X1");
  const auto column = map_.LocalNames("Extra");
  EXPECT_EQ(column->LocalName(), "Extra");
  EXPECT_EQ(column->FieldName(), "X1");
  EXPECT_EQ(column->Caption(), "None name");
  EXPECT_TRUE(column->Visible());
  EXPECT_FALSE(column->IsConst());
}

TEST_F(GridFieldsTest, AddTakesCaptionAndVisibility) {
  map_.Add("Extra", "X1", "My column", false);
  EXPECT_EQ(map_.LocalNames(1)->Caption(), "My column");
  EXPECT_FALSE(map_.LocalNames(1)->Visible());
}

TEST_F(GridFieldsTest, BothListsShareTheSameColumn) {
  map_.Add("Extra", "X1");
  EXPECT_EQ(map_.LocalNames("Extra"), map_.Fields("X1"));
  map_.Fields("X1")->SetCaption("Changed");
  EXPECT_EQ(map_.LocalNames("Extra")->Caption(), "Changed");
}

TEST_F(GridFieldsTest, AddOfALocalNameInUseFailsAndLeavesTheMapUnchanged) {
  map_.Add("Extra", "X1");
  ExpectFailure([&] { map_.Add("EXTRA", "X2"); }, failure_number::kDuplicateKey,
                "This key is already associated with an element of this collection");
  EXPECT_EQ(map_.Count(), 1);
  EXPECT_EQ(FieldCount(), 1);
  EXPECT_EQ(map_.LocalNames("Extra")->FieldName(), "X1");
}

TEST_F(GridFieldsTest, AddOfAFieldNameInUseFailsAndLeavesTheColumnInTheLocalNamesOnly) {
  map_.Add("First", "X1");
  ExpectFailure([&] { map_.Add("Second", "x1"); }, failure_number::kDuplicateKey);
  EXPECT_EQ(map_.Count(), 2);
  EXPECT_EQ(FieldCount(), 1);
  EXPECT_EQ(map_.LocalNames("Second")->FieldName(), "x1");
  EXPECT_EQ(map_.Fields("x1")->LocalName(), "First");
}

TEST_F(GridFieldsTest, FindsColumnsByKeyWithoutRegardToCaseAndByPosition) {
  AddDefaultHeaders(map_);
  EXPECT_EQ(map_.LocalNames("fulldate")->LocalName(), "FullDate");
  EXPECT_EQ(map_.Fields("odate")->LocalName(), "FullDate");
  EXPECT_EQ(map_.LocalNames(9)->LocalName(), "MonthName");
  EXPECT_EQ(map_.Fields(std::int16_t{1})->LocalName(), "FullDate");
}

TEST_F(GridFieldsTest, UnknownKeyIsAnInvalidArgument) {
  ExpectFailure([&] { (void)map_.LocalNames("Nothing"); }, failure_number::kInvalidArgument,
                "Invalid procedure call or argument");
  ExpectFailure([&] { (void)map_.Fields("Nothing"); }, failure_number::kInvalidArgument);
}

TEST_F(GridFieldsTest, PositionOutOfRangeIsASubscriptOutOfRange) {
  map_.Add("Extra", "X1");
  for (const std::int32_t position : {-1, 0, 2}) {
    ExpectFailure([&] { (void)map_.LocalNames(position); }, failure_number::kSubscriptOutOfRange,
                  "Subscript out of range");
    ExpectFailure([&] { (void)map_.Fields(position); }, failure_number::kSubscriptOutOfRange);
  }
}

TEST_F(GridFieldsTest, AnIndexThatIsNeitherTextNorNumberIsATypeMismatch) {
  map_.Add("Extra", "X1");
  ExpectFailure([&] { (void)map_.LocalNames({}); }, failure_number::kTypeMismatch);
  ExpectFailure([&] { (void)map_.Fields(Date(2026, 1, 1)); }, failure_number::kTypeMismatch);
}

TEST_F(GridFieldsTest, RemoveByLocalIndexRefusesAColumnThatIsNotConstant) {
  map_.Add("Extra", "X1");
  ExpectFailure([&] { map_.RemoveByLocalIndex("Extra"); }, kComponentError, "It's constant header");
  EXPECT_EQ(map_.Count(), 1);
}

TEST_F(GridFieldsTest, RemoveByLocalIndexWithAKeyRemovesAConstantColumnAndThenFails) {
  AddConstant("A", "F1");
  AddConstant("B", "F2");
  ExpectFailure([&] { map_.RemoveByLocalIndex("A"); }, failure_number::kInvalidArgument);
  EXPECT_EQ(map_.Count(), 1);
  EXPECT_EQ(map_.LocalNames(1)->LocalName(), "B");
  EXPECT_EQ(map_.Fields("F1")->LocalName(), "A") << "the field-name list is never touched";
}

TEST_F(GridFieldsTest, RemoveByLocalIndexWithAPositionAlsoTakesTheColumnThatMovedThere) {
  AddConstant("A", "F1");
  AddConstant("B", "F2");
  map_.Add("C", "F3");
  map_.RemoveByLocalIndex(1);
  EXPECT_EQ(map_.Count(), 1);
  EXPECT_EQ(map_.LocalNames(1)->LocalName(), "C");
  EXPECT_EQ(FieldCount(), 3);
}

TEST_F(GridFieldsTest, RemoveByLocalIndexWithTheSecondRemovalTakesAlsoAColumnThatIsNotConstant) {
  AddConstant("A", "F1");
  map_.Add("B", "F2");
  map_.RemoveByLocalIndex(1);
  EXPECT_EQ(map_.Count(), 0);
}

TEST_F(GridFieldsTest, RemoveByLocalIndexWithTheLastPositionRemovesAndThenFails) {
  AddConstant("A", "F1");
  ExpectFailure([&] { map_.RemoveByLocalIndex(1); }, failure_number::kSubscriptOutOfRange);
  EXPECT_EQ(map_.Count(), 0);
}

TEST_F(GridFieldsTest, RemoveByLocalIndexOfAnUnknownKeyIsAnInvalidArgument) {
  ExpectFailure([&] { map_.RemoveByLocalIndex("Nothing"); }, failure_number::kInvalidArgument);
}

TEST_F(GridFieldsTest, RemoveByFieldIndexRemovesAConstantColumnFromTheFieldNamesOnly) {
  AddConstant("A", "F1");
  AddConstant("B", "F2");
  map_.RemoveByFieldIndex("F1");
  EXPECT_EQ(FieldCount(), 1);
  EXPECT_EQ(map_.Count(), 2);
  EXPECT_EQ(map_.LocalNames("A")->FieldName(), "F1");
  map_.RemoveByFieldIndex(1);
  EXPECT_EQ(FieldCount(), 0);
}

TEST_F(GridFieldsTest, RemoveByFieldIndexRefusesAColumnThatIsNotConstant) {
  map_.Add("Extra", "X1");
  ExpectFailure([&] { map_.RemoveByFieldIndex("X1"); }, kComponentError, "It's constant header");
  EXPECT_EQ(FieldCount(), 1);
}

TEST_F(GridFieldsTest, ClearRemovesNothingFromAMapThatBeginsWithAConstantColumn) {
  AddDefaultHeaders(map_);
  map_.Add("Extra", "X1");
  map_.Clear();
  EXPECT_EQ(map_.Count(), 10);
  EXPECT_EQ(FieldCount(), 10);
}

TEST_F(GridFieldsTest, ClearRemovesAllColumnsOfAMapWithoutConstantOnes) {
  map_.Add("A", "F1");
  map_.Add("B", "F2");
  map_.Clear();
  EXPECT_EQ(map_.Count(), 0);
  EXPECT_EQ(FieldCount(), 0);
}

TEST_F(GridFieldsTest, ClearStopsRemovingAtTheFirstConstantColumn) {
  map_.Add("A", "F1");
  AddConstant("B", "F2");
  map_.Add("C", "F3");
  map_.Clear();
  EXPECT_EQ(map_.Count(), 2);
  EXPECT_EQ(map_.LocalNames(1)->LocalName(), "B");
  EXPECT_EQ(map_.Fields(1)->LocalName(), "B");
}

TEST_F(GridFieldsTest, ClearOfListsOutOfStepFailsWhereTheFieldNamesEndFirst) {
  map_.Add("A", "F1");
  EXPECT_THROW(map_.Add("B", "F1"), platform::Failure);
  ExpectFailure([&] { map_.Clear(); }, failure_number::kSubscriptOutOfRange);
  EXPECT_EQ(map_.Count(), 0);
  EXPECT_EQ(FieldCount(), 0);
}

TEST_F(GridFieldsTest, RenamingAColumnDoesNotChangeItsKey) {
  map_.Add("Old", "F1");
  map_.LocalNames("Old")->SetLocalName("New");
  EXPECT_EQ(map_.LocalNames("Old")->LocalName(), "New");
  ExpectFailure([&] { (void)map_.LocalNames("New"); }, failure_number::kInvalidArgument);
}

TEST_F(GridFieldsTest, IndexOfEveryColumnOfAMapIsZero) {
  AddDefaultHeaders(map_);
  for (std::int32_t i = 1; i <= map_.Count(); ++i) EXPECT_EQ(map_.LocalNames(i)->Index(), 0);
}

TEST_F(GridFieldsTest, TheMapsHandlerFindsThePositionByTheExactName) {
  AddDefaultHeaders(map_);
  std::string name = "HolidayName";
  std::int32_t index = 0;
  map_.EventGridField_GetIndex(name, index);
  EXPECT_EQ(index, 3);
}

TEST_F(GridFieldsTest, TheMapsHandlerLeavesThePositionWhereTheNameDiffersInCase) {
  AddDefaultHeaders(map_);
  std::string name = "holidayname";
  std::int32_t index = 5;
  map_.EventGridField_GetIndex(name, index);
  EXPECT_EQ(index, 5);
}

TEST_F(GridFieldsTest, TheMapsHandlerStopsAtTheFirstOfTwoColumnsRenamedAlike) {
  map_.Add("A", "F1");
  map_.Add("B", "F2");
  map_.LocalNames("B")->SetLocalName("A");
  std::string name = "A";
  std::int32_t index = 0;
  map_.EventGridField_GetIndex(name, index);
  EXPECT_EQ(index, 1);
}

TEST_F(GridFieldsTest, AColumnOutlivesItsRemoval) {
  AddConstant("A", "F1");
  const auto column = map_.LocalNames("A");
  map_.RemoveByFieldIndex("F1");
  EXPECT_THROW(map_.RemoveByLocalIndex("A"), platform::Failure);
  EXPECT_EQ(column->FieldName(), "F1");
}

}  // namespace
}  // namespace ferrowind
