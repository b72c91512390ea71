// What the platform calls in the component's file.

#include <string_view>
#include <utility>

#include <windows.h>
#include <olectl.h>

#include "ferrowind/adapters/automation/call_guard.h"
#include "ferrowind/adapters/automation/com_pointer.h"
#include "ferrowind/adapters/automation/embedding/calendar_factory.h"
#include "ferrowind/adapters/automation/module.h"
#include "ferrowind/adapters/automation/native_failure.h"
#include "ferrowind/adapters/automation/registration.h"
#include "ferrowind/adapters/win32/base/window_thread.h"
#include "ferrowind/adapters/windows/counted_object.h"

#include "generated/ferrowind.h"
#include "host/automation/component_surroundings.h"

namespace {

using ferrowind::automation::CalendarFactory;

template <typename Body>
HRESULT Tried(Body&& body) noexcept {
  return ferrowind::automation::Guarded(nullptr, GUID_NULL, std::forward<Body>(body));
}

}  // namespace

STDAPI DllGetClassObject(REFCLSID class_id, REFIID iid, void** object) {
  if (object == nullptr) return E_POINTER;
  *object = nullptr;
  if (!IsEqualCLSID(class_id, __uuidof(::Calendar))) return CLASS_E_CLASSNOTAVAILABLE;
  return Tried([&] {
    ferrowind::automation::ComPointer<CalendarFactory> factory;
    factory.Attach(new CalendarFactory(&ferrowind::host::MakeComponentSurroundings));
    ferrowind::automation::RequireSuccess(factory->QueryInterface(iid, object));
  });
}

// Windows that are left when the last object goes, since a message of theirs is being handled, go a moment
// later.
STDAPI DllCanUnloadNow() {
  const bool is_in_use = ferrowind::automation::Module::Get().Held() > 0 ||
                         ferrowind::windows::CountedObject::Alive() > 0 ||
                         ferrowind::win32::WindowThread::Count() > 0;
  return is_in_use ? S_FALSE : S_OK;
}

STDAPI DllRegisterServer() {
  return Tried([] { ferrowind::automation::RegisterServer(HKEY_LOCAL_MACHINE); });
}

STDAPI DllUnregisterServer() {
  return Tried([] { ferrowind::automation::UnregisterServer(HKEY_LOCAL_MACHINE); });
}

// "user" is for the present user only, which needs no rights.
STDAPI DllInstall(BOOL install, LPCWSTR command_line) {
  const std::wstring_view command = command_line != nullptr ? command_line : L"";
  if (!command.empty() && command != L"user") return E_INVALIDARG;
  const HKEY users = command == L"user" ? HKEY_CURRENT_USER : HKEY_LOCAL_MACHINE;
  return Tried([&] {
    if (install) {
      ferrowind::automation::RegisterServer(users);
    } else {
      ferrowind::automation::UnregisterServer(users);
    }
  });
}
