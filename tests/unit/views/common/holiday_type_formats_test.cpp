#include "ferrowind/views/common/holiday_type_formats.h"

#include <memory>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ferrowind/views/common/value_list.h"

#include "tests/support/expect_failure.h"
#include "tests/support/run_in_fresh_thread.h"
#include "tests/unit/views/common/grid_world.h"

namespace ferrowind {
namespace {

using headless::GridRowStyle;
using platform::Color;
using platform::RecordSet;
using platform::Value;
using testing::GridWorld;
using testing::RunInFreshThread;

constexpr Color kRed = {255, 0, 0};
constexpr Color kMagenta = {255, 0, 255};

struct FormatsWorld : GridWorld {
  FormatsWorld() { AddColumns({"HolidayType"}); }
  void FillTypes(std::vector<std::vector<Value>> rows) {
    RecordSet types({"TID1", "Description1"}, std::move(rows));
    ASSERT_TRUE(FillColumnValueList(grid, "HolidayType", types, "Description1", "TID1"));
    world.log.Clear();
  }
};

TEST(HolidayTypeFormats, CompareTheTypeColumnWithTheTextsOfTheCodesInThisOrder) {
  RunInFreshThread([] {
    FormatsWorld world;
    world.FillTypes({{1, "Arbeitstag"}, {2, "Feiertag"}, {3, "Fest"}, {4, "Halt"}});
    AddHolidayTypeFormats(world.grid);
    EXPECT_THAT(world.world.log.Calls(),
                ::testing::ElementsAre(R"(gex.AddFormat("FC_Holiday", "HolidayType", 0, "Feiertag"))",
                                       R"(gex.AddFormat("FC_Celebrate", "HolidayType", 0, "Fest"))",
                                       R"(gex.AddFormat("FC_HolidayPoint", "HolidayType", 0, "Halt"))"));
  });
}

TEST(HolidayTypeFormats, SetTheColoursAndTheBoldFaceOfTheirTypesAndLeaveTheRestAsItIs) {
  RunInFreshThread([] {
    FormatsWorld world;
    world.FillTypes({{1, "Working day"}, {2, "Holiday"}, {3, "Celebration"}, {4, "Holiday point"}});
    AddHolidayTypeFormats(world.grid);
    const auto& formats = world.grid.Formats();
    ASSERT_EQ(formats.size(), 3u);
    EXPECT_EQ(formats[0].fore_color, kRed);
    EXPECT_EQ(formats[0].bold, std::optional(true));
    EXPECT_EQ(formats[1].fore_color, kMagenta);
    EXPECT_EQ(formats[1].bold, std::optional(true));
    EXPECT_EQ(formats[2].fore_color, kMagenta);
    EXPECT_EQ(formats[2].bold, std::nullopt);
    for (const auto& format : formats) EXPECT_EQ(format.strike_through, std::nullopt);
  });
}

TEST(HolidayTypeFormats, ColourTheRowsByTheirType) {
  RunInFreshThread([] {
    FormatsWorld world;
    world.FillTypes({{1, "Working day"}, {2, "Holiday"}, {3, "Celebration"}, {4, "Holiday point"}});
    AddHolidayTypeFormats(world.grid);
    world.grid.HoldColumns();
    world.grid.AttachRecords(std::make_shared<RecordSet>(
        std::vector<std::string>{"HolidayType"}, std::vector<std::vector<Value>>{{1}, {2}, {3}, {4}, {5}}));
    EXPECT_EQ(world.grid.RowStyle(1), GridRowStyle());
    EXPECT_EQ(world.grid.RowStyle(2), (GridRowStyle{kRed, true, false}));
    EXPECT_EQ(world.grid.RowStyle(3), (GridRowStyle{kMagenta, true, false}));
    EXPECT_EQ(world.grid.RowStyle(4), (GridRowStyle{kMagenta, false, false}));
    EXPECT_EQ(world.grid.RowStyle(5), GridRowStyle());
  });
}

TEST(HolidayTypeFormats, ATypeWithoutATextIsAFailure) {
  RunInFreshThread([] {
    FormatsWorld world;
    world.FillTypes({{1, "Working day"}, {2, "Holiday"}});
    constexpr std::int32_t kElementNotFound = 35601;
    testing::ExpectFailure([&] { AddHolidayTypeFormats(world.grid); }, kElementNotFound);
  });
}

}  // namespace
}  // namespace ferrowind
