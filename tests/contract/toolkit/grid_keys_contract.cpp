#include <algorithm>

#include "tests/contract/toolkit/grid_contract.h"

namespace ferrowind::contract {
namespace {

using platform::GridKey;
using platform::GridKeyList;
using platform::kSortAscending;
using platform::kSortDescending;
using platform::kSortNone;
using testing::ElementsAre;
namespace failure_number = platform::failure_number;

/// Both lists of a grid keep the same promises.
class GridKeysContract : public GridContract, public testing::WithParamInterface<bool> {
 protected:
  GridKeysContract() { ShowSample(); }
  [[nodiscard]] std::vector<int> Columns() const {
    std::vector<int> columns;
    for (std::int32_t i = 1; i <= keys.Count(); ++i) columns.push_back(keys.Item(i)->ColIndex);
    return columns;
  }
  [[nodiscard]] std::vector<int> Indices() const {
    std::vector<int> indices;
    for (std::int32_t i = 1; i <= keys.Count(); ++i) indices.push_back(keys.Item(i)->Index);
    return indices;
  }
  GridKeyList& keys = GetParam() ? grid.SortKeys() : grid.GroupKeys();
};

INSTANTIATE_TEST_SUITE_P(SortAndGroup, GridKeysContract, testing::Values(true, false),
                         [](const auto& run) { return run.param ? "SortKeys" : "GroupKeys"; });

TEST_P(GridKeysContract, AreNoneAtFirst) { EXPECT_EQ(keys.Count(), 0); }

TEST_P(GridKeysContract, AreAppendedAtPositionZero) {
  keys.Add(2, kSortAscending, 0);
  keys.Add(3, kSortDescending, 0);
  EXPECT_THAT(Columns(), ElementsAre(2, 3));
  EXPECT_EQ(keys.Item(1)->SortOrder, kSortAscending);
  EXPECT_EQ(keys.Item(2)->SortOrder, kSortDescending);
}

TEST_P(GridKeysContract, AreInsertedAtTheirPositionAndRenumbered) {
  keys.Add(2, kSortAscending, 0);
  keys.Add(3, kSortAscending, 1);
  keys.Add(1, kSortNone, 2);
  EXPECT_THAT(Columns(), ElementsAre(3, 1, 2));
  EXPECT_THAT(Indices(), ElementsAre(1, 2, 3));
}

TEST_P(GridKeysContract, AreAppendedAtAPositionBeyondTheEnd) {
  keys.Add(2, kSortAscending, 7);
  keys.Add(3, kSortAscending, 7);
  EXPECT_THAT(Columns(), ElementsAre(2, 3));
  EXPECT_THAT(Indices(), ElementsAre(1, 2));
}

TEST_P(GridKeysContract, ComeBackInTheirOrderWhenAddedLastFirst) {
  keys.Add(2, kSortAscending, 0);
  keys.Add(3, kSortDescending, 0);
  keys.Add(1, kSortNone, 0);
  std::vector<std::shared_ptr<const GridKey>> kept;
  for (std::int32_t i = 1; i <= keys.Count(); ++i) kept.push_back(keys.Item(i));
  Attach(SampleRecords());
  std::for_each(kept.rbegin(), kept.rend(),
                [&](const auto& key) { keys.Add(key->ColIndex, key->SortOrder, key->Index); });
  EXPECT_THAT(Columns(), ElementsAre(2, 3, 1));
  EXPECT_THAT(Indices(), ElementsAre(1, 2, 3));
  EXPECT_EQ(keys.Item(2)->SortOrder, kSortDescending);
}

TEST_P(GridKeysContract, AreDroppedByAnotherRecordSetAndKeepTheirLastValues) {
  keys.Add(3, kSortDescending, 0);
  const auto key = keys.Item(1);
  Attach(SampleRecords());
  EXPECT_EQ(keys.Count(), 0);
  EXPECT_EQ(key->ColIndex, 3);
  EXPECT_EQ(key->SortOrder, kSortDescending);
  EXPECT_EQ(key->Index, 1);
}

TEST_P(GridKeysContract, AreDroppedWhenTheRecordSetIsDetached) {
  keys.Add(3, kSortDescending, 0);
  grid.HoldColumns();
  grid.AttachRecords(nullptr);
  EXPECT_EQ(keys.Count(), 0);
}

TEST_P(GridKeysContract, AreSharedWithTheGridWhileTheyAreInIt) {
  keys.Add(3, kSortDescending, 0);
  const auto key = keys.Item(1);
  keys.Add(2, kSortAscending, 1);
  EXPECT_EQ(key->Index, 2);
  EXPECT_EQ(keys.Item(2), key);
}

TEST_P(GridKeysContract, AreNoneAfterClear) {
  keys.Add(3, kSortDescending, 0);
  keys.Clear();
  EXPECT_EQ(keys.Count(), 0);
}

TEST_P(GridKeysContract, CountFromOne) {
  keys.Add(3, kSortDescending, 0);
  for (const int position : {0, -1, 2}) {
    ExpectFailure(failure_number::kSubscriptOutOfRange, "", [&] { static_cast<void>(keys.Item(position)); });
  }
}

TEST_P(GridKeysContract, RefuseAColumnThatIsNotThere) {
  for (const std::int16_t column : {std::int16_t{0}, std::int16_t{-1}, std::int16_t{4}}) {
    ExpectFailure(failure_number::kSubscriptOutOfRange, "", [&] { keys.Add(column, kSortAscending, 0); });
  }
  ExpectFailure(failure_number::kSubscriptOutOfRange, "", [&] { keys.Add(1, kSortAscending, -1); });
  EXPECT_EQ(keys.Count(), 0);
}

TEST_P(GridKeysContract, RefuseAnOrderThatIsNone) {
  ExpectFailure(failure_number::kInvalidArgument, "", [&] { keys.Add(1, 2, 0); });
  ExpectFailure(failure_number::kInvalidArgument, "", [&] { keys.Add(1, -2, 0); });
  EXPECT_EQ(keys.Count(), 0);
}

TEST_P(GridKeysContract, ShowAfterARefresh) {
  keys.Add(2, kSortAscending, 0);
  EXPECT_THAT(Bookmarks(), ElementsAre(1, 2, 3, 4, 5));
  grid.Refresh(true);
  EXPECT_NE(Bookmarks(), std::vector<platform::RecordSet::Bookmark>({1, 2, 3, 4, 5}));
}

TEST_P(GridKeysContract, OfSortingAloneAreWhatAColumnTells) {
  keys.Add(2, kSortDescending, 0);
  EXPECT_EQ(grid.ColumnByKey("Date").SortOrder(), GetParam() ? kSortDescending : kSortNone);
  EXPECT_EQ(grid.ColumnByKey("Type").SortOrder(), kSortNone);
  keys.Clear();
  EXPECT_EQ(grid.ColumnByKey("Date").SortOrder(), kSortNone);
}

}  // namespace
}  // namespace ferrowind::contract
