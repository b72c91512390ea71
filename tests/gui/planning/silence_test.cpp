// What the windows show of a server that does not answer, and how an operator reaches it.
#include <QAccessible>
#include <QFrame>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <functional>

#include "ferrowind/data/run_handler.h"
#include "ferrowind/views/planning/planning_additions.h"

#include "host/delivery/delivered_tables.h"
#include "tests/gui/windows/windows_fixture.h"
#include "tests/support/scripted_silence.h"

namespace ferrowind::gui {
namespace {

using std::chrono::milliseconds;

constexpr std::int32_t kEuro = 978;

class SilenceTest : public WindowsTest {
 protected:
  SilenceTest() {
    desk_.SetAdditions(&additions_);
    desk_.SetChangeWatches(&silence_);
  }
  ~SilenceTest() override {
    if (IsOpen()) CloseByFrame(Window());
    EXPECT_TRUE(windows_.CloseAll());
  }

  QWidget& OpenWindow(const char* form, const std::function<void()>& open) {
    RunHandler(desk_.Platform(), open);
    QWidget& window = *WindowOnShow(form);
    Activate(window);
    return window;
  }
  static bool IsBarShown(const QWidget& window) { return Find<QFrame>(window, "pnlSilence").isVisible(); }
  static std::string Countdown(const QWidget& window) {
    return Find<QLabel>(window, "lblNextTry").text().toStdString();
  }
  /// Waits until the window has looked.
  void Fall(QWidget& window, std::optional<milliseconds> until_next_try) {
    silence_.until_next_try = until_next_try;
    EXPECT_TRUE(QTest::qWaitFor([&] { return IsBarShown(window) == until_next_try.has_value(); }, 5000));
  }

  void ExpectTheBarOf(QWidget& window) {
    EXPECT_FALSE(IsBarShown(window));
    QWidget* const focused = window.focusWidget();
    Fall(window, milliseconds(4500));
    EXPECT_EQ(window.focusWidget(), focused) << "an operator who types is not disturbed";
    EXPECT_EQ(Countdown(window), "Next try in 5 seconds");
    silence_.until_next_try = milliseconds(2500);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Countdown(window) == "Next try in 3 seconds"; }, 5000));

    auto& button = Find<QPushButton>(window, "cmdTryNow");
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&button)->text(QAccessible::Name), "Try now");
    TabTo(button);
    Press(button, Qt::Key_Space);
    EXPECT_EQ(silence_.tries_asked_for, 1);
    ASSERT_FALSE(button.shortcut().isEmpty());
    const QKeyCombination access = button.shortcut()[0];
    Press(window, access.key(), access.keyboardModifiers());
    EXPECT_TRUE(QTest::qWaitFor([this] { return silence_.tries_asked_for == 2; }, 5000));
    Fall(window, std::nullopt);
  }

  testing::ScriptedSilence silence_;
  PlanningWindows windows_{desk_.Platform(), host::DeliveredDateTables()};
  PlanningAdditions additions_{{desk_.Platform(), host::DeliveredDateTables(), windows_}};
};

TEST_F(SilenceTest, IsToldInTheCalendarsAndTriedByKeyboard) {
  OpenCalendars();
  ExpectTheBarOf(Window());
}

TEST_F(SilenceTest, IsToldOnTheBoardAndTriedByKeyboard) {
  ExpectTheBarOf(OpenWindow("fmReadiness", [this] { windows_.OpenReadiness(); }));
}

TEST_F(SilenceTest, IsToldInAPlanAndTriedByKeyboard) {
  ExpectTheBarOf(OpenWindow("fmYearPlan", [this] { windows_.OpenYearPlan({{kEuro, 2028}}); }));
}

TEST_F(SilenceTest, IsToldInTheHistoryAndTriedByKeyboard) {
  ExpectTheBarOf(OpenWindow("fmHistory", [this] { windows_.OpenHistory({}); }));
}

TEST_F(SilenceTest, IsToldInARuleBookAndTriedByKeyboard) {
  ExpectTheBarOf(OpenWindow("fmRuleBook", [this] { windows_.OpenRuleBook(kEuro); }));
}

TEST_F(SilenceTest, IsToldInAYearPlannerAndTriedByKeyboard) {
  ExpectTheBarOf(OpenWindow("fmYearPlanner", [this] { windows_.OpenYearPlanner({kEuro}, 2028); }));
}

TEST_F(SilenceTest, HasNoBarInAWindowWithoutAdditions) {
  desk_.SetAdditions(nullptr);
  OpenCalendars();
  silence_.until_next_try = milliseconds(4500);
  QTest::qWait(1500);
  EXPECT_EQ(Window().findChild<QWidget*>("pnlSilence"), nullptr);
}

}  // namespace
}  // namespace ferrowind::gui
