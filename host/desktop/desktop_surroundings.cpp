#include "host/desktop/desktop_surroundings.h"

#include <QCoreApplication>
#include <utility>

#include "ferrowind/adapters/postgres/engine.h"
#include "ferrowind/adapters/qt/forms/qt_toolkit.h"
#include "ferrowind/adapters/qt/services/qt_clock.h"
#include "ferrowind/adapters/qt/services/qt_locale.h"
#include "ferrowind/adapters/qt/services/qt_shared_services.h"
#include "ferrowind/adapters/services/desktop_dictionary.h"
#include "ferrowind/adapters/services/object_makers.h"
#include "ferrowind/adapters/services/trace_file.h"
#include "ferrowind/adapters/sqlite/engine.h"
#include "ferrowind/platform/database/engine_command.h"

namespace ferrowind::host {

struct DesktopSurroundings::Parts {
  explicit Parts(DatabaseObserver& observer) {
    const auto server = std::make_shared<postgres::Engine>();
    const std::pair<const char*, std::shared_ptr<platform::Engine>> all[] = {
        {sqlite::Engine::kScheme, std::make_shared<sqlite::Engine>()},
        {postgres::Engine::kScheme, server},
        {postgres::Engine::kShortScheme, server}};
    for (const auto& [scheme, engine] : all) {
      engines.Register(scheme, engine);
      watched_engines.Register(scheme, std::make_shared<WatchedEngine>(engine, observer));
    }
    objects.Register(platform::kDictionaryIdentifier,
                     [this] { return std::make_shared<DesktopDictionary>(watched_engines, database); });
    objects.Register(platform::kSharedServicesIdentifier,
                     [this] { return std::make_shared<qt::QtSharedServices>(qt::SettingsStore(), trace); });
  }

  std::string database;
  std::shared_ptr<TraceSink> trace;
  platform::EngineRegistry engines;
  platform::EngineRegistry watched_engines;
  platform::EngineCommandFactory commands{watched_engines};
  ObjectMakers objects;
  qt::QtToolkit toolkit;
  qt::QtLocale locale;
  qt::QtClock clock;
  platform::Platform platform{objects, commands, toolkit,
                              locale,  clock,    QCoreApplication::applicationDirPath().toStdString()};
};

DesktopSurroundings::DesktopSurroundings(DatabaseObserver& observer)
    : parts_(std::make_unique<Parts>(observer)) {}

DesktopSurroundings::~DesktopSurroundings() = default;

void DesktopSurroundings::TraceTo(const QString& file) {
  parts_->trace = std::make_shared<TraceFile>(file.toStdString());
}

void DesktopSurroundings::UseDatabase(const std::string& connection_string) {
  parts_->database = connection_string;
}

const platform::EngineRegistry& DesktopSurroundings::Engines() const { return parts_->engines; }

const platform::Platform& DesktopSurroundings::Get() const { return parts_->platform; }

}  // namespace ferrowind::host
