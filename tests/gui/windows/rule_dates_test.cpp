// What an operator types as the date of a rule, and what the database then holds.
#include <QApplication>
#include <QCalendarWidget>
#include <QLabel>
#include <algorithm>
#include <vector>

#include "ferrowind/adapters/qt/controls/date_field.h"

#include "tests/gui/windows/windows_fixture.h"

namespace ferrowind::gui {
namespace {

constexpr int kYear = 2028;

/// The editor of a new rule for the calendar USD 2028, or another one.
class RuleDatesTest : public WindowsTest {
 protected:
  void InEditor(const DialogScript::Step& work) {
    if (!IsOpen()) OpenDollar2028();
    InHolidays("ID_AssignMany", 0, [&](QWidget& holidays) { AddIn(holidays, work); });
  }
  /// Presses "Add" and has `work` done in the editor with a celebration's name entered; cancels what it
  /// leaves open.
  void AddIn(QWidget& holidays, const DialogScript::Step& work) {
    script_.Expect("fmAddHoliday", [work](QWidget& editor) {
      ChooseItem(editor, "cmbHolidayType", "Celebration");
      TypeInto(editor, "txtName", "Celebration");
      work(editor);
      if (editor.isVisible()) ClickButton(editor, "cmdCancel");
    });
    ClickButton(holidays, "cmdAction0");
  }
  static qt::DateField& FieldOf(QWidget& editor) { return Find<qt::DateField>(editor, "dtpFullDate"); }
  static std::string NoteOf(QWidget& editor) {
    const auto& note = Find<QLabel>(editor, "noteFullDate");
    return note.isVisible() ? note.text().toStdString() : "";
  }
  /// Expects the note to be on show with all of its lines, above the comment, in a window that has grown with
  /// it.
  static void ExpectWhole(QWidget& editor) {
    const auto& note = Find<QLabel>(editor, "noteFullDate");
    const auto& comment = Find<QWidget>(editor, "txtComment");
    const auto is_whole = [&] {
      const QRect lines = note.fontMetrics().boundingRect(QRect(0, 0, note.contentsRect().width(), 1000),
                                                          Qt::TextWordWrap, note.text());
      return note.contentsRect().height() >= lines.height() &&
             note.geometry().bottom() < comment.geometry().top() &&
             comment.parentWidget()->rect().contains(comment.geometry());
    };
    EXPECT_TRUE(QTest::qWaitFor(is_whole)) << note.text().toStdString();
  }
  static void TypeOver(QLineEdit& field, const QString& text) {
    TabTo(field);
    QTest::keySequence(&field, QKeySequence::SelectAll);
    // By characters, for which the keyboard simulation has no key codes.
    for (const QChar character : text)
      QTest::sendKeyEvent(QTest::Click, &field, Qt::Key_unknown, character, {});
  }
  [[nodiscard]] std::string Stored(const std::string& name = "Celebration") const {
    const auto rows =
        desk_.Read("SELECT D1, MY, MD FROM CldHoliday WHERE Name1 = '" + name + "' AND TID1 = 3");
    return rows.empty() ? "" : rows.front();
  }
  void ExpectStoredFor(const char* typed, const char* stored) {
    InEditor([&](QWidget& editor) {
      TypeOver(FieldOf(editor), QString::fromUtf8(typed));
      Press(FieldOf(editor), Qt::Key_Return);
      EXPECT_FALSE(editor.isVisible()) << typed;
    });
    EXPECT_EQ(Stored(), stored) << typed;
    desk_.Execute("DELETE FROM CldHoliday WHERE Name1 = 'Celebration'");
  }
};

TEST_F(RuleDatesTest, AreStoredAsTheyWereTyped) {
  ExpectStoredFor("31 December", "2028-12-31|12|31");
  ExpectStoredFor("31 January", "2028-01-31|1|31");
  ExpectStoredFor("29 February", "2028-02-29|2|29");
  ExpectStoredFor("25 Dec", "2028-12-25|12|25");
  ExpectStoredFor("25/12", "2028-12-25|12|25");
  ExpectStoredFor("1.5", "2028-05-01|5|1");
  ExpectStoredFor("31.12.", "2028-12-31|12|31");
  ExpectStoredFor("12-31", "2028-12-31|12|31");
  ExpectStoredFor("December 31", "2028-12-31|12|31");
}

TEST_F(RuleDatesTest, AreStoredInFiveLanguagesFromTheLastDayOfEveryMonth) {
  struct Language {
    const char* locale;
    std::vector<const char*> forms;
  };
  const Language languages[] = {{"en_GB", {"d MMMM", "d MMM", "d.M", "d/M", "MM-dd", "MMMM d"}},
                                {"en_US", {"MMMM d", "MMM d", "M/d", "M.d", "MM-dd", "d MMMM"}},
                                {"de_DE", {"d. MMMM", "d. MMM.", "dd.MM.", "d/M", "MM-dd", "d MMM"}},
                                {"pl_PL", {"d MMMM", "d MMM", "dd.MM", "d/M", "MM-dd", "MMMM d"}},
                                {"ja_JP", {"MMMMd", "d MMMM", "M/d", "MM.dd", "MM-dd", "MM/dd"}}};
  OpenDollar2028();
  InHolidays("ID_AssignMany", 0, [&](QWidget& holidays) {
    for (const Language& language : languages) {
      const QLocale locale(QString::fromLatin1(language.locale));
      for (int month = 1; month <= 12; ++month) {
        const QDate start = QDate(kYear, month, 1).addMonths(1).addDays(-1);
        // The last day of the month half a year on, in each form twice.
        const QDate typed = QDate(kYear, (month + 5) % 12 + 1, 1).addMonths(1).addDays(-1);
        const char* form = language.forms[static_cast<std::size_t>(month) % language.forms.size()];
        AddIn(holidays, [&](QWidget& editor) {
          auto& field = FieldOf(editor);
          field.setLocale(locale);
          TypeInto(editor, "txtName", std::string(language.locale) + std::to_string(month));
          TypeOver(field, locale.toString(start, QStringLiteral("d MMMM")));
          Press(field, Qt::Key_Tab);
          EXPECT_EQ(field.text(), locale.toString(start, u"d'  'MMMM"));
          TypeOver(field, locale.toString(typed, QString::fromLatin1(form)));
          Press(field, Qt::Key_Return);
          EXPECT_FALSE(editor.isVisible()) << language.locale << " " << form;
        });
        EXPECT_EQ(Stored(std::string(language.locale) + std::to_string(month)),
                  typed.toString(QStringLiteral("yyyy-MM-dd|M|d")).toStdString())
            << form;
      }
    }
  });
}

TEST_F(RuleDatesTest, AreRefusedOnEnterWhenTheyAreNone) {
  InEditor([](QWidget& editor) {
    auto& field = FieldOf(editor);
    for (const char* text : {"31 April", "31 Foo", "", "31.12.2028", "13/13"}) {
      TypeOver(field, QString::fromLatin1(text));
      if (*text == '\0') Press(field, Qt::Key_Delete);
      Press(field, Qt::Key_Return);
      EXPECT_TRUE(editor.isVisible()) << text;
      EXPECT_TRUE(field.hasFocus()) << text;
      EXPECT_EQ(field.text().toStdString(), text);
      EXPECT_NE(NoteOf(editor), "") << text;
      ExpectWhole(editor);
    }
    TypeOver(field, QStringLiteral("31 April"));
    EXPECT_EQ(NoteOf(editor), "There is no 31 April: the month has 30 days.");
  });
  EXPECT_EQ(Stored(), "");
}

TEST_F(RuleDatesTest, AreNotGuessedFromNumbersThatCouldBeTwoDays) {
  InEditor([](QWidget& editor) {
    auto& field = FieldOf(editor);
    field.setLocale(QLocale(QStringLiteral("en_GB")));
    TypeOver(field, QStringLiteral("05-06"));
    Press(field, Qt::Key_Return);
    EXPECT_TRUE(editor.isVisible());
    EXPECT_EQ(NoteOf(editor), "05-06 can be 5 June or 6 May. Write the name of the month.");
    ExpectWhole(editor);
  });
  EXPECT_EQ(Stored(), "");
}

TEST_F(RuleDatesTest, AreRefusedByOkWhenTheyAreNoneAndStoredOnceTheyAreMended) {
  InEditor([this](QWidget& editor) {
    auto& field = FieldOf(editor);
    TypeOver(field, QStringLiteral("31 Apri"));
    Press(field, Qt::Key_Tab);
    EXPECT_EQ(field.text(), QStringLiteral("31 Apri"));
    EXPECT_NE(NoteOf(editor), "");
    ClickButton(editor, "cmdOk");
    EXPECT_TRUE(editor.isVisible());
    EXPECT_TRUE(field.hasFocus());
    EXPECT_EQ(desk_.Toolkit().Beeps(), 1);
    EXPECT_EQ(Stored(), "");
    TypeOver(field, QStringLiteral("30 April"));
    EXPECT_EQ(NoteOf(editor), "");
    ClickButton(editor, "cmdOk");
    EXPECT_FALSE(editor.isVisible());
  });
  EXPECT_EQ(Stored(), "2028-04-30|4|30");
}

TEST_F(RuleDatesTest, AreRefusedByTheAccessKeyOfOkAsWell) {
  InEditor([](QWidget& editor) {
    auto& field = FieldOf(editor);
    TypeOver(field, QStringLiteral("31 Foo"));
    Press(field, Qt::Key_O, Qt::AltModifier);
    // The button shows that it is pressed for a while first.
    EXPECT_TRUE(QTest::qWaitFor([&] { return field.IsRefused(); }));
    EXPECT_TRUE(editor.isVisible());
  });
  EXPECT_EQ(Stored(), "");
}

TEST_F(RuleDatesTest, AreTheTwentyNinthOfFebruaryInALeapYearAlone) {
  OpenCalendars();
  ClickNode(Tree(), {"USD", "2027"});
  InEditor([](QWidget& editor) {
    TypeOver(FieldOf(editor), QStringLiteral("29 February"));
    Press(FieldOf(editor), Qt::Key_Return);
    EXPECT_TRUE(editor.isVisible());
    EXPECT_EQ(NoteOf(editor), "There is no 29 February in 2027.");
  });
  EXPECT_EQ(Stored(), "");
}

TEST_F(RuleDatesTest, ArePickedFromTheCalendarOfTheYear) {
  InEditor([](QWidget& editor) {
    auto& field = FieldOf(editor);
    TypeOver(field, QStringLiteral("4 July"));
    Press(field, Qt::Key_Down, Qt::AltModifier);
    ASSERT_NE(field.Popup(), nullptr);
    auto& calendar = *field.Popup()->findChild<QCalendarWidget*>();
    EXPECT_EQ(calendar.selectedDate(), QDate(kYear, 7, 4));
    EXPECT_EQ(calendar.yearShown(), kYear);
    auto& days = *field.Popup()->findChild<QAbstractItemView*>();
    Press(days, Qt::Key_Right);
    Press(days, Qt::Key_Return);
    EXPECT_EQ(field.text().toStdString(), "5  July");
    Press(field, Qt::Key_Return);
  });
  EXPECT_EQ(Stored(), "2028-07-05|7|5");
}

}  // namespace
}  // namespace ferrowind::gui
