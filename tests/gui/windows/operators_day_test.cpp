#include <QLineEdit>
#include <memory>
#include <sstream>
#include <string>

#include "tests/gui/windows/windows_fixture.h"

namespace ferrowind::gui {
namespace {

using platform::Date;
using ::testing::ElementsAre;

/// A rule as the editor asks for it. A weekday rule has a weekday, the others have a date.
struct NewRule {
  const char* name;
  const char* type;
  const char* comment;
  const char* weekday;
  QDate date;
};

const NewRule kRules[] = {
    {"Saturday", "Holiday", "Weekend", "Saturday", {}},
    {"Sunday", "Holiday", "Weekend", "Sunday", {}},
    {"New Year's Day", "Celebration", "1 January", nullptr, QDate(2028, 1, 1)},
    {"Independence Day", "Celebration", "4 July", nullptr, QDate(2028, 7, 4)},
    {"Christmas Day", "Celebration", "25 December", nullptr, QDate(2028, 12, 25)},
};

/// An operator's first day: a database with currencies and nothing else, all of them listed.
class OperatorsDayTest : public ::testing::Test {
 protected:
  OperatorsDayTest() { control_ = std::make_unique<Calendar>(desk_.Platform()); }
  ~OperatorsDayTest() override {
    EXPECT_TRUE(script_.IsPlayed());
    control_.reset();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }

  void OpenCalendars() {
    control_->Show();
    ASSERT_NE(WindowOnShow("fmCalendar"), nullptr);
    Activate(Window());
  }
  [[nodiscard]] static QWidget& Window() { return *WindowOnShow("fmCalendar"); }
  [[nodiscard]] static QTreeView& Tree() { return Find<QTreeView>(Window(), "tvCalendar"); }
  [[nodiscard]] static qt::GridView& Days() { return GridIn(Window()); }

  void CreateDollarCalendarOf2028() {
    WalkToNode(Tree(), {"USD"});
    script_.Expect("fmSelectYear", [](QWidget& dialog) {
      EXPECT_EQ(dialog.windowTitle().toStdString(), "Select year USD currency");
      TypeInto(dialog, "txtYear", "2028");
      Press(Find<QLineEdit>(dialog, "txtYear"), Qt::Key_Return);
    });
    ClickTool(Window(), "ID_New");
    EXPECT_THAT(SelectedNode(Tree()), ElementsAre("USD", "2028"));
    EXPECT_EQ(RowsOf(Days()), 366);
  }

  /// Opens the menu on the day of that row and has `work` done in the Holidays window for the whole calendar.
  void InHolidays(int row, const DialogScript::Step& work) {
    script_.Expect("ID_StatesMenu", [](QWidget& menu) { PickFromMenu(menu, "ID_AssignMany"); });
    script_.Expect("fmEnterHolidays", [work](QWidget& holidays) {
      work(holidays);
      if (holidays.isVisible()) holidays.close();
    });
    WalkToRow(Days(), row);
    RightClickRow(Days(), row);
  }

  void AddRule(QWidget& holidays, const NewRule& rule) {
    script_.Expect("fmAddHoliday", [rule](QWidget& editor) {
      ChooseItem(editor, "cmbHolidayType", rule.type);
      TypeInto(editor, "txtName", rule.name);
      if (rule.weekday != nullptr) ChooseItem(editor, "cmbDayOfWeek", rule.weekday);
      if (rule.date.isValid()) TypeDate(editor, "dtpFullDate", rule.date);
      TypeInto(editor, "txtComment", rule.comment);
      ClickButton(editor, "cmdOk");
    });
    ClickButton(holidays, "cmdAction0");
    EXPECT_GE(RowOf(GridIn(holidays), "Name", rule.name), 0);
  }

  static void AssignAll(QWidget& holidays) {
    WalkToRow(GridIn(holidays), 0);
    QTest::keySequence(&GridIn(holidays), QKeySequence::SelectAll);
    ClickButton(holidays, "cmdAction5");
  }

  void ExceptWithMessage(int row, const char* message) {
    script_.Expect("ID_StatesMenu", [](QWidget& menu) { PickFromMenu(menu, "ID_Except2"); });
    script_.Expect("fmExceptMess", [message](QWidget& dialog) {
      TypeInto(dialog, "txtMessage", message);
      Press(Find<QLineEdit>(dialog, "txtMessage"), Qt::Key_Return);
    });
    WalkToRow(Days(), row);
    RightClickRow(Days(), row);
  }

  void RemoveAndRestore(QWidget& holidays, const char* name) {
    auto& rules = GridIn(holidays);
    WalkToRow(rules, RowOf(rules, "Name", name));
    script_.Expect("fmMessage", [](QWidget& question) {
      EXPECT_EQ(question.windowTitle().toStdString(), "Remove holiday");
      PressButton(question, "Ok");
    });
    ClickButton(holidays, "cmdAction2");
    EXPECT_EQ(RowOf(rules, "Name", name), -1);
    EXPECT_EQ(desk_.ReadOne("SELECT Del FROM CldHoliday WHERE Name1 = '" + std::string(name) + "'"), "2");
    ClickButton(holidays, "cmdAction4");
    WalkToRow(rules, RowOf(rules, "Name", name));
    ClickButton(holidays, "cmdAction3");
    ClickButton(holidays, "cmdAction4");
    EXPECT_GE(RowOf(rules, "Name", name), 0);
  }

  void EditComment(QWidget& holidays, const char* name, const char* comment) {
    auto& rules = GridIn(holidays);
    WalkToRow(rules, RowOf(rules, "Name", name));
    script_.Expect("fmAddHoliday", [comment](QWidget& editor) {
      TypeInto(editor, "txtComment", comment);
      ClickButton(editor, "cmdOk");
    });
    ClickButton(holidays, "cmdAction1");
    EXPECT_EQ(CellText(rules, RowOf(rules, "Name", name), "Comment"), comment);
  }

  /// What a day of 2028 must be, worked out from the calendar alone.
  struct Day {
    std::string type = "Working day";
    std::string name;
    std::string description;
    std::string comment;
    friend bool operator==(const Day&, const Day&) = default;
    friend std::ostream& operator<<(std::ostream& out, const Day& day) {
      return out << day.type << '|' << day.name << '|' << day.description << '|' << day.comment;
    }
  };
  static Day Wanted(const Date& date) {
    if (date == Date(2028, 12, 23))
      return {"Working day", "Working day by exception", "", "Year-end processing"};
    if (date == Date(2028, 1, 1)) return {"Celebration", "New Year's Day", "1 January", ""};
    if (date == Date(2028, 7, 4)) return {"Celebration", "Independence Day", "4 July 1776", ""};
    if (date == Date(2028, 12, 25)) return {"Celebration", "Christmas Day", "25 December", ""};
    if (date.Weekday() == 7) return {"Holiday", "Saturday", "Weekend", ""};
    if (date.Weekday() == 1) return {"Holiday", "Sunday", "Weekend", ""};
    return {};
  }
  [[nodiscard]] static Day ShownInRow(int row) {
    return {CellText(Days(), row, "Day type"), CellText(Days(), row, "Holiday name"),
            CellText(Days(), row, "Description"), CellText(Days(), row, "Comment")};
  }
  void ExpectDaysInTheTables() const {
    const auto rows = desk_.Read(
        "SELECT d.ODate, t.Description1, ifnull(h.Name1, ''), ifnull(h.Comment, ''), ifnull(d.Comment, '') "
        "FROM CldDay d JOIN CldHolidayType t USING (TID1) LEFT JOIN CldHoliday h ON h.ID2 = d.ID2 ORDER BY "
        "Day1");
    ASSERT_EQ(rows.size(), 366U);
    for (int row = 0; row < 366; ++row) {
      const Date date = Date(2028, 1, 1).AddDays(row);
      std::ostringstream wanted;
      wanted << date.ToIso() << '|' << Wanted(date);
      // The comment of the built-in rule is the database's business.
      if (date == Date(2028, 12, 23)) continue;
      EXPECT_EQ(rows[static_cast<std::size_t>(row)], wanted.str());
    }
  }

  OperatorDesk desk_{OperatorDesk::Rules::kBuiltInOnly};
  DialogScript script_;
  std::unique_ptr<Calendar> control_;
};

TEST_F(OperatorsDayTest, LeavesInGridAndTablesExactlyWhatWasDone) {
  OpenCalendars();
  CreateDollarCalendarOf2028();
  InHolidays(0, [this](QWidget& holidays) {
    for (const NewRule& rule : kRules) AddRule(holidays, rule);
    AssignAll(holidays);
  });
  const int exception_row = Date(2028, 12, 23).DayOfYear() - 1;
  EXPECT_EQ(CellText(Days(), exception_row, "Holiday name"), "Saturday");
  ExceptWithMessage(exception_row, "Year-end processing");
  EXPECT_EQ(CellText(Days(), exception_row, "Comment"), "Year-end processing");
  InHolidays(exception_row, [this](QWidget& holidays) {
    RemoveAndRestore(holidays, "Christmas Day");
    EditComment(holidays, "Independence Day", "4 July 1776");
  });
  EXPECT_TRUE(control_->ForceClosing());

  OpenCalendars();
  WalkToNode(Tree(), {"USD", "2028"});
  ASSERT_EQ(RowsOf(Days()), 366);
  for (int row = 0; row < 366; ++row) {
    Day wanted = Wanted(Date(2028, 1, 1).AddDays(row));
    if (row == exception_row)
      wanted.description = desk_.ReadOne("SELECT ifnull(Comment, '') FROM CldHoliday WHERE ID2 = 1");
    EXPECT_EQ(ShownInRow(row), wanted) << "day " << row + 1;
  }
  InHolidays(0, [](QWidget& holidays) {
    EXPECT_THAT(ColumnTexts(GridIn(holidays), "Name"),
                ::testing::UnorderedElementsAre("Saturday", "Sunday", "New Year's Day", "Independence Day",
                                                "Christmas Day"));
  });
  ExpectDaysInTheTables();
  EXPECT_THAT(desk_.Read("SELECT ID1, Year1 FROM CldCalendar"), ElementsAre("840|2028"));
  EXPECT_EQ(desk_.ReadOne("SELECT TID1, ID2, Comment FROM CldDay WHERE ODate = '2028-12-23'"),
            "1|1|Year-end processing");
  EXPECT_THAT(
      desk_.Read("SELECT Name1, Comment, TID1, MY, MD, WD, Del FROM CldHoliday WHERE ID2 > 1 ORDER BY ID2"),
      ElementsAre("Saturday|Weekend|2|-|-|7|-", "Sunday|Weekend|2|-|-|1|-",
                  "New Year's Day|1 January|3|1|1|-|-", "Independence Day|4 July 1776|3|7|4|-|-",
                  "Christmas Day|25 December|3|12|25|-|4"));
  EXPECT_TRUE(desk_.IsDatabaseSound());
}

}  // namespace
}  // namespace ferrowind::gui
