#include "ferrowind/data/module_state.h"

#include <utility>

#include "ferrowind/platform/values/failure.h"

#if defined(__MINGW32__) && !defined(__clang__)
extern "C" int __cxa_thread_atexit(void (*end)(void*), void* object, void* file);

namespace {

// GCC has no thread-local storage there but its own, which one handler of a thread's end frees, while another
// handler ends the objects in it; handlers run in the order in which they are first asked for. So the
// objects' is asked for before any thread-local object is used.
[[gnu::init_priority(101)]] const struct ObjectsEndBeforeTheirStorage {
  ObjectsEndBeforeTheirStorage() {
    __cxa_thread_atexit([](void*) {}, nullptr, nullptr);
  }
} objects_end_before_their_storage;

}  // namespace
#endif

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
