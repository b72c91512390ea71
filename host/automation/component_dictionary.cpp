#include "host/automation/component_dictionary.h"

#include <utility>

#include "ferrowind/adapters/services/desktop_dictionary.h"
#include "ferrowind/platform/services/object_factory.h"
#include "ferrowind/platform/values/failure.h"

#include "host/automation/registered_text.h"

namespace ferrowind::host {
namespace {

std::string RegisteredConnectionString() {
  if (auto text = RegisteredText(L"ConnectionString")) return *std::move(text);
  throw platform::Failure(platform::failure_number::kCannotCreateObject,
                          std::string(platform::kDictionaryIdentifier) +
                              " is not registered, and the registry names no database: there is no text "
                              "ConnectionString in HKEY_CURRENT_USER\\Software\\Tessaro\\Ferrowind, nor in "
                              "HKEY_LOCAL_MACHINE\\Software\\Tessaro\\Ferrowind.");
}

}  // namespace

ComponentDictionary::ComponentDictionary(std::shared_ptr<const platform::EngineRegistry> engines)
    : engines_(std::move(engines)) {
  static_cast<void>(RegisteredConnectionString());
}

std::string ComponentDictionary::dic_ConnectionString() { return RegisteredConnectionString(); }

std::shared_ptr<platform::RecordSet> ComponentDictionary::dic_GetDicRecByFilter(const std::string& name,
                                                                                const std::string& filter) {
  return DesktopDictionary(*engines_, RegisteredConnectionString()).dic_GetDicRecByFilter(name, filter);
}

}  // namespace ferrowind::host
