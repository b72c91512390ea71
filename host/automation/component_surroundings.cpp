#include "host/automation/component_surroundings.h"

#include <string>

#include "ferrowind/adapters/automation/module.h"
#include "ferrowind/adapters/automation/outside_objects.h"
#include "ferrowind/adapters/automation/text.h"
#include "ferrowind/adapters/odbc/engine.h"
#include "ferrowind/adapters/services/system_clock.h"
#include "ferrowind/adapters/services/trace_file.h"
#include "ferrowind/adapters/sqlite/engine.h"
#include "ferrowind/adapters/win32/forms/win32_toolkit.h"
#include "ferrowind/adapters/win32/services/registry_settings.h"
#include "ferrowind/adapters/win32/services/win32_locale.h"
#include "ferrowind/adapters/win32/services/win32_shared_services.h"
#include "ferrowind/adapters/win32/words/native_words.h"
#include "ferrowind/platform/database/engine_command.h"
#include "ferrowind/platform/database/engine_registry.h"
#include "ferrowind/platform/platform.h"
#include "ferrowind/platform/services/words.h"

#include "host/automation/component_dictionary.h"
#include "host/automation/registered_text.h"

namespace ferrowind::host {
namespace {

/// Every engine that a connection string can name.
std::shared_ptr<const platform::EngineRegistry> MakeEngines() {
  auto engines = std::make_shared<platform::EngineRegistry>();
  engines->Register(sqlite::Engine::kScheme, std::make_shared<sqlite::Engine>());
  const auto drivers = std::make_shared<odbc::Engine>();
  for (const char* const keyword : odbc::Engine::kKeywords) engines->RegisterKeyword(keyword, drivers);
  return engines;
}

/// Into the file that the registry names as "TraceFile"; none where it names none. One that cannot be opened
/// is a failure.
std::shared_ptr<TraceSink> MakeTrace() {
  const auto path = RegisteredText(L"TraceFile");
  return path ? std::make_shared<TraceFile>(*path) : nullptr;
}

/// Where the component's own files are: beside this one.
std::string ComponentFolder() {
  const std::wstring file = automation::Module::Path();
  return automation::Utf8(file.substr(0, file.find_last_of(L'\\')));
}

/// Kept as long as the file is loaded: what is left of a window may still speak when its surroundings have
/// gone.
const platform::Words& WordsOfUser() {
  static const win32::NativeWords words;
  return words;
}

class ComponentSurroundings : public automation::Surroundings {
 public:
  [[nodiscard]] const platform::Platform& Get() const override { return platform_; }

 private:
  std::shared_ptr<const platform::EngineRegistry> engines_ = MakeEngines();
  platform::EngineCommandFactory commands_{*engines_};
  // The objects are kept by the thread, beyond this one.
  automation::OutsideObjects objects_{
      [] { return std::make_shared<win32::Win32SharedServices>(win32::RegistrySettings(), MakeTrace()); },
      [engines = engines_] { return std::make_shared<ComponentDictionary>(engines); }};
  win32::Win32Toolkit toolkit_{win32::ComponentLayouts(), &WordsOfUser()};
  win32::Win32Locale locale_;
  SystemClock clock_;
  platform::Platform platform_{objects_, commands_, toolkit_, locale_, clock_, ComponentFolder()};
};

}  // namespace

std::unique_ptr<automation::Surroundings> MakeComponentSurroundings() {
  return std::make_unique<ComponentSurroundings>();
}

}  // namespace ferrowind::host
