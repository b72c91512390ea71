#include <algorithm>
#include <utility>

#include "tests/contract/toolkit/grid_contract.h"

namespace ferrowind::contract {
namespace {

using platform::kSortAscending;
using platform::RecordSet;
using testing::ElementsAre;
using testing::IsEmpty;

/// The bookmarks of the sample's types 1 and 2 are 1, 2, 4 and 5.
class GridNarrowingContract : public GridContract {
 protected:
  void NarrowTo(std::vector<RecordSet::Bookmark> bookmarks) {
    grid.Narrow([bookmarks = std::move(bookmarks)](const auto&) {
      return [bookmarks](RecordSet::Bookmark bookmark) {
        return std::find(bookmarks.begin(), bookmarks.end(), bookmark) != bookmarks.end();
      };
    });
  }
};

TEST_F(GridNarrowingContract, LeavesRowsOutAndTakesThemBackIn) {
  ShowSample();
  NarrowTo({2, 5});
  EXPECT_THAT(Bookmarks(), ElementsAre(2, 5));
  EXPECT_EQ(grid.RowCount(), 2);
  grid.Narrow({});
  EXPECT_THAT(Bookmarks(), ElementsAre(1, 2, 3, 4, 5));
}

TEST_F(GridNarrowingContract, KeepsTheOrderAndTheKeys) {
  ShowSample();
  grid.SortKeys().Add(IndexOf("Name"), kSortAscending, 0);
  grid.Refresh(true);
  ASSERT_THAT(Bookmarks(), ElementsAre(3, 4, 2, 5, 1));
  NarrowTo({1, 2, 4});
  EXPECT_THAT(Bookmarks(), ElementsAre(4, 2, 1));
  EXPECT_EQ(grid.SortKeys().Count(), 1);
  grid.SortKeys().Clear();
  grid.Refresh(true);
  EXPECT_THAT(Bookmarks(), ElementsAre(1, 2, 4)) << "another order shows no more rows";
}

TEST_F(GridNarrowingContract, LeavesOutGroupsWithoutAnyRow) {
  ShowSample();
  grid.GroupKeys().Add(IndexOf("Type"), kSortAscending, 0);
  grid.Refresh(true);
  ASSERT_THAT(Bookmarks(), ElementsAre(0, 2, 4, 0, 1, 5, 0, 3));
  NarrowTo({3, 4});
  EXPECT_THAT(Bookmarks(), ElementsAre(0, 4, 0, 3));
}

TEST_F(GridNarrowingContract, KeepsTheCurrentRowThatIsStillOnShow) {
  ShowSample();
  grid.SetCurrentRow(4);
  int changes = 0;
  const auto subscription = grid.OnCurrentRowChange([&] { ++changes; });
  NarrowTo({2, 4});
  EXPECT_EQ(grid.CurrentRow(), 2);
  grid.Narrow({});
  EXPECT_EQ(grid.CurrentRow(), 4);
  EXPECT_EQ(changes, 0);
  NarrowTo({2});
  EXPECT_EQ(grid.CurrentRow(), 0);
  EXPECT_EQ(changes, 1);
}

TEST_F(GridNarrowingContract, AsksAnewForEveryRecordSetThatIsAttached) {
  const auto first = SampleRecords();
  Attach(first);
  std::vector<RecordSet::Bookmark> asked;
  std::shared_ptr<RecordSet> records_when_asked;
  grid.Narrow([&](const std::shared_ptr<RecordSet>& records) {
    records_when_asked = records;
    return [&](RecordSet::Bookmark bookmark) {
      asked.push_back(bookmark);
      return bookmark > 3;
    };
  });
  EXPECT_THAT(asked, ElementsAre(1, 2, 3, 4, 5));
  EXPECT_EQ(records_when_asked, first);
  asked.clear();
  const auto second = SampleRecords();
  second->SetFilter("TID1 <> 1");
  Attach(second);
  EXPECT_EQ(records_when_asked, second);
  EXPECT_THAT(asked, ElementsAre(1, 3, 5));
  EXPECT_THAT(Bookmarks(), ElementsAre(5));
  Attach(nullptr);
  EXPECT_THAT(Bookmarks(), IsEmpty());
}

TEST_F(GridNarrowingContract, CanLeaveOutEverything) {
  ShowSample();
  grid.SetCurrentRow(1);
  NarrowTo({});
  EXPECT_EQ(grid.RowCount(), 0);
  EXPECT_EQ(grid.CurrentRow(), 0);
  grid.Narrow({});
  EXPECT_EQ(grid.RowCount(), 5);
}

}  // namespace
}  // namespace ferrowind::contract
