#include <algorithm>
#include <random>
#include <set>

#include "tests/gui/grid/grid_fixture.h"

namespace ferrowind::qt {
namespace {

using platform::Value;

/// Keys, clicks and changes by the program in any order, seeded so that what fails once fails always.
class GridRandomTest : public GridTest, public ::testing::WithParamInterface<unsigned> {
 protected:
  void Step(std::mt19937& random) {
    const auto below = [&](int limit) { return static_cast<int>(random() % static_cast<unsigned>(limit)); };
    const auto column = static_cast<std::int16_t>(1 + below(4));
    action_ = below(15);
    switch (action_) {
      case 0: {
        std::vector<Row> rows;
        for (int i = below(60); i > 0; --i)
          rows.push_back({std::to_string(below(9)), std::int32_t{below(4)}, Value(), Value()});
        Attach(rows);
        break;
      }
      case 1:
        grid_->SortKeys().Add(column, below(3) - 1, static_cast<std::int16_t>(below(4)));
        grid_->Refresh(below(2) == 0);
        break;
      case 2:
        if (grid_->GroupKeys().Count() > 2) grid_->GroupKeys().Clear();
        grid_->GroupKeys().Add(column, below(3) - 1, 0);
        grid_->Refresh(below(2) == 0);
        break;
      case 3:
        grid_->SortKeys().Clear();
        grid_->Refresh(true);
        break;
      case 4:
        below(2) == 0 ? grid_->CollapseAllGroups() : grid_->ExpandAllGroups();
        break;
      case 5:
        grid_->ExpandSelection();
        break;
      case 6:
        grid_->SetMultiSelect(below(2) == 0);
        break;
      case 7:
        grid_->SetCurrentRow(below(grid_->RowCount() + 1));
        break;
      case 8:
        grid_->ColumnAt(column).SetVisible(below(3) > 0);
        break;
      case 9:
        QTest::mouseClick(View().viewport(), below(3) == 0 ? Qt::RightButton : Qt::LeftButton,
                          below(2) == 0 ? Qt::ShiftModifier : Qt::ControlModifier,
                          {below(View().viewport()->width()), below(View().viewport()->height())});
        break;
      case 10:
        QTest::mouseClick(View().viewport(), Qt::LeftButton, {}, {10, below(View().viewport()->height())});
        break;
      case 11:
        Drag(*Header().viewport(), {below(600), 8}, {below(600), below(30) - 20});
        break;
      case 12:
        (void)grid_->RestoreLayout(grid_->SaveLayout());
        break;
      case 13:
        grid_->SetMarksRowRanges(below(2) == 0);
        break;
      default: {
        const Qt::Key keys[] = {Qt::Key_Up,   Qt::Key_Down, Qt::Key_Left,     Qt::Key_Right,
                                Qt::Key_Home, Qt::Key_End,  Qt::Key_PageDown, Qt::Key_Minus,
                                Qt::Key_Plus, Qt::Key_A,    Qt::Key_3,        Qt::Key_Space};
        const Qt::KeyboardModifiers modifiers[] = {Qt::NoModifier, Qt::ShiftModifier, Qt::ControlModifier};
        QTest::keyClick(&View(), keys[below(12)], modifiers[below(3)]);
      }
    }
  }

  int action_ = 0;

  void ExpectSound() {
    ASSERT_EQ(Model().rowCount(), grid_->RowCount());
    ASSERT_LE(grid_->CurrentRow(), grid_->RowCount());
    ASSERT_LE(grid_->FirstVisibleRow(), grid_->RowCount());
    std::size_t records = 0;
    for (std::int32_t row = 1; row <= grid_->RowCount(); ++row)
      if (grid_->RowBookmark(row) != 0) ++records;
    ASSERT_LE(records, grid_->Records() == nullptr ? 0U : grid_->Records()->RowCount());
    const auto selected = grid_->SelectedRows();
    for (const std::int32_t row : selected) ASSERT_NE(grid_->RowBookmark(row), 0);
    ASSERT_EQ(std::set<std::int32_t>(selected.begin(), selected.end()).size(), selected.size());
    if (grid_->CurrentRow() > 0)
      ASSERT_TRUE(View().selectionModel()->hasSelection()) << "nothing is seen as chosen";
    const auto marked = grid_->MarkedRows();
    ASSERT_TRUE(std::is_sorted(marked.begin(), marked.end()));
    for (const std::int32_t row : marked) {
      ASSERT_TRUE(View().selectionModel()->isSelected(Model().index(row - 1, 0))) << "row " << row;
    }
    if (grid_->MultiSelect()) ASSERT_EQ(selected.size(), marked.size());
  }
};

TEST_P(GridRandomTest, StaysSoundWhateverIsDoneToIt) {
  std::mt19937 random(GetParam());
  grid_->SetGroupByBoxVisible(true);
  for (int step = 0; step < 250; ++step) {
    Step(random);
    SCOPED_TRACE("step " + std::to_string(step) + ", action " + std::to_string(action_));
    if (step % 10 == 0) View().grab();
    ExpectSound();
    if (HasFatalFailure()) return;
  }
}

INSTANTIATE_TEST_SUITE_P(Seeds, GridRandomTest, ::testing::Values(1U, 2U, 3U, 4U, 5U, 6U));

}  // namespace
}  // namespace ferrowind::qt
