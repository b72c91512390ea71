#include "ferrowind/platform/values/failure.h"

#include "tests/gui/grid/grid_fixture.h"

namespace ferrowind::qt {
namespace {

using platform::kSortAscending;
using platform::kSortDescending;
using platform::Value;

using GridRowsTest = GridTest;
using Texts = std::vector<std::string>;

TEST_F(GridRowsTest, AreThoseThatPassTheFilterWhenTheyAreAttached) {
  auto records = std::make_shared<platform::RecordSet>(
      std::vector<std::string>{"Name", "Type", "Day", "Note"}, Rows({{"a", 1}, {"b", 2}, {"c", 1}}));
  records->SetFilter("Type = 1");
  grid_->HoldColumns();
  grid_->AttachRecords(records);
  EXPECT_EQ(Shown(), (Texts{"a", "c"}));
  EXPECT_EQ(grid_->RowBookmark(2), 3);
  records->SetFilter("");
  EXPECT_EQ(grid_->RowCount(), 2);
  EXPECT_EQ(grid_->Records(), records);
}

TEST_F(GridRowsTest, AreSortedByAllKeysAndStayInOrderWhereTheKeysAreEqual) {
  Attach(Rows({{"b", 2}, {"A", 2}, {"a", 1}, {"B", 1}}));
  grid_->SortKeys().Add(1, kSortAscending, 0);
  EXPECT_EQ(Shown(), (Texts{"b", "A", "a", "B"})) << "keys show after the refresh only";
  grid_->Refresh(true);
  EXPECT_EQ(Shown(), (Texts{"A", "a", "b", "B"}));
  grid_->SortKeys().Add(2, kSortDescending, 1);
  grid_->Refresh(true);
  EXPECT_EQ(Shown(), (Texts{"A", "b", "a", "B"}));
}

TEST_F(GridRowsTest, LoseKeysCurrentRowAndSelectionWithAnotherRecordSet) {
  Attach(Rows({{"b", 2}, {"a", 1}}));
  SortBy(1, kSortAscending);
  GroupBy(2);
  grid_->SetCurrentRow(2);
  const auto kept = grid_->GroupKeys().Item(1);
  Attach(Rows({{"d", 2}, {"c", 1}}));
  EXPECT_EQ(grid_->SortKeys().Count(), 0);
  EXPECT_EQ(grid_->GroupKeys().Count(), 0);
  EXPECT_EQ(kept->ColIndex, 2);
  EXPECT_EQ(kept->Index, 1);
  EXPECT_EQ(grid_->CurrentRow(), 0);
  EXPECT_TRUE(grid_->SelectedRows().empty());
  EXPECT_EQ(Shown(), (Texts{"d", "c"}));
  grid_->HoldColumns();
  grid_->AttachRecords(nullptr);
  EXPECT_EQ(grid_->RowCount(), 0);
  EXPECT_EQ(grid_->Records(), nullptr);
}

TEST_F(GridRowsTest, ThatAreNoneAreRefused) {
  Attach(Rows({{"a", 1}}));
  for (const std::int32_t row : {-1, 2}) {
    EXPECT_THROW(grid_->SetCurrentRow(row), platform::Failure);
    EXPECT_THROW(grid_->SetFirstVisibleRow(row), platform::Failure);
    EXPECT_THROW((void)grid_->RowBookmark(row), platform::Failure);
    EXPECT_THROW((void)grid_->CellValue(row, "Name"), platform::Failure);
  }
  EXPECT_EQ(grid_->RowBookmark(0), 0);
  EXPECT_TRUE(grid_->CellValue(0, "Name").IsEmpty());
  EXPECT_THROW((void)grid_->CellValue(1, "Nothing"), platform::Failure);
}

TEST_F(GridRowsTest, BecomeCurrentByTheProgramAndTellIt) {
  Attach(Rows({{"a", 1}, {"b", 2}}));
  int changes = 0;
  const auto subscription = grid_->OnCurrentRowChange([&] { ++changes; });
  grid_->SetCurrentRow(2);
  EXPECT_EQ(grid_->CurrentRow(), 2);
  EXPECT_EQ(changes, 1);
  grid_->SetCurrentRow(2);
  EXPECT_EQ(changes, 1);
  grid_->SetCurrentRow(0);
  EXPECT_EQ(grid_->CurrentRow(), 0);
  EXPECT_TRUE(grid_->SelectedRows().empty());
  EXPECT_EQ(changes, 2);
}

TEST_F(GridRowsTest, KeepTheCurrentColumnApartFromTheRow) {
  Attach(Rows({{"a", 1}, {"b", 2}}));
  grid_->SetCurrentColumn(3);
  EXPECT_EQ(grid_->CurrentColumn(), 3);
  grid_->SetCurrentRow(2);
  EXPECT_EQ(grid_->CurrentColumn(), 3);
  EXPECT_EQ(View().currentIndex().column(), 2);
  Attach(Rows({{"c", 1}}));
  EXPECT_EQ(grid_->CurrentColumn(), 3);
  EXPECT_THROW(grid_->SetCurrentColumn(5), platform::Failure);
  EXPECT_THROW(grid_->SetCurrentColumn(-1), platform::Failure);
}

TEST_F(GridRowsTest, StayCurrentSelectedAndOnTopWhenTheyAreSorted) {
  std::vector<Row> rows;
  for (std::int32_t i = 0; i < 200; ++i) rows.push_back({"r", (i * 7) % 200, Value(), Value()});
  Attach(rows);
  grid_->SetMultiSelect(true);
  grid_->SetFirstVisibleRow(51);
  ASSERT_EQ(grid_->FirstVisibleRow(), 51);
  const auto top = grid_->RowBookmark(51);
  Click(60, 1);
  Click(55, 1, Qt::ControlModifier);
  const std::vector<platform::RecordSet::Bookmark> selected{grid_->RowBookmark(60), grid_->RowBookmark(55)};
  int changes = 0;
  const auto subscription = grid_->OnCurrentRowChange([&] { ++changes; });
  SortBy(2, kSortDescending);
  EXPECT_EQ(grid_->RowBookmark(grid_->CurrentRow()), selected[1]);
  ASSERT_EQ(grid_->SelectedRows().size(), 2U);
  EXPECT_EQ(grid_->RowBookmark(grid_->SelectedRows()[0]), selected[0]);
  EXPECT_EQ(grid_->RowBookmark(grid_->SelectedRows()[1]), selected[1]);
  EXPECT_EQ(changes, 0);
  // Unless it is so near the end that the view cannot begin with it.
  const std::int32_t last_possible = grid_->RowCount() - View().viewport()->height() / View().RowHeight() + 1;
  EXPECT_TRUE(grid_->RowBookmark(grid_->FirstVisibleRow()) == top ||
              grid_->FirstVisibleRow() == last_possible);
}

TEST_F(GridRowsTest, BeginAtTheTopWhenTheyAreBoundAnew) {
  std::vector<Row> rows(100, Row{"r", 1, Value(), Value()});
  Attach(rows);
  grid_->SetFirstVisibleRow(40);
  EXPECT_EQ(grid_->FirstVisibleRow(), 40);
  grid_->Rebind();
  EXPECT_EQ(grid_->FirstVisibleRow(), 1);
}

TEST_F(GridRowsTest, AreScrolledToOnceTheGridIsShown) {
  widget_->hide();
  std::vector<Row> rows(100, Row{"r", 1, Value(), Value()});
  Attach(rows);
  grid_->SetFirstVisibleRow(40);
  EXPECT_EQ(grid_->FirstVisibleRow(), 40);
  widget_->show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(widget_.get()));
  EXPECT_EQ(View().RowAt(0), 39);
  EXPECT_EQ(grid_->FirstVisibleRow(), 40);
}

TEST_F(GridRowsTest, AreSelectedInTheOrderOfTheOperator) {
  Attach(Rows({{"a", 1}, {"b", 1}, {"c", 1}, {"d", 1}, {"e", 1}}));
  grid_->SetMultiSelect(true);
  Click(4, 1);
  Click(2, 1, Qt::ControlModifier);
  Click(5, 1, Qt::ControlModifier);
  EXPECT_EQ(grid_->SelectedRows(), (std::vector<std::int32_t>{4, 2, 5}));
  Click(2, 1, Qt::ControlModifier);
  EXPECT_EQ(grid_->SelectedRows(), (std::vector<std::int32_t>{4, 5}));
  QTest::keyClick(&View(), Qt::Key_A, Qt::ControlModifier);
  EXPECT_EQ(grid_->SelectedRows().size(), 5U);
}

TEST_F(GridRowsTest, AreTheCurrentOneAloneWithoutMultipleSelection) {
  Attach(Rows({{"a", 1}, {"b", 1}}));
  EXPECT_FALSE(grid_->MultiSelect());
  Click(1, 1);
  Click(2, 1, Qt::ControlModifier);
  EXPECT_EQ(grid_->SelectedRows(), (std::vector<std::int32_t>{2}));
  grid_->SetMultiSelect(true);
  Click(1, 1, Qt::ControlModifier);
  EXPECT_EQ(grid_->SelectedRows().size(), 2U);
  grid_->SetMultiSelect(false);
  EXPECT_EQ(grid_->SelectedRows(), (std::vector<std::int32_t>{1}));
}

TEST_F(GridRowsTest, TakeTheLookOfTheFormatsThatApply) {
  auto& column = grid_->ColumnByKey("Type");
  column.SetHasValueList(true);
  column.ValueList()->Add(Value(std::int32_t{2}), "Holiday");
  Attach(Rows({{"a", 2}, {"b", 1}}));
  grid_->AddFormat(
      {"byText", "Type", platform::kFormatEqual, Value("Holiday"), platform::Color{255, 0, 0}, true});
  grid_->AddFormat(
      {"byName", "Name", platform::kFormatEqual, Value("a"), platform::Color{0, 0, 255}, false, true});
  grid_->AddFormat(
      {"byCode", "Type", platform::kFormatEqual, Value(std::int32_t{1}), platform::Color{0, 255, 0}});
  EXPECT_EQ(grid_->FormatCount(), 3);
  const GridContent& content = Model().Content();
  const grid_content::RowLook first = content.LookOf(0);
  EXPECT_EQ(first.fore_color, (platform::Color{255, 0, 0})) << "the format added first decides";
  EXPECT_TRUE(first.is_bold);
  EXPECT_TRUE(first.is_struck_through);
  EXPECT_EQ(content.LookOf(1), grid_content::RowLook())
      << "a value list is compared by its text, not by the code";
  grid_->AddFormat({"byText", "Type", platform::kFormatEqual, Value("Nothing")});
  EXPECT_EQ(grid_->FormatCount(), 3);
  EXPECT_FALSE(content.LookOf(0).is_bold);
}

TEST_F(GridRowsTest, ArePaintedInTheColourOfTheirFormat) {
  Attach({{std::string(30, 'W'), 1, Value(), Value()}});
  const auto has_red = [this] {
    const QImage image = View().grab().toImage();
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x) {
        const QColor color = image.pixelColor(x, y);
        if (color.red() > 200 && color.green() < 80 && color.blue() < 80) return true;
      }
    }
    return false;
  };
  EXPECT_FALSE(has_red());
  grid_->AddFormat(
      {"red", "Type", platform::kFormatEqual, Value(std::int16_t{1}), platform::Color{255, 0, 0}});
  EXPECT_TRUE(has_red());
}

}  // namespace
}  // namespace ferrowind::qt
