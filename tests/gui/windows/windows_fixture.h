#pragma once

#include <QTreeView>
#include <memory>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ferrowind/control/calendar.h"

#include "tests/gui/windows/dialog_script.h"
#include "tests/gui/windows/operator_desk.h"
#include "tests/gui/windows/operator_hands.h"

namespace ferrowind::gui {

inline constexpr std::int32_t kDollar = 840;
inline constexpr std::int32_t kEuro = 978;

/// The component's windows over a database with the currencies EUR, GBP and USD, the rules of an office and
/// the calendars EUR 2026 and USD 2027 and 2028, all days ordinary working days. No window is open at first.
class WindowsTest : public ::testing::Test {
 protected:
  explicit WindowsTest(OperatorDesk::Rules rules = OperatorDesk::Rules::kOfOffice);
  ~WindowsTest() override;

  void CreateCalendar(std::int32_t currency, std::int32_t year);

  /// Has the host show the Calendars window; it stays closed when the start fails.
  void ShowCalendars() { control_->Show(); }
  /// Shows it and waits until it has the focus.
  void OpenCalendars();
  [[nodiscard]] Calendar& Control() const { return *control_; }
  /// As the host does when it closes itself.
  bool ForceClosing() { return control_->ForceClosing(); }
  /// The close box of a window.
  static void CloseByFrame(QWidget& window);

  [[nodiscard]] bool IsOpen() const { return WindowOnShow("fmCalendar") != nullptr; }
  /// The Calendars window, which must be open.
  [[nodiscard]] QWidget& Window() const;
  [[nodiscard]] QTreeView& Tree() const { return Find<QTreeView>(Window(), "tvCalendar"); }
  [[nodiscard]] qt::GridView& Days() const { return GridIn(Window()); }
  [[nodiscard]] std::string StatusText() const;

  /// Opens the Calendars window and selects USD 2028.
  void OpenDollar2028();
  /// Opens the Holidays window from the menu of the day row, and has `work` done in it; `work` leaves it open
  /// or closed.
  void InHolidays(const std::string& tool, int row, const DialogScript::Step& work);
  /// Opens the day's menu by a right click and picks the tool there.
  void PickForDay(int row, const std::string& tool);
  /// The next message box shows a text that `matcher` likes, and is answered with Ok.
  void ExpectMessage(const ::testing::Matcher<std::string>& matcher);
  /// The next question is answered by that button.
  void AnswerQuestion(const std::string& text, const std::string& button);

  OperatorDesk desk_;
  DialogScript script_;

 private:
  std::unique_ptr<Calendar> control_;
};

}  // namespace ferrowind::gui
