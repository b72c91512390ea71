// The host closes the Calendars window, or the application quits, while a dialog or a message is open.
#include <QApplication>
#include <QTimer>

#include "tests/gui/windows/windows_fixture.h"

namespace ferrowind::gui {
namespace {

class ClosedByHostTest : public WindowsTest {
 protected:
  ClosedByHostTest() { OpenDollar2028(); }

  /// The next dialog of that name is filled in by `fill`; then the host closes the Calendars window.
  void CloseIn(
      const std::string& dialog_name, const DialogScript::Step& fill = [](QWidget&) {}) {
    script_.Expect(dialog_name, [this, fill](QWidget& dialog) {
      fill(dialog);
      EXPECT_TRUE(ForceClosing());
      EXPECT_FALSE(dialog.isVisible());
      EXPECT_FALSE(IsOpen());
    });
  }
  /// In the next dialog of that name the application quits.
  void QuitIn(const std::string& dialog_name) {
    script_.Expect(dialog_name, [](QWidget& dialog) {
      QCoreApplication::quit();
      EXPECT_FALSE(dialog.isVisible());
    });
  }
  /// Runs the application, in which `open` opens the dialog that it quits in.
  void RunUntilQuit(const std::function<void()>& open) {
    bool has_returned = false;
    QTimer::singleShot(0, [&] {
      open();
      has_returned = true;
    });
    QApplication::exec();
    EXPECT_TRUE(has_returned);
    EXPECT_FALSE(IsOpen());
  }
  void ExpectFromMenu(const std::string& tool) {
    WalkToRow(Days(), 10);
    script_.Expect("ID_StatesMenu", [tool](QWidget& menu) { PickFromMenu(menu, tool); });
  }
  void ExpectNothingStored() {
    EXPECT_EQ(desk_.ReadOne("SELECT count(*) FROM CldCalendar"), "3");
    EXPECT_EQ(desk_.ReadOne("SELECT count(*) FROM CldDay WHERE TID1 <> 1 OR ID2 IS NOT NULL"), "0");
    EXPECT_EQ(desk_.Read("SELECT * FROM CldHoliday ORDER BY ID2"), rules_before_);
  }

  std::vector<std::string> rules_before_ = desk_.Read("SELECT * FROM CldHoliday ORDER BY ID2");
};

TEST_F(ClosedByHostTest, TakesTheNewYearDialogAlong) {
  CloseIn("fmSelectYear", [](QWidget& dialog) { TypeInto(dialog, "txtYear", "2040"); });
  ClickTool(Window(), "ID_New");
  ExpectNothingStored();
  OpenDollar2028();
}

TEST_F(ClosedByHostTest, KeepsWhatWasAnsweredJustBeforeAndReloadsNothing) {
  script_.Expect("fmSelectYear", [this](QWidget& dialog) {
    TypeInto(dialog, "txtYear", "2040");
    // Handled while the dialog closes itself.
    QTimer::singleShot(0, [this] { EXPECT_TRUE(ForceClosing()); });
    Find<QPushButton>(dialog, "cmdCreate").click();
  });
  ClickTool(Window(), "ID_New");
  EXPECT_FALSE(IsOpen());
  EXPECT_EQ(desk_.ReadOne("SELECT count(*) FROM CldDay WHERE Year1 = 2040"), "366");
  OpenDollar2028();
}

TEST_F(ClosedByHostTest, TakesTheMessageOfAnExceptedDayAlong) {
  ExpectFromMenu("ID_Except2");
  CloseIn("fmExceptMess", [](QWidget& dialog) { TypeInto(dialog, "txtMessage", "too late"); });
  RightClickRow(Days(), 10);
  ExpectNothingStored();
  OpenDollar2028();
}

TEST_F(ClosedByHostTest, TakesTheHolidaysWindowAlong) {
  InHolidays("ID_AssignMany", 10, [this](QWidget& holidays) {
    EXPECT_TRUE(ForceClosing());
    EXPECT_FALSE(holidays.isVisible());
  });
  EXPECT_FALSE(IsOpen());
  OpenDollar2028();
}

TEST_F(ClosedByHostTest, TakesTheEditorOnTheHolidaysWindowAlong) {
  InHolidays("ID_AssignMany", 10, [this](QWidget& holidays) {
    CloseIn("fmAddHoliday", [](QWidget& editor) {
      ChooseItem(editor, "cmbHolidayType", "Celebration");
      TypeInto(editor, "txtName", "Typed to its end");
    });
    ClickButton(holidays, "cmdAction0");
    EXPECT_FALSE(holidays.isVisible());
  });
  ExpectNothingStored();
  OpenDollar2028();
}

TEST_F(ClosedByHostTest, TakesTheQuestionOnTheHolidaysWindowAlong) {
  InHolidays("ID_AssignMany", 10, [this](QWidget& holidays) {
    WalkToRow(GridIn(holidays), 0);
    CloseIn("fmMessage");
    ClickButton(holidays, "cmdAction2");
  });
  ExpectNothingStored();
}

/// The editor saves a rule whose name exists: a message on a dialog on the Holidays window.
TEST_F(ClosedByHostTest, TakesTheMessageOnTheEditorOnTheHolidaysWindowAlong) {
  InHolidays("ID_AssignMany", 10, [this](QWidget& holidays) {
    script_.Expect("fmAddHoliday", [this](QWidget& editor) {
      ChooseItem(editor, "cmbHolidayType", "Celebration");
      TypeInto(editor, "txtName", desk_.ReadOne("SELECT Name1 FROM CldHoliday WHERE ID2 = 1"));
      CloseIn("fmSharedMessage");
      ClickButton(editor, "cmdOk");
      EXPECT_FALSE(editor.isVisible());
    });
    ClickButton(holidays, "cmdAction0");
    EXPECT_FALSE(holidays.isVisible());
  });
  ExpectNothingStored();
  OpenDollar2028();
}

TEST_F(ClosedByHostTest, RestoresNoFurtherRuleOnceTheMessageOfARefusedOneIsGone) {
  desk_.Execute("UPDATE CldHoliday SET Del = 2 WHERE ID2 > 1");
  rules_before_ = desk_.Read("SELECT * FROM CldHoliday ORDER BY ID2");
  InHolidays("ID_AssignMany", 10, [this](QWidget& holidays) {
    ClickButton(holidays, "cmdAction4");
    WalkToRow(GridIn(holidays), 0);
    QTest::keySequence(&GridIn(holidays), QKeySequence::SelectAll);
    desk_.Execute("CREATE TRIGGER refused BEFORE UPDATE ON CldHoliday BEGIN SELECT RAISE(ABORT, 'no'); END");
    CloseIn("fmSharedMessage", [this](QWidget&) { desk_.Execute("DROP TRIGGER refused"); });
    ClickButton(holidays, "cmdAction3");
  });
  ExpectNothingStored();
}

TEST_F(ClosedByHostTest, QuitsWithTheNewYearDialogOpen) {
  RunUntilQuit([this] {
    QuitIn("fmSelectYear");
    ClickTool(Window(), "ID_New");
  });
  ExpectNothingStored();
}

TEST_F(ClosedByHostTest, QuitsWithTheMessageOfAnExceptedDayOpen) {
  RunUntilQuit([this] {
    ExpectFromMenu("ID_Except2");
    QuitIn("fmExceptMess");
    RightClickRow(Days(), 10);
  });
  ExpectNothingStored();
}

TEST_F(ClosedByHostTest, QuitsWithTheEditorOnTheHolidaysWindowOpen) {
  RunUntilQuit([this] {
    ExpectFromMenu("ID_AssignMany");
    script_.Expect("fmEnterHolidays", [this](QWidget& holidays) {
      QuitIn("fmAddHoliday");
      ClickButton(holidays, "cmdAction0");
      EXPECT_FALSE(holidays.isVisible());
    });
    RightClickRow(Days(), 10);
  });
  ExpectNothingStored();
}

TEST_F(ClosedByHostTest, QuitsWithTheHolidaysWindowOpenWhichKeepsItsPlace) {
  QPoint placed;
  RunUntilQuit([&] {
    ExpectFromMenu("ID_AssignMany");
    script_.Expect("fmEnterHolidays", [&](QWidget& holidays) {
      holidays.move(81, 93);
      QCoreApplication::processEvents();
      placed = holidays.pos();
      QCoreApplication::quit();
      EXPECT_FALSE(holidays.isVisible());
    });
    RightClickRow(Days(), 10);
  });
  OpenDollar2028();
  InHolidays("ID_AssignMany", 10, [&](QWidget& holidays) { EXPECT_EQ(holidays.pos(), placed); });
}

TEST_F(ClosedByHostTest, QuitsWithAMessageOnTheHolidaysWindowOpen) {
  RunUntilQuit([this] {
    ExpectFromMenu("ID_AssignMany");
    script_.Expect("fmEnterHolidays", [this](QWidget& holidays) {
      WalkToRow(GridIn(holidays), 0);
      QTest::keySequence(&GridIn(holidays), QKeySequence::SelectAll);
      QuitIn("fmSharedMessage");
      ClickButton(holidays, "cmdAction1");
    });
    RightClickRow(Days(), 10);
  });
  ExpectNothingStored();
}

}  // namespace
}  // namespace ferrowind::gui
