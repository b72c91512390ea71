#include "ferrowind/views/common/host_columns.h"

#include <memory>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ferrowind/control/default_headers.h"
#include "ferrowind/platform/values/conversion.h"
#include "ferrowind/platform/values/failure.h"
#include "ferrowind/views/common/grid_setup.h"

#include "tests/support/run_in_fresh_thread.h"
#include "tests/unit/views/common/grid_world.h"

namespace ferrowind {
namespace {

using platform::RecordSet;
using platform::Value;
using testing::GridWorld;
using testing::RunInFreshThread;

/// A grid with the columns `Name` and `Rule` of a host over two records.
struct FollowedGrid : GridWorld {
  FollowedGrid() {
    map.Add("Name", "Name1", "Name");
    map.Add("Rule", "ID2", "Rule");
    SetupGridColumns(grid, map);
    grid.HoldColumns();
    grid.AttachRecords(
        std::make_shared<RecordSet>(std::vector<std::string>{"Name1", "ID2"},
                                    std::vector<std::vector<Value>>{{"Sunday", 3}, {"May", 7}}));
    world.log.Clear();
  }
  [[nodiscard]] GridField& Rule() const { return *map.LocalNames("Rule"); }
  [[nodiscard]] std::int16_t RuleColumn() { return grid.ColumnByKey("Rule").Index(); }
  [[nodiscard]] Value ComputedRule(RecordSet::Bookmark row) {
    Value cell;
    columns.ComputeCell(row, RuleColumn(), cell);
    return cell;
  }

  GridFields map;
  HostColumns columns{platform, grid};
};

TEST(HostColumns, ThatAreAsTheMapSaysAreLeftAlone) {
  RunInFreshThread([] {
    FollowedGrid followed;
    followed.columns.Follow(followed.map);
    EXPECT_THAT(followed.world.log.Calls(), ::testing::IsEmpty());
  });
}

TEST(HostColumns, ThatTheMapHidesAreHiddenWhateverALayoutSaid) {
  RunInFreshThread([] {
    FollowedGrid followed;
    followed.Rule().SetVisible(false);
    followed.grid.ColumnByKey("Name").SetVisible(false);
    followed.columns.Follow(followed.map);
    EXPECT_FALSE(followed.grid.ColumnByKey("Rule").Visible());
    followed.map.LocalNames("Name")->SetCaption("Holiday");
    EXPECT_FALSE(followed.grid.ColumnByKey("Name").Visible()) << "the layout decides";
  });
}

TEST(HostColumns, ThatTheMapHidesAreInNoLayoutAsHidden) {
  RunInFreshThread([] {
    FollowedGrid followed;
    followed.Rule().SetVisible(false);
    followed.columns.Follow(followed.map);
    followed.grid.ColumnByKey("Name").SetVisible(false);
    std::vector<bool> saved;
    followed.columns.SaveLayout([&] {
      for (const char* key : {"Name", "Rule"}) saved.push_back(followed.grid.ColumnByKey(key).Visible());
    });
    EXPECT_EQ(saved, (std::vector<bool>{false, true}));
    EXPECT_FALSE(followed.grid.ColumnByKey("Rule").Visible());
  });
}

TEST(HostColumns, ThatTheMapHidesAreHiddenAgainWhenALayoutCannotBeSaved) {
  RunInFreshThread([] {
    FollowedGrid followed;
    followed.Rule().SetVisible(false);
    followed.columns.Follow(followed.map);
    EXPECT_THROW(followed.columns.SaveLayout([] { throw platform::Failure(5, "The disk is full"); }),
                 platform::Failure);
    EXPECT_FALSE(followed.grid.ColumnByKey("Rule").Visible());
  });
}

TEST(HostColumns, TakeCaptionAndVisibilityWhileTheWindowIsOpen) {
  RunInFreshThread([] {
    FollowedGrid followed;
    followed.columns.Follow(followed.map);
    followed.Rule().SetCaption("Rule number");
    EXPECT_EQ(followed.grid.ColumnByKey("Rule").Caption(), "Rule number");
    followed.Rule().SetVisible(false);
    EXPECT_FALSE(followed.grid.ColumnByKey("Rule").Visible());
  });
}

TEST(HostColumns, AreFoundUnderTheNameThatTheyBeganWith) {
  RunInFreshThread([] {
    FollowedGrid followed;
    followed.columns.Follow(followed.map);
    followed.Rule().SetLocalName("Other");
    followed.Rule().SetCaption("Rule number");
    EXPECT_EQ(followed.grid.ColumnByKey("Rule").Caption(), "Rule number");
  });
}

TEST(HostColumns, AreFollowedNoLongerThanTheWindowLives) {
  RunInFreshThread([] {
    FollowedGrid followed;
    {
      HostColumns columns(followed.platform, followed.grid);
      columns.Follow(followed.map);
    }
    followed.Rule().SetCaption("Rule number");
    EXPECT_EQ(followed.grid.ColumnByKey("Rule").Caption(), "Rule");
  });
}

TEST(HostColumns, ShowWhatTheHostComputesOfTheRow) {
  RunInFreshThread([] {
    FollowedGrid followed;
    followed.Rule().SetFunction(
        [](const RecordSet& row) { return Value("rule of " + platform::ToText(row["Name1"])); });
    followed.columns.Follow(followed.map);
    EXPECT_TRUE(followed.grid.ColumnByKey("Rule").Unbound());
    EXPECT_EQ(followed.ComputedRule(2), Value("rule of May"));
    EXPECT_EQ(followed.ComputedRule(1), Value("rule of Sunday"));
  });
}

TEST(HostColumns, AreComputedFromWhenTheHostSaysSoAndOfFieldsAgainWhenItTakesThatBack) {
  RunInFreshThread([] {
    FollowedGrid followed;
    followed.columns.Follow(followed.map);
    EXPECT_TRUE(followed.ComputedRule(1).IsEmpty());
    followed.Rule().SetFunction([](const RecordSet&) { return Value("late"); });
    EXPECT_TRUE(followed.grid.ColumnByKey("Rule").Unbound());
    EXPECT_EQ(followed.ComputedRule(1), Value("late"));
    followed.Rule().SetFunction({});
    EXPECT_FALSE(followed.grid.ColumnByKey("Rule").Unbound());
    EXPECT_TRUE(followed.ComputedRule(1).IsEmpty());
  });
}

TEST(HostColumns, OfAnObjectStayEmpty) {
  RunInFreshThread([] {
    FollowedGrid followed;
    followed.Rule().SetFunction([&](const RecordSet&) { return Value(followed.grid.Records()); });
    followed.columns.Follow(followed.map);
    EXPECT_TRUE(followed.ComputedRule(1).IsEmpty());
  });
}

TEST(HostColumns, LeaveTheColumnsThatTheWindowComputesUnbound) {
  RunInFreshThread([] {
    GridWorld world;
    GridFields map;
    AddDefaultHeaders(map);
    SetupGridColumns(world.grid, map);
    world.grid.ColumnByKey("Month").SetUnbound(true);
    HostColumns columns(world.platform, world.grid);
    columns.Follow(map);
    map.LocalNames("Month")->SetCaption("Number of the month");
    EXPECT_TRUE(world.grid.ColumnByKey("Month").Unbound());
    EXPECT_EQ(world.grid.ColumnByKey("Month").Caption(), "Number of the month");
  });
}

TEST(HostColumns, OfAMapWhoseListsAreOutOfStepAreFollowedAsFarAsTheGridHasThem) {
  RunInFreshThread([] {
    FollowedGrid followed;
    EXPECT_THROW(followed.map.Add("Again", "ID2"), platform::Failure);
    EXPECT_NO_THROW(followed.columns.Follow(followed.map));
    followed.Rule().SetCaption("Rule number");
    EXPECT_EQ(followed.grid.ColumnByKey("Rule").Caption(), "Rule number");
  });
}

}  // namespace
}  // namespace ferrowind
