#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>

#include "ferrowind/adapters/qt/table/table_view.h"
#include "ferrowind/almanac/book_text.h"
#include "ferrowind/data/module_state.h"
#include "ferrowind/planning/book_store.h"
#include "ferrowind/views/planning/planning_windows.h"

#include "tests/gui/windows/windows_fixture.h"

namespace ferrowind::gui {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

/// The rule book of the euro in its window, over a real database.
class RuleBookWindowTest : public WindowsTest {
 protected:
  RuleBookWindowTest() {
    const InSurroundings surroundings(desk_.Platform());
    planning::StoreBook(kEuro, "EUR", "",
                        almanac::ReadBook("publisher European Central Bank\n"
                                          "document Calendar of TARGET closing days\n"
                                          "weekday | Saturday | weekday Saturday | Weekend\n"
                                          "weekday | Sunday | weekday Sunday | Weekend\n"
                                          "celebration | New Year's Day | 01-01 | 1 January\n"
                                          "point | Good Friday | easter-2 | Friday before Easter Sunday\n"
                                          "celebration | Christmas Day | 12-25 | 25 December\n"));
    windows_.OpenRuleBook(kEuro);
    window_ = WindowOnShow("fmRuleBook");
    if (window_ == nullptr) throw std::runtime_error("the window of the rule book is not open");
    Activate(*window_);
  }
  ~RuleBookWindowTest() override { EXPECT_TRUE(windows_.CloseAll()); }

  [[nodiscard]] QLineEdit& Box(const char* name) const { return Find<QLineEdit>(*window_, name); }
  [[nodiscard]] std::string Text(const char* label) const {
    return Find<QLabel>(*window_, label).text().toStdString();
  }
  /// Makes the rule at that position current, with the arrow keys.
  void WalkTo(int position) {
    Rules().setFocus();
    Press(Rules(), Qt::Key_Home, Qt::ControlModifier);
    Press(Rules(), Qt::Key_Down, {}, position);
  }
  /// So that the window closes without a question.
  void Reset(int position, const std::string& expression) {
    WalkTo(position);
    TypeInto(*window_, "txtExpression", expression);
  }
  [[nodiscard]] qt::TableView& Rules() const { return Find<qt::TableView>(*window_, "tblRules"); }

  almanac::DateTables tables_;
  PlanningWindows windows_{desk_.Platform(), tables_};
  QWidget* window_ = nullptr;
};

TEST_F(RuleBookWindowTest, AddsARuleByKeyboardAndStoresIt) {
  WalkTo(3);
  ClickButton(*window_, "cmdAdd");
  EXPECT_TRUE(Box("txtName").hasFocus());
  QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("Christmas Eve"));
  TabTo(Find<QComboBox>(*window_, "cmbKind"));
  ChooseItem(*window_, "cmbKind", "Celebration");
  TabTo(Box("txtExpression"));
  QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("12-24"));
  EXPECT_THAT(Text("lblOutcome"), HasSubstr("24 December"));
  ClickButton(*window_, "cmdSave");
  EXPECT_THAT(Text("lblOutcome"), HasSubstr("The book of EUR is saved."));
  EXPECT_THAT(desk_.Read("SELECT Position, Name1, TID1, Expression FROM CldRecurrence WHERE Position > 3"),
              ElementsAre("4|Good Friday|4|easter-2", "5|Christmas Eve|3|12-24", "6|Christmas Day|3|12-25"));
}

TEST_F(RuleBookWindowTest, ScrollsNoTableSidewaysOnASmallScreen) {
  window_->resize(790, 570);
  WalkTo(2);
  TypeInto(*window_, "txtName", "Juneteenth National Independence Day");
  TypeInto(*window_, "txtExpression", "06-19 saturday to friday, sunday to monday from 2022");
  QCoreApplication::processEvents();
  for (const auto* table : window_->findChildren<qt::TableView*>()) {
    EXPECT_FALSE(table->horizontalScrollBar()->isVisible())
        << table->objectName().toStdString() << " of " << table->viewport()->width();
  }
  Reset(2, "01-01");
  TypeInto(*window_, "txtName", "New Year's Day");
}

TEST_F(RuleBookWindowTest, ShowsAllOfItsRulesWithoutScrollingSidewaysAtItsOrdinarySize) {
  // Wider than the screen of these tests.
  window_->resize(1040, 660);
  WalkTo(2);
  TypeInto(*window_, "txtName", "Juneteenth National Independence Day");
  TypeInto(*window_, "txtExpression", "06-19 saturday to friday, sunday to monday from 2022");
  QCoreApplication::processEvents();
  EXPECT_FALSE(Rules().horizontalScrollBar()->isVisible()) << Rules().width();
  EXPECT_GE(Rules().columnWidth(0), 140);
  EXPECT_GE(Rules().columnWidth(2), 140);
  TypeInto(*window_, "txtName", "New Year's Day");
  TypeInto(*window_, "txtExpression", "01-01");
}

TEST_F(RuleBookWindowTest, AddsNoRuleByEnterInAField) {
  WalkTo(3);
  const int rules = Rules().model()->rowCount();
  for (const char* field : {"txtName", "txtExpression", "txtPublisher"}) {
    Box(field).setFocus();
    Press(Box(field), Qt::Key_Return);
  }
  EXPECT_EQ(Rules().model()->rowCount(), rules);
  Find<QPushButton>(*window_, "cmdAdd").setFocus();
  Press(Find<QPushButton>(*window_, "cmdAdd"), Qt::Key_Return);
  EXPECT_EQ(Rules().model()->rowCount(), rules + 1) << "it presses the button that has the focus";
  ClickButton(*window_, "cmdRemove");
}

TEST_F(RuleBookWindowTest, FitsASmallScreenWhateverTheKindOfDate) {
  WalkTo(3);
  auto& forms = Find<QComboBox>(*window_, "cmbForm");
  std::vector<QString> names;
  for (int i = 0; i < forms.count(); ++i) names.push_back(forms.itemText(i));
  for (const QString& name : names) {
    ChooseItem(*window_, "cmbForm", name.toStdString());
    QCoreApplication::processEvents();
    const QSize least = window_->layout()->totalMinimumSize();
    EXPECT_LE(least.width(), 790) << name.toStdString();
    EXPECT_LE(least.height(), 560) << name.toStdString();
  }
  Reset(3, "easter-2");
}

TEST_F(RuleBookWindowTest, WritesTheExpressionThatIsChosenInTheLists) {
  WalkTo(3);
  ChooseItem(*window_, "cmbForm", "A weekday of a month");
  ChooseItem(*window_, "cmbOrdinal", "Last");
  ChooseItem(*window_, "cmbWeekday", "Thursday");
  ChooseItem(*window_, "cmbMonth", "November");
  EXPECT_EQ(Box("txtExpression").text().toStdString(), "last Thursday of 11");
  EXPECT_FALSE(Find<QComboBox>(*window_, "cmbOffset").isVisible());
  Reset(3, "easter-2");
  EXPECT_EQ(Text("lblOutcome"), "Nothing is changed.");
}

TEST_F(RuleBookWindowTest, KeepsWhatWasTypedWhenSomebodyElseHasChangedTheBook) {
  Box("txtDocument").setFocus();
  TypeInto(*window_, "txtDocument", "Mine");
  desk_.Execute("UPDATE CldBook SET Document = 'Theirs'");
  ExpectMessage(HasSubstr("it was changed meanwhile"));
  ClickButton(*window_, "cmdSave");
  EXPECT_EQ(Box("txtDocument").text().toStdString(), "Mine");
  EXPECT_EQ(desk_.ReadOne("SELECT Document FROM CldBook"), "Theirs");
  TypeInto(*window_, "txtDocument", "Calendar of TARGET closing days");
}

TEST_F(RuleBookWindowTest, AsksBeforeEscLosesChanges) {
  TypeInto(*window_, "txtDocument", "Mine");
  const std::string question = "The rule book of EUR has changes that are not saved. Lose them?";
  AnswerQuestion(question, "Cancel");
  Press(Box("txtDocument"), Qt::Key_Escape);
  EXPECT_TRUE(window_->isVisible());
  AnswerQuestion(question, "Lose them");
  Press(Box("txtDocument"), Qt::Key_Escape);
  EXPECT_EQ(WindowOnShow("fmRuleBook"), nullptr);
}

TEST_F(RuleBookWindowTest, LosesNoChangesToEnterAlone) {
  TypeInto(*window_, "txtDocument", "Mine");
  script_.Expect("fmMessage", [](QWidget& question) { Press(*question.focusWidget(), Qt::Key_Return); });
  Press(Box("txtDocument"), Qt::Key_Escape);
  EXPECT_TRUE(window_->isVisible());
  TypeInto(*window_, "txtDocument", "Calendar of TARGET closing days");
}

TEST_F(RuleBookWindowTest, IsReadInFullOnASmallScreen) {
  EXPECT_LE(window_->width(), window_->screen()->availableSize().width()) << "as it has opened";
  EXPECT_LE(window_->minimumSizeHint().width(), 800);
  EXPECT_LE(window_->minimumSizeHint().height(), 560);
}

}  // namespace
}  // namespace ferrowind::gui
