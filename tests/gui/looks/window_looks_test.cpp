#include <QFrame>
#include <QLocale>
#include <QPixmap>
#include <QTranslator>
#include <chrono>
#include <functional>
#include <tuple>
#include <utility>

#include "ferrowind/adapters/qt/look/theme.h"
#include "ferrowind/adapters/qt/services/languages.h"
#include "ferrowind/adapters/qt/services/qt_words.h"
#include "ferrowind/adapters/qt/table/table_view.h"
#include "ferrowind/control/calendar.h"
#include "ferrowind/data/run_handler.h"
#include "ferrowind/planning/book_store.h"
#include "ferrowind/planning/plan_batch.h"
#include "ferrowind/views/dialogs/fm_wait.h"
#include "ferrowind/views/planning/fm_progress.h"
#include "ferrowind/views/planning/planning_additions.h"
#include "ferrowind/views/planning/planning_windows.h"

#include "host/delivery/delivered_books.h"
#include "host/delivery/delivered_tables.h"
#include "tests/gui/looks/default_locale.h"
#include "tests/gui/looks/examined_window.h"
#include "tests/gui/windows/dialog_script.h"
#include "tests/gui/windows/operator_desk.h"
#include "tests/gui/windows/operator_hands.h"
#include "tests/support/scripted_silence.h"

namespace ferrowind::gui {
namespace {

using ::testing::IsEmpty;

constexpr std::int32_t kDollar = 840;
constexpr std::int32_t kEuro = 978;
constexpr std::int32_t kPound = 826;

/// How a screen is set up: its theme, and the language of its texts, as far as there is one, and dates.
using Setup = std::tuple<qt::Theme, const char*>;

/// All windows, with the additions of planning, over a database with the delivered books of three currencies
/// and the calendars EUR 2026 and USD 2028.
class WindowLooksTest : public ::testing::TestWithParam<Setup> {
 protected:
  WindowLooksTest() {
    const auto& [theme, language] = GetParam();
    qt::UseLanguages(*qApp, QLocale());
    platform_.words = &words_;
    qApp->setLayoutDirection(QLocale().textDirection());
    qt::ApplyTheme(*qApp, theme);
    platform_.additions = &additions_;
    desk_.Execute("DELETE FROM DicCcy WHERE Ccy NOT IN ('EUR', 'GBP', 'USD')");
    RunHandler(platform_, [] {
      const auto currencies = planning::CurrencyList::Load();
      for (const auto& [name, book, lines] : host::DeliveredBooks()) {
        if (name != "EUR" && name != "GBP" && name != "USD") continue;
        planning::StoreBook(currencies.Named(name).id, name, "", book);
      }
    });
    desk_.Call("CldIUMain", {kEuro, 2026, {}, {}, {}, {}, {}});
    desk_.Call("CldIUMain", {kDollar, 2028, {}, {}, {}, {}, {}});
  }
  ~WindowLooksTest() override {
    EXPECT_TRUE(script_.IsPlayed());
    EXPECT_TRUE(windows_.CloseAll());
    EXPECT_TRUE(control_.ForceClosing());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    qt::ApplyTheme(*qApp, qt::Theme::kLight);
    qApp->setLayoutDirection(Qt::LeftToRight);
    qDeleteAll(qApp->findChildren<QTranslator*>());
  }

  void Examine(const std::string& name) {
    QWidget* window = WindowOnShow(name);
    ASSERT_NE(window, nullptr) << name;
    Examine(*window);
  }
  void Examine(QWidget& window) {
    const bool is_resizable = window.minimumSize() != window.maximumSize();
    for (const QSize& size : {QSize(790, 570), QSize(1356, 738)}) {
      if (is_resizable) window.resize(size);
      Activate(window);
      const ExaminedWindow examined(window);
      const std::string at = window.objectName().toStdString() + " at " + std::to_string(window.width());
      Picture(window, at);
      EXPECT_THAT(examined.FaultsOfRoom(), IsEmpty()) << at;
      EXPECT_THAT(examined.FaultsOfText(), IsEmpty()) << at;
      EXPECT_THAT(examined.FaultsOfEdges(), IsEmpty()) << at;
      EXPECT_THAT(examined.FaultsOfFocus(), IsEmpty()) << at;
      if (!is_resizable) break;
    }
  }
  void ExamineInSilence(QWidget& window) {
    ASSERT_TRUE(QTest::qWaitFor([&] { return Find<QFrame>(window, "pnlSilence").isVisible(); }, 5000));
    Examine(window);
  }
  /// For a look by a person.
  static void Picture(QWidget& window, const std::string& name) {
    const QString folder = qEnvironmentVariable("FERROWIND_PICTURES");
    if (folder.isEmpty()) return;
    const auto& [theme, language] = GetParam();
    window.grab().save(
        QStringLiteral("%1/%2 %3 %4.png")
            .arg(folder, name.c_str(), language, theme == qt::Theme::kDark ? "dark" : "light"));
  }
  /// A year with days of every kind, made as planned.
  void PrepareTheDollar() {
    RunHandler(platform_, [&] {
      planning::PlanBatch batch(host::DeliveredDateTables(), {{kDollar, 2028}});
      static_cast<void>(batch.Apply());
    });
    desk_.Call("CldIUMain", {kDollar, 2028, 1, 1, 17, {}, "Stock-taking"});
  }
  QWidget& OpenCalendars() {
    control_.Show();
    QWidget& window = *WindowOnShow("fmCalendar");
    Activate(window);
    // By program where a click would have to know on which side the tree opens.
    auto& tree = Find<QTreeView>(window, "tvCalendar");
    tree.expandAll();
    const QModelIndex dollar =
        tree.model()->match(tree.model()->index(0, 0), Qt::DisplayRole, "USD").value(0);
    const QModelIndex year = tree.model()->index(0, 0, dollar);
    QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, tree.visualRect(year).center());
    return window;
  }

  DefaultLocale locale_{std::get<const char*>(GetParam())};
  qt::QtWords words_;
  OperatorDesk desk_{OperatorDesk::Rules::kOfOffice};
  DialogScript script_;
  platform::Platform platform_ = desk_.Platform();
  PlanningWindows windows_{platform_, host::DeliveredDateTables()};
  PlanningAdditions additions_{{platform_, host::DeliveredDateTables(), windows_}};
  Calendar control_{platform_};
};

std::string NameOfSetup(const ::testing::TestParamInfo<Setup>& setup) {
  const bool is_dark = std::get<0>(setup.param) == qt::Theme::kDark;
  return std::string(is_dark ? "Dark_" : "Light_") + std::get<1>(setup.param);
}

INSTANTIATE_TEST_SUITE_P(Setups, WindowLooksTest,
                         ::testing::Values(Setup{qt::Theme::kLight, "de_DE"},
                                           Setup{qt::Theme::kDark, "ja_JP"},
                                           Setup{qt::Theme::kLight, "ar_EG"},
                                           Setup{qt::Theme::kDark, "ar_EG"}),
                         NameOfSetup);

TEST_P(WindowLooksTest, CanBeReadAndUsedInTheCalendars) { Examine(OpenCalendars()); }

TEST_P(WindowLooksTest, CanBeReadAndUsedInTheYearBesideTheDaysWhileTheyAreFiltered) {
  QWidget& window = OpenCalendars();
  ClickTool(window, "ID_YearPlanner");
  ClickTool(window, "ID_Find");
  Examine(window);
}

TEST_P(WindowLooksTest, CanBeReadAndUsedWhileTheServerDoesNotAnswer) {
  testing::ScriptedSilence silence;
  silence.until_next_try = std::chrono::milliseconds(4500);
  platform_.change_watches = &silence;
  QWidget& calendars = OpenCalendars();
  ExamineInSilence(calendars);
  const std::pair<const char*, std::function<void()>> windows[] = {
      {"fmReadiness", [this] { windows_.OpenReadiness(); }},
      {"fmYearPlan",
       [this] {
         windows_.OpenYearPlan({{kDollar, 2028}, {kEuro, 2026}});
       }},
      {"fmHistory", [this] { windows_.OpenHistory({}); }},
      {"fmRuleBook", [this] { windows_.OpenRuleBook(kPound); }},
      {"fmYearPlanner", [this] {
         windows_.OpenYearPlanner({kDollar, kEuro}, 2028);
       }}};
  for (const auto& [name, open] : windows) {
    RunHandler(platform_, open);
    ExamineInSilence(*WindowOnShow(name));
    EXPECT_TRUE(windows_.CloseAll());
  }
  EXPECT_TRUE(control_.ForceClosing());
}

TEST_P(WindowLooksTest, CanBeReadAndUsedInTheQuestionForADate) {
  QWidget& window = OpenCalendars();
  script_.Expect("fmGoToDate", [this](QWidget& dialog) {
    Examine(dialog);
    // The longest that it says.
    TypeInto(dialog, "txtDate", "?");
    Examine(dialog);
    ClickButton(dialog, "cmdCancel");
  });
  ClickTool(window, "ID_GoToDate");
}

TEST_P(WindowLooksTest, CanBeReadAndUsedInTheNotice) {
  fmWait notice(platform_.toolkit);
  notice.SetMessage("The calendars of all currencies are being read.");
  notice.Show();
  Examine("fmWait");
  notice.Unload();
}

TEST_P(WindowLooksTest, CanBeReadAndUsedInTheQuestionForAYear) {
  QWidget& window = OpenCalendars();
  script_.Expect("fmSelectYear", [this](QWidget& dialog) {
    Examine(dialog);
    ClickButton(dialog, "cmdCancel");
  });
  ClickTool(window, "ID_New");
}

TEST_P(WindowLooksTest, CanBeReadAndUsedInTheRulesAndTheirEditor) {
  QWidget& window = OpenCalendars();
  qt::GridView& days = GridIn(window);
  WalkToRow(days, 3);
  script_.Expect("ID_StatesMenu", [](QWidget& menu) { PickFromMenu(menu, "ID_AssignSingle"); });
  script_.Expect("fmEnterHolidays", [this](QWidget& rules) {
    Examine(rules);
    script_.Expect("fmAddHoliday", [this](QWidget& editor) {
      Examine(editor);
      editor.close();
    });
    ClickButton(rules, "cmdAction0");
    script_.Expect("fmAssignPreview", [this](QWidget& preview) {
      Examine(preview);
      ClickButton(preview, "cmdCancel");
    });
    ClickTool(rules, "ID_OwnRules");
    WalkToRow(GridIn(rules), RowsOf(GridIn(rules)) - 1);
    ClickButton(rules, "cmdAction5");
    if (rules.isVisible()) rules.close();
  });
  RightClickRow(days, 3);
}

TEST_P(WindowLooksTest, CanBeReadAndUsedInTheQuestionForAReason) {
  QWidget& window = OpenCalendars();
  qt::GridView& days = GridIn(window);
  WalkToRow(days, 3);
  script_.Expect("ID_StatesMenu", [](QWidget& menu) { PickFromMenu(menu, "ID_Except2"); });
  script_.Expect("fmExceptMess", [this](QWidget& dialog) {
    Examine(dialog);
    ClickButton(dialog, "cmdCancel");
  });
  RightClickRow(days, 3);
}

TEST_P(WindowLooksTest, CanBeReadAndUsedOnTheBoard) {
  RunHandler(platform_, [&] { windows_.OpenReadiness(); });
  Examine("fmReadiness");
}

TEST_P(WindowLooksTest, CanBeReadAndUsedInThePlanOfAYear) {
  RunHandler(platform_, [&] { windows_.OpenYearPlan({{kDollar, 2028}, {kPound, 2028}}); });
  Examine("fmYearPlan");
}

TEST_P(WindowLooksTest, CanBeReadAndUsedInTheImportOfAList) {
  RunHandler(platform_, [&] { windows_.OpenImport("USD", 2028); });
  Examine("fmImport");
  QWidget& window = *WindowOnShow("fmImport");
  TypeInto(window, "txtFile", "/nowhere/at/all/a-list-of-the-holidays-of-new-york-as-published.csv");
  ClickButton(window, "cmdPreview");
  Examine("fmImport");
}

TEST_P(WindowLooksTest, CanBeReadAndUsedInTheExportOfCalendars) {
  RunHandler(platform_, [&] { windows_.OpenExport("USD", 2028); });
  Examine("fmExport");
  QWidget& window = *WindowOnShow("fmExport");
  TypeInto(window, "txtLast", "2029");
  ClickButton(window, "cmdExport");
  Examine("fmExport");
}

TEST_P(WindowLooksTest, CanBeReadAndUsedInTheProgressOfALongWork) {
  // As long as the caption of a calendar gets.
  const std::string step = "Applying the plan of USD 2028, 119 of 120.";
  fmProgress progress(platform_, "Plans of 120 calendars", {.next = [&] { return step; }, .step = [] {}});
  script_.Expect("fmProgress", [this](QWidget& dialog) {
    Examine(dialog);
    ClickButton(dialog, "cmdStop");
  });
  progress.ShowModal();
}

TEST_P(WindowLooksTest, CanBeReadAndUsedInTheHistoryAndACalendarOfThen) {
  desk_.Call("CldIUMain", {kDollar, 2028, 1, 1, 17, {}, "Stock-taking"});
  const int entry = std::stoi(desk_.ReadOne("SELECT max(EntryID) FROM CldHistory"));
  RunHandler(platform_, [&] { windows_.OpenHistory({}); });
  Examine("fmHistory");
  script_.Expect("fmAsOf", [this](QWidget& question) {
    Examine(question);
    TypeInto(question, "txtDate", "?");
    Examine(question);
    ClickButton(question, "cmdCancel");
  });
  ClickButton(*WindowOnShow("fmHistory"), "cmdAsOf");
  RunHandler(platform_, [&] { windows_.OpenCalendarThen(entry); });
  Examine("fmCalendarThen");
}

TEST_P(WindowLooksTest, CanBeReadAndUsedInARuleBook) {
  RunHandler(platform_, [&] { windows_.OpenRuleBook(kDollar); });
  Examine("fmRuleBook");
  QWidget& window = *WindowOnShow("fmRuleBook");
  TypeInto(window, "txtSince", "?");
  Examine(window);
  // The longest that it says, and lists that cannot be used.
  Find<qt::TableView>(window, "tblRules")
      .setCurrentIndex(Find<qt::TableView>(window, "tblRules").model()->index(3, 0));
  TypeInto(window, "txtExpression", "3rd Monday of 1 or thereabouts");
  Examine(window);
  script_.Expect("fmMessage", [this](QWidget& question) {
    Examine(question);
    ClickButton(question, "cmdOk");
  });
  window.close();
}

TEST_P(WindowLooksTest, CanBeReadAndUsedInThePlannerOfAYear) {
  PrepareTheDollar();
  RunHandler(platform_, [&] { windows_.OpenYearPlanner({kDollar}, 2028); });
  Examine("fmYearPlanner");
}

TEST_P(WindowLooksTest, CanBeReadAndUsedInTheQuestionForAnAnnouncedHoliday) {
  RunHandler(platform_, [&] { windows_.OpenYearPlanner({kDollar, kPound}, 2028); });
  QWidget& planner = *WindowOnShow("fmYearPlanner");
  Activate(planner);
  script_.Expect("fmCloseDays", [this](QWidget& dialog) {
    TypeInto(dialog, "txtName", "National Day of Mourning");
    Examine(dialog);
    ClickButton(dialog, "cmdCancel");
  });
  ClickTool(planner, "ID_CloseDays");
}

}  // namespace
}  // namespace ferrowind::gui
