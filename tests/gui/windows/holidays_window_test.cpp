#include <QApplication>
#include <QLineEdit>

#include "tests/gui/windows/windows_fixture.h"

namespace ferrowind::gui {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::Not;
using ::testing::StartsWith;

constexpr const char* kAdd = "cmdAction0";
constexpr const char* kEdit = "cmdAction1";
constexpr const char* kRemove = "cmdAction2";
constexpr const char* kRestore = "cmdAction3";
constexpr const char* kFilter = "cmdAction4";
constexpr const char* kAssign = "cmdAction5";

/// The Holidays window, opened from 12 February 2028 of the dollar's calendar.
class HolidaysWindowTest : public WindowsTest {
 protected:
  static constexpr int kDayRow = 42;

  HolidaysWindowTest() { OpenDollar2028(); }

  void ForCalendar(const DialogScript::Step& work) { InHolidays("ID_AssignMany", kDayRow, work); }
  void ForDay(const DialogScript::Step& work) { InHolidays("ID_AssignSingle", kDayRow, work); }

  static void WalkToRule(QWidget& holidays, const std::string& name) {
    auto& rules = GridIn(holidays);
    const int row = RowOf(rules, "Name", name);
    ASSERT_GE(row, 0) << name;
    WalkToRow(rules, row);
  }
  static bool IsListed(QWidget& holidays, const std::string& name) {
    return RowOf(GridIn(holidays), "Name", name) >= 0;
  }
  static bool IsEnabled(QWidget& window, const std::string& button) {
    return Find<QPushButton>(window, button).isEnabled();
  }
  static std::string Caption(QWidget& window, const std::string& button) {
    return Find<QPushButton>(window, button).accessibleName().toStdString();
  }
  void Remove(QWidget& holidays, const std::string& name) {
    WalkToRule(holidays, name);
    AnswerQuestion("Are you sure ?", "Ok");
    ClickButton(holidays, kRemove);
  }
  /// What the day of the dollar's 2028 carries: type, rule and comment.
  [[nodiscard]] std::string Day(int day) const {
    return desk_.ReadOne(
        "SELECT d.TID1, h.Name1 FROM CldDay d LEFT JOIN CldHoliday h USING (ID2) "
        "WHERE ID1 = 840 AND Year1 = 2028 AND Day1 = " +
        std::to_string(day));
  }
};

TEST_F(HolidaysWindowTest, IsTitledAfterItsMode) {
  ForDay([](QWidget& holidays) {
    EXPECT_EQ(holidays.windowTitle().toStdString(), "Assign holiday for single day");
  });
  ForCalendar([](QWidget& holidays) {
    EXPECT_EQ(holidays.windowTitle().toStdString(), "Assign groups holidays for calendar");
  });
}

TEST_F(HolidaysWindowTest, ListsTheRulesByTypeWithTheirDates) {
  ForCalendar([](QWidget& holidays) {
    auto& rules = GridIn(holidays);
    EXPECT_FALSE(IsListed(holidays, "Working day by exception"));
    EXPECT_EQ(CellText(rules, RowOf(rules, "Name", "Saturday"), "Full date"), "Saturday");
    EXPECT_EQ(CellText(rules, RowOf(rules, "Name", "Sunday"), "Full date"), "Sunday");
    EXPECT_EQ(CellText(rules, RowOf(rules, "Name", "Christmas Day"), "Full date"), "25 December");
    EXPECT_EQ(CellText(rules, 0, "Holiday type"), "Holiday");
    EXPECT_EQ(CellText(rules, RowsOf(rules) - 1, "Holiday type"), "Holiday point");
  });
}

TEST_F(HolidaysWindowTest, ColoursTheRulesAsTheDayGridDoesAndStrikesRemovedOnesThrough) {
  desk_.Execute("UPDATE CldHoliday SET Del = 2 WHERE Name1 = 'Good Friday'");
  ForCalendar([](QWidget& holidays) {
    ClickButton(holidays, kFilter);
    auto& rules = GridIn(holidays);
    const auto look = [&](const char* name) { return LookOfRow(rules, RowOf(rules, "Name", name)); };
    EXPECT_EQ(look("Saturday").fore_color, (platform::Color{255, 0, 0}));
    EXPECT_EQ(look("Christmas Day").fore_color, (platform::Color{255, 0, 255}));
    EXPECT_TRUE(look("Christmas Day").is_bold);
    EXPECT_FALSE(look("Easter Monday").is_bold);
    EXPECT_FALSE(look("Easter Monday").is_struck_through);
    EXPECT_TRUE(look("Good Friday").is_struck_through);
    EXPECT_EQ(look("Good Friday").fore_color, (platform::Color{128, 128, 128}));
  });
}

TEST_F(HolidaysWindowTest, HidesRemovedRulesUntilTheyAreAskedFor) {
  ForCalendar([this](QWidget& holidays) {
    const int all = RowsOf(GridIn(holidays));
    EXPECT_EQ(Caption(holidays, kFilter), "Show all");
    Remove(holidays, "Good Friday");
    EXPECT_FALSE(IsListed(holidays, "Good Friday"));
    EXPECT_EQ(RowsOf(GridIn(holidays)), all - 1);
    ClickButton(holidays, kFilter);
    EXPECT_EQ(Caption(holidays, kFilter), "Hide removed");
    EXPECT_TRUE(IsListed(holidays, "Good Friday"));
    EXPECT_FALSE(IsListed(holidays, "Working day by exception"));
    ClickButton(holidays, kFilter);
    EXPECT_EQ(Caption(holidays, kFilter), "Show all");
    EXPECT_FALSE(IsListed(holidays, "Good Friday"));
  });
}

TEST_F(HolidaysWindowTest, ChoosesNoRuleByItselfWhenTheLastOneWasRemoved) {
  ForCalendar([this](QWidget& holidays) {
    auto& rules = GridIn(holidays);
    rules.setFocus();
    QTest::keyClick(&rules, Qt::Key_Home, Qt::ControlModifier);
    Remove(holidays, CellText(rules, RowsOf(rules) - 1, "Name"));
    // The focus comes back from the question, as from any other window.
    Find<QPushButton>(holidays, kFilter).setFocus();
    rules.setFocus(Qt::ActiveWindowFocusReason);
    EXPECT_FALSE(rules.currentIndex().isValid());
    for (const char* button : {kEdit, kRemove, kRestore, kAssign}) EXPECT_FALSE(IsEnabled(holidays, button));
  });
}

TEST_F(HolidaysWindowTest, OffersToAssignAllRulesThatAreSelectedBeforeAnyWasCurrent) {
  ForCalendar([this](QWidget& holidays) {
    auto& rules = GridIn(holidays);
    Remove(holidays, CellText(rules, RowsOf(rules) - 1, "Name"));
    ASSERT_FALSE(rules.currentIndex().isValid());
    QTest::keyClick(&rules, Qt::Key_A, Qt::ControlModifier);
    EXPECT_TRUE(IsEnabled(holidays, kAssign));
    EXPECT_EQ(rules.selectionModel()->selectedRows().size(), RowsOf(rules));
  });
}

TEST_F(HolidaysWindowTest, EnablesItsButtonsByTheCurrentRule) {
  desk_.Execute("UPDATE CldHoliday SET Del = 2 WHERE Name1 = 'Good Friday'");
  ForCalendar([](QWidget& holidays) {
    const auto enabled = [&] {
      std::string states;
      for (const char* button : {kAdd, kEdit, kRemove, kRestore, kFilter, kAssign}) {
        states += IsEnabled(holidays, button) ? '1' : '0';
      }
      return states;
    };
    ClickButton(holidays, kFilter);
    WalkToRule(holidays, "Christmas Day");
    EXPECT_EQ(enabled(), "111011");
    WalkToRule(holidays, "Good Friday");
    EXPECT_EQ(enabled(), "100110");
  });
}

TEST_F(HolidaysWindowTest, WithoutRulesOffersOnlyToAddOne) {
  desk_.Execute("DELETE FROM CldHoliday WHERE ID2 <> 1");
  ForCalendar([](QWidget& holidays) {
    EXPECT_EQ(RowsOf(GridIn(holidays)), 0);
    for (const char* button : {kEdit, kRemove, kRestore, kAssign}) EXPECT_FALSE(IsEnabled(holidays, button));
    for (const char* button : {kAdd, kFilter}) EXPECT_TRUE(IsEnabled(holidays, button));
  });
}

TEST_F(HolidaysWindowTest, RestoresARemovedRule) {
  ForCalendar([this](QWidget& holidays) {
    Remove(holidays, "Good Friday");
    EXPECT_EQ(desk_.ReadOne("SELECT Del FROM CldHoliday WHERE Name1 = 'Good Friday'"), "2");
    ClickButton(holidays, kFilter);
    WalkToRule(holidays, "Good Friday");
    ClickButton(holidays, kRestore);
    EXPECT_EQ(desk_.ReadOne("SELECT Del FROM CldHoliday WHERE Name1 = 'Good Friday'"), "4");
    ClickButton(holidays, kFilter);
    EXPECT_TRUE(IsListed(holidays, "Good Friday"));
  });
}

TEST_F(HolidaysWindowTest, RemovesSeveralRulesAndNoneWhenTheQuestionIsCancelled) {
  ForCalendar([this](QWidget& holidays) {
    auto& rules = GridIn(holidays);
    WalkToRow(rules, 0);
    Press(rules, Qt::Key_Down, Qt::ShiftModifier, 2);
    AnswerQuestion("Are you sure ?", "Cancel");
    ClickButton(holidays, kRemove);
    EXPECT_EQ(desk_.ReadOne("SELECT count(*) FROM CldHoliday WHERE Del = 2"), "0");
    AnswerQuestion("Are you sure ?", "Ok");
    ClickButton(holidays, kRemove);
    EXPECT_EQ(desk_.ReadOne("SELECT count(*) FROM CldHoliday WHERE Del = 2"), "3");
  });
}

TEST_F(HolidaysWindowTest, SelectsSeveralRulesForACalendarAndOneForADay) {
  ForCalendar([](QWidget& holidays) {
    WalkToRow(GridIn(holidays), 0);
    Press(GridIn(holidays), Qt::Key_Down, Qt::ShiftModifier, 2);
    EXPECT_EQ(GridIn(holidays).selectionModel()->selectedRows().size(), 3);
  });
  ForDay([](QWidget& holidays) {
    WalkToRow(GridIn(holidays), 0);
    Press(GridIn(holidays), Qt::Key_Down, Qt::ShiftModifier, 2);
    EXPECT_EQ(GridIn(holidays).selectionModel()->selectedRows().size(), 1);
  });
}

TEST_F(HolidaysWindowTest, AddsARuleOfAWeekday) {
  ForCalendar([this](QWidget& holidays) {
    script_.Expect("fmAddHoliday", [](QWidget& editor) {
      EXPECT_EQ(editor.windowTitle().toStdString(), "Add holiday");
      EXPECT_FALSE(IsEnabled(editor, "cmdOk"));
      ChooseItem(editor, "cmbHolidayType", "Holiday");
      TypeInto(editor, "txtName", "  Wednesdays ");
      EXPECT_FALSE(IsEnabled(editor, "cmdOk"));
      ChooseItem(editor, "cmbDayOfWeek", "Wednesday");
      TypeInto(editor, "txtComment", "midweek");
      ClickButton(editor, "cmdOk");
    });
    ClickButton(holidays, kAdd);
    const int row = RowOf(GridIn(holidays), "Name", "Wednesdays");
    ASSERT_GE(row, 0);
    EXPECT_EQ(CellText(GridIn(holidays), row, "Full date"), "Wednesday");
  });
  EXPECT_EQ(desk_.ReadOne("SELECT Comment, TID1, WD, D1, Del FROM CldHoliday WHERE Name1 = 'Wednesdays'"),
            "midweek|2|4|-|-");
}

TEST_F(HolidaysWindowTest, AddsARuleOfADate) {
  ForCalendar([this](QWidget& holidays) {
    script_.Expect("fmAddHoliday", [](QWidget& editor) {
      ChooseItem(editor, "cmbHolidayType", "Holiday point");
      TypeInto(editor, "txtName", "Stocktaking");
      TypeDate(editor, "dtpHolidayPoint", QDate(2028, 10, 31));
      Press(*QApplication::focusWidget(), Qt::Key_Tab);
      ClickButton(editor, "cmdOk");
    });
    ClickButton(holidays, kAdd);
    EXPECT_TRUE(IsListed(holidays, "Stocktaking"));
  });
  EXPECT_EQ(desk_.ReadOne("SELECT TID1, MY, MD, WD, Comment FROM CldHoliday WHERE Name1 = 'Stocktaking'"),
            "4|10|31|-|");
}

TEST_F(HolidaysWindowTest, AddsNothingWhenTheEditorIsCancelled) {
  ForCalendar([this](QWidget& holidays) {
    const int rules = RowsOf(GridIn(holidays));
    script_.Expect("fmAddHoliday", [](QWidget& editor) {
      ChooseItem(editor, "cmbHolidayType", "Celebration");
      TypeInto(editor, "txtName", "Nothing");
      ClickButton(editor, "cmdCancel");
    });
    ClickButton(holidays, kAdd);
    script_.Expect("fmAddHoliday", [](QWidget& editor) {
      ChooseItem(editor, "cmbHolidayType", "Celebration");
      TypeInto(editor, "txtName", "Nothing either");
      CloseByFrame(editor);
    });
    ClickButton(holidays, kAdd);
    EXPECT_EQ(RowsOf(GridIn(holidays)), rules);
  });
  EXPECT_EQ(desk_.ReadOne("SELECT count(*) FROM CldHoliday WHERE Name1 LIKE 'Nothing%'"), "0");
}

TEST_F(HolidaysWindowTest, OpensTheEditorOnEnter) {
  ForCalendar([this](QWidget& holidays) {
    script_.Expect("fmAddHoliday", [](QWidget& editor) { ClickButton(editor, "cmdCancel"); });
    WalkToRow(GridIn(holidays), 0);
    Press(GridIn(holidays), Qt::Key_Return);
    EXPECT_TRUE(script_.IsPlayed());
  });
}

TEST_F(HolidaysWindowTest, TellsOfANameThatIsTaken) {
  ForCalendar([this](QWidget& holidays) {
    Remove(holidays, "Good Friday");
    const int rules = RowsOf(GridIn(holidays));
    for (const char* name : {"christmas DAY", "Good Friday"}) {
      script_.Expect("fmAddHoliday", [name](QWidget& editor) {
        ChooseItem(editor, "cmbHolidayType", "Celebration");
        TypeInto(editor, "txtName", name);
        ClickButton(editor, "cmdOk");
      });
      ExpectMessage("Tessaro Calendar. There is duplicate holiday name");
      ClickButton(holidays, kAdd);
    }
    EXPECT_EQ(RowsOf(GridIn(holidays)), rules);
  });
}

TEST_F(HolidaysWindowTest, EditsNameAndCommentOfARuleAlone) {
  ForCalendar([this](QWidget& holidays) {
    WalkToRule(holidays, "Christmas Day");
    script_.Expect("fmAddHoliday", [](QWidget& editor) {
      EXPECT_EQ(editor.windowTitle().toStdString(), "Edit holiday");
      EXPECT_EQ(Find<QLineEdit>(editor, "txtName").text().toStdString(), "Christmas Day");
      EXPECT_FALSE(Find<QWidget>(editor, "cmbHolidayType").isEnabled());
      EXPECT_FALSE(Find<QWidget>(editor, "dtpFullDate").isEnabled());
      TypeInto(editor, "txtName", "Christmas");
      TypeInto(editor, "txtComment", "bank closed");
      ClickButton(editor, "cmdOk");
    });
    ClickButton(holidays, kEdit);
    EXPECT_EQ(CellText(GridIn(holidays), RowOf(GridIn(holidays), "Name", "Christmas"), "Comment"),
              "bank closed");
  });
  EXPECT_EQ(desk_.ReadOne("SELECT Name1, Comment, TID1, MY, MD FROM CldHoliday WHERE ID2 = 8"),
            "Christmas|bank closed|3|12|25");
}

TEST_F(HolidaysWindowTest, RefusesToEditSeveralRules) {
  ForCalendar([this](QWidget& holidays) {
    WalkToRow(GridIn(holidays), 0);
    Press(GridIn(holidays), Qt::Key_Down, Qt::ShiftModifier);
    ExpectMessage("Tessaro Calendar. Can't edit multi rows");
    ClickButton(holidays, kEdit);
  });
}

TEST_F(HolidaysWindowTest,
       KeepsANameOfTenThousandCharactersFromBeforeThereWereLimitsAndSaysWhyItStoresNoneAnew) {
  const std::string name(10000, 'n');
  desk_.Call("CldIUCelebrate",
             {"Short", "", 3, {}, platform::Date(2028, 3, 3), std::int16_t{3}, std::int16_t{3}, {}, {}});
  desk_.Execute("UPDATE CldHoliday SET Name1 = '" + name + "' WHERE MY = 3 AND MD = 3");
  ForCalendar([&](QWidget& holidays) {
    WalkToRule(holidays, name);
    script_.Expect("fmAddHoliday", [&](QWidget& editor) {
      auto& box = Find<QLineEdit>(editor, "txtName");
      EXPECT_EQ(box.text().size(), 10000);
      EXPECT_TRUE(box.accessibleDescription().contains("200")) << "the field says how long it may be";
      ExpectMessage(::testing::HasSubstr("The name has 10000 characters; it may have 200 at most"));
      ExpectMessage("Tessaro Calendar. Can't add holiday to database");
      ClickButton(editor, "cmdOk");
    });
    ClickButton(holidays, kEdit);
  });
  EXPECT_EQ(desk_.ReadOne("SELECT length(Name1) FROM CldHoliday WHERE MY = 3 AND MD = 3"), "10000");
}

TEST_F(HolidaysWindowTest, AssignsAWeekdayRuleToTheDayItWasOpenedFor) {
  ForDay([](QWidget& holidays) {
    WalkToRule(holidays, "Sunday");
    ClickButton(holidays, kAssign);
    EXPECT_FALSE(holidays.isVisible());
  });
  EXPECT_EQ(Day(kDayRow + 1), "2|Sunday");
  EXPECT_EQ(desk_.ReadOne("SELECT count(*) FROM CldDay WHERE TID1 = 2"), "1");
  EXPECT_EQ(CellText(Days(), kDayRow, "Holiday name"), "Sunday");
  EXPECT_EQ(Days().currentIndex().row(), kDayRow);
  Activate(Window());
  EXPECT_TRUE(Days().hasFocus());
}

TEST_F(HolidaysWindowTest, AssignsAllSelectedRulesToTheCalendar) {
  ForCalendar([](QWidget& holidays) {
    QTest::keySequence(&GridIn(holidays), QKeySequence(Qt::CTRL | Qt::Key_Home));
    WalkToRow(GridIn(holidays), 0);
    QTest::keySequence(&GridIn(holidays), QKeySequence::SelectAll);
    ClickButton(holidays, kAssign);
  });
  EXPECT_EQ(Day(1), "3|New Year's Day");
  EXPECT_EQ(Day(360), desk_.ReadOne("SELECT TID1, Name1 FROM CldHoliday WHERE Name1 = 'Christmas Day'"));
  EXPECT_EQ(Day(15), "2|Saturday");
  EXPECT_EQ(desk_.ReadOne("SELECT count(*) FROM CldDay WHERE Year1 = 2027 AND ID2 IS NOT NULL"), "0");
  EXPECT_TRUE(desk_.IsDatabaseSound());
}

TEST_F(HolidaysWindowTest, AssignsRulesFarApartThatWereChosenByKeyboardAlone) {
  ForCalendar([](QWidget& holidays) {
    auto& rules = GridIn(holidays);
    WalkToRule(holidays, "Saturday");
    const int steps = RowOf(rules, "Name", "Christmas Day") - rules.currentIndex().row();
    Press(rules, steps > 0 ? Qt::Key_Down : Qt::Key_Up, Qt::ControlModifier, std::abs(steps));
    Press(rules, Qt::Key_Space);
    ClickButton(holidays, kAssign);
  });
  EXPECT_EQ(Day(1), "2|Saturday");
  EXPECT_EQ(Day(360), "3|Christmas Day");
  EXPECT_EQ(Day(105), "1|-") << "Good Friday is between them";
}

TEST_F(HolidaysWindowTest, RemovesTheRulesThatAreChosenAndNotTheCurrentOneBesideThem) {
  ForCalendar([this](QWidget& holidays) {
    auto& rules = GridIn(holidays);
    WalkToRule(holidays, "Good Friday");
    Press(rules, Qt::Key_Up, Qt::ControlModifier, 2);
    const std::string current = CellText(rules, rules.currentIndex().row(), "Name");
    AnswerQuestion("Are you sure ?", "Ok");
    ClickButton(holidays, kRemove);
    EXPECT_FALSE(IsListed(holidays, "Good Friday"));
    EXPECT_TRUE(IsListed(holidays, current)) << current;
  });
}

TEST_F(HolidaysWindowTest, RemovesTheRuleThatCtrlEndGoesTo) {
  ForCalendar([this](QWidget& holidays) {
    auto& rules = GridIn(holidays);
    WalkToRule(holidays, "Saturday");
    Press(rules, Qt::Key_End, Qt::ControlModifier);
    const std::string last = CellText(rules, RowsOf(rules) - 1, "Name");
    AnswerQuestion("Are you sure ?", "Ok");
    ClickButton(holidays, kRemove);
    EXPECT_FALSE(IsListed(holidays, last)) << last;
    EXPECT_TRUE(IsListed(holidays, "Saturday"));
  });
}

TEST_F(HolidaysWindowTest, AssignsTheTwentyNinthOfFebruaryToACommonYear) {
  desk_.Call("CldIUCelebrate",
             {"Leap day", "", 3, {}, platform::Date(2028, 2, 29), std::int16_t{2}, std::int16_t{29}, {}, {}});
  ClickNode(Tree(), {"USD", "2027"});
  ForCalendar([](QWidget& holidays) {
    WalkToRule(holidays, "Leap day");
    ClickButton(holidays, kAssign);
  });
  EXPECT_EQ(CellText(Days(), 58, "Holiday name"), "Leap day");
}

TEST_F(HolidaysWindowTest, AssignsNothingWhenItIsLeftByItsFrameOrByEsc) {
  ForCalendar([](QWidget& holidays) {
    WalkToRule(holidays, "Sunday");
    CloseByFrame(holidays);
    EXPECT_FALSE(holidays.isVisible());
  });
  ForCalendar([](QWidget& holidays) {
    WalkToRule(holidays, "Sunday");
    Press(GridIn(holidays), Qt::Key_Escape);
    EXPECT_FALSE(holidays.isVisible());
  });
  EXPECT_EQ(desk_.ReadOne("SELECT count(*) FROM CldDay WHERE ID2 IS NOT NULL"), "0");
}

TEST_F(HolidaysWindowTest, EscEndsASearchByTypingBeforeItClosesTheWindow) {
  ForCalendar([](QWidget& holidays) {
    auto& rules = GridIn(holidays);
    rules.setFocus();
    QTest::keyClicks(&rules, "Su");
    Press(rules, Qt::Key_Escape);
    EXPECT_TRUE(holidays.isVisible());
    Press(rules, Qt::Key_Escape);
    EXPECT_FALSE(holidays.isVisible());
  });
}

TEST_F(HolidaysWindowTest, EscClosesTheWindowFromItsButtonsAndKeepsItsPlace) {
  QRect placed;
  ForCalendar([&](QWidget& holidays) {
    holidays.setGeometry(71, 83, 711, 512);
    QCoreApplication::processEvents();
    placed = holidays.geometry();
    auto& button = Find<QPushButton>(holidays, kFilter);
    TabTo(button);
    Press(button, Qt::Key_Escape);
    EXPECT_FALSE(holidays.isVisible());
  });
  ForDay([&](QWidget& holidays) { EXPECT_EQ(holidays.geometry(), placed); });
}

TEST_F(HolidaysWindowTest, EscClosesAnOpenListBeforeItCancelsTheEditor) {
  ForCalendar([this](QWidget& holidays) {
    for (const char* list : {"cmbHolidayType", "dtpFullDate"}) {
      script_.Expect("fmAddHoliday", [list](QWidget& editor) {
        ChooseItem(editor, "cmbHolidayType", "Celebration");
        TypeInto(editor, "txtName", "Nothing");
        auto& control = Find<QWidget>(editor, list);
        control.setFocus();
        QTest::keyClick(&control, Qt::Key_Down, Qt::AltModifier);
        QWidget* popup = QApplication::activePopupWidget();
        ASSERT_NE(popup, nullptr) << list;
        Press(popup->focusWidget() != nullptr ? *popup->focusWidget() : *popup, Qt::Key_Escape);
        EXPECT_EQ(QApplication::activePopupWidget(), nullptr) << list;
        EXPECT_TRUE(editor.isVisible()) << list;
        Press(control, Qt::Key_Escape);
        EXPECT_FALSE(editor.isVisible()) << list;
      });
      ClickButton(holidays, kAdd);
      EXPECT_TRUE(holidays.isVisible()) << list;
    }
  });
  EXPECT_EQ(desk_.ReadOne("SELECT count(*) FROM CldHoliday WHERE Name1 = 'Nothing'"), "0");
}

TEST_F(HolidaysWindowTest, ComesBackAtItsPlace) {
  QRect placed;
  ForCalendar([&](QWidget& holidays) {
    holidays.setGeometry(61, 73, 701, 502);
    QCoreApplication::processEvents();
    placed = holidays.geometry();
  });
  ForDay([&](QWidget& holidays) { EXPECT_EQ(holidays.geometry(), placed); });
}

TEST_F(HolidaysWindowTest, ShowsAndHidesItsBoxToGroupBy) {
  ForCalendar([](QWidget& holidays) {
    auto& box = Find<QWidget>(holidays, "groupByBox");
    EXPECT_FALSE(box.isVisible());
    ClickTool(holidays, "ID_ShowHide");
    EXPECT_TRUE(box.isVisible());
    QCoreApplication::processEvents();
    const int rules = RowsOf(GridIn(holidays));
    DragHeader(GridIn(holidays), "Holiday type", box.mapToGlobal(box.rect().center()));
    EXPECT_EQ(RowsOf(GridIn(holidays)), rules + 3);
    // A group row is no rule.
    WalkToRow(GridIn(holidays), 0);
    EXPECT_FALSE(IsEnabled(holidays, kAssign));
  });
}

TEST_F(HolidaysWindowTest, NamesTheWeekdaysFromTheFirstOneOfTheSetting) {
  for (int first = 1; first <= 7; ++first) {
    desk_.Execute("UPDATE CldSetting SET FirstDay = " + std::to_string(first));
    ForCalendar([&](QWidget& holidays) {
      script_.Expect("fmAddHoliday", [first](QWidget& editor) {
        const QLocale locale = QLocale::system();
        auto& list = Find<QComboBox>(editor, "cmbDayOfWeek");
        EXPECT_EQ(list.count(), 7);
        EXPECT_EQ(list.itemText(0), locale.standaloneDayName(first == 1 ? 7 : first - 1));
        ClickButton(editor, "cmdCancel");
      });
      ClickButton(holidays, kAdd);
    });
  }
}

}  // namespace
}  // namespace ferrowind::gui
