// A host of the calendar control: one window with the control on it, over a SQLite database that
// `ferrowindctl init` has made. usage: minimal_host sqlite:PATH

#include <QApplication>
#include <QCloseEvent>
#include <QMainWindow>
#include <QStatusBar>
#include <cstdio>
#include <memory>
#include <string>

#include "ferrowind/adapters/qt/embedding/calendar_widget.h"
#include "ferrowind/adapters/qt/forms/qt_toolkit.h"
#include "ferrowind/adapters/qt/services/qt_clock.h"
#include "ferrowind/adapters/qt/services/qt_locale.h"
#include "ferrowind/adapters/qt/services/qt_shared_services.h"
#include "ferrowind/adapters/services/desktop_dictionary.h"
#include "ferrowind/adapters/services/object_makers.h"
#include "ferrowind/adapters/sqlite/engine.h"
#include "ferrowind/platform/database/engine_command.h"
#include "ferrowind/platform/platform.h"

/// The host's window, which the calendars close with.
class HostWindow : public QMainWindow {
 public:
  explicit HostWindow(const ferrowind::platform::Platform& platform)
      : calendar_(new ferrowind::qt::CalendarWidget(platform, this)) {
    setCentralWidget(calendar_);
  }
  [[nodiscard]] ferrowind::Calendar& Calendars() const { return calendar_->Control(); }

 protected:
  void closeEvent(QCloseEvent* event) override {
    if (Calendars().ForceClosing()) return;
    event->ignore();
    statusBar()->showMessage("The calendars have something to ask first.");
  }

 private:
  ferrowind::qt::CalendarWidget* calendar_;
};

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  if (argc != 2) {
    std::fputs("usage: minimal_host sqlite:PATH\n", stderr);
    return 2;
  }
  const std::string database = argv[1];

  // The databases that connection strings may name.
  ferrowind::platform::EngineRegistry engines;
  engines.Register(ferrowind::sqlite::Engine::kScheme, std::make_shared<ferrowind::sqlite::Engine>());
  ferrowind::platform::EngineCommandFactory commands(engines);

  // The two outside objects that the component creates by name.
  ferrowind::ObjectMakers objects;
  objects.Register(ferrowind::platform::kDictionaryIdentifier,
                   [&] { return std::make_shared<ferrowind::DesktopDictionary>(engines, database); });
  objects.Register(ferrowind::platform::kSharedServicesIdentifier,
                   [] { return std::make_shared<ferrowind::qt::QtSharedServices>(); });

  ferrowind::qt::QtToolkit toolkit;
  ferrowind::qt::QtLocale locale;
  ferrowind::qt::QtClock clock;
  const ferrowind::platform::Platform platform{
      objects, commands, toolkit, locale, clock, QApplication::applicationDirPath().toStdString()};

  HostWindow window(platform);

  // The maps can be had while no Calendars window is open.
  window.Calendars().Headers()->LocalNames("Comment")->SetCaption("Remark");
  window.Calendars().Show();

  window.show();
  return QApplication::exec();
}
