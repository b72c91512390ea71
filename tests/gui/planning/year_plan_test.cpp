// The plan of a year as an operator has it: the real window over a real database with the delivered books.
#include <QLabel>
#include <QScrollBar>
#include <QTest>

#include "ferrowind/adapters/qt/look/theme.h"
#include "ferrowind/adapters/qt/table/table_view.h"
#include "ferrowind/data/run_handler.h"
#include "ferrowind/planning/book_store.h"
#include "ferrowind/views/planning/planning_windows.h"

#include "host/delivery/delivered_books.h"
#include "host/delivery/delivered_tables.h"
#include "tests/gui/planning/table_texts.h"
#include "tests/gui/windows/windows_fixture.h"

namespace ferrowind::gui {
namespace {

using ::testing::AllOf;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Not;

constexpr std::int32_t kPound = 826;

/// Over a database with the delivered books of EUR, GBP and USD.
class YearPlanTest : public WindowsTest {
 protected:
  YearPlanTest() : WindowsTest(OperatorDesk::Rules::kBuiltInOnly) {
    RunHandler(desk_.Platform(), [] {
      const auto currencies = planning::CurrencyList::Load();
      for (const auto& [name, book, lines] : host::DeliveredBooks()) {
        if (name != "EUR" && name != "GBP" && name != "USD") continue;
        planning::StoreBook(currencies.Named(name).id, name, "", book);
      }
    });
  }
  ~YearPlanTest() override {
    EXPECT_TRUE(windows_.CloseAll());
    qt::ApplyTheme(*qApp, qt::Theme::kLight);
  }

  QWidget& OpenPlan(const std::vector<planning::CalendarKey>& calendars) {
    RunHandler(desk_.Platform(), [&] { windows_.OpenYearPlan(calendars); });
    QWidget* const window = WindowOnShow("fmYearPlan");
    if (window == nullptr) throw std::runtime_error("the year plan is not open");
    Activate(*window);
    return *window;
  }
  static qt::TableView& Lines(QWidget& window) { return Find<qt::TableView>(window, "tblPlan"); }
  /// The reasons stand last.
  static int WhyColumn(const qt::TableView& lines) { return lines.Model()->columnCount() - 1; }
  static qt::TableView& Outcome(QWidget& window) { return Find<qt::TableView>(window, "tblOutcome"); }
  static std::string Summary(QWidget& window) {
    return Find<QLabel>(window, "lblSummary").text().toStdString();
  }
  [[nodiscard]] std::string HolidaysOf(std::int32_t currency, int year) const {
    return desk_.ReadOne("SELECT count(*) FROM CldDay WHERE ID1 = " + std::to_string(currency) +
                         " AND Year1 = " + std::to_string(year) + " AND TID1 > 1");
  }

  PlanningWindows windows_{desk_.Platform(), host::DeliveredDateTables()};
};

TEST_F(YearPlanTest, IsLookedAtAppliedAndUndoneByKeyboard) {
  QWidget& window = OpenPlan({{kPound, 2029}});
  EXPECT_EQ(window.windowTitle().toStdString(), "Plan of GBP 2029");
  EXPECT_EQ(Summary(window), "GBP 2029: a new calendar, 112 days, 104 of them weekends.");
  qt::TableView& lines = Lines(window);
  EXPECT_THAT(RowText(lines, 1),
              "30 March 2029 | Friday | working day | Good Friday | add | Easter Sunday 1 April 2029, two "
              "days before");
  Picture(window, "year-plan-new");

  TabTo(lines);
  Press(lines, Qt::Key_Down);
  Press(lines, Qt::Key_Space);
  EXPECT_EQ(Summary(window),
            "GBP 2029: a new calendar, 111 days, 104 of them weekends; unchanged: 1 day that is left out.");
  auto& apply = Find<QPushButton>(window, "cmdApply");
  TabTo(apply);
  Press(apply, Qt::Key_Space);
  EXPECT_EQ(HolidaysOf(kPound, 2029), "111");
  EXPECT_THAT(RowTexts(Outcome(window)),
              ElementsAre("GBP 2029 is made but for 1 day that is left out. 111 days were changed."));
  EXPECT_TRUE(Outcome(window).isVisible());
  EXPECT_THAT(RowTexts(lines), ElementsAre(HasSubstr("Good Friday")));
  Picture(window, "year-plan-applied");

  auto& undo = Find<QPushButton>(window, "cmdUndo");
  TabTo(undo);
  Press(undo, Qt::Key_Space);
  EXPECT_EQ(desk_.ReadOne("SELECT count(*) FROM CldCalendar WHERE ID1 = 826"), "0");
  EXPECT_THAT(RowTexts(Outcome(window)), ElementsAre("GBP 2029 is as it was before."));
  EXPECT_TRUE(desk_.IsDatabaseSound());
  Press(lines, Qt::Key_Escape);
  EXPECT_FALSE(window.isVisible());
}

TEST_F(YearPlanTest, PreparesManyCalendarsAfterOneLook) {
  desk_.Call("CldIUMain", {kDollar, 2028, 1, 1, 360, {}, "Stock-taking"});
  QWidget& window = OpenPlan({{kEuro, 2028}, {kPound, 2028}, {kDollar, 2028}});
  EXPECT_THAT(RowText(Lines(window), 0), AllOf(HasSubstr("USD 2028 | 25 Dec 2028 Mon"),
                                               HasSubstr("now open by exception: Stock-taking")));
  EXPECT_EQ(Summary(window),
            "3 calendars: 339 days, 314 of them weekends; unchanged: 1 working day by exception.");
  Picture(window, "year-plan-many");
  ChooseItem(window, "cmbCalendar", "GBP 2028");
  EXPECT_THAT(RowTexts(Lines(window)), Not(Contains(HasSubstr("USD"))));
  ClickButton(window, "cmdApply");
  EXPECT_THAT(RowTexts(Outcome(window)),
              ElementsAre("EUR 2028 is made. 111 days were changed.", HasSubstr("GBP 2028 is made. "),
                          HasSubstr("USD 2028 is as planned now but for 1 working day by exception. ")));
  EXPECT_EQ(HolidaysOf(kEuro, 2028), "111");
  Picture(window, "year-plan-many-applied");
  EXPECT_TRUE(desk_.IsDatabaseSound());
}

TEST_F(YearPlanTest, TellsWhenSomebodyElseWasFaster) {
  QWidget& window = OpenPlan({{kDollar, 2028}});
  desk_.Call("CldIUMain", {kDollar, 2028, 1, 1, 360, {}, "Stock-taking"});
  ClickButton(window, "cmdApply");
  EXPECT_THAT(RowTexts(Outcome(window)), ElementsAre(HasSubstr("USD 2028 was changed meanwhile")));
  EXPECT_EQ(desk_.Toolkit().Beeps(), 1);
  EXPECT_THAT(RowText(Lines(window), 0), HasSubstr("Stock-taking"));
  Picture(window, "year-plan-stale");
}

TEST_F(YearPlanTest, IsReadOnASmallScreenAndInTheDark) {
  qt::ApplyTheme(*qApp, qt::Theme::kDark);
  QWidget& window = OpenPlan({{kEuro, 2028}, {kPound, 2028}, {392, 2028}});
  window.resize(790, 560);
  QCoreApplication::processEvents();
  EXPECT_LE(window.minimumSizeHint().width(), 790);
  EXPECT_LE(window.minimumSizeHint().height(), 560);
  for (const auto* button : window.findChildren<QPushButton*>()) {
    if (!button->isVisible()) continue;
    EXPECT_GE(button->width(), button->minimumSizeHint().width()) << button->objectName().toStdString();
  }
  const auto& summary = Find<QLabel>(window, "lblSummary");
  EXPECT_GE(summary.height(), summary.heightForWidth(summary.width()));
  const qt::TableView& lines = Lines(window);
  EXPECT_FALSE(lines.horizontalScrollBar()->isVisible());
  EXPECT_GE(lines.columnWidth(WhyColumn(lines)), lines.viewport()->width() / 4);
  Picture(window, "year-plan-dark-small");
  ChooseItem(window, "cmbCalendar", "GBP 2028");
  EXPECT_FALSE(lines.horizontalScrollBar()->isVisible());
  EXPECT_GE(lines.columnWidth(WhyColumn(lines)), lines.viewport()->width() / 4);
  Picture(window, "year-plan-dark-small-one");
  qt::ApplyTheme(*qApp, qt::Theme::kLight);
  ChooseItem(window, "cmbCalendar", "All calendars");
  Picture(window, "year-plan-light-small");
}

TEST_F(YearPlanTest, GoesNoFurtherWhenTheHostClosesItWhileItWorks) {
  QWidget& window = OpenPlan({{kPound, 2028}, {kPound, 2029}, {kPound, 2030}, {kPound, 2031}});
  script_.Expect("fmProgress", [this](QWidget& dialog) {
    auto& step = Find<QLabel>(dialog, "lblStep");
    EXPECT_TRUE(QTest::qWaitFor([&] { return step.text().contains(QStringLiteral("3 of 4")); }));
    EXPECT_TRUE(windows_.CloseAll());
    EXPECT_FALSE(dialog.isVisible());
  });
  ClickButton(window, "cmdApply");
  EXPECT_EQ(WindowOnShow("fmYearPlan"), nullptr);
  QTest::qWait(100);
  EXPECT_EQ(desk_.ReadOne("SELECT count(*) FROM CldCalendar WHERE ID1 = 826"), "2");
}

}  // namespace
}  // namespace ferrowind::gui
