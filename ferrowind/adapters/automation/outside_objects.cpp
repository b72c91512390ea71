#include "ferrowind/adapters/automation/outside_objects.h"

#include "ferrowind/adapters/automation/outside_call.h"
#include "ferrowind/adapters/automation/outside_dictionary.h"
#include "ferrowind/adapters/automation/outside_shared_services.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::automation {

std::shared_ptr<platform::OutsideObject> OutsideObjects::CreateObject(
    const std::string& programmatic_identifier) {
  if (programmatic_identifier == platform::kDictionaryIdentifier) {
    if (!OutsideCall::IsRegistered(programmatic_identifier)) return make_dictionary_();
    return std::make_shared<OutsideDictionary>(OutsideCall::Create(programmatic_identifier));
  }
  if (programmatic_identifier == platform::kSharedServicesIdentifier) {
    if (!OutsideCall::IsRegistered(programmatic_identifier)) return make_services_();
    return std::make_shared<OutsideSharedServices>(OutsideCall::Create(programmatic_identifier),
                                                   make_services_());
  }
  throw platform::Failure(platform::failure_number::kCannotCreateObject,
                          programmatic_identifier + " is no object that the component uses");
}

}  // namespace ferrowind::automation
