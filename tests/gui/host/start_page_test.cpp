// The start page of the desktop: the readiness board in the back office.
#include "host/desktop/start_page.h"

#include <QApplication>
#include <QDate>
#include <QLabel>
#include <QPushButton>

#include "ferrowind/adapters/qt/services/settings_store.h"
#include "ferrowind/adapters/qt/table/table_view.h"
#include "ferrowind/adapters/sqlite/engine.h"

#include "tests/gui/host/host_desk.h"

namespace ferrowind::gui {
namespace {

using ::testing::HasSubstr;
using ::testing::IsEmpty;

constexpr int kEuro = 978;
constexpr int kDollar = 840;

class StartPage : public HostTest {
 protected:
  StartPage() { Open(); }
  ~StartPage() override { page_.reset(); }

  void Open() {
    page_ = std::make_unique<host::StartPage>(*surroundings_, news_, *back_office_);
    Activate(*back_office_);
    QCoreApplication::processEvents();
  }
  [[nodiscard]] static int ThisYear() { return QDate::currentDate().year(); }
  [[nodiscard]] qt::TableView& Board() const { return Find<qt::TableView>(*back_office_, "tblBoard"); }
  /// The text in the row of the currency and the column whose caption begins with that; "" without one.
  [[nodiscard]] std::string Cell(const std::string& currency, const std::string& caption) const {
    const QAbstractItemModel& cells = *Board().model();
    for (int row = 0; row < cells.rowCount(); ++row) {
      if (cells.index(row, 0).data().toString().toStdString() != currency) continue;
      for (int column = 0; column < cells.columnCount(); ++column) {
        const QString header = cells.headerData(column, Qt::Horizontal).toString();
        if (header.startsWith(QString::fromStdString(caption)))
          return cells.index(row, column).data().toString().toStdString();
      }
    }
    return {};
  }
  [[nodiscard]] std::string Problem() const {
    const auto& label = Find<QLabel>(*back_office_, "lblProblem");
    return label.isVisible() ? label.text().toStdString() : std::string();
  }
  /// What another program does, of which this one is not told.
  void CreateCalendarElsewhere(int currency, int year) const {
    sqlite::Engine engine;
    (void)engine.Connect("sqlite:" + DatabasePath())->Call("CldIUMain", {currency, year, {}, {}, {}, {}, {}});
  }
  /// The operator is elsewhere, and comes back.
  void ComeBack() const {
    QWidget elsewhere;
    elsewhere.show();
    Activate(elsewhere);
    QCoreApplication::processEvents();
    Activate(*back_office_);
    QCoreApplication::processEvents();
  }

  std::unique_ptr<host::StartPage> page_;
};

TEST_F(StartPage, FillsTheBackOfficeWithTheBoardAndGivesItTheKeyboard) {
  EXPECT_TRUE(Board().isVisible());
  EXPECT_EQ(Board().window(), back_office_.get());
  EXPECT_EQ(QApplication::focusWidget(), &Board());
  EXPECT_EQ(Cell("USD", "Name"), "US Dollar");
  EXPECT_EQ(Board().model()->rowCount(), 1);
}

TEST_F(StartPage, KeepsTheBackOfficeInReachOfItsButtons) {
  auto& open = Find<QPushButton>(*back_office_, "openCalendars");
  EXPECT_TRUE(open.isVisible());
  Press(Board(), Qt::Key_Escape);
  EXPECT_TRUE(Board().isVisible());
  ClickButton(*back_office_, "openCalendars");
  EXPECT_NE(WindowOnShow("fmCalendar"), nullptr);
}

TEST_F(StartPage, FitsASmallScreen) {
  back_office_->resize(100, 100);
  EXPECT_LE(back_office_->width(), 780);
  EXPECT_LE(back_office_->height(), 540);
}

TEST_F(StartPage, OpensAsLargeAsItWasLeftAndWithoutThatMemoryAsItIsRead) {
  const QSize at_first = back_office_->size();
  back_office_->resize(at_first - QSize(19, 43));
  back_office_->close();
  page_.reset();
  WorkOn("sqlite:" + DatabasePath());
  Open();
  EXPECT_EQ(back_office_->size(), at_first - QSize(19, 43));
  qt::SettingsStore().Write("\\Tessaro\\Host\\Back office", "Geometry", std::string("no geometry"));
  page_.reset();
  WorkOn("sqlite:" + DatabasePath());
  Open();
  EXPECT_EQ(back_office_->size(), at_first);
}

TEST_F(StartPage, ShowsWhatThisProgramHasChangedWhenTheOperatorComesBack) {
  OpenCalendars();
  script_.Expect("fmSelectYear", [](QWidget& dialog) {
    TypeInto(dialog, "txtYear", std::to_string(ThisYear()));
    ClickButton(dialog, "cmdCreate");
  });
  EXPECT_EQ(Cell("USD", std::to_string(ThisYear())), "Not prepared");
  ClickTool(Calendars(), "ID_New");
  ReturnToCalendars();
  // The calendar of another currency comes into the same reading.
  CreateCalendarElsewhere(kEuro, ThisYear());
  ASSERT_EQ(Cell("EUR", "Name"), "");
  Activate(*back_office_);
  QCoreApplication::processEvents();
  EXPECT_EQ(Cell("EUR", "Name"), "Euro");
}

TEST_F(StartPage, IsNotReadAgainForNothing) {
  CreateCalendarElsewhere(kEuro, ThisYear());
  ComeBack();
  EXPECT_EQ(Cell("EUR", "Name"), "");
  ClickButton(*back_office_, "cmdRefresh");
  EXPECT_EQ(Cell("EUR", "Name"), "Euro");
}

TEST_F(StartPage, IsReadAgainByF5) {
  CreateCalendarElsewhere(kEuro, ThisYear());
  QTest::keyClick(&Board(), Qt::Key_F5);
  EXPECT_EQ(Cell("EUR", "Name"), "Euro");
}

TEST_F(StartPage, FollowsAtOnceWhatAWindowOfPlanningHasChanged) {
  CreateCalendarElsewhere(kEuro, ThisYear());
  surroundings_->Windows().TellChanged({{kEuro, ThisYear()}});
  EXPECT_EQ(Cell("EUR", "Name"), "Euro");
}

TEST_F(StartPage, SaysThatTheDatabaseIsAwayAndForgetsItWhenItIsBack) {
  TakeDatabaseAway();
  ClickButton(*back_office_, "cmdRefresh");
  EXPECT_THAT(Problem(), HasSubstr("there is no such file"));
  EXPECT_EQ(Cell("USD", "Name"), "US Dollar");
  BringDatabaseBack();
  ClickButton(*back_office_, "cmdRefresh");
  EXPECT_THAT(Problem(), IsEmpty());
}

TEST_F(StartPage, OpensOverADatabaseThatIsAway) {
  TakeDatabaseAway();
  page_.reset();
  WorkOn("sqlite:" + DatabasePath());
  Open();
  EXPECT_THAT(Problem(), HasSubstr("The database could not be read"));
  EXPECT_TRUE(Find<QPushButton>(*back_office_, "openCalendars").isEnabled());
  BringDatabaseBack();
}

/// With a book for the dollar, and its calendars of this year and the next.
class StartPageWithBook : public StartPage {
 protected:
  StartPageWithBook() {
    sqlite::Engine engine;
    (void)engine.Connect("sqlite:" + DatabasePath())
        ->Call("CldIUBook", {kDollar,
                             std::string(),
                             std::string("Office"),
                             std::string("Closing days"),
                             std::string(R"([{"Name1":"Saturday","TID1":2,"Expression":"weekday Saturday"},
                                {"Name1":"Sunday","TID1":2,"Expression":"weekday Sunday"},
                                {"Name1":"Christmas Day","TID1":3,"Expression":"12-25"}])"),
                             {}});
    for (const int year : {ThisYear(), ThisYear() + 1}) {
      CreateCalendarElsewhere(kDollar, year);
      for (const int weekday_rule : {2, 3}) {
        (void)engine.Connect("sqlite:" + DatabasePath())
            ->Call("CldIUMain", {kDollar, year, 2, weekday_rule, {}, {}, {}});
      }
    }
    ClickButton(*back_office_, "cmdRefresh");
  }
  [[nodiscard]] static std::string NextYear() { return std::to_string(ThisYear() + 1); }
};

TEST_F(StartPageWithBook, PreparesTheNextYearOfAllCurrenciesAfterALookAtThePlan) {
  EXPECT_EQ(Cell("USD", NextYear()), "Weekends only");
  ClickButton(*back_office_, "cmdPrepareAll");
  QWidget* const plan = WindowOnShow("fmYearPlan");
  ASSERT_NE(plan, nullptr);
  EXPECT_EQ(Cell("USD", NextYear()), "Weekends only");
  Activate(*plan);
  ClickButton(*plan, "cmdApply");
  EXPECT_EQ(Cell("USD", NextYear()), "Prepared");
  EXPECT_EQ(Find<QPushButton>(*back_office_, "cmdPrepareAll").text().toStdString(),
            "&Prepare all for " + std::to_string(ThisYear() + 2) + "...");
  EXPECT_EQ(Cell("USD", std::to_string(ThisYear())), "Weekends only");
}

TEST_F(StartPageWithBook, EnterOpensThePlanOfTheCellAndBringsOneThatIsOpenToTheFront) {
  Activate(*back_office_);
  Press(Board(), Qt::Key_Return);
  QWidget* const plan = WindowOnShow("fmYearPlan");
  ASSERT_NE(plan, nullptr);
  Activate(*back_office_);
  Press(Board(), Qt::Key_Return);
  EXPECT_EQ(WindowOnShow("fmYearPlan"), plan);
  EXPECT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() == plan; }));
}

TEST_F(StartPageWithBook, ClosingTheBackOfficeClosesThePlans) {
  ClickButton(*back_office_, "cmdPrepareAll");
  ASSERT_NE(WindowOnShow("fmYearPlan"), nullptr);
  back_office_->close();
  EXPECT_EQ(WindowOnShow("fmYearPlan"), nullptr);
  EXPECT_FALSE(back_office_->isVisible());
}

}  // namespace
}  // namespace ferrowind::gui
