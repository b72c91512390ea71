#include "ferrowind/views/common/grid_reload.h"

#include <memory>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/run_in_fresh_thread.h"
#include "tests/unit/views/common/grid_world.h"

namespace ferrowind {
namespace {

using platform::RecordSet;
using platform::Value;
using ::testing::ElementsAre;
using testing::GridWorld;
using testing::RunInFreshThread;

/// What the rule was given last, and how many rows the grid had then.
thread_local GridPosition given;
thread_local std::int32_t rows_then = 0;

void Note(platform::Grid& grid, const GridPosition& before) {
  given = before;
  rows_then = grid.RowCount();
}

struct ReloadWorld : GridWorld {
  ReloadWorld() { AddColumns({"a", "b"}); }
  static std::shared_ptr<RecordSet> Records(int rows) {
    return std::make_shared<RecordSet>(
        std::vector<std::string>{"a", "b"},
        std::vector<std::vector<Value>>(static_cast<std::size_t>(rows), std::vector<Value>{1, 2}));
  }
  GridReload reload{platform.toolkit, grid, grid, Note};
};

TEST(GridReload, PreparesAttachesAndRestoresTheKeysUnderOneLock) {
  RunInFreshThread([] {
    ReloadWorld world;
    world.reload.Show(ReloadWorld::Records(3));
    world.grid.SortKeys().Add(1, platform::kSortAscending, 0);
    world.world.log.Clear();
    world.reload.Show(ReloadWorld::Records(2), [&] { world.world.log.Record("prepare"); });
    EXPECT_THAT(world.world.log.Calls(),
                ElementsAre("toolkit.LockUpdates(gex)", "prepare", "gex.HoldColumns()",
                            "gex.AttachRecords(records 2 rows)", "gex.Rebind()", "gex.SortKeys.Add(1, 1, 1)",
                            "gex.Refresh(True)", "toolkit.UnlockUpdates()"));
  });
}

TEST(GridReload, GivesTheRuleThePositionBeforeOnceTheGridHasItsNewRows) {
  RunInFreshThread([] {
    ReloadWorld world;
    world.reload.Show(ReloadWorld::Records(3));
    EXPECT_EQ(given.current_row, 0) << "a grid without records has no position";
    world.grid.SetCurrentRow(3);
    world.grid.SetFirstVisibleRow(2);
    world.grid.SetCurrentColumn(2);
    world.reload.Show(ReloadWorld::Records(5));
    EXPECT_EQ(given.current_row, 3);
    EXPECT_EQ(given.first_visible_row, 2);
    EXPECT_EQ(given.current_column, 2);
    EXPECT_EQ(rows_then, 5);
  });
}

TEST(GridReload, ThatShowsNothingKeepsColumnsAndKeys) {
  RunInFreshThread([] {
    ReloadWorld world;
    world.reload.Show(ReloadWorld::Records(3));
    world.grid.GroupKeys().Add(2, platform::kSortDescending, 0);
    world.reload.ShowNothing();
    EXPECT_EQ(world.grid.RowCount(), 0);
    EXPECT_EQ(world.grid.ColumnCount(), 2);
    EXPECT_EQ(world.grid.GroupKeys().Count(), 1);
    EXPECT_EQ(world.world.toolkit.LockedElement(), "");
  });
}

}  // namespace
}  // namespace ferrowind
