// What spares the operator a detour: widths that follow the data, keys that work at once.
#include <vector>

#include "tests/gui/grid/grid_fixture.h"

namespace ferrowind::qt {
namespace {

using platform::Value;

class GridComfortTest : public GridTest {
 protected:
  static constexpr const char* kLongName = "A name that needs much more room than a short one";

  int WidthOfName() { return Header().sectionSize(0); }
  std::vector<Row> ManyRows(const std::string& name) {
    return std::vector<Row>(60, Row{name, 1, Value(), Value()});
  }
};

TEST_F(GridComfortTest, WidensAColumnForTheRowsThatAreAddedToAFewOnes) {
  Attach(Rows({{"Short", 1}}));
  const int narrow = WidthOfName();
  Attach(Rows({{"Short", 1}, {kLongName, 1}}));
  EXPECT_GT(WidthOfName(), narrow);
}

TEST_F(GridComfortTest, WidensAColumnThatHadNoTextsInManyRows) {
  Attach(ManyRows(""));
  const int narrow = WidthOfName();
  Attach(ManyRows(kLongName));
  EXPECT_GT(WidthOfName(), narrow);
}

TEST_F(GridComfortTest, LeavesAColumnAloneThatWasFittedToManyTexts) {
  Attach(ManyRows("A name of middle length"));
  const int settled = WidthOfName();
  Attach(ManyRows(kLongName));
  EXPECT_EQ(WidthOfName(), settled);
}

TEST_F(GridComfortTest, MakesRoomForBoldTextsBeforeTheyAreShown) {
  Attach(Rows({{"A name of middle length", 1}}));
  const int plain = WidthOfName();
  grid_->AddFormat({.key = "bold", .column_key = "Type", .compared = std::int32_t{9}, .bold = true});
  Attach(Rows({{"A name of middle length", 1}}));
  EXPECT_GT(WidthOfName(), plain);
}

TEST_F(GridComfortTest, MakesRoomForAllTextsOfAValueListBeforeTheyAreShown) {
  Attach(Rows({{"One", 1}}));
  const int narrow = Header().sectionSize(1);
  grid_->ColumnByKey("Type").SetHasValueList(true);
  grid_->ColumnByKey("Type").ValueList()->Add(std::int32_t{9}, kLongName);
  Attach(Rows({{"One", 1}}));
  EXPECT_GT(Header().sectionSize(1), narrow);
}

TEST_F(GridComfortTest, MakesRoomForTheWidestTextWhereverItStandsAndWhateverItsLetters) {
  const QString wide_letters(16, QLatin1Char('W'));
  const QString letters_of_two_units = QStringLiteral("\U0001D56E\U0001D56F").repeated(8);
  const QString ideographs = QStringLiteral("\u65E5\u672C").repeated(8);
  for (const QString& widest : {wide_letters, letters_of_two_units, ideographs}) {
    const int room = QFontMetrics(View().font()).horizontalAdvance(widest);
    for (const bool stands_first : {true, false}) {
      std::vector<Row> rows(10, Row{std::string(20, 'i'), 1, Value(), Value()});
      rows.insert(stands_first ? rows.begin() : rows.end(), Row{widest.toStdString(), 1, Value(), Value()});
      Attach(rows);
      EXPECT_GE(WidthOfName(), room) << widest.toStdString();
    }
  }
}

TEST_F(GridComfortTest, SelectsTheRowThatTheKeyboardComesTo) {
  Attach(Rows({{"One", 1}, {"Two", 1}}));
  grid_->SetMultiSelect(true);
  ASSERT_TRUE(grid_->SelectedRows().empty());
  QFocusEvent event(QEvent::FocusIn, Qt::TabFocusReason);
  QCoreApplication::sendEvent(&View(), &event);
  EXPECT_EQ(grid_->SelectedRows(), std::vector<std::int32_t>{1});
}

TEST_F(GridComfortTest, AsksForTheMenuOfTheCurrentRowByShiftF10) {
  Attach(Rows({{"One", 1}}));
  grid_->SetCurrentRow(1);
  std::vector<std::int32_t> buttons;
  const auto subscription = grid_->OnMouseUp([&](std::int32_t button) { buttons.push_back(button); });
  QTest::keyClick(&View(), Qt::Key_F10, Qt::ShiftModifier);
  EXPECT_EQ(buttons, std::vector<std::int32_t>{platform::kRightButton});
}

TEST_F(GridComfortTest, BeginsATypedTextAnewAfterAMove) {
  Attach(Rows({{"Ant", 1}, {"Bee", 1}, {"Cat", 1}}));
  grid_->SetCurrentRow(1);
  QTest::keyClicks(&View(), "Be");
  ASSERT_EQ(grid_->CurrentRow(), 2);
  QTest::keyClick(&View(), Qt::Key_Home);
  QTest::keyClicks(&View(), "Ca");
  EXPECT_EQ(grid_->CurrentRow(), 3);
}

}  // namespace
}  // namespace ferrowind::qt
