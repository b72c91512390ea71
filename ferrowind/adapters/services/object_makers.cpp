#include "ferrowind/adapters/services/object_makers.h"

#include <utility>

#include "ferrowind/platform/values/case_fold.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind {

using platform::Failure;
namespace failure_number = platform::failure_number;

void ObjectMakers::Register(const std::string& programmatic_identifier, Maker maker) {
  makers_[platform::FoldCase(programmatic_identifier)] = std::move(maker);
}

std::shared_ptr<platform::OutsideObject> ObjectMakers::CreateObject(
    const std::string& programmatic_identifier) {
  const auto maker = makers_.find(platform::FoldCase(programmatic_identifier));
  if (maker == makers_.end()) {
    throw Failure(
        failure_number::kCannotCreateObject,
        "Cannot create an object \"" + programmatic_identifier + "\": nothing is registered by that name");
  }
  std::shared_ptr<platform::OutsideObject> object;
  try {
    object = maker->second();
  } catch (const Failure& failure) {
    throw Failure(failure.Number(),
                  "Cannot create an object \"" + programmatic_identifier + "\": " + failure.Description());
  }
  if (!object) {
    throw Failure(failure_number::kCannotCreateObject,
                  "Cannot create an object \"" + programmatic_identifier + "\"");
  }
  return object;
}

}  // namespace ferrowind
