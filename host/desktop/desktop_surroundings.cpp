#include "host/desktop/desktop_surroundings.h"

#include <QCoreApplication>
#include <utility>

#include "ferrowind/adapters/icalendar/icalendar_list.h"
#include "ferrowind/adapters/postgres/engine.h"
#include "ferrowind/adapters/qt/services/qt_clock.h"
#include "ferrowind/adapters/qt/services/qt_locale.h"
#include "ferrowind/adapters/qt/services/qt_words.h"
#include "ferrowind/adapters/services/desktop_dictionary.h"
#include "ferrowind/adapters/services/object_makers.h"
#include "ferrowind/adapters/services/trace_file.h"
#include "ferrowind/adapters/sqlite/engine.h"
#include "ferrowind/platform/database/engine_change_watch.h"
#include "ferrowind/platform/database/engine_command.h"
#include "ferrowind/views/planning/planning_additions.h"

#include "host/delivery/delivered_tables.h"
#include "host/desktop/telling_services.h"

namespace ferrowind::host {
namespace {

/// Where the component's own files are, in a build as in an installation.
std::string DataFolder() {
  return QCoreApplication::applicationDirPath().toStdString() + "/" FERROWIND_DATA_FROM_PROGRAMS;
}

}  // namespace

struct DesktopSurroundings::Parts {
  Parts(OperatorNews& news, std::shared_ptr<sqlite::WaitBudget> patience)
      : patience_of_action(std::move(patience)),
        action_began(news.OnAction([this] { patience_of_action->Renew(); })),
        platform{objects, commands, toolkit, locale, clock, DataFolder(), &news} {
    RegisterIn(engines, std::make_shared<sqlite::Engine>());
    RegisterIn(engines_of_component, std::make_shared<sqlite::Engine>(patience_of_action));
    objects.Register(platform::kDictionaryIdentifier,
                     [this] { return std::make_shared<DesktopDictionary>(engines_of_component, database); });
    objects.Register(platform::kSharedServicesIdentifier, [this, &news] {
      return std::make_shared<TellingServices>(news, qt::SettingsStore(), trace);
    });
    platform.additions = &additions;
    platform.words = &words;
    platform.change_watches = &change_watches;
  }

  void RegisterIn(platform::EngineRegistry& registry, std::shared_ptr<platform::Engine> files) {
    registry.Register(sqlite::Engine::kScheme, std::move(files));
    registry.Register(postgres::Engine::kScheme, server);
    registry.Register(postgres::Engine::kShortScheme, server);
  }

  std::string database;
  std::shared_ptr<TraceSink> trace;
  std::shared_ptr<sqlite::WaitBudget> patience_of_action;
  platform::Subscription action_began;
  std::shared_ptr<postgres::Engine> server = std::make_shared<postgres::Engine>();
  platform::EngineRegistry engines;
  platform::EngineRegistry engines_of_component;
  platform::EngineCommandFactory commands{engines_of_component};
  platform::EngineChangeWatchFactory change_watches{engines};
  ObjectMakers objects;
  qt::QtToolkit toolkit;
  qt::QtLocale locale;
  qt::QtClock clock;
  qt::QtWords words;
  platform::Platform platform;
  icalendar::ICalendar calendar_files;
  PlanningWindows windows{platform, DeliveredDateTables(), &calendar_files};
  PlanningAdditions additions{{platform, DeliveredDateTables(), windows}};
};

DesktopSurroundings::DesktopSurroundings(OperatorNews& news, std::shared_ptr<sqlite::WaitBudget> patience)
    : parts_(std::make_unique<Parts>(news, std::move(patience))) {}

DesktopSurroundings::~DesktopSurroundings() = default;

void DesktopSurroundings::TraceTo(const QString& file) {
  parts_->trace = std::make_shared<TraceFile>(file.toStdString());
}

void DesktopSurroundings::UseDatabase(const std::string& connection_string) {
  parts_->database = connection_string;
}

const platform::EngineRegistry& DesktopSurroundings::Engines() const { return parts_->engines; }

qt::QtToolkit& DesktopSurroundings::Toolkit() { return parts_->toolkit; }

PlanningWindows& DesktopSurroundings::Windows() { return parts_->windows; }

const platform::Platform& DesktopSurroundings::Get() const { return parts_->platform; }

}  // namespace ferrowind::host
