// What planning adds to the given windows, as an operator has it: real windows over a real database with the
// delivered books.
#include <QHeaderView>
#include <QLabel>
#include <QPixmap>
#include <QPlainTextEdit>
#include <QToolBar>
#include <QToolButton>

#include "ferrowind/adapters/qt/look/theme.h"
#include "ferrowind/adapters/qt/table/table_model.h"
#include "ferrowind/adapters/qt/table/table_view.h"
#include "ferrowind/data/run_handler.h"
#include "ferrowind/planning/book_store.h"
#include "ferrowind/planning/year_planner.h"
#include "ferrowind/views/planning/planning_additions.h"

#include "host/delivery/delivered_books.h"
#include "host/delivery/delivered_tables.h"
#include "tests/gui/windows/windows_fixture.h"

namespace ferrowind::gui {
namespace {

using ::testing::AllOf;
using ::testing::Contains;
using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::StartsWith;

/// Rows of the days of 2028.
constexpr int kGoodFriday = 104;
constexpr int kJanuary3 = 2;

/// Over a database with the delivered books of EUR and USD, and EUR 2027 and 2028 as planned.
class AdditionsTest : public WindowsTest {
 protected:
  AdditionsTest() : WindowsTest(OperatorDesk::Rules::kBuiltInOnly) {
    RunHandler(desk_.Platform(), [] {
      const auto currencies = planning::CurrencyList::Load();
      for (const auto& [name, book, lines] : host::DeliveredBooks()) {
        if (name == "EUR" || name == "USD") planning::StoreBook(currencies.Named(name).id, name, "", book);
      }
      for (const char* code : {"EUR", "USD"}) {
        for (const int year : {2027, 2028}) {
          const planning::YearPlanner planner(host::DeliveredDateTables());
          planner.Prepare(planner.Currencies().Named(code), year)
              ->Apply(almanac::ExceptionHandling::kOverwrite);
        }
      }
    });
    desk_.SetAdditions(&additions_);
  }
  ~AdditionsTest() override {
    if (IsOpen()) CloseByFrame(Window());
    EXPECT_TRUE(windows_.CloseAll());
    qt::ApplyTheme(*qApp, qt::Theme::kLight);
  }

  void OpenEuro2028() {
    OpenCalendars();
    ClickNode(Tree(), {"EUR", "2028"});
    ASSERT_EQ(RowsOf(Days()), 366);
  }
  [[nodiscard]] std::string Why() const {
    return Find<QPlainTextEdit>(Window(), "txtWhy").toPlainText().toStdString();
  }
  void RestOn(int row) {
    const std::string before = Why();
    WalkToRow(Days(), row);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Why() != before; }, 5000));
  }
  static std::string TableText(const qt::TableView& table, int row, int column) {
    return table.Model()->index(row, column).data(Qt::DisplayRole).toString().toStdString();
  }
  /// For a look by a person.
  static void Picture(QWidget& window, const char* name) {
    const QByteArray folder = qgetenv("FERROWIND_PICTURES");
    if (folder.isEmpty()) return;
    QTest::qWait(50);
    window.grab().save(QString::fromLocal8Bit(folder) + "/" + name + ".png");
  }

  PlanningWindows windows_{desk_.Platform(), host::DeliveredDateTables()};
  PlanningAdditions additions_{{desk_.Platform(), host::DeliveredDateTables(), windows_}};
};

TEST_F(AdditionsTest, TheWhyPaneTellsOfTheDayThatTheOperatorRestsOn) {
  OpenEuro2028();
  RestOn(kGoodFriday);
  EXPECT_THAT(Why(), AllOf(StartsWith("EUR, Friday 14 April 2028: Good Friday\nRule: easter-2\n"),
                           HasSubstr("\nPlan: as planned: Easter Sunday 16 April 2028, two days before\n"),
                           HasSubstr("\nChanged: ")));
  const auto& years = Find<qt::TableView>(Window(), "tblYears");
  EXPECT_EQ(TableText(years, 1, 0), "2027");
  EXPECT_EQ(TableText(years, 1, 2), "Friday 26 March 2027");
  EXPECT_EQ(TableText(years, 0, 1), "Tuesday, working day");
  EXPECT_EQ(TableText(years, 3, 1), "not prepared");
  Picture(Window(), "why-light");
  qt::ApplyTheme(*qApp, qt::Theme::kDark);
  Picture(Window(), "why-dark");
  Window().resize(800, 600);
  Picture(Window(), "why-800x600");
}

TEST_F(AdditionsTest, TheWhyPaneComesAndGoesByItsToolAndLeavesItsRoomToTheDays) {
  OpenEuro2028();
  auto& pane = Find<QWidget>(Window(), "pnWhy");
  EXPECT_TRUE(pane.isVisible());
  const auto& days = Find<QWidget>(Window(), "gexCalendar");
  const int height = days.height();
  ClickTool(Window(), "ID_Why");
  EXPECT_FALSE(pane.isVisible());
  EXPECT_TRUE(QTest::qWaitFor([&] { return days.height() >= height + 96; }, 5000));
  ClickTool(Window(), "ID_Why");
  EXPECT_TRUE(pane.isVisible());
}

TEST_F(AdditionsTest, TheRulesOfTheCurrencyAreListedWithTheirDaysAndAssignedAfterALook) {
  OpenEuro2028();
  InHolidays("ID_AssignMany", kJanuary3, [this](QWidget& holidays) {
    EXPECT_EQ(holidays.windowTitle().toStdString(), "Assign groups holidays for calendar - EUR 2028");
    auto& grid = GridIn(holidays);
    const int row = RowOf(grid, "Name", "Good Friday");
    EXPECT_EQ(CellText(grid, row, "In EUR 2028"), "Friday 14 April 2028");
    const int euro_rules = RowsOf(grid);
    const auto* const header = grid.horizontalHeader();
    const int days = header->logicalIndex(1);
    EXPECT_EQ(grid.model()->headerData(days, Qt::Horizontal).toString(), QStringLiteral("In EUR 2028"));
    EXPECT_LE(header->sectionViewportPosition(days) + header->sectionSize(days), grid.viewport()->width())
        << "as wide as the window opens, which an 800 x 600 screen has room for";
    EXPECT_LE(holidays.frameGeometry().width(), 800);
    Picture(holidays, "rules-own");
    qt::ApplyTheme(*qApp, qt::Theme::kDark);
    Picture(holidays, "rules-own-dark");
    qt::ApplyTheme(*qApp, qt::Theme::kLight);
    ClickTool(holidays, "ID_OwnRules");
    EXPECT_GT(RowsOf(grid), euro_rules);
    WalkToRow(grid, RowOf(grid, "Name", "Thanksgiving Day"));
    script_.Expect("fmAssignPreview", [](QWidget& preview) {
      auto& table = Find<qt::TableView>(preview, "tblPreview");
      EXPECT_EQ(TableText(table, 0, 0), "Thanksgiving Day");
      EXPECT_THAT(TableText(table, 0, 3), HasSubstr("It belongs to the book of USD, not to that of EUR."));
      EXPECT_EQ(preview.focusWidget()->objectName(), "cmdCancel");
      Picture(preview, "assign-preview-light");
      qt::ApplyTheme(*qApp, qt::Theme::kDark);
      Picture(preview, "assign-preview-dark");
      qt::ApplyTheme(*qApp, qt::Theme::kLight);
      ClickButton(preview, "cmdCancel");
    });
    ClickButton(holidays, "cmdAction5");
    EXPECT_TRUE(holidays.isVisible());
    script_.Expect("fmAssignPreview", [](QWidget& preview) { ClickButton(preview, "cmdAssign"); });
    ClickButton(holidays, "cmdAction5");
    EXPECT_FALSE(holidays.isVisible());
  });
  EXPECT_EQ(desk_.ReadOne("SELECT COUNT(*) FROM CldDay d JOIN CldHoliday h ON h.ID2 = d.ID2 "
                          "WHERE ID1 = 978 AND Year1 = 2028 AND Name1 = 'Thanksgiving Day'"),
            "1");
}

TEST_F(AdditionsTest, AWindowWithoutAdditionsHasNeitherPaneNorColumn) {
  desk_.SetAdditions(nullptr);
  OpenEuro2028();
  EXPECT_EQ(Window().findChild<QWidget*>("pnWhy"), nullptr);
  InHolidays("ID_AssignMany", kJanuary3, [](QWidget& holidays) {
    EXPECT_EQ(holidays.windowTitle().toStdString(), "Assign groups holidays for calendar");
  });
}

}  // namespace
}  // namespace ferrowind::gui
