#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPixmap>
#include <QPointer>
#include <QTest>
#include <QTimer>
#include <QTreeView>
#include <algorithm>
#include <functional>
#include <memory>
#include <string>
#include <type_traits>

#include <gtest/gtest.h>

#include "ferrowind/adapters/headless/world.h"
#include "ferrowind/adapters/qt/embedding/calendar_widget.h"
#include "ferrowind/adapters/qt/forms/qt_toolkit.h"
#include "ferrowind/adapters/qt/look/theme.h"
#include "ferrowind/control/default_headers.h"
#include "ferrowind/views/dialogs/fm_except_mess.h"
#include "ferrowind/views/dialogs/fm_message.h"
#include "ferrowind/views/dialogs/fm_select_year.h"
#include "ferrowind/views/dialogs/fm_wait.h"
#include "ferrowind/views/editor/fm_add_holiday.h"
#include "ferrowind/views/holidays/fm_enter_holidays.h"

namespace ferrowind::qt {
namespace {

using platform::Value;

/// What the component has around it. One for all tests, since the component keeps to the surroundings that it
/// met first on the user-interface thread.
struct Surroundings {
  static Surroundings& OfThisThread() {
    static Surroundings surroundings;
    return surroundings;
  }

  headless::World world;
  QtToolkit toolkit;
  platform::Platform platform;

 private:
  Surroundings() : platform(OnQt(world.PlatformOnMemory())) {
    const auto currencies = world.database->Tables().currencies;
    for (const auto& currency : currencies) {
      for (const std::int32_t year : {2026, 2027}) {
        // Metals and the like are refused, as they have no calendar.
        static_cast<void>(world.database->Call("CldIUMain", {currency.id, year, {}, {}, {}, {}, {}}));
      }
    }
  }
  [[nodiscard]] platform::Platform OnQt(const platform::Platform& headless) {
    return {headless.objects, headless.commands, toolkit, headless.locale, headless.clock, FERROWIND_SHARE};
  }
};

/// The component's own windows over a database in memory, once in each theme.
class ComponentFormsTest : public ::testing::TestWithParam<Theme> {
 protected:
  ComponentFormsTest() { ApplyTheme(*qApp, GetParam()); }
  ~ComponentFormsTest() override { QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); }

  /// Looks at the modal window that `show` opens and closes it.
  void Look(const std::string& name, const std::function<void()>& show) {
    bool was_shown = false;
    QTimer::singleShot(50, [&] {
      QWidget* window = QApplication::activeModalWidget();
      ASSERT_NE(window, nullptr);
      was_shown = true;
      Examine(*window, name);
      window->hide();
    });
    show();
    EXPECT_TRUE(was_shown);
  }

  /// Ends the session while the dialog that `show` opens waits, which must stay, and presses its button then.
  void AnswerAfterSessionEnd(const char* button, const std::function<void()>& show) {
    bool was_shown = false;
    QTimer::singleShot(50, [&] {
      const QPointer<QWidget> window = QApplication::activeModalWidget();
      ASSERT_NE(window, nullptr);
      was_shown = true;
      EXPECT_FALSE(toolkit_.CloseForms());
      EXPECT_TRUE(window && window->isVisible());
      if (window && window->isVisible()) window->findChild<QAbstractButton*>(button)->click();
    });
    show();
    EXPECT_TRUE(was_shown);
  }

  void Examine(QWidget& window, const std::string& name) {
    QCoreApplication::processEvents();
    const QPixmap picture = window.grab();
    const std::string theme = GetParam() == Theme::kDark ? "dark" : "light";
    // For a look by a person.
    const QString folder = qEnvironmentVariable("FERROWIND_PICTURES");
    if (!folder.isEmpty())
      picture.save(QStringLiteral("%1/%2-%3.png").arg(folder, name.c_str(), theme.c_str()));
    ExpectTextsInFull(window);
    ExpectFitsASmallScreen(window);
    ExpectBackground(picture.toImage());
  }

  static void ExpectTextsInFull(const QWidget& window) {
    for (const auto* label : window.findChildren<QLabel*>()) {
      if (!label->isVisible() || label->text().isEmpty() || label->wordWrap()) continue;
      EXPECT_GE(label->width(), label->sizeHint().width()) << label->objectName().toStdString();
    }
    for (const auto* button : window.findChildren<QAbstractButton*>()) {
      // The icon within a field has a text for accessibility alone.
      const bool is_icon = qobject_cast<const QLineEdit*>(button->parentWidget()) != nullptr;
      if (!button->isVisible() || button->text().isEmpty() || is_icon) continue;
      EXPECT_GE(button->width(), button->minimumSizeHint().width()) << button->objectName().toStdString();
      EXPECT_TRUE(window.rect().contains(QRect(button->mapTo(&window, QPoint(0, 0)), button->size())))
          << button->objectName().toStdString();
    }
  }
  static void ExpectFitsASmallScreen(const QWidget& window) {
    constexpr QSize kSmallScreen(800, 600);
    constexpr QSize kFrame(10, 30);
    const QSize smallest = window.minimumSizeHint().expandedTo(window.minimumSize()) + kFrame;
    EXPECT_EQ(smallest.boundedTo(kSmallScreen), smallest);
  }
  static void ExpectBackground(const QImage& picture) {
    const QColor corner = picture.pixelColor(3, picture.height() - 3);
    EXPECT_EQ(corner.lightness() < 128, GetParam() == Theme::kDark);
  }

  Surroundings& surroundings_ = Surroundings::OfThisThread();
  QtToolkit& toolkit_ = surroundings_.toolkit;
  const platform::Platform& platform_ = surroundings_.platform;
};

TEST_P(ComponentFormsTest, ShowsTheConfirmation) {
  fmMessage dialog(toolkit_);
  dialog.SetCaption("Remove holiday");
  dialog.SetMessage("You wish remove holiday. Ok ?");
  dialog.SetState(1);
  Look("fmMessage", [&] { dialog.ShowModal(); });
  dialog.Unload();
}

TEST_P(ComponentFormsTest, ShowsALongConfirmationInFull) {
  fmMessage dialog(toolkit_);
  dialog.SetCaption("Exit from calendars");
  std::string text = "A question that goes on and on: ";
  for (int i = 0; i < 40; ++i) text += "what would you like to do about this matter? ";
  dialog.SetMessage(text);
  dialog.SetState(0);
  Look("fmMessage-long", [&] { dialog.ShowModal(); });
  dialog.Unload();
}

TEST_P(ComponentFormsTest, ShowsTheExceptDialog) {
  fmExceptMess dialog(toolkit_);
  Look("fmExceptMess", [&] { dialog.ShowModal(); });
}

TEST_P(ComponentFormsTest, HoldsTheEndOfTheSessionUntilTheConfirmationIsAnswered) {
  fmMessage dialog(toolkit_);
  dialog.SetState(1);
  AnswerAfterSessionEnd("cmdCancel", [&] { dialog.ShowModal(); });
  EXPECT_EQ(dialog.Result(), 1);
}

TEST_P(ComponentFormsTest, HoldsTheEndOfTheSessionUntilTheExceptDialogIsAnswered) {
  fmExceptMess dialog(toolkit_);
  AnswerAfterSessionEnd("cmdCancel", [&] { dialog.ShowModal(); });
  EXPECT_EQ(dialog.Result(), 1);
}

TEST_P(ComponentFormsTest, ShowsTheWaitNotice) {
  fmWait notice(toolkit_);
  notice.Show();
  QCoreApplication::processEvents();
  const QWidgetList windows = QApplication::topLevelWidgets();
  const auto shown = std::find_if(windows.begin(), windows.end(), [](const QWidget* window) {
    return window->objectName() == "fmWait" && window->isVisible();
  });
  ASSERT_NE(shown, windows.end());
  Examine(**shown, "fmWait");
}

TEST_P(ComponentFormsTest, ShowsTheNewYearDialog) {
  fmSelectYear dialog(platform_);
  Look("fmSelectYear", [&] { dialog.ShowModal(); });
}

TEST_P(ComponentFormsTest, ShowsTheHolidayEditor) {
  fmAddHoliday editor(platform_);
  auto types = std::make_shared<platform::RecordSet>(
      std::vector<std::string>{"TID1", "Description1"},
      std::vector<std::vector<Value>>{
          {1, "Working day"}, {2, "Holiday"}, {3, "Celebration"}, {4, "Holiday point"}});
  ASSERT_TRUE(editor.Init(0, types, 1, nullptr, nullptr));
  Look("fmAddHoliday", [&] { editor.ShowModal(); });
}

TEST_P(ComponentFormsTest, ShowsTheHolidaysWindow) {
  // The control makes the dictionary object that all data access needs.
  const CalendarWidget control(platform_);
  fmEnterHolidays window(platform_);
  const auto map = std::make_shared<GridFields>();
  AddDefaultHolidayHeaders(*map);
  ASSERT_TRUE(window.Init(map, 1, 2026, 978, 1));
  Look("fmEnterHolidays", [&] { window.ShowModal(); });
}

TEST_P(ComponentFormsTest, ShowsTheCalendarsWindow) {
  CalendarWidget control(platform_);
  control.Control().Show();
  QWidget* window = nullptr;
  for (QWidget* candidate : QApplication::topLevelWidgets()) {
    if (candidate->objectName() == "fmCalendar" && candidate->isVisible()) window = candidate;
  }
  ASSERT_NE(window, nullptr);
  auto* tree = window->findChild<QTreeView*>("tvCalendar");
  ASSERT_NE(tree, nullptr);
  ASSERT_TRUE(QTest::qWaitForWindowExposed(window));
  tree->setFocus();
  for (const auto key : {Qt::Key_Home, Qt::Key_Right, Qt::Key_Right}) QTest::keyClick(tree, key);
  Examine(*window, "fmCalendar");
  EXPECT_TRUE(control.Control().ForceClosing());
  EXPECT_FALSE(window->isVisible());
}

TEST(CalendarWidget, RefusesSurroundingsThatWouldBeGoneAtOnce) {
  EXPECT_TRUE((std::is_constructible_v<CalendarWidget, const platform::Platform&>));
  EXPECT_FALSE((std::is_constructible_v<CalendarWidget, platform::Platform>));
}

class ShowInFrontTest : public ComponentFormsTest {
 protected:
  ~ShowInFrontTest() override { EXPECT_TRUE(control_.Control().ForceClosing()); }

  /// The Calendars windows that are open.
  static QWidgetList Windows() {
    QWidgetList windows;
    for (QWidget* window : QApplication::topLevelWidgets()) {
      if (window->objectName() == "fmCalendar" && window->isVisible()) windows << window;
    }
    return windows;
  }
  /// Opens the control's window and returns it.
  static QWidget& Open(CalendarWidget& control) {
    const QWidgetList before = Windows();
    control.ShowInFront();
    QWidgetList now = Windows();
    now.removeIf([&](QWidget* window) { return before.contains(window); });
    EXPECT_EQ(now.size(), 1);
    EXPECT_TRUE(QTest::qWaitForWindowActive(now.first()));
    return *now.first();
  }

  CalendarWidget control_{platform_};
};

TEST_P(ShowInFrontTest, OpensTheWindowOnce) {
  const QWidget& window = Open(control_);
  control_.ShowInFront();
  EXPECT_EQ(Windows(), QWidgetList{const_cast<QWidget*>(&window)});
}

TEST_P(ShowInFrontTest, GivesTheOpenWindowTheKeyboard) {
  QWidget& window = Open(control_);
  QWidget host;
  host.show();
  host.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&host));
  control_.Control().Show();
  EXPECT_FALSE(window.isActiveWindow());
  control_.ShowInFront();
  EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
}

TEST_P(ShowInFrontTest, BringsTheWindowBackFromTheTaskBarAsLargeAsItWas) {
  QWidget& window = Open(control_);
  window.showMaximized();
  window.showMinimized();
  control_.Control().Show();
  EXPECT_TRUE(window.isMinimized());
  control_.ShowInFront();
  EXPECT_FALSE(window.isMinimized());
  EXPECT_TRUE(window.isMaximized());
  EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
}

TEST_P(ShowInFrontTest, FindsTheWindowOfItsOwnControl) {
  CalendarWidget other(platform_);
  QWidget& window = Open(control_);
  QWidget& others_window = Open(other);
  control_.ShowInFront();
  EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
  other.ShowInFront();
  EXPECT_TRUE(QTest::qWaitForWindowActive(&others_window));
  EXPECT_TRUE(other.Control().ForceClosing());
}

TEST_P(ShowInFrontTest, OpensAgainAfterTheWindowWasClosed) {
  EXPECT_TRUE(Open(control_).close());
  EXPECT_TRUE(Windows().isEmpty());
  EXPECT_TRUE(Open(control_).isActiveWindow());
}

TEST_P(ComponentFormsTest, SnapsTheControlBackToItsSize) {
  CalendarWidget control(platform_);
  control.show();
  control.resize(100, 60);
  QCoreApplication::processEvents();
  EXPECT_EQ(control.size(), QSize(16, 16));
  EXPECT_FALSE(control.accessibleName().isEmpty());
}

INSTANTIATE_TEST_SUITE_P(Themes, ShowInFrontTest, ::testing::Values(Theme::kLight),
                         [](const auto& /*theme*/) { return "Light"; });
INSTANTIATE_TEST_SUITE_P(Themes, ComponentFormsTest, ::testing::Values(Theme::kLight, Theme::kDark),
                         [](const auto& theme) { return theme.param == Theme::kDark ? "Dark" : "Light"; });

}  // namespace
}  // namespace ferrowind::qt
