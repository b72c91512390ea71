#include "ferrowind/views/common/update_lock.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/run_in_fresh_thread.h"
#include "tests/unit/views/common/grid_world.h"

namespace ferrowind {
namespace {

using testing::GridWorld;
using testing::RunInFreshThread;

TEST(UpdateLock, LocksForItsScope) {
  RunInFreshThread([] {
    GridWorld world;
    {
      const UpdateLock lock(world.platform.toolkit, world.grid);
      EXPECT_EQ(world.world.toolkit.LockedElement(), "gex");
    }
    EXPECT_EQ(world.world.toolkit.LockedElement(), "");
  });
}

TEST(UpdateLock, UnlocksOnceWhenUnlockedBeforeTheEndOfItsScope) {
  RunInFreshThread([] {
    GridWorld world;
    {
      UpdateLock lock(world.platform.toolkit, world.grid);
      lock.Unlock();
      EXPECT_EQ(world.world.toolkit.LockedElement(), "");
      lock.Unlock();
    }
    EXPECT_THAT(world.world.log.Calls(),
                ::testing::ElementsAre("toolkit.LockUpdates(gex)", "toolkit.UnlockUpdates()"));
  });
}

TEST(UpdateLock, InsideAnotherLockLeavesThatOneOn) {
  RunInFreshThread([] {
    GridWorld world;
    const UpdateLock outer(world.platform.toolkit, *world.form);
    { const UpdateLock inner(world.platform.toolkit, world.grid); }
    EXPECT_EQ(world.world.toolkit.LockedElement(), "fmGrid");
  });
}

}  // namespace
}  // namespace ferrowind
