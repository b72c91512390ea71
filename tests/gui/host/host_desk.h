#pragma once

#include <QTreeView>
#include <chrono>
#include <memory>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ferrowind/adapters/qt/services/qt_locale.h"
#include "ferrowind/adapters/sqlite/wait_budget.h"

#include "host/desktop/back_office_window.h"
#include "host/desktop/desktop_surroundings.h"
#include "host/desktop/news_windows.h"
#include "host/desktop/operator_news.h"
#include "host/desktop/wait_cursor.h"
#include "tests/contract/database/sqlite_database.h"
#include "tests/gui/windows/dialog_script.h"
#include "tests/gui/windows/operator_hands.h"

namespace ferrowind::gui {

/// The desktop program but for its command line, over a database with the currencies EUR and USD, the
/// rules of an office and the calendar USD 2028, all days ordinary working days. The back office is on show,
/// the Calendars window is not.
class HostTest : public ::testing::Test {
 protected:
  HostTest();
  ~HostTest() override;

  /// The program starts anew on the database of that connection string.
  void WorkOn(const std::string& url);

  /// On USD 2028.
  void OpenCalendars();
  [[nodiscard]] QWidget& Calendars() const;
  [[nodiscard]] qt::GridView& Days() const { return GridIn(Calendars()); }

  /// Picks the tool from the menu of the day row.
  void PickForDay(int row, const std::string& tool);
  /// Opens the Holidays window for the whole calendar and has `work` done in it; it is closed after that.
  void InHolidays(const DialogScript::Step& work);
  /// The next message box shows a text that `matcher` likes, and is answered with Ok.
  void ExpectMessage(const ::testing::Matcher<std::string>& matcher);

  [[nodiscard]] std::string DatabasePath() const { return folder_.Path() + "/calendars.db"; }
  void TakeDatabaseAway() const;
  void BringDatabaseBack() const;
  /// Every change of the database is refused, and everything can be read, or not any more.
  void SetReadOnly(bool is_read_only) const;

  /// The text of the bar on show in the window, or of the note; empty without one.
  /// The Calendars window is the active one again, as a window manager makes it after a dialog.
  void ReturnToCalendars() const;
  [[nodiscard]] static std::string TroubleIn(const QWidget& window);
  [[nodiscard]] static std::string NoteIn(const QWidget& window);
  [[nodiscard]] std::string StatusLine() const;

  DialogScript script_;
  qt::QtLocale locale_;
  host::OperatorNews news_{locale_, [] { return std::string("14:05:10"); }};
  host::WaitCursor wait_cursor_{news_};
  /// What is left of the time that the action may wait for another program.
  std::shared_ptr<sqlite::WaitBudget> patience_ =
      std::make_shared<sqlite::WaitBudget>(std::chrono::milliseconds(100));

 private:
  /// The settings of the program lie there, too.
  contract::TemporaryFolder folder_;

 protected:
  std::unique_ptr<host::DesktopSurroundings> surroundings_;
  std::unique_ptr<host::BackOfficeWindow> back_office_;

 private:
  void End();

  std::unique_ptr<host::NewsWindows> news_windows_;
};

}  // namespace ferrowind::gui
