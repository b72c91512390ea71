#include "tests/gui/windows/windows_fixture.h"

#include <QApplication>
#include <QLabel>

namespace ferrowind::gui {

WindowsTest::WindowsTest(OperatorDesk::Rules rules) : desk_(rules) {
  desk_.BeginWith("DELETE FROM DicCcy WHERE Ccy NOT IN ('EUR', 'GBP', 'USD')");
  CreateCalendar(kEuro, 2026);
  CreateCalendar(kDollar, 2027);
  CreateCalendar(kDollar, 2028);
  control_ = std::make_unique<Calendar>(desk_.Platform());
}

WindowsTest::~WindowsTest() {
  EXPECT_TRUE(script_.IsPlayed());
  control_.reset();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  for (const QWidget* window : QApplication::topLevelWidgets()) {
    EXPECT_FALSE(window->isVisible()) << window->objectName().toStdString() << " was left open";
  }
}

void WindowsTest::CreateCalendar(std::int32_t currency, std::int32_t year) {
  desk_.Call("CldIUMain", {currency, year, {}, {}, {}, {}, {}});
}

void WindowsTest::OpenCalendars() {
  ShowCalendars();
  if (!IsOpen()) return;
  Activate(Window());
}

void WindowsTest::CloseByFrame(QWidget& window) { window.close(); }

QWidget& WindowsTest::Window() const {
  QWidget* window = WindowOnShow("fmCalendar");
  if (window == nullptr) throw std::runtime_error("the Calendars window is not open");
  return *window;
}

std::string WindowsTest::StatusText() const {
  return Find<QLabel>(Window(), "sbCalendarPanel1").text().toStdString();
}

void WindowsTest::OpenDollar2028() {
  OpenCalendars();
  ClickNode(Tree(), {"USD", "2028"});
  ASSERT_EQ(RowsOf(Days()), 366);
}

void WindowsTest::PickForDay(int row, const std::string& tool) {
  WalkToRow(Days(), row);
  script_.Expect("ID_StatesMenu", [tool](QWidget& menu) { PickFromMenu(menu, tool); });
  RightClickRow(Days(), row);
}

void WindowsTest::InHolidays(const std::string& tool, int row, const DialogScript::Step& work) {
  WalkToRow(Days(), row);
  script_.Expect("ID_StatesMenu", [tool](QWidget& menu) { PickFromMenu(menu, tool); });
  script_.Expect("fmEnterHolidays", [work](QWidget& window) {
    work(window);
    if (window.isVisible()) CloseByFrame(window);
  });
  RightClickRow(Days(), row);
}

void WindowsTest::ExpectMessage(const ::testing::Matcher<std::string>& matcher) {
  script_.Expect("fmSharedMessage", [matcher](QWidget& box) {
    EXPECT_THAT(TextOfMessage(box), matcher);
    PressButton(box, "Ok");
  });
}

void WindowsTest::AnswerQuestion(const std::string& text, const std::string& button) {
  script_.Expect("fmMessage", [text, button](QWidget& dialog) {
    EXPECT_EQ(TextOfMessage(dialog), text);
    PressButton(dialog, button);
  });
}

}  // namespace ferrowind::gui
