#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QCalendarWidget>
#include <QClipboard>
#include <QPushButton>
#include <QTest>
#include <QVBoxLayout>
#include <QWheelEvent>
#include <initializer_list>
#include <utility>

#include <gtest/gtest.h>

#include "ferrowind/adapters/qt/controls/qt_date_picker.h"
#include "ferrowind/adapters/qt/controls/refusal_note.h"

namespace ferrowind::qt {
namespace {

using platform::Date;

TEST(QtDateFormatTest, QuotesWhatIsNoField) {
  EXPECT_EQ(QtDateFormat("d  MMMM"), "d'  'MMMM");
  EXPECT_EQ(QtDateFormat("yyyy"), "yyyy");
  EXPECT_EQ(QtDateFormat("h d's"), "'h 'd'''s'");
}

constexpr const char* kNoDate =
    "This is no date. Write a day and a month without a year, such as 31 December or 31/12.";

/// A window with a date field on 4 July 2028, its note and a button; British. The field has the focus.
class DatePickerTest : public ::testing::Test {
 protected:
  DatePickerTest() {
    auto* layout = new QVBoxLayout(&window_);
    layout->addWidget(&field_);
    layout->addWidget(&note_);
    layout->addWidget(&button_);
    QObject::connect(&field_, &DateField::RefusalChanged, &note_, &RefusalNote::ShowRefusal);
    field_.setLocale(QLocale(QStringLiteral("en_GB")));
    picker_.SetCustomFormat("d  MMMM");
    picker_.SetDate({2028, 7, 4});
    window_.show();
    window_.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window_));
    button_.setFocus();
    QTest::keyClick(&button_, Qt::Key_Tab);
    EXPECT_TRUE(field_.hasFocus());
  }

  void Type(const char* text) { QTest::keyClicks(&field_, QString::fromUtf8(text)); }
  void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) { QTest::keyClick(&field_, key, modifiers); }
  void ExpectRefused(const char* text, const char* why) {
    EXPECT_EQ(field_.text().toStdString(), text);
    EXPECT_TRUE(field_.IsRefused());
    EXPECT_TRUE(note_.isVisible());
    EXPECT_EQ(note_.text().toStdString(), why);
    EXPECT_EQ(field_.accessibleDescription().toStdString(), why);
  }
  void ExpectShown(const char* text, const Date& date) {
    EXPECT_EQ(field_.text().toStdString(), text);
    EXPECT_EQ(picker_.Date(), date);
    EXPECT_TRUE(picker_.RequireDate());
    EXPECT_FALSE(note_.isVisible());
  }
  QAbstractItemView& DaysOfPopup() { return *field_.Popup()->findChild<QAbstractItemView*>(); }

  QWidget window_;
  DateField& field_ = *new DateField(&window_);
  RefusalNote& note_ = *new RefusalNote(&window_);
  QPushButton& button_ = *new QPushButton(&window_);
  QtDatePicker picker_{field_};
};

TEST_F(DatePickerTest, ShowsItsDateInItsFormat) { ExpectShown("4  July", {2028, 7, 4}); }

TEST_F(DatePickerTest, TakesATypedDayInPlaceOfItsTextAndShowsItWhenItIsLeft) {
  Type("31/12");
  EXPECT_EQ(picker_.Date(), Date(2028, 12, 31));
  Press(Qt::Key_Tab);
  ExpectShown("31  December", {2028, 12, 31});
}

TEST_F(DatePickerTest, TakesATypedDayOnEnter) {
  Type("1.5.");
  Press(Qt::Key_Return);
  ExpectShown("1  May", {2028, 5, 1});
}

TEST_F(DatePickerTest, TakesAPastedDay) {
  QApplication::clipboard()->setText(QStringLiteral(" 29 Feb\n"));
  QTest::keySequence(&field_, QKeySequence::Paste);
  Press(Qt::Key_Tab);
  ExpectShown("29  February", {2028, 2, 29});
}

TEST_F(DatePickerTest, TakesAChangeInTheMiddleOfItsText) {
  Press(Qt::Key_Home);
  Press(Qt::Key_Delete);
  Type("17");
  Press(Qt::Key_Tab);
  ExpectShown("17  July", {2028, 7, 17});
}

TEST_F(DatePickerTest, KeepsAndMarksATextThatIsNoDayWhenItIsLeft) {
  Type("31 April");
  EXPECT_FALSE(note_.isVisible()) << "while it is being typed";
  Press(Qt::Key_Tab);
  ExpectRefused("31 April", "There is no 31 April: the month has 30 days.");
  EXPECT_EQ(picker_.Date(), Date(2028, 7, 4));
}

TEST_F(DatePickerTest, MarksATextThatIsNoDayOnEnter) {
  Type("31 Foo");
  Press(Qt::Key_Return);
  ExpectRefused("31 Foo", kNoDate);
}

TEST_F(DatePickerTest, NeverHoldsWhatStoodThereWhileAnotherDayWasTyped) {
  Type("1/1x");
  EXPECT_EQ(picker_.Date(), Date(2028, 7, 4));
  EXPECT_FALSE(picker_.RequireDate());
  EXPECT_TRUE(field_.hasFocus());
  ExpectRefused("1/1x", kNoDate);
}

TEST_F(DatePickerTest, RefusesAnEmptyText) {
  Press(Qt::Key_Delete);
  EXPECT_FALSE(picker_.RequireDate());
  ExpectRefused("", kNoDate);
}

TEST_F(DatePickerTest, UnmarksATextAsSoonAsItIsADay) {
  Type("29 Fe");
  Press(Qt::Key_Return);
  ExpectRefused("29 Fe", kNoDate);
  Type("b");
  EXPECT_FALSE(note_.isVisible());
  EXPECT_EQ(picker_.Date(), Date(2028, 2, 29));
}

TEST_F(DatePickerTest, RefusesTheTwentyNinthOfFebruaryInACommonYear) {
  picker_.SetDate({2027, 7, 4});
  field_.selectAll();
  Type("29 February");
  EXPECT_FALSE(picker_.RequireDate());
  ExpectRefused("29 February", "There is no 29 February in 2027.");
}

TEST_F(DatePickerTest, HidesItsNoteWithItselfAndKeepsItsText) {
  Type("31 Foo");
  Press(Qt::Key_Return);
  field_.hide();
  EXPECT_FALSE(note_.isVisible());
  field_.show();
  ExpectRefused("31 Foo", kNoDate);
}

TEST_F(DatePickerTest, HasAThickEdgeWhileItIsRefused) {
  const QImage plain = field_.grab().toImage();
  Type("31 Foo");
  Press(Qt::Key_Return);
  const QImage marked = field_.grab().toImage();
  const QPoint inside_edge(plain.width() / 2, 1);
  EXPECT_NE(plain.pixelColor(inside_edge), marked.pixelColor(inside_edge));
}

TEST_F(DatePickerTest, StepsByDaysAndMonthsWithinItsYear) {
  Press(Qt::Key_Up);
  ExpectShown("5  July", {2028, 7, 5});
  Press(Qt::Key_Down);
  Press(Qt::Key_PageDown);
  ExpectShown("4  June", {2028, 6, 4});
  Press(Qt::Key_PageUp);
  ExpectShown("4  July", {2028, 7, 4});
  picker_.SetDate({2028, 12, 31});
  Press(Qt::Key_Up);
  Press(Qt::Key_PageUp);
  ExpectShown("31  December", {2028, 12, 31});
  picker_.SetDate({2028, 1, 1});
  Press(Qt::Key_Down);
  ExpectShown("1  January", {2028, 1, 1});
  picker_.SetDate({2028, 1, 31});
  Press(Qt::Key_PageUp);
  ExpectShown("29  February", {2028, 2, 29});
}

TEST_F(DatePickerTest, StepsFromADayThatIsTypedAndIsReadyForAnother) {
  Type("3 May");
  Press(Qt::Key_Down);
  ExpectShown("2  May", {2028, 5, 2});
  Type("1/8");
  EXPECT_EQ(picker_.Date(), Date(2028, 8, 1));
}

TEST_F(DatePickerTest, DoesNotStepFromATextThatIsNoDay) {
  Type("31 Foo");
  Press(Qt::Key_Up);
  ExpectRefused("31 Foo", kNoDate);
}

TEST_F(DatePickerTest, StepsByTheWheelWhileItHasTheFocusAlone) {
  const auto turn = [this] {
    QWheelEvent event({5, 5}, field_.mapToGlobal(QPointF(5, 5)), {}, {0, 120}, Qt::NoButton, {},
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(&field_, &event);
  };
  turn();
  ExpectShown("5  July", {2028, 7, 5});
  button_.setFocus();
  turn();
  ExpectShown("5  July", {2028, 7, 5});
}

TEST_F(DatePickerTest, SelectsItsTextForAClickThatGivesItTheFocus) {
  button_.setFocus();
  QTest::mouseClick(&field_, Qt::LeftButton, {}, QPoint(20, field_.height() / 2));
  EXPECT_EQ(field_.selectedText(), field_.text());
  Type("1 May");
  EXPECT_EQ(picker_.Date(), Date(2028, 5, 1));
}

TEST_F(DatePickerTest, OpensTheCalendarOfItsYearByTheKeysOfADropDownListAndTakesTheChosenDay) {
  const std::pair<Qt::Key, Qt::KeyboardModifiers> keys[] = {{Qt::Key_Down, Qt::AltModifier},
                                                            {Qt::Key_F4, Qt::NoModifier}};
  for (const auto& [key, modifiers] : keys) {
    picker_.SetDate({2028, 7, 4});
    Press(key, modifiers);
    ASSERT_NE(field_.Popup(), nullptr);
    EXPECT_EQ(QApplication::activePopupWidget(), field_.Popup());
    const auto& calendar = *field_.Popup()->findChild<QCalendarWidget*>();
    EXPECT_FALSE(calendar.isDateEditEnabled());
    EXPECT_EQ(calendar.selectedDate(), QDate(2028, 7, 4));
    EXPECT_EQ(calendar.minimumDate(), QDate(2028, 1, 1));
    EXPECT_EQ(calendar.maximumDate(), QDate(2028, 12, 31));
    QTest::keyClick(&DaysOfPopup(), Qt::Key_Right);
    QTest::keyClick(&DaysOfPopup(), Qt::Key_Return);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    ExpectShown("5  July", {2028, 7, 5});
  }
}

TEST_F(DatePickerTest, OpensItsCalendarByAClickOnItsIconAndTakesAClickedDay) {
  auto* icon = field_.findChild<QAbstractButton*>();
  ASSERT_NE(icon, nullptr);
  QTest::mouseClick(icon, Qt::LeftButton);
  ASSERT_NE(field_.Popup(), nullptr);
  QAbstractItemView& days = DaysOfPopup();
  const QModelIndex current = days.currentIndex();
  const QRect week_later = days.visualRect(current.siblingAtRow(current.row() + 1));
  QTest::mouseClick(days.viewport(), Qt::LeftButton, {}, week_later.center());
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
  ExpectShown("11  July", {2028, 7, 11});
}

TEST_F(DatePickerTest, ClosesItsCalendarOnEscAndKeepsWhatWasTyped) {
  Type("3 Xy");
  Press(Qt::Key_F4);
  ASSERT_NE(field_.Popup(), nullptr);
  QTest::keyClick(&DaysOfPopup(), Qt::Key_Escape);
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
  EXPECT_EQ(field_.text(), QStringLiteral("3 Xy"));
}

TEST_F(DatePickerTest, OpensNoCalendarWhileItIsDisabled) {
  field_.setEnabled(false);
  QTest::mouseClick(field_.findChild<QAbstractButton*>(), Qt::LeftButton);
  EXPECT_EQ(field_.Popup(), nullptr);
}

TEST_F(DatePickerTest, ReadsAndShowsAnotherLanguageOnceItHasIt) {
  field_.setLocale(QLocale(QStringLiteral("pl_PL")));
  EXPECT_EQ(field_.text().toStdString(), "4  lipca");
  field_.selectAll();
  Type("31 gru");
  Press(Qt::Key_Return);
  ExpectShown("31  grudnia", {2028, 12, 31});
}

TEST_F(DatePickerTest, KeepsAYearOfTheFirstCentury) {
  picker_.SetDate(Date(50, 3, 1));
  EXPECT_EQ(picker_.Date(), Date(50, 3, 1));
}

}  // namespace
}  // namespace ferrowind::qt
