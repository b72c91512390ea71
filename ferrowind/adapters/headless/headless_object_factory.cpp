#include "ferrowind/adapters/headless/headless_object_factory.h"

#include <utility>

namespace ferrowind::headless {

std::shared_ptr<platform::OutsideObject> HeadlessObjectFactory::CreateObject(
    const std::string& programmatic_identifier) {
  log_.Record(CallText("objects", "CreateObject", {programmatic_identifier}));
  const auto found = makers_.find(programmatic_identifier);
  if (found == makers_.end()) {
    throw platform::Failure(platform::failure_number::kCannotCreateObject,
                            "There is no object " + programmatic_identifier + " to create");
  }
  return found->second();
}

void HeadlessObjectFactory::Register(const std::string& programmatic_identifier, Maker maker) {
  makers_[programmatic_identifier] = std::move(maker);
}

void HeadlessObjectFactory::RegisterFailing(const std::string& programmatic_identifier,
                                            const platform::Failure& failure) {
  Register(programmatic_identifier,
           [failure]() -> std::shared_ptr<platform::OutsideObject> { throw failure; });
}

}  // namespace ferrowind::headless
