#include "ferrowind/adapters/automation/embedding/calendar_factory.h"

#include <memory>

#include "ferrowind/adapters/automation/call_guard.h"
#include "ferrowind/adapters/automation/com_pointer.h"
#include "ferrowind/adapters/automation/embedding/form_control.h"
#include "ferrowind/adapters/automation/native_failure.h"

namespace ferrowind::automation {
namespace {

std::shared_ptr<Surroundings> SurroundingsOfThread(MakeSurroundings make) {
  static thread_local std::weak_ptr<Surroundings> of_this_thread;
  auto surroundings = of_this_thread.lock();
  if (!surroundings) of_this_thread = surroundings = make();
  return surroundings;
}

}  // namespace

HRESULT CalendarFactory::CreateInstance(IUnknown* outer, REFIID iid, void** object) {
  if (object == nullptr) return E_POINTER;
  *object = nullptr;
  if (outer != nullptr) return CLASS_E_NOAGGREGATION;
  return Guarded(this, __uuidof(IClassFactory), [&] {
    ComPointer<FormControl> made;
    made.Attach(new FormControl(SurroundingsOfThread(make_surroundings_)));
    RequireSuccess(made->QueryInterface(iid, object));
  });
}

HRESULT CalendarFactory::LockServer(BOOL lock) {
  if (lock) {
    Module::Get().Hold();
  } else {
    Module::Get().LetGo();
  }
  return S_OK;
}

}  // namespace ferrowind::automation
