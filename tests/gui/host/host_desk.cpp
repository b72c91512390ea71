#include "tests/gui/host/host_desk.h"

#include <QApplication>
#include <QLabel>
#include <QSettings>
#include <QStatusBar>
#include <filesystem>
#include <fstream>

#include "ferrowind/adapters/sqlite/database_file.h"
#include "ferrowind/adapters/sqlite/database_handle.h"
#include "ferrowind/data/module_state.h"

#include "tests/gui/windows/office_rules.h"

namespace ferrowind::gui {
namespace {

std::string VisibleText(const QWidget& window, const char* name) {
  const auto* label = window.findChild<QLabel*>(QString::fromLatin1(name));
  return label == nullptr || !label->isVisible() ? "" : label->text().toStdString();
}

}  // namespace

HostTest::HostTest() {
  QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, QString::fromStdString(folder_.Path()));
  sqlite::CreateDatabase(DatabasePath());
  sqlite::DatabaseHandle(DatabasePath()).Execute(std::string(embedded::kOfficeRules).c_str());
  sqlite::DatabaseHandle(DatabasePath()).Execute("DELETE FROM DicCcy WHERE Ccy NOT IN ('EUR', 'USD')");
  const std::string url = "sqlite:" + DatabasePath();
  sqlite::Engine engine;
  (void)engine.Connect(url)->Call("CldIUMain", {840, 2028, {}, {}, {}, {}, {}});
  WorkOn(url);
}

HostTest::~HostTest() {
  EXPECT_TRUE(script_.IsPlayed());
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
  End();
}

void HostTest::WorkOn(const std::string& url) {
  End();
  surroundings_ = std::make_unique<host::DesktopSurroundings>(news_, patience_);
  surroundings_->UseDatabase(url);
  back_office_ = std::make_unique<host::BackOfficeWindow>(
      surroundings_->Get(), QStringLiteral("Calendars of this user"), QString::fromStdString(url));
  news_windows_ = std::make_unique<host::NewsWindows>(news_, *back_office_);
  back_office_->show();
}

void HostTest::End() {
  news_windows_.reset();
  back_office_.reset();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  surroundings_.reset();
  Module() = ModuleState();
}

void HostTest::ReturnToCalendars() const {
  Activate(Calendars());
  QCoreApplication::processEvents();
}

void HostTest::OpenCalendars() {
  back_office_->OpenCalendars();
  Activate(Calendars());
  ClickNode(Find<QTreeView>(Calendars(), "tvCalendar"), {"USD", "2028"});
  ASSERT_EQ(RowsOf(Days()), 366);
}

QWidget& HostTest::Calendars() const {
  QWidget* window = WindowOnShow("fmCalendar");
  if (window == nullptr) throw std::runtime_error("the Calendars window is not open");
  return *window;
}

void HostTest::PickForDay(int row, const std::string& tool) {
  WalkToRow(Days(), row);
  script_.Expect("ID_StatesMenu", [tool](QWidget& menu) { PickFromMenu(menu, tool); });
  RightClickRow(Days(), row);
  ReturnToCalendars();
}

void HostTest::InHolidays(const DialogScript::Step& work) {
  WalkToRow(Days(), 0);
  script_.Expect("ID_StatesMenu", [](QWidget& menu) { PickFromMenu(menu, "ID_AssignMany"); });
  script_.Expect("fmEnterHolidays", [work](QWidget& window) {
    work(window);
    if (window.isVisible()) window.close();
  });
  RightClickRow(Days(), 0);
  ReturnToCalendars();
}

void HostTest::ExpectMessage(const ::testing::Matcher<std::string>& matcher) {
  script_.Expect("fmSharedMessage", [matcher](QWidget& box) {
    EXPECT_THAT(TextOfMessage(box), matcher);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    PressButton(box, "Ok");
  });
}

void HostTest::TakeDatabaseAway() const { std::filesystem::rename(DatabasePath(), DatabasePath() + ".away"); }

void HostTest::BringDatabaseBack() const {
  std::filesystem::rename(DatabasePath() + ".away", DatabasePath());
}

void HostTest::SetReadOnly(bool is_read_only) const {
  // The version of the format that a program must know to write the file; rights would not stop an
  // administrator.
  constexpr int kWriteVersionAt = 18;
  constexpr char kWriteAheadLog = 2;
  constexpr char kOfTheFuture = 3;
  std::fstream file(DatabasePath(), std::ios::in | std::ios::out | std::ios::binary);
  file.seekp(kWriteVersionAt);
  file.put(is_read_only ? kOfTheFuture : kWriteAheadLog);
}

std::string HostTest::TroubleIn(const QWidget& window) { return VisibleText(window, "troubleText"); }

std::string HostTest::NoteIn(const QWidget& window) { return VisibleText(window, "noteText"); }

std::string HostTest::StatusLine() const { return back_office_->statusBar()->currentMessage().toStdString(); }

}  // namespace ferrowind::gui
