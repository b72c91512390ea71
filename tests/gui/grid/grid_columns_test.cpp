#include "ferrowind/platform/values/failure.h"

#include "tests/gui/grid/grid_fixture.h"

namespace ferrowind::qt {
namespace {

using platform::Failure;
using platform::Value;
namespace failure_number = platform::failure_number;

template <typename Call>
std::int32_t FailureOf(Call call) {
  try {
    call();
  } catch (const Failure& failure) {
    return failure.Number();
  }
  return 0;
}

using GridColumnsTest = GridTest;

TEST_F(GridColumnsTest, AreFoundByKeyWhateverTheLetterCaseAndByIndex) {
  EXPECT_EQ(grid_->ColumnByKey("tYPE").Index(), 2);
  EXPECT_EQ(grid_->ColumnAt(3).Key(), "Day");
  EXPECT_EQ(grid_->ColumnCount(), 4);
}

TEST_F(GridColumnsTest, RefuseAKeyInUseAndAnUnknownOneByName) {
  EXPECT_EQ(FailureOf([&] { grid_->AddColumn("Again", 0, 1, "NAME"); }), failure_number::kKeyNotUnique);
  EXPECT_EQ(FailureOf([&] { (void)grid_->ColumnByKey("Nothing"); }), failure_number::kElementNotFound);
  EXPECT_EQ(FailureOf([&] { (void)grid_->ColumnAt(5); }), failure_number::kSubscriptOutOfRange);
  EXPECT_EQ(FailureOf([&] { (void)grid_->ColumnAt(0); }), failure_number::kSubscriptOutOfRange);
  EXPECT_EQ(FailureOf([&] { grid_->AddColumn("Odd", 1, 1, "Odd"); }), failure_number::kInvalidArgument);
  EXPECT_EQ(FailureOf([&] { grid_->AddColumn("Odd", 0, 0, "Odd"); }), failure_number::kInvalidArgument);
  EXPECT_EQ(grid_->ColumnCount(), 4);
}

TEST_F(GridColumnsTest, ThatWereNotHeldAreDroppedWithTheRecordSet) {
  grid_->HoldColumns();
  AddColumn("Late", "Name");
  grid_->AttachRecords(nullptr);
  EXPECT_EQ(grid_->ColumnCount(), 4);
  grid_->AttachRecords(nullptr);
  EXPECT_EQ(grid_->ColumnCount(), 0);
}

TEST_F(GridColumnsTest, OfAHiddenColumnStillGiveValues) {
  grid_->ColumnByKey("Note").SetVisible(false);
  EXPECT_TRUE(Header().isSectionHidden(3));
  Attach({{"a", 1, Value(), "kept"}});
  EXPECT_EQ(grid_->CellValue(1, "Note"), Value("kept"));
}

TEST_F(GridColumnsTest, BoundToAFieldThatIsNotThereAreEmpty) {
  grid_->ColumnByKey("Note").SetBoundField("STUB_2");
  Attach({{"a", 1, Value(), "kept"}});
  EXPECT_TRUE(grid_->CellValue(1, "Note").IsEmpty());
}

TEST_F(GridColumnsTest, AreAsWideAsTheirContentsAtFirst) {
  Attach({{"a", 1, Value(), std::string(40, 'W')}});
  EXPECT_GT(Header().sectionSize(3), Header().sectionSize(0) * 2);
  EXPECT_GE(Header().sectionSize(0), View().fontMetrics().horizontalAdvance("Names"));
}

TEST_F(GridColumnsTest, KeepTheWidthThatTheOperatorGaveWhenRowsAreReplaced) {
  Attach({{"a", 1, Value(), "n"}});
  const int edge = Header().sectionViewportPosition(0) + Header().sectionSize(0) - 1;
  Drag(*Header().viewport(), {edge, 5}, {edge + 60, 5});
  const int widened = Header().sectionSize(0);
  EXPECT_GT(widened, edge + 50);
  Attach({{"b", 2, Value(), "n"}});
  EXPECT_EQ(Header().sectionSize(0), widened);
}

TEST_F(GridColumnsTest, ShowTheTextsOfTheirValueListAndLookThemUp) {
  auto& column = grid_->ColumnByKey("Type");
  EXPECT_FALSE(column.HasValueList());
  EXPECT_EQ(column.ValueList(), nullptr);
  column.SetHasValueList(true);
  column.ValueList()->Add(Value(std::int32_t{2}), "Holiday");
  column.ValueList()->Add(Value(std::int32_t{2}), "Another");
  EXPECT_EQ(column.ValueList()->Count(), 2);
  EXPECT_EQ(column.ValueList()->TextOf(Value(std::int64_t{2})), "Holiday");
  EXPECT_EQ(FailureOf([&] { (void)column.ValueList()->TextOf(Value(std::int32_t{3})); }),
            failure_number::kElementNotFound);
  Attach(Rows({{"a", 2}, {"b", 7}}));
  EXPECT_EQ(Model().data(Model().index(0, 1), Qt::DisplayRole).toString(), "Holiday");
  EXPECT_EQ(Model().data(Model().index(1, 1), Qt::DisplayRole).toString(), "7");
  EXPECT_EQ(grid_->CellValue(1, "Type"), Value(std::int32_t{2}));
  column.SetHasValueList(false);
  EXPECT_EQ(Model().data(Model().index(0, 1), Qt::DisplayRole).toString(), "2");
}

TEST_F(GridColumnsTest, ShowDatesInTheShortFormatOfTheLocaleAndNumbersToTheRight) {
  Attach({{"a", 1, platform::Date(2026, 5, 1), "n"}});
  EXPECT_EQ(Model().data(Model().index(0, 2), Qt::DisplayRole).toString(),
            QLocale().toString(QDate(2026, 5, 1), QLocale::ShortFormat));
  EXPECT_TRUE(Model().data(Model().index(0, 1), Qt::TextAlignmentRole).toInt() & Qt::AlignRight);
  EXPECT_TRUE(Model().data(Model().index(0, 0), Qt::TextAlignmentRole).toInt() & Qt::AlignLeft);
}

TEST_F(GridColumnsTest, HaveCaptionsAlignedWithTheirFirstValue) {
  const auto alignment = [&](int column) {
    return Model().headerData(column, Qt::Horizontal, Qt::TextAlignmentRole).toInt() &
           Qt::AlignHorizontal_Mask;
  };
  EXPECT_EQ(alignment(1), Qt::AlignLeft);
  Attach({{"a", Value(), Value(), Value()}, {"b", 7, Value(), Value()}});
  EXPECT_EQ(alignment(0), Qt::AlignLeft);
  EXPECT_EQ(alignment(1), Qt::AlignRight);
  EXPECT_EQ(alignment(2), Qt::AlignLeft);
  grid_->ColumnByKey("Type").SetHasValueList(true);
  EXPECT_EQ(alignment(1), Qt::AlignLeft);
}

TEST_F(GridColumnsTest, ThatAreUnboundAskForEachCellOnceUntilARecomputation) {
  int asked = 0;
  const auto subscription = grid_->OnUnboundValue(
      [&](platform::RecordSet::Bookmark bookmark, std::int16_t column, Value& receiver) {
        ++asked;
        EXPECT_TRUE(receiver.IsEmpty());
        receiver = bookmark * 100 + column;
      });
  grid_->ColumnByKey("Note").SetUnbound(true);
  Attach(Rows({{"a", 1}, {"b", 2}}));
  EXPECT_EQ(grid_->CellValue(2, "Note"), Value(std::int32_t{204}));
  EXPECT_EQ(grid_->CellValue(2, "Note"), Value(std::int32_t{204}));
  View().grab();
  const int after_painting = asked;
  EXPECT_EQ(asked, 2);
  grid_->Refresh(false);
  View().grab();
  EXPECT_EQ(asked, after_painting);
  grid_->Refresh(true);
  EXPECT_EQ(grid_->CellValue(2, "Note"), Value(std::int32_t{204}));
  EXPECT_GT(asked, after_painting);
}

TEST_F(GridColumnsTest, TakeAnotherTextFromWhoIsAskedForIt) {
  Attach(Rows({{"a", 1}, {"b", 2}}));
  const auto subscription =
      grid_->OnCellText([](platform::RecordSet::Bookmark bookmark, std::int16_t column, std::string& text) {
        if (column == 1 && bookmark == 2) text = "<" + text + ">";
      });
  EXPECT_EQ(Shown(), (std::vector<std::string>{"a", "<b>"}));
}

TEST_F(GridColumnsTest, SurviveAHandlerThatThrows) {
  grid_->ColumnByKey("Note").SetUnbound(true);
  const auto subscription = grid_->OnUnboundValue(
      [](platform::RecordSet::Bookmark, std::int16_t, Value&) { throw platform::TypeMismatch(); });
  Attach(Rows({{"a", 1}}));
  View().grab();
  EXPECT_TRUE(grid_->CellValue(1, "Note").IsEmpty());
}

TEST_F(GridColumnsTest, MoveWhenTheirHeaderIsDraggedAndKeepTheirIndex) {
  Attach(Rows({{"a", 1}}));
  Drag(*Header().viewport(), HeaderAt(1), HeaderAt(2) + QPoint(Header().sectionSize(1) / 2 - 6, 0));
  EXPECT_EQ(Header().visualIndex(0), 1);
  EXPECT_EQ(Header().visualIndex(1), 0);
  EXPECT_EQ(grid_->ColumnByKey("Name").Index(), 1);
}

}  // namespace
}  // namespace ferrowind::qt
