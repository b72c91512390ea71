#include "ferrowind/adapters/grid_content/grid_layout.h"

#include "tests/gui/grid/grid_fixture.h"

namespace ferrowind::qt {
namespace {

using platform::kSortAscending;
using platform::kSortDescending;
using platform::Value;

class GridLayoutTest : public GridTest {
 protected:
  /// A second grid with the same columns and two more.
  void MakeOther() {
    other_widget_ = std::make_unique<GridWidget>();
    other_ = std::make_unique<QtGrid>(*other_widget_);
    for (const char* key : {"Extra", "Name", "Type", "Day", "Note", "More"})
      other_->AddColumn(key, 0, 1, key);
  }
  GridHeader& OtherHeader() { return other_widget_->View().Header(); }

  std::unique_ptr<GridWidget> other_widget_;
  std::unique_ptr<QtGrid> other_;
};

TEST_F(GridLayoutTest, IsRestoredByColumnKey) {
  Attach(Rows({{"a", 1}}));
  Header().moveSection(2, 0);
  Header().resizeSection(1, 123);
  grid_->ColumnByKey("Note").SetVisible(false);
  grid_->SortKeys().Add(1, kSortDescending, 0);
  grid_->GroupKeys().Add(3, kSortAscending, 0);
  const std::string layout = grid_->SaveLayout();
  MakeOther();
  ASSERT_TRUE(other_->RestoreLayout(layout));
  EXPECT_EQ(OtherHeader().visualIndex(3), 0) << "Day comes first";
  EXPECT_EQ(OtherHeader().visualIndex(1), 1);
  EXPECT_EQ(OtherHeader().sectionSize(2), 123);
  EXPECT_FALSE(other_->ColumnByKey("Note").Visible());
  EXPECT_TRUE(other_->ColumnByKey("More").Visible());
  EXPECT_EQ(other_->ColumnByKey("Name").SortOrder(), kSortDescending);
  ASSERT_EQ(other_->GroupKeys().Count(), 1);
  EXPECT_EQ(other_->GroupKeys().Item(1)->ColIndex, 4);
}

TEST_F(GridLayoutTest, KeepsWidthsWhenRowsComeLater) {
  Header().resizeSection(0, 222);
  const std::string layout = grid_->SaveLayout();
  Header().resizeSection(0, 50);
  ASSERT_TRUE(grid_->RestoreLayout(layout));
  Attach(Rows({{std::string(100, 'W'), 1}}));
  EXPECT_EQ(Header().sectionSize(0), 222);
}

TEST_F(GridLayoutTest, KeepsTheWidthOfAHiddenColumn) {
  Header().resizeSection(1, 177);
  grid_->ColumnByKey("Type").SetVisible(false);
  const std::string layout = grid_->SaveLayout();
  grid_->ColumnByKey("Type").SetVisible(true);
  Header().resizeSection(1, 40);
  ASSERT_TRUE(grid_->RestoreLayout(layout));
  grid_->ColumnByKey("Type").SetVisible(true);
  EXPECT_EQ(Header().sectionSize(1), 177);
}

TEST_F(GridLayoutTest, OfAGridWithoutColumnsIsEmpty) {
  grid_->AttachRecords(nullptr);
  EXPECT_EQ(grid_->SaveLayout(), "");
}

TEST_F(GridLayoutTest, ThatIsDamagedChangesNothing) {
  Header().moveSection(2, 0);
  const std::string before = grid_->SaveLayout();
  for (std::size_t length = 0; length < before.size(); ++length) {
    EXPECT_FALSE(grid_->RestoreLayout(before.substr(0, length))) << length;
  }
  for (const char* text :
       {"[]", "{}", "null", "\xFF\xFE", R"({"gridLayout":2,"columns":[],"sort":[],"groups":[]})",
        R"({"gridLayout":1,"columns":[{"key":"Name","width":-5,"visible":true}],"sort":[],"groups":[]})",
        R"({"gridLayout":1,"columns":[{"key":"Name","width":1e99,"visible":true}],"sort":[],"groups":[]})",
        R"({"gridLayout":1,"columns":[{"key":"Name","width":50,"visible":"yes"}],"sort":[],"groups":[]})",
        R"({"gridLayout":1,"columns":[{"key":"Name","width":50,"visible":true},{"key":"NAME","width":50,)"
        R"("visible":true}],"sort":[],"groups":[]})",
        R"({"gridLayout":1,"columns":[{"key":"Name","width":50,"visible":true}],)"
        R"("sort":[{"column":"Name","order":7}],"groups":[]})"}) {
    EXPECT_FALSE(grid_->RestoreLayout(text)) << text;
  }
  EXPECT_EQ(grid_->SaveLayout(), before);
}

TEST_F(GridLayoutTest, OfAnotherGridChangesNothing) {
  const std::string before = grid_->SaveLayout();
  grid_content::GridLayout foreign;
  foreign.columns = {{"Alien", 50, true}};
  foreign.sort_keys = {{"Alien", kSortAscending}};
  EXPECT_FALSE(grid_->RestoreLayout(grid_content::EncodeLayout(foreign)));
  EXPECT_EQ(grid_->SaveLayout(), before);
}

TEST_F(GridLayoutTest, RestoredOverRowsSortsAndGroupsThemAtOnce) {
  Attach(Rows({{"b", 1}, {"a", 1}}));
  SortBy(1, kSortAscending);
  const std::string layout = grid_->SaveLayout();
  Attach(Rows({{"b", 1}, {"a", 1}}));
  EXPECT_EQ(Shown().front(), "b");
  ASSERT_TRUE(grid_->RestoreLayout(layout));
  EXPECT_EQ(Shown().front(), "a");
}

}  // namespace
}  // namespace ferrowind::qt
