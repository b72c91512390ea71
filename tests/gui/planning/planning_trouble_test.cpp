// The windows of planning while the database file is taken away or overwritten: each says so, and keeps what
// it shows.
#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <tuple>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ferrowind/adapters/qt/table/table_view.h"
#include "ferrowind/data/run_handler.h"
#include "ferrowind/planning/book_store.h"
#include "ferrowind/views/planning/planning_windows.h"

#include "host/delivery/delivered_books.h"
#include "host/delivery/delivered_tables.h"
#include "tests/gui/windows/windows_fixture.h"

namespace ferrowind::gui {
namespace {

/// Reads and closes the messages that open meanwhile.
class MessageReader {
 public:
  MessageReader() {
    timer_.callOnTimeout([this] {
      auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      if (box == nullptr || !box->isVisible()) return;
      texts_ += box->text() + QLatin1Char('\n');
      box->accept();
    });
    timer_.start(5);
  }
  [[nodiscard]] std::string Texts() const { return texts_.toStdString(); }

 private:
  QTimer timer_;
  QString texts_;
};

enum class Trouble { kAway, kGarbage };

/// What opens a window, what reads it anew, and whose rows it keeps when that fails.
struct Opening {
  const char* form;
  void (*open)(PlanningWindows& windows);
  /// Null where the operator cannot.
  const char* refresh;
  /// Null where it keeps none.
  const char* table;
};

constexpr Opening kOpenings[] = {
    {"fmReadiness", [](PlanningWindows& windows) { windows.OpenReadiness(); }, "cmdRefresh", "tblBoard"},
    {"fmYearPlan",
     [](PlanningWindows& windows) {
       windows.OpenYearPlan({{kDollar, 2028}});
     },
     "ID_Refresh", nullptr},
    {"fmHistory", [](PlanningWindows& windows) { windows.OpenHistory({}); }, "ID_Refresh", "tblEntries"},
    {"fmYearPlanner", [](PlanningWindows& windows) { windows.OpenYearPlanner({kDollar}, 2028); },
     "ID_RefreshYear", nullptr},
    {"fmRuleBook", [](PlanningWindows& windows) { windows.OpenRuleBook(kDollar); }, nullptr, "tblRules"},
};

class PlanningTroubleTest : public WindowsTest,
                            public ::testing::WithParamInterface<std::tuple<Trouble, Opening>> {
 protected:
  PlanningTroubleTest() {
    RunHandler(desk_.Platform(), [] {
      const auto currencies = planning::CurrencyList::Load();
      for (const auto& [name, book, lines] : host::DeliveredBooks()) {
        if (name == "USD") planning::StoreBook(currencies.Named(name).id, name, "", book);
      }
    });
  }
  ~PlanningTroubleTest() override { EXPECT_TRUE(windows_.CloseAll()); }

  void Break() {
    std::filesystem::rename(desk_.DatabasePath(), Away());
    if (std::get<Trouble>(GetParam()) == Trouble::kGarbage)
      std::ofstream(desk_.DatabasePath()) << std::string(20000, 'x');
  }
  void Mend() { std::filesystem::rename(Away(), desk_.DatabasePath()); }
  [[nodiscard]] std::string Away() const { return desk_.Folder() + "/away.db"; }

  void Open() {
    RunHandler(desk_.Platform(), [&] { Opened().open(windows_); });
    QCoreApplication::processEvents();
  }
  [[nodiscard]] static const Opening& Opened() { return std::get<1>(GetParam()); }
  /// What the messages have said, and the window says.
  [[nodiscard]] std::string Said() const {
    std::string said = messages_.Texts();
    QWidget* const window = WindowOnShow(Opened().form);
    if (window == nullptr) return said;
    for (const QLabel* label : window->findChildren<QLabel*>()) {
      if (label->isVisible()) said += label->text().toStdString() + "\n";
    }
    for (const auto* table : window->findChildren<qt::TableView*>()) {
      if (!table->isVisible()) continue;
      said += table->accessibleDescription().toStdString() + "\n";
      for (int row = 0; row < table->model()->rowCount(); ++row) {
        for (int column = 0; column < table->model()->columnCount(); ++column)
          said += table->model()->index(row, column).data().toString().toStdString() + "\n";
      }
    }
    return said;
  }
  [[nodiscard]] static ::testing::Matcher<std::string> SaysWhy() {
    return ::testing::HasSubstr(std::get<Trouble>(GetParam()) == Trouble::kAway ? "there is no such file"
                                                                                : "is not a database");
  }

  PlanningWindows windows_{desk_.Platform(), host::DeliveredDateTables()};
  MessageReader messages_;
};

std::string NameOf(const ::testing::TestParamInfo<std::tuple<Trouble, Opening>>& tested) {
  const auto& [trouble, opening] = tested.param;
  return std::string(opening.form) + (trouble == Trouble::kAway ? "WithoutItsFile" : "OverGarbage");
}

INSTANTIATE_TEST_SUITE_P(Troubles, PlanningTroubleTest,
                         ::testing::Combine(::testing::Values(Trouble::kAway, Trouble::kGarbage),
                                            ::testing::ValuesIn(kOpenings)),
                         NameOf);

TEST_P(PlanningTroubleTest, SaysWhyItCannotBeOpenedAndOpensOnceItCan) {
  Break();
  Open();
  EXPECT_THAT(Said(), SaysWhy());
  Mend();
  Open();
  EXPECT_NE(WindowOnShow(Opened().form), nullptr);
}

/// Of the windows that the operator can have read anew.
class PlanningRefreshTest : public PlanningTroubleTest {};

INSTANTIATE_TEST_SUITE_P(Troubles, PlanningRefreshTest,
                         ::testing::Combine(::testing::Values(Trouble::kAway, Trouble::kGarbage),
                                            ::testing::ValuesIn(std::begin(kOpenings),
                                                                std::end(kOpenings) - 1)),
                         NameOf);

TEST_P(PlanningRefreshTest, SaysWhyItCannotBeReadAnewAndIsReadOnceItCan) {
  ASSERT_NE(Opened().refresh, nullptr);
  Open();
  QWidget& window = *WindowOnShow(Opened().form);
  Activate(window);
  const auto rows = [&] {
    return Opened().table == nullptr ? 0 : Find<qt::TableView>(window, Opened().table).model()->rowCount();
  };
  const int before = rows();
  const auto refresh = [&] {
    const std::string name = Opened().refresh;
    if (name.starts_with("ID_")) return ClickTool(window, name);
    ClickButton(window, name.c_str());
  };
  Break();
  refresh();
  QCoreApplication::processEvents();
  EXPECT_THAT(Said(), SaysWhy());
  EXPECT_EQ(rows(), before);
  const QString folder = qEnvironmentVariable("FERROWIND_PICTURES");
  if (!folder.isEmpty())
    window.grab().save(folder + QLatin1Char('/') + QLatin1String(Opened().form) + "-trouble.png");
  Mend();
  refresh();
  QCoreApplication::processEvents();
  EXPECT_EQ(rows(), before);
}

}  // namespace
}  // namespace ferrowind::gui
