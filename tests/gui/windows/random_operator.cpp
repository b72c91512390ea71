#include "tests/gui/windows/random_operator.h"

#include <QAbstractButton>
#include <QApplication>
#include <QEventLoop>
#include <QKeySequence>
#include <QMenu>
#include <QScopedValueRollback>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <filesystem>
#include <optional>
#include <vector>

#include <gtest/gtest.h>

#include "ferrowind/adapters/qt/grid/grid_header.h"
#include "ferrowind/adapters/qt/grid/grid_view.h"
#include "ferrowind/adapters/sqlite/database_handle.h"

#include "tests/gui/windows/operator_hands.h"
#include "tests/support/click_in_menu.h"

namespace ferrowind::gui {
namespace {

constexpr Qt::Key kKeys[] = {
    Qt::Key_Return, Qt::Key_Escape, Qt::Key_Tab, Qt::Key_Backtab, Qt::Key_Up, Qt::Key_Down, Qt::Key_Left,
    Qt::Key_Right, Qt::Key_Home, Qt::Key_End, Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Space, Qt::Key_Delete,
    Qt::Key_Backspace, Qt::Key_Menu, Qt::Key_Plus, Qt::Key_Minus, Qt::Key_F5, Qt::Key_A, Qt::Key_C, Qt::Key_G,
    Qt::Key_N, Qt::Key_E, Qt::Key_R, Qt::Key_S, Qt::Key_Asterisk, Qt::Key_F2, Qt::Key_F10, Qt::Key_5,
    // Letters of the buttons of planning, with Alt.
    Qt::Key_B, Qt::Key_D, Qt::Key_F, Qt::Key_H, Qt::Key_I, Qt::Key_L, Qt::Key_O, Qt::Key_P, Qt::Key_T,
    Qt::Key_U, Qt::Key_W, Qt::Key_Y, Qt::Key_Z};
constexpr Qt::KeyboardModifiers kModifiers[] = {Qt::NoModifier,
                                                Qt::NoModifier,
                                                Qt::NoModifier,
                                                Qt::ControlModifier,
                                                Qt::ShiftModifier,
                                                Qt::AltModifier,
                                                Qt::ControlModifier | Qt::ShiftModifier};
constexpr Qt::MouseButton kButtons[] = {Qt::LeftButton, Qt::LeftButton, Qt::LeftButton, Qt::RightButton,
                                        Qt::MiddleButton};
/// Of the tools of planning.
const char* const kShortcuts[] = {"Ctrl+B",       "Ctrl+D",   "Ctrl+E",       "Ctrl+Shift+E", "Ctrl+F",
                                  "Ctrl+H",       "Ctrl+I",   "Ctrl+L",       "Ctrl+P",       "Ctrl+S",
                                  "Ctrl+W",       "Ctrl+Z",   "Ctrl+Shift+S", "F5",           "Ctrl+Shift+Y",
                                  "Ctrl+Shift+Z", "Alt+PgUp", "Alt+PgDown"};
const char* const kTexts[] = {
    "2028", "abc",     "",         "Christmas",  "USD",      "9",        "\xc3\xa4\xe2\x82\xac",
    "  ",   "'\";--%", "14 April", "2028-12-25", "easter-2", "EUR, USD", "last Monday of 5"};

QWidget* WindowOnTop() {
  if (QWidget* popup = QApplication::activePopupWidget()) return popup;
  if (QWidget* modal = QApplication::activeModalWidget()) return modal;
  QWidget* active = QApplication::activeWindow();
  if (active != nullptr && active->isVisible()) return active;
  return WindowOnShow("fmCalendar");
}

/// Dialogs of the desktop reach beyond what the test owns: its files and its printers.
bool IsOfDesktop(const QWidget& window) {
  return window.inherits("QFileDialog") || window.inherits("QAbstractPrintDialog") ||
         window.inherits("QPageSetupDialog");
}

}  // namespace

/// What is wrong with the database now.
struct RandomOperator::Fault {
  bool is_away = false;
  std::optional<sqlite::DatabaseHandle> lock;
};

RandomOperator::RandomOperator(OperatorDesk& desk, std::uint32_t seed, std::function<void()> reopen)
    : desk_(desk), random_(seed), reopen_(std::move(reopen)), fault_(std::make_unique<Fault>()) {}

RandomOperator::~RandomOperator() = default;

void RandomOperator::ActFor(std::chrono::milliseconds time) {
  is_acting_ = true;
  end_ = std::chrono::steady_clock::now() + time;
  QEventLoop loop;
  QTimer until;
  QObject::connect(&until, &QTimer::timeout, this, [&] {
    if (!is_acting_ && depth_ == 0) loop.quit();
  });
  until.start(5);
  ActLater();
  loop.exec();
  FreeDatabase();
  CloseAll();
}

void RandomOperator::ActLater() {
  QTimer::singleShot(0, this, [this] { Act(); });
}

void RandomOperator::Act() {
  if (std::chrono::steady_clock::now() >= end_) {
    is_acting_ = false;
    // Leaves the menus and dialogs that earlier actions are inside.
    CloseAll();
    if (depth_ > 0) ActLater();
    return;
  }
  // First, so that the actions go on while this one is inside a dialog.
  ActLater();
  const QScopedValueRollback<int> deeper(depth_, depth_ + 1);
  ++actions_;
  if (depth_ == 1) ExpectNothingLocked();
  if (Below(60) == 0) return ChangeDatabase();
  QWidget* window = WindowOnTop();
  if (window != nullptr && IsOfDesktop(*window)) return window->hide();
  const bool is_alone = window != nullptr && !window->isModal() && WindowOnShow("fmCalendar") == nullptr;
  // The windows that were opened from the Calendars window stay when that is closed.
  if (window != nullptr && (!is_alone || Below(40) > 0)) return ActOn(*window);
  FreeDatabase();
  reopen_();
}

void RandomOperator::ActOn(QWidget& window) {
  const int what = Below(100);
  if (what < 24) return ClickAnywhere(window);
  if (what < 28) return DoubleClickAnywhere(window);
  if (what < 54) return PressAnyKey();
  if (what < 58) return TypeAnything();
  if (what < 63) return TurnWheelAnywhere(window);
  if (what < 70) return DragAnywhere(window);
  if (what < 72) return ResizeWindow(window);
  if (what < 82) return ClickAnyButton(window);
  if (what < 90) return ClickAnyTool(window);
  if (what < 99) return OpenDayMenu(window);
  if (Below(4) == 0) CloseWindow(window);
}

int RandomOperator::Below(int limit) {
  // Not a standard distribution: those differ between standard libraries.
  return static_cast<int>(random_() % static_cast<std::uint32_t>(limit));
}

QWidget& RandomOperator::AnyWidgetIn(QWidget& window) {
  std::vector<QWidget*> shown;
  for (QWidget* widget : window.findChildren<QWidget*>()) {
    if (widget->isVisible() && widget->window() == &window) shown.push_back(widget);
  }
  if (shown.empty()) return window;
  return *shown[static_cast<std::size_t>(Below(static_cast<int>(shown.size())))];
}

QPoint RandomOperator::AnyPointIn(const QWidget& widget) {
  return {Below(std::max(widget.width(), 1)), Below(std::max(widget.height(), 1))};
}

void RandomOperator::ClickAnywhere(QWidget& window) {
  QWidget& widget = AnyWidgetIn(window);
  const QPoint place = AnyPointIn(widget);
  QTest::mouseClick(&widget, kButtons[Below(std::size(kButtons))], kModifiers[Below(std::size(kModifiers))],
                    place);
}

void RandomOperator::DoubleClickAnywhere(QWidget& window) {
  QWidget& widget = AnyWidgetIn(window);
  const QPoint place = AnyPointIn(widget);
  QTest::mouseDClick(&widget, Qt::LeftButton, {}, place);
}

void RandomOperator::PressAnyKey() {
  QWidget* focused = QApplication::focusWidget();
  if (QWidget* popup = QApplication::activePopupWidget()) focused = popup;
  if (focused == nullptr) focused = WindowOnTop();
  if (Below(6) == 0) {
    QTest::keySequence(focused, QKeySequence(QLatin1String(kShortcuts[Below(std::size(kShortcuts))])));
    return;
  }
  const Qt::Key key = kKeys[Below(std::size(kKeys))];
  QTest::keyClick(focused, key, kModifiers[Below(std::size(kModifiers))]);
}

void RandomOperator::TypeAnything() {
  const QString text = QString::fromUtf8(kTexts[Below(std::size(kTexts))]);
  for (const QChar character : text) {
    // Each key may close the window that the one before went to.
    QWidget* focused = QApplication::focusWidget();
    if (focused == nullptr) return;
    QTest::sendKeyEvent(QTest::Click, focused, Qt::Key_unknown, QString(character), Qt::NoModifier);
  }
}

void RandomOperator::TurnWheelAnywhere(QWidget& window) {
  QWidget& widget = AnyWidgetIn(window);
  TurnWheel(widget, AnyPointIn(widget), Below(21) - 10);
}

void RandomOperator::DragAnywhere(QWidget& window) {
  QWidget* source = &AnyWidgetIn(window);
  if (Below(2) == 0) {
    if (auto* header = window.findChild<qt::GridHeader*>()) source = header->viewport();
  }
  const QPoint from = AnyPointIn(*source);
  const QPoint to = source->mapFromGlobal(window.mapToGlobal(AnyPointIn(window)));
  const QPointer<QWidget> dragged(source);
  QTest::mousePress(source, Qt::LeftButton, {}, from);
  if (dragged) QTest::mouseMove(source, (from + to) / 2);
  if (dragged && Below(8) == 0) PressAnyKey();
  if (dragged) QTest::mouseMove(source, to);
  if (dragged) QTest::mouseRelease(source, Qt::LeftButton, {}, to);
}

void RandomOperator::ResizeWindow(QWidget& window) {
  if (window.windowType() == Qt::Popup) return;
  window.resize(Below(1500), Below(1100));
}

void RandomOperator::ClickAnyButton(QWidget& window) {
  std::vector<QAbstractButton*> buttons;
  for (auto* button : window.findChildren<QAbstractButton*>()) {
    if (button->isVisible() && button->isEnabled() && button->window() == &window) buttons.push_back(button);
  }
  if (!buttons.empty()) Click(*buttons[static_cast<std::size_t>(Below(static_cast<int>(buttons.size())))]);
}

void RandomOperator::ClickAnyTool(QWidget& window) {
  if (auto* menu = qobject_cast<QMenu*>(&window)) {
    const auto actions = menu->actions();
    if (actions.isEmpty()) return;
    testing::ClickInMenu(*menu, *actions[Below(static_cast<int>(actions.size()))]);
    return;
  }
  const auto tools = window.findChildren<QToolButton*>(QRegularExpression(QStringLiteral("^ID_")));
  if (!tools.isEmpty()) Click(*tools[Below(static_cast<int>(tools.size()))]);
}

void RandomOperator::OpenDayMenu(QWidget& window) {
  auto* tree = window.findChild<QTreeView*>(QStringLiteral("tvCalendar"));
  auto* grid = window.findChild<qt::GridView*>();
  if (tree != nullptr && (grid == nullptr || !grid->isEnabled() || Below(6) == 0)) {
    if (Below(3) == 0) {
      Click(Find<QToolButton>(window, "ID_Expand"));
    } else {
      QTest::mouseClick(tree->viewport(), Qt::LeftButton, {},
                        QPoint(50, Below(std::max(tree->viewport()->height(), 1))));
    }
    return;
  }
  if (grid == nullptr) return;
  const QPoint place = AnyPointIn(*grid->viewport());
  QTest::mouseClick(grid->viewport(), Qt::LeftButton, {}, place);
  if (Below(2) == 0) QTest::mouseClick(grid->viewport(), Qt::RightButton, {}, place);
}

void RandomOperator::CloseWindow(QWidget& window) { window.close(); }

// Database

void RandomOperator::ChangeDatabase() {
  if (fault_->is_away || fault_->lock) return FreeDatabase();
  if (Below(2) == 0) {
    fault_->is_away = true;
    std::filesystem::rename(desk_.DatabasePath(), desk_.Folder() + "/away.db");
  } else {
    fault_->lock.emplace(desk_.DatabasePath());
    fault_->lock->Execute("BEGIN IMMEDIATE");
  }
}

void RandomOperator::FreeDatabase() {
  fault_->lock.reset();
  if (fault_->is_away) std::filesystem::rename(desk_.Folder() + "/away.db", desk_.DatabasePath());
  fault_->is_away = false;
}

// Between actions

void RandomOperator::ExpectNothingLocked() const {
  EXPECT_FALSE(desk_.Toolkit().UpdatesAreLocked()) << "after " << actions_ << " actions";
}

void RandomOperator::CloseAll() {
  for (int i = 0; i < 20; ++i) {
    QWidget* window = QApplication::activePopupWidget();
    if (window == nullptr) window = QApplication::activeModalWidget();
    if (window == nullptr) return;
    window->hide();
  }
}

}  // namespace ferrowind::gui
