#include "ferrowind/adapters/services/desktop_dictionary.h"

#include <utility>

#include "ferrowind/platform/values/failure.h"

namespace ferrowind {

DesktopDictionary::DesktopDictionary(const platform::EngineRegistry& engines, std::string connection_string)
    : engines_(engines), connection_string_(std::move(connection_string)) {}

std::shared_ptr<platform::RecordSet> DesktopDictionary::dic_GetDicRecByFilter(const std::string& name,
                                                                              const std::string& filter) {
  auto rows = engines_.EngineFor(connection_string_).ReadDictionary(connection_string_, name);
  if (!rows) {
    throw platform::Failure(platform::failure_number::kObjectNotSet,
                            "The engine gave no rows of the dictionary " + name);
  }
  rows->SetFilter(filter);
  return rows;
}

}  // namespace ferrowind
