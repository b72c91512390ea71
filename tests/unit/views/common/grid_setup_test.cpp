#include "ferrowind/views/common/grid_setup.h"

#include <memory>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ferrowind/control/default_headers.h"

#include "tests/support/expect_failure.h"
#include "tests/support/run_in_fresh_thread.h"
#include "tests/unit/views/common/grid_world.h"

namespace ferrowind {
namespace {

using platform::RecordSet;
using platform::Value;
using testing::ExpectFailure;
using testing::GridWorld;
using testing::RunInFreshThread;

TEST(SetupGridColumns, AddsBindsMarksAndShowsEachColumnInThisOrder) {
  RunInFreshThread([] {
    GridWorld world;
    GridFields map;
    map.Add("FullDate", "ODate", "Date", true);
    map.Add("ID_Holiday", "ID2", "ID holiday", false);
    EXPECT_TRUE(SetupGridColumns(world.grid, map));
    EXPECT_THAT(
        world.world.log.Calls(),
        ::testing::ElementsAre(
            R"(gex.AddColumn("Date", 0, 1, "FullDate"))", R"(gex.Columns(FullDate).SetBoundField("ODate"))",
            "gex.Columns(FullDate).SetGroupable(1)", "gex.Columns(FullDate).SetVisible(True)",
            R"(gex.AddColumn("ID holiday", 0, 1, "ID_Holiday"))",
            R"(gex.Columns(ID_Holiday).SetBoundField("ID2"))", "gex.Columns(ID_Holiday).SetGroupable(1)",
            "gex.Columns(ID_Holiday).SetVisible(False)"));
  });
}

TEST(SetupGridColumns, FollowsTheFieldOrderOfTheMap) {
  RunInFreshThread([] {
    GridWorld world;
    GridFields map;
    AddDefaultHeaders(map);
    EXPECT_TRUE(SetupGridColumns(world.grid, map));
    std::vector<std::string> keys;
    for (std::int32_t i = 1; i <= world.grid.ColumnCount(); ++i) keys.push_back(world.grid.ColumnAt(i).Key());
    EXPECT_EQ(keys, (std::vector<std::string>{"FullDate", "HolidayType", "HolidayName", "Description",
                                              "Comment", "DayOfYear", "DayOfMonth", "Month", "MonthName"}));
  });
}

TEST(SetupGridColumns, TakesAColumnThatTheMapHoldsAmongItsFieldsAlone) {
  RunInFreshThread([] {
    GridWorld world;
    GridFields map;
    AddDefaultHeaders(map);
    constexpr std::int32_t kInvalidArgument = 5;
    ExpectFailure([&] { map.RemoveByLocalIndex("FullDate"); }, kInvalidArgument);
    EXPECT_TRUE(SetupGridColumns(world.grid, map));
    EXPECT_EQ(world.grid.ColumnCount(), 8);
    EXPECT_EQ(world.grid.ColumnAt(1).Key(), "FullDate");
    EXPECT_EQ(world.grid.ColumnAt(8).Key(), "Month");
  });
}

TEST(SetupGridColumns, AnEmptyMapGivesNoColumnsAndTrue) {
  RunInFreshThread([] {
    GridWorld world;
    EXPECT_TRUE(SetupGridColumns(world.grid, GridFields()));
    EXPECT_EQ(world.grid.ColumnCount(), 0);
  });
}

TEST(SetupGridColumns, AHiddenColumnStillCarriesItsField) {
  RunInFreshThread([] {
    GridWorld world;
    GridFields map;
    map.Add("ID_Holiday", "ID2", "ID holiday", false);
    SetupGridColumns(world.grid, map);
    world.grid.HoldColumns();
    world.grid.AttachRecords(
        std::make_shared<RecordSet>(std::vector<std::string>{"ID2"}, std::vector<std::vector<Value>>{{41}}));
    EXPECT_FALSE(world.grid.ColumnByKey("ID_Holiday").Visible());
    EXPECT_EQ(world.grid.CellValue(1, "ID_Holiday"), Value(41));
  });
}

TEST(SetupGridColumns, AFailureIsFalseWithoutAReportAndKeepsTheColumnsBeforeIt) {
  RunInFreshThread([] {
    GridWorld world;
    world.AddColumns({"Second"});
    GridFields map;
    map.Add("First", "F1", "First", true);
    map.Add("Second", "F2", "Second", true);
    map.Add("Third", "F3", "Third", true);
    EXPECT_FALSE(SetupGridColumns(world.grid, map));
    EXPECT_EQ(world.grid.ColumnCount(), 2);
    EXPECT_EQ(world.grid.ColumnByKey("First").BoundField(), "F1");
    EXPECT_TRUE(world.SeenByOperator().empty());
  });
}

TEST(FieldNameOf, GivesTheFieldOfALocalNameInAnyLetterCase) {
  GridFields map;
  AddDefaultHolidayHeaders(map);
  EXPECT_EQ(FieldNameOf(map, "HolidayType"), "TID1");
  EXPECT_EQ(FieldNameOf(map, "holidaytype"), "TID1");
}

TEST(FieldNameOf, FollowsAChangeOfTheMap) {
  GridFields map;
  AddDefaultHeaders(map);
  map.LocalNames("FullDate")->SetFieldName("OtherDate");
  EXPECT_EQ(FieldNameOf(map, "FullDate"), "OtherDate");
}

TEST(FieldNameOf, AnUnknownLocalNameIsTheMapsFailure) {
  constexpr std::int32_t kInvalidArgument = 5;
  const GridFields map;
  ExpectFailure([&] { static_cast<void>(FieldNameOf(map, "Nothing")); }, kInvalidArgument);
}

}  // namespace
}  // namespace ferrowind
