#include "ferrowind/views/common/value_list.h"

#include <memory>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

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

constexpr std::int32_t kElementNotFound = 35601;

struct TypesWorld : GridWorld {
  TypesWorld() { AddColumns({"HolidayType"}); }
  [[nodiscard]] bool Fill(RecordSet& records) {
    return FillColumnValueList(grid, "HolidayType", records, "Description1", "TID1");
  }
  [[nodiscard]] std::int32_t PairCount() { return grid.ColumnByKey("HolidayType").ValueList()->Count(); }
};

RecordSet Types(std::vector<std::vector<Value>> rows) { return {{"TID1", "Description1"}, std::move(rows)}; }

TEST(FillColumnValueList, TurnsTheListOnAndAddsEveryPairInOrder) {
  RunInFreshThread([] {
    TypesWorld world;
    RecordSet types = Types({{1, "Working day"}, {2, "Holiday"}});
    EXPECT_TRUE(world.Fill(types));
    EXPECT_THAT(world.world.log.Calls(),
                ::testing::ElementsAre("gex.Columns(HolidayType).SetHasValueList(True)",
                                       R"(gex.Columns(HolidayType).ValueList.Add(1, "Working day"))",
                                       R"(gex.Columns(HolidayType).ValueList.Add(2, "Holiday"))"));
  });
}

TEST(FillColumnValueList, LeavesTheRecordSetAtItsEnd) {
  RunInFreshThread([] {
    TypesWorld world;
    RecordSet types = Types({{1, "Working day"}, {2, "Holiday"}});
    EXPECT_TRUE(world.Fill(types));
    EXPECT_TRUE(types.Eof());
    EXPECT_FALSE(types.Bof());
  });
}

TEST(FillColumnValueList, StartsAtTheCurrentRow) {
  RunInFreshThread([] {
    TypesWorld world;
    RecordSet types = Types({{1, "Working day"}, {2, "Holiday"}, {3, "Celebration"}});
    types.MoveNext();
    EXPECT_TRUE(world.Fill(types));
    EXPECT_EQ(world.PairCount(), 2);
    EXPECT_EQ(ValueListText(world.grid, "HolidayType", 3), "Celebration");
  });
}

TEST(FillColumnValueList, ARecordSetAtItsEndTurnsTheListOnAndAddsNothing) {
  RunInFreshThread([] {
    TypesWorld world;
    RecordSet types = Types({{1, "Working day"}});
    types.MoveNext();
    EXPECT_TRUE(world.Fill(types));
    EXPECT_TRUE(world.grid.ColumnByKey("HolidayType").HasValueList());
    EXPECT_EQ(world.PairCount(), 0);
  });
}

TEST(FillColumnValueList, KeepsTheValueAsItComesAndTakesTheTextAsText) {
  RunInFreshThread([] {
    TypesWorld world;
    RecordSet types = Types({{std::int16_t{7}, 12}});
    EXPECT_TRUE(world.Fill(types));
    EXPECT_TRUE(world.world.log.Contains(R"(gex.Columns(HolidayType).ValueList.Add(7, "12"))"));
  });
}

TEST(FillColumnValueList, WithoutARowIsFalseAndChangesNothing) {
  RunInFreshThread([] {
    TypesWorld world;
    RecordSet types = Types({});
    EXPECT_FALSE(world.Fill(types));
    EXPECT_FALSE(world.grid.ColumnByKey("HolidayType").HasValueList());
    EXPECT_TRUE(world.world.log.Calls().empty());
  });
}

TEST(FillColumnValueList, WithoutARowDoesNotLookForTheColumn) {
  RunInFreshThread([] {
    GridWorld world;
    RecordSet types = Types({});
    EXPECT_FALSE(FillColumnValueList(world.grid, "Missing", types, "Description1", "TID1"));
    EXPECT_TRUE(world.SeenByOperator().empty());
  });
}

TEST(FillColumnValueList, ASecondCallAddsNothingAndIsTrue) {
  RunInFreshThread([] {
    TypesWorld world;
    RecordSet types = Types({{1, "Working day"}, {2, "Holiday"}});
    EXPECT_TRUE(world.Fill(types));
    types.MoveFirst();
    EXPECT_TRUE(world.Fill(types));
    EXPECT_EQ(world.PairCount(), 2);
    EXPECT_FALSE(types.Eof());
  });
}

TEST(FillColumnValueList, AnUnknownColumnIsReportedAndFalse) {
  RunInFreshThread([] {
    GridWorld world;
    RecordSet types = Types({{1, "Working day"}});
    EXPECT_FALSE(FillColumnValueList(world.grid, "Missing", types, "Description1", "TID1"));
    EXPECT_EQ(
        world.world.services->Reports(),
        (std::vector<headless::ReportedError>{{kElementNotFound, "The grid gex has no column Missing"}}));
  });
}

TEST(FillColumnValueList, AFailureBetweenIsReportedOnceAndKeepsThePairsBeforeIt) {
  RunInFreshThread([] {
    TypesWorld world;
    RecordSet types = Types({{1, "Working day"}, {2, Value()}, {3, "Celebration"}});
    EXPECT_FALSE(world.Fill(types));
    EXPECT_EQ(world.PairCount(), 1);
    constexpr std::int32_t kInvalidUseOfNull = 94;
    ASSERT_EQ(world.world.services->Reports().size(), 1u);
    EXPECT_EQ(world.world.services->Reports()[0].number, kInvalidUseOfNull);
    EXPECT_EQ(Module().runtime_failure.description, "");
  });
}

TEST(FillColumnValueList, AFieldThatIsNotThereIsReported) {
  RunInFreshThread([] {
    TypesWorld world;
    RecordSet types({"TID1"}, {{1}});
    EXPECT_FALSE(world.Fill(types));
    constexpr std::int32_t kUnknownField = 3265;
    EXPECT_EQ(world.world.services->Reports().at(0).number, kUnknownField);
  });
}

TEST(ValueListText, GivesTheTextOfACode) {
  RunInFreshThread([] {
    TypesWorld world;
    RecordSet types = Types({{std::int16_t{1}, "Working day"}, {std::int16_t{2}, "Holiday"}});
    ASSERT_TRUE(world.Fill(types));
    EXPECT_EQ(ValueListText(world.grid, "HolidayType", 2), "Holiday");
  });
}

TEST(ValueListText, IsEmptyWithoutAValueList) {
  RunInFreshThread([] {
    TypesWorld world;
    EXPECT_EQ(ValueListText(world.grid, "HolidayType", 2), "");
  });
}

TEST(ValueListText, ACodeThatIsNotInTheListIsTheGridsFailure) {
  RunInFreshThread([] {
    TypesWorld world;
    RecordSet types = Types({{1, "Working day"}});
    ASSERT_TRUE(world.Fill(types));
    ExpectFailure([&] { static_cast<void>(ValueListText(world.grid, "HolidayType", 9)); }, kElementNotFound);
    EXPECT_TRUE(world.SeenByOperator().empty());
  });
}

TEST(ValueListText, AnUnknownColumnIsTheGridsFailure) {
  RunInFreshThread([] {
    GridWorld world;
    ExpectFailure([&] { static_cast<void>(ValueListText(world.grid, "Missing", 1)); }, kElementNotFound);
  });
}

}  // namespace
}  // namespace ferrowind
