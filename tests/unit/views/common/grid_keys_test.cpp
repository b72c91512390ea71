#include "ferrowind/views/common/grid_keys.h"

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

using platform::kSortAscending;
using platform::kSortDescending;
using platform::RecordSet;
using platform::Value;
using testing::GridWorld;
using testing::RunInFreshThread;

struct KeysWorld : GridWorld {
  KeysWorld() {
    AddColumns({"a", "b", "c"});
    grid.HoldColumns();
    AttachRows();
  }
  void AttachRows() {
    grid.HoldColumns();
    grid.AttachRecords(std::make_shared<RecordSet>(std::vector<std::string>{"a", "b", "c"},
                                                   std::vector<std::vector<Value>>{{1, 2, 3}}));
    world.log.Clear();
  }
  KeyStore sorts;
  KeyStore groups;
};

std::vector<platform::GridKey> KeysIn(const platform::GridKeyList& list) {
  std::vector<platform::GridKey> keys;
  for (std::int32_t i = 1; i <= list.Count(); ++i) keys.push_back(*list.Item(i));
  return keys;
}

void ExpectKey(const platform::GridKey& key, std::int16_t column, std::int32_t order, std::int16_t index) {
  EXPECT_EQ(key.ColIndex, column);
  EXPECT_EQ(key.SortOrder, order);
  EXPECT_EQ(key.Index, index);
}

TEST(SaveGridKeys, KeepsTheKeyObjectsThemselvesInTheirOrder) {
  RunInFreshThread([] {
    KeysWorld world;
    world.grid.SortKeys().Add(2, kSortDescending, 0);
    world.grid.SortKeys().Add(1, kSortAscending, 0);
    world.grid.GroupKeys().Add(3, kSortAscending, 0);
    const auto first = world.grid.SortKeys().Item(1);
    const auto group = world.grid.GroupKeys().Item(1);
    SaveGridKeys(world.grid, world.sorts, world.groups);
    ASSERT_EQ(world.sorts.size(), 2u);
    EXPECT_EQ(world.sorts[0], first);
    EXPECT_EQ(world.groups, KeyStore{group});
  });
}

TEST(SaveGridKeys, ReplacesWhatTheStoresHeld) {
  RunInFreshThread([] {
    KeysWorld world;
    world.grid.SortKeys().Add(1, kSortAscending, 0);
    world.grid.GroupKeys().Add(2, kSortAscending, 0);
    SaveGridKeys(world.grid, world.sorts, world.groups);
    world.AttachRows();
    SaveGridKeys(world.grid, world.sorts, world.groups);
    EXPECT_TRUE(world.sorts.empty());
    EXPECT_TRUE(world.groups.empty());
  });
}

TEST(SaveGridKeys, EmptiesBothStoresBeforeItFillsEither) {
  RunInFreshThread([] {
    KeysWorld world;
    world.grid.SortKeys().Add(1, kSortAscending, 0);
    std::size_t sorts_stored_then = 99;
    world.groups.emplace_back(new platform::GridKey, [&](const platform::GridKey* key) {
      sorts_stored_then = world.sorts.size();
      delete key;
    });
    SaveGridKeys(world.grid, world.sorts, world.groups);
    EXPECT_EQ(sorts_stored_then, 0u);
    EXPECT_EQ(world.sorts.size(), 1u);
  });
}

TEST(SaveGridKeys, TheKeysStayReadableAfterTheGridDroppedThem) {
  RunInFreshThread([] {
    KeysWorld world;
    world.grid.SortKeys().Add(2, kSortDescending, 0);
    SaveGridKeys(world.grid, world.sorts, world.groups);
    world.AttachRows();
    ASSERT_EQ(world.grid.SortKeys().Count(), 0);
    ExpectKey(*world.sorts[0], 2, kSortDescending, 1);
  });
}

TEST(SaveGridKeys, ChangesNothingOfTheGrid) {
  RunInFreshThread([] {
    KeysWorld world;
    world.grid.SortKeys().Add(1, kSortAscending, 0);
    world.world.log.Clear();
    SaveGridKeys(world.grid, world.sorts, world.groups);
    EXPECT_TRUE(world.world.log.Calls().empty());
    EXPECT_EQ(world.grid.SortKeys().Count(), 1);
  });
}

TEST(RestoreGridKeys, AddsTheLastSortKeyFirstThenTheGroupKeysAndRefreshesOnce) {
  RunInFreshThread([] {
    KeysWorld world;
    world.grid.SortKeys().Add(1, kSortAscending, 0);
    world.grid.SortKeys().Add(2, kSortDescending, 0);
    world.grid.GroupKeys().Add(3, kSortDescending, 0);
    world.grid.GroupKeys().Add(2, kSortAscending, 0);
    SaveGridKeys(world.grid, world.sorts, world.groups);
    world.AttachRows();
    RestoreGridKeys(world.grid, world.sorts, world.groups);
    EXPECT_THAT(world.world.log.Calls(),
                ::testing::ElementsAre("gex.SortKeys.Add(2, -1, 2)", "gex.SortKeys.Add(1, 1, 1)",
                                       "gex.GroupKeys.Add(2, 1, 2)", "gex.GroupKeys.Add(3, -1, 1)",
                                       "gex.Refresh(True)"));
  });
}

TEST(RestoreGridKeys, GivesTheGridTheKeysThatItHad) {
  RunInFreshThread([] {
    KeysWorld world;
    world.grid.SortKeys().Add(3, kSortAscending, 0);
    world.grid.SortKeys().Add(1, kSortDescending, 0);
    world.grid.SortKeys().Add(2, kSortAscending, 0);
    world.grid.GroupKeys().Add(2, kSortDescending, 0);
    SaveGridKeys(world.grid, world.sorts, world.groups);
    world.AttachRows();
    RestoreGridKeys(world.grid, world.sorts, world.groups);
    const auto sorts = KeysIn(world.grid.SortKeys());
    ASSERT_EQ(sorts.size(), 3u);
    ExpectKey(sorts[0], 3, kSortAscending, 1);
    ExpectKey(sorts[1], 1, kSortDescending, 2);
    ExpectKey(sorts[2], 2, kSortAscending, 3);
    ExpectKey(KeysIn(world.grid.GroupKeys()).at(0), 2, kSortDescending, 1);
  });
}

TEST(RestoreGridKeys, WithoutKeysAddsNothingAndStillRefreshesOnce) {
  RunInFreshThread([] {
    KeysWorld world;
    SaveGridKeys(world.grid, world.sorts, world.groups);
    EXPECT_TRUE(world.sorts.empty());
    EXPECT_TRUE(world.groups.empty());
    RestoreGridKeys(world.grid, world.sorts, world.groups);
    EXPECT_THAT(world.world.log.Calls(), ::testing::ElementsAre("gex.Refresh(True)"));
  });
}

TEST(RestoreGridKeys, LeavesTheStoresAsTheyAre) {
  RunInFreshThread([] {
    KeysWorld world;
    world.grid.SortKeys().Add(1, kSortAscending, 0);
    SaveGridKeys(world.grid, world.sorts, world.groups);
    const KeyStore before = world.sorts;
    world.AttachRows();
    RestoreGridKeys(world.grid, world.sorts, world.groups);
    EXPECT_EQ(world.sorts, before);
  });
}

TEST(RestoreGridKeys, AKeyThatTheGridRefusesIsTheCallersFailure) {
  RunInFreshThread([] {
    KeysWorld world;
    constexpr std::int32_t kSubscriptOutOfRange = 9;
    const platform::GridKey key{99, kSortAscending, 1};
    world.sorts.push_back(std::make_shared<platform::GridKey>(key));
    testing::ExpectFailure([&] { RestoreGridKeys(world.grid, world.sorts, world.groups); },
                           kSubscriptOutOfRange);
    EXPECT_FALSE(world.world.log.Contains("gex.Refresh(True)"));
  });
}

}  // namespace
}  // namespace ferrowind
