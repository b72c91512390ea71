#include <QAbstractButton>
#include <QApplication>
#include <QDate>
#include <QLabel>
#include <QLineEdit>

#include "tests/gui/windows/windows_fixture.h"

namespace ferrowind::gui {
namespace {

using ::testing::ElementsAre;

/// The dialog of a new calendar year, opened on the currency GBP.
class NewYearTest : public WindowsTest {
 protected:
  NewYearTest() {
    OpenCalendars();
    ClickNode(Tree(), {"GBP"});
  }

  void InDialog(const DialogScript::Step& work) {
    script_.Expect("fmSelectYear", [work](QWidget& dialog) {
      work(dialog);
      if (dialog.isVisible()) ClickButton(dialog, "cmdCancel");
    });
    ClickTool(Window(), "ID_New");
  }
  static std::string Year(QWidget& dialog) { return Find<QLineEdit>(dialog, "txtYear").text().toStdString(); }
  static void Step(QWidget& dialog, const char* arrow, int times) {
    for (auto* button : Find<QWidget>(dialog, "udYear").findChildren<QAbstractButton*>()) {
      if (button->accessibleName() != QLatin1String(arrow)) continue;
      for (int i = 0; i < times; ++i) Click(*button);
    }
  }
  static int ThisYear() { return QDate::currentDate().year(); }
};

TEST_F(NewYearTest, NamesTheCurrencyAndStartsAtThisYear) {
  InDialog([](QWidget& dialog) {
    EXPECT_EQ(dialog.windowTitle().toStdString(), "Select year GBP currency");
    EXPECT_EQ(Year(dialog), std::to_string(ThisYear()));
  });
}

TEST_F(NewYearTest, NamesTheCurrencyOfASelectedCalendar) {
  ClickNode(Tree(), {"USD", "2027"});
  InDialog(
      [](QWidget& dialog) { EXPECT_EQ(dialog.windowTitle().toStdString(), "Select year USD currency"); });
}

TEST_F(NewYearTest, CreatesTheCalendarOnEnterAndSelectsIt) {
  InDialog([](QWidget& dialog) {
    TypeInto(dialog, "txtYear", "2032");
    Press(Find<QLineEdit>(dialog, "txtYear"), Qt::Key_Return);
    EXPECT_FALSE(dialog.isVisible());
  });
  EXPECT_THAT(SelectedNode(Tree()), ElementsAre("GBP", "2032"));
  EXPECT_EQ(RowsOf(Days()), 366);
  EXPECT_EQ(desk_.ReadOne("SELECT count(*) FROM CldDay WHERE ID1 = 826 AND Year1 = 2032 AND TID1 = 1"),
            "366");
}

TEST_F(NewYearTest, TakesTheTypedYearAtOnce) {
  InDialog([](QWidget& dialog) {
    Activate(dialog);
    EXPECT_TRUE(Find<QWidget>(dialog, "cmdCreate").hasFocus());
    for (const char digit : std::string("2032")) QTest::keyClick(QApplication::focusWidget(), digit);
    EXPECT_EQ(Year(dialog), "2032");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_FALSE(dialog.isVisible());
  });
  EXPECT_THAT(SelectedNode(Tree()), ElementsAre("GBP", "2032"));
}

TEST_F(NewYearTest, KeepsTheYearWhenABlankIsTypedOutsideTheField) {
  InDialog([](QWidget& dialog) {
    Activate(dialog);
    const std::string year = Year(dialog);
    // The button that has the focus takes the space key itself, and some keyboards have other blanks.
    QTest::sendKeyEvent(QTest::Click, &dialog, Qt::Key_Space, QChar(QChar::Space), {});
    QTest::sendKeyEvent(QTest::Click, QApplication::focusWidget(), Qt::Key_nobreakspace, QChar(QChar::Nbsp),
                        Qt::ShiftModifier);
    EXPECT_EQ(Year(dialog), year);
    EXPECT_TRUE(Find<QWidget>(dialog, "cmdCreate").hasFocus());
  });
}

TEST_F(NewYearTest, ReplacesTheYearAfterAClickIntoTheField) {
  InDialog([](QWidget& dialog) {
    Activate(dialog);
    auto& field = Find<QLineEdit>(dialog, "txtYear");
    Click(field);
    QTest::keyClicks(&field, QStringLiteral("2033"));
    EXPECT_EQ(Year(dialog), "2033");
    // A second click goes into the text.
    Click(field);
    EXPECT_FALSE(field.hasSelectedText());
  });
}

TEST_F(NewYearTest, TellsTheRangeOfYearsWhileAnotherIsTyped) {
  InDialog([](QWidget& dialog) {
    Activate(dialog);
    auto& note = Find<QLabel>(dialog, "lblRange");
    EXPECT_FALSE(note.isVisible());
    TypeInto(dialog, "txtYear", "1800");
    QCoreApplication::processEvents();
    EXPECT_TRUE(note.isVisible());
    EXPECT_EQ(note.text().toStdString(), "A calendar's year is 1900 to 3000.");
    EXPECT_TRUE(dialog.rect().contains(note.geometry())) << "the dialog grows with it";
    TypeInto(dialog, "txtYear", "1900");
    EXPECT_FALSE(note.isVisible());
  });
}

TEST_F(NewYearTest, CreatesNothingOnEsc) {
  InDialog([](QWidget& dialog) {
    TypeInto(dialog, "txtYear", "2032");
    Press(Find<QLineEdit>(dialog, "txtYear"), Qt::Key_Escape);
    EXPECT_FALSE(dialog.isVisible());
  });
  EXPECT_THAT(SelectedNode(Tree()), ElementsAre("GBP"));
  EXPECT_EQ(desk_.ReadOne("SELECT count(*) FROM CldCalendar WHERE ID1 = 826"), "0");
}

TEST_F(NewYearTest, BeepsAndSelectsAYearThatIsNoNumberAndStays) {
  InDialog([this](QWidget& dialog) {
    auto& field = Find<QLineEdit>(dialog, "txtYear");
    int beeps = 0;
    for (const char* text : {"abcd", "20x8", "    "}) {
      TypeInto(dialog, "txtYear", text);
      ClickButton(dialog, "cmdCreate");
      EXPECT_EQ(desk_.Toolkit().Beeps(), ++beeps) << text;
      EXPECT_TRUE(dialog.isVisible());
      EXPECT_TRUE(field.hasFocus());
      EXPECT_EQ(field.selectedText().toStdString(), text);
    }
    QTest::keySequence(&field, QKeySequence::SelectAll);
    Press(field, Qt::Key_Delete);
    Press(field, Qt::Key_Return);
    EXPECT_EQ(desk_.Toolkit().Beeps(), ++beeps);
    EXPECT_TRUE(dialog.isVisible());
  });
  EXPECT_EQ(desk_.ReadOne("SELECT count(*) FROM CldCalendar"), "3");
}

TEST_F(NewYearTest, TakesFourCharactersAtMost) {
  InDialog([](QWidget& dialog) {
    TypeInto(dialog, "txtYear", "20281");
    EXPECT_EQ(Year(dialog), "2028");
  });
}

TEST_F(NewYearTest, BeepsForAYearThatExistsAndShowsWhatThereIs) {
  ClickNode(Tree(), {"USD", "2027"});
  InDialog([](QWidget& dialog) {
    TypeInto(dialog, "txtYear", "2028");
    ClickButton(dialog, "cmdCreate");
  });
  EXPECT_EQ(desk_.Toolkit().Beeps(), 1);
  EXPECT_THAT(SelectedNode(Tree()), ElementsAre("USD", "2028"));
}

TEST_F(NewYearTest, BeepsForAYearOutOfRange) {
  InDialog([](QWidget& dialog) {
    TypeInto(dialog, "txtYear", "1234");
    ClickButton(dialog, "cmdCreate");
    EXPECT_FALSE(dialog.isVisible());
  });
  EXPECT_EQ(desk_.Toolkit().Beeps(), 1);
  EXPECT_EQ(desk_.ReadOne("SELECT count(*) FROM CldCalendar"), "3");
}

TEST_F(NewYearTest, StepsByItsArrowsFromThisYearWhateverIsTyped) {
  InDialog([](QWidget& dialog) {
    Step(dialog, "Up", 3);
    EXPECT_EQ(Year(dialog), std::to_string(ThisYear() + 3));
    TypeInto(dialog, "txtYear", "2500");
    Step(dialog, "Down", 1);
    EXPECT_EQ(Year(dialog), std::to_string(ThisYear() + 2));
  });
}

TEST_F(NewYearTest, StopsAtTheFirstAndTheLastYear) {
  InDialog([](QWidget& dialog) {
    auto& arrows = Find<QWidget>(dialog, "udYear");
    TurnWheel(arrows, arrows.rect().center(), 1900 - ThisYear());
    EXPECT_EQ(Year(dialog), "1900");
    TurnWheel(arrows, arrows.rect().center(), -1);
    EXPECT_EQ(Year(dialog), "1900");
    TurnWheel(arrows, arrows.rect().center(), 1100);
    EXPECT_EQ(Year(dialog), "3000");
    TabTo(arrows);
    Press(arrows, Qt::Key_Up);
    EXPECT_EQ(Year(dialog), "3000");
  });
}

}  // namespace
}  // namespace ferrowind::gui
