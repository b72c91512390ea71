// A host whose window was made in Qt Designer. usage: designer_host sqlite:PATH

#include <QApplication>
#include <QMainWindow>
#include <cstdio>
#include <memory>
#include <string>

#include "ferrowind/adapters/qt/forms/qt_toolkit.h"
#include "ferrowind/adapters/qt/services/qt_clock.h"
#include "ferrowind/adapters/qt/services/qt_locale.h"
#include "ferrowind/adapters/qt/services/qt_shared_services.h"
#include "ferrowind/adapters/services/desktop_dictionary.h"
#include "ferrowind/adapters/services/object_makers.h"
#include "ferrowind/adapters/sqlite/engine.h"
#include "ferrowind/platform/database/engine_command.h"
#include "ferrowind/platform/platform.h"

#include "ui_back_office.h"

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  if (argc != 2) {
    std::fputs("usage: designer_host sqlite:PATH\n", stderr);
    return 2;
  }
  const std::string database = argv[1];

  ferrowind::platform::EngineRegistry engines;
  engines.Register(ferrowind::sqlite::Engine::kScheme, std::make_shared<ferrowind::sqlite::Engine>());
  ferrowind::platform::EngineCommandFactory commands(engines);

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

  QMainWindow window;
  Ui::BackOffice form;
  form.setupUi(&window);
  // In the form, the button's clicked() is connected with the calendar's ShowInFront().
  form.calendar->SetPlatform(platform);
  window.show();
  return QApplication::exec();
}
