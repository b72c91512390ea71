#include "ferrowind/data/module_state.h"

#include <utility>

#include "ferrowind/platform/values/failure.h"

namespace ferrowind {
namespace {

using platform::Failure;
namespace failure_number = platform::failure_number;

template <typename Kind>
std::shared_ptr<Kind> CreateOutsideObject(const std::string& identifier) {
  auto object = std::dynamic_pointer_cast<Kind>(AttachedPlatform().objects.CreateObject(identifier));
  if (!object) {
    throw Failure(failure_number::kCannotCreateObject,
                  "The object " + identifier + " is not of the kind expected");
  }
  return object;
}

}  // namespace

ModuleState& Module() {
  thread_local ModuleState state;
  return state;
}

void AttachPlatform(const platform::Platform& platform) { Module().platform = &platform; }

void DetachPlatform(const platform::Platform& platform) {
  if (Module().platform == &platform) Module().platform = nullptr;
}

InSurroundings::InSurroundings(const platform::Platform& platform)
    : before_(std::exchange(Module().entered, &platform)) {}

InSurroundings::~InSurroundings() { Module().entered = before_; }

const platform::Platform& AttachedPlatform() {
  const ModuleState& module = Module();
  const platform::Platform* platform = module.entered != nullptr ? module.entered : module.platform;
  if (platform == nullptr) {
    throw Failure(failure_number::kObjectNotSet, "The calendar component was not started on this thread");
  }
  return *platform;
}

platform::Dictionary& DictionaryObject() {
  if (!Module().dictionary) {
    throw Failure(failure_number::kObjectNotSet, "There is no dictionary object");
  }
  return *Module().dictionary;
}

void EnsureDictionaryObject() {
  auto& dictionary = Module().dictionary;
  if (!dictionary) dictionary = CreateOutsideObject<platform::Dictionary>(platform::kDictionaryIdentifier);
}

platform::SharedServices& SharedServicesObject() {
  auto& services = Module().shared_services;
  if (!services)
    services = CreateOutsideObject<platform::SharedServices>(platform::kSharedServicesIdentifier);
  return *services;
}

}  // namespace ferrowind
