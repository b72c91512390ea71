#include "tests/contract/toolkit/grid_contract.h"

namespace ferrowind::contract {
namespace {

using platform::Color;
using platform::GridFormat;
using platform::RecordSet;
using platform::Subscription;
using platform::Value;
using testing::ElementsAre;

constexpr Color kRed{255, 0, 0};
constexpr Color kMagenta{255, 0, 255};

class GridComputedCellsContract : public GridContract {
 protected:
  GridComputedCellsContract() {
    AddColumn("Day", "STUB_1").SetUnbound(true);
    ShowSample();
  }
  /// Answers for the column `Day` alone: the base plus the bookmark.
  [[nodiscard]] Subscription Compute() {
    return grid.OnUnboundValue([this](RecordSet::Bookmark bookmark, std::int16_t column, Value& receiver) {
      EXPECT_TRUE(receiver.IsEmpty());
      if (column == IndexOf("Day")) receiver = base + bookmark;
    });
  }
  std::int32_t base = 100;
};

TEST_F(GridComputedCellsContract, AskForTheirValueByBookmarkAndColumn) {
  const Subscription computed = Compute();
  EXPECT_EQ(grid.CellValue(1, "Day"), Value(101));
  EXPECT_EQ(grid.CellValue(5, "Day"), Value(105));
  EXPECT_EQ(under_test->CellText(grid, 2, "Day"), "102");
}

TEST_F(GridComputedCellsContract, AreEmptyWhenNobodyAnswers) { EXPECT_EQ(grid.CellValue(1, "Day"), Value()); }

TEST_F(GridComputedCellsContract, AreAskedForAnewByARefresh) {
  const Subscription computed = Compute();
  grid.Refresh(true);
  EXPECT_EQ(grid.CellValue(1, "Day"), Value(101));
  base = 200;
  grid.Refresh(true);
  EXPECT_EQ(grid.CellValue(1, "Day"), Value(201));
}

TEST_F(GridComputedCellsContract, AreAskedForAnewForAnotherRecordSet) {
  const Subscription computed = Compute();
  EXPECT_EQ(grid.CellValue(1, "Day"), Value(101));
  base = 200;
  Attach(SampleRecords());
  EXPECT_EQ(grid.CellValue(1, "Day"), Value(201));
}

TEST_F(GridComputedCellsContract, CanBeSortedBy) {
  const Subscription computed = grid.OnUnboundValue(
      [](RecordSet::Bookmark bookmark, std::int16_t, Value& receiver) { receiver = -bookmark; });
  grid.SortKeys().Add(IndexOf("Day"), platform::kSortAscending, 0);
  grid.Refresh(true);
  EXPECT_THAT(Bookmarks(), ElementsAre(5, 4, 3, 2, 1));
}

/// Computed cells that show a name and go by a number, as the names of months do.
class GridUnboundOrderContract : public GridComputedCellsContract {
 protected:
  /// "gamma" for the bookmarks 1 and 4, "alpha" for 2, 3 and 5; alpha goes by 2, gamma by 1.
  [[nodiscard]] static std::string NameOf(RecordSet::Bookmark bookmark) {
    return bookmark % 3 == 1 ? "gamma" : "alpha";
  }
  Subscription names = grid.OnUnboundValue(
      [](RecordSet::Bookmark bookmark, std::int16_t, Value& receiver) { receiver = NameOf(bookmark); });
  Subscription orders =
      grid.OnUnboundOrder([this](RecordSet::Bookmark bookmark, std::int16_t column, Value& receiver) {
        EXPECT_EQ(receiver, Value(NameOf(bookmark)));
        if (column == IndexOf("Day")) receiver = receiver == Value("gamma") ? 1 : 2;
      });
};

TEST_F(GridUnboundOrderContract, IsWhatTheCellsAreSortedBy) {
  grid.SortKeys().Add(IndexOf("Day"), platform::kSortAscending, 0);
  grid.Refresh(true);
  EXPECT_THAT(Bookmarks(), ElementsAre(1, 4, 2, 3, 5));
  EXPECT_EQ(grid.CellValue(1, "Day"), Value("gamma"));
  EXPECT_EQ(under_test->CellText(grid, 3, "Day"), "alpha");
}

TEST_F(GridUnboundOrderContract, IsWhatTheCellsAreGroupedByUnderTheirOwnText) {
  grid.GroupKeys().Add(IndexOf("Day"), platform::kSortAscending, 0);
  grid.Refresh(true);
  EXPECT_THAT(Bookmarks(), ElementsAre(0, 1, 4, 0, 2, 3, 5));
  EXPECT_THAT(under_test->GroupText(grid, 1), testing::HasSubstr("gamma"));
  EXPECT_THAT(under_test->GroupText(grid, 4), testing::HasSubstr("alpha"));
}

TEST_F(GridUnboundOrderContract, KeepsACollapsedGroupCollapsedThroughARefresh) {
  grid.GroupKeys().Add(IndexOf("Day"), platform::kSortAscending, 0);
  grid.Refresh(true);
  under_test->ToggleGroup(grid, 1);
  grid.Refresh(true);
  EXPECT_THAT(Bookmarks(), ElementsAre(0, 0, 2, 3, 5));
}

TEST_F(GridUnboundOrderContract, IsAskedForAnewByARefresh) {
  grid.SortKeys().Add(IndexOf("Day"), platform::kSortAscending, 0);
  grid.Refresh(true);
  orders = grid.OnUnboundOrder(
      [](RecordSet::Bookmark bookmark, std::int16_t, Value& receiver) { receiver = -bookmark; });
  grid.Refresh(true);
  EXPECT_THAT(Bookmarks(), ElementsAre(5, 4, 3, 2, 1));
}

TEST_F(GridUnboundOrderContract, IsNotAskedForOfABoundColumn) {
  orders = grid.OnUnboundOrder(
      [this](RecordSet::Bookmark, std::int16_t column, Value&) { EXPECT_EQ(column, IndexOf("Day")); });
  grid.SortKeys().Add(IndexOf("Type"), platform::kSortAscending, 0);
  grid.Refresh(true);
  EXPECT_THAT(Bookmarks(), ElementsAre(2, 4, 1, 5, 3));
}

TEST_F(GridComputedCellsContract, MayBeAnsweredByAHandlerThatMovesTheCursor) {
  const Subscription computed =
      grid.OnUnboundValue([this](RecordSet::Bookmark bookmark, std::int16_t, Value& receiver) {
        grid.Records()->MoveTo(bookmark);
        receiver = (*grid.Records())["TID1"];
      });
  EXPECT_EQ(grid.CellValue(3, "Day"), Value(3));
}

TEST_F(GridComputedCellsContract, TakeTheirFieldAgainWhenBoundAgain) {
  const Subscription computed = Compute();
  grid.ColumnByKey("Day").SetBoundField("TID1");
  grid.ColumnByKey("Day").SetUnbound(false);
  grid.Refresh(true);
  EXPECT_EQ(grid.CellValue(1, "Day"), Value(2));
}

class GridCellTextContract : public GridContract {
 protected:
  GridCellTextContract() { ShowSample(); }
};

TEST_F(GridCellTextContract, IsTheValueAsText) {
  EXPECT_EQ(under_test->CellText(grid, 1, "Type"), "2");
  EXPECT_EQ(under_test->CellText(grid, 1, "Name"), "d");
  EXPECT_EQ(under_test->CellText(grid, 3, "Name"), "");
}

TEST_F(GridCellTextContract, IsWhatAHandlerMakesOfIt) {
  const Subscription text =
      grid.OnCellText([this](RecordSet::Bookmark bookmark, std::int16_t column, std::string& shown) {
        if (column == IndexOf("Name")) shown += "/" + std::to_string(bookmark);
      });
  EXPECT_EQ(under_test->CellText(grid, 1, "Name"), "d/1");
  EXPECT_EQ(under_test->CellText(grid, 1, "Type"), "2");
  EXPECT_EQ(grid.CellValue(1, "Name"), Value("d"));
}

class GridFormatContract : public GridContract {
 protected:
  GridFormatContract() { ShowSample(); }
  void AddFormat(const std::string& key, const std::string& column, const Value& compared,
                 std::optional<Color> color, std::optional<bool> bold = std::nullopt) {
    GridFormat format;
    format.key = key;
    format.column_key = column;
    format.compared = compared;
    format.fore_color = color;
    format.bold = bold;
    grid.AddFormat(format);
  }
};

TEST_F(GridFormatContract, AppliesToTheRowsWhoseCellIsEqual) {
  EXPECT_EQ(grid.FormatCount(), 0);
  AddFormat("FC_Holiday", "Type", 2, kRed, true);
  EXPECT_EQ(grid.FormatCount(), 1);
  EXPECT_EQ(under_test->LookOf(grid, 1).fore_color, kRed);
  EXPECT_TRUE(under_test->LookOf(grid, 1).bold);
  EXPECT_EQ(under_test->LookOf(grid, 2).fore_color, std::nullopt);
  EXPECT_FALSE(under_test->LookOf(grid, 2).bold);
}

TEST_F(GridFormatContract, ComparesNumbersOfDifferentWidths) {
  AddFormat("FC_Holiday", "Type", std::int16_t{2}, kRed);
  EXPECT_EQ(under_test->LookOf(grid, 1).fore_color, kRed);
}

TEST_F(GridFormatContract, NeverAppliesToAnEmptyCellByNumber) {
  AddFormat("FC_Zero", "Name", 0, kRed);
  EXPECT_EQ(under_test->LookOf(grid, 3).fore_color, std::nullopt);
}

TEST_F(GridFormatContract, ComparesTheShownTextWhereThereIsAValueList) {
  platform::GridColumn& type = grid.ColumnByKey("Type");
  type.SetHasValueList(true);
  type.ValueList()->Add(2, "Holiday");
  AddFormat("FC_Holiday", "Type", "Holiday", kRed);
  AddFormat("FC_Code", "Type", 3, kMagenta);
  EXPECT_EQ(under_test->LookOf(grid, 1).fore_color, kRed);
  EXPECT_EQ(under_test->LookOf(grid, 3).fore_color, std::nullopt);
}

TEST_F(GridFormatContract, OfTheSameKeyTakesThePlaceOfTheOld) {
  AddFormat("FC_Holiday", "Type", 2, kRed);
  AddFormat("FC_Holiday", "Type", 3, kMagenta);
  EXPECT_EQ(grid.FormatCount(), 1);
  EXPECT_EQ(under_test->LookOf(grid, 1).fore_color, std::nullopt);
  EXPECT_EQ(under_test->LookOf(grid, 3).fore_color, kMagenta);
}

TEST_F(GridFormatContract, AddedFirstDecidesEachAttributeThatItSets) {
  AddFormat("FC_First", "Type", 2, kRed);
  AddFormat("FC_Second", "Name", "d", kMagenta, true);
  EXPECT_EQ(under_test->LookOf(grid, 1).fore_color, kRed);
  EXPECT_TRUE(under_test->LookOf(grid, 1).bold);
}

TEST_F(GridFormatContract, CanStrikeARowThrough) {
  GridFormat format;
  format.key = "FC_Deleted";
  format.column_key = "Type";
  format.compared = 2;
  format.strike_through = true;
  grid.AddFormat(format);
  EXPECT_TRUE(under_test->LookOf(grid, 1).strike_through);
  EXPECT_FALSE(under_test->LookOf(grid, 2).strike_through);
}

TEST_F(GridFormatContract, SurvivesTheRecordSet) {
  AddFormat("FC_Holiday", "Type", 2, kRed);
  Attach(SampleRecords());
  EXPECT_EQ(grid.FormatCount(), 1);
  EXPECT_EQ(under_test->LookOf(grid, 1).fore_color, kRed);
}

TEST_F(GridFormatContract, OfAColumnThatIsNotThereAppliesNowhere) {
  AddFormat("FC_Other", "Nowhere", 2, kRed);
  EXPECT_EQ(under_test->LookOf(grid, 1).fore_color, std::nullopt);
}

}  // namespace
}  // namespace ferrowind::contract
