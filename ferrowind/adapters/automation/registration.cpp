#include "ferrowind/adapters/automation/registration.h"

#include <array>
#include <string>
#include <utility>
#include <vector>

#include <oaidl.h>
#include <oleauto.h>

#include "ferrowind/adapters/automation/class_title.h"
#include "ferrowind/adapters/automation/com_pointer.h"
#include "ferrowind/adapters/automation/miscellaneous_status.h"
#include "ferrowind/adapters/automation/module.h"
#include "ferrowind/adapters/automation/native_failure.h"
#include "ferrowind/adapters/automation/registry_changes.h"
#include "ferrowind/adapters/automation/text.h"
#include "ferrowind/control/type_library.h"

namespace ferrowind::automation {
namespace {

// The platform's own marshallers, which need nothing but the type library.
constexpr const wchar_t* kDualMarshaller = L"{00020424-0000-0000-C000-000000000046}";
constexpr const wchar_t* kEventMarshaller = L"{00020420-0000-0000-C000-000000000046}";

struct Entry {
  std::wstring key;
  std::wstring name;
  std::wstring text;
};

/// What stands in the registry, below the classes.
struct Registered {
  std::vector<Entry> entries;
  /// The keys that are ours altogether.
  std::vector<std::wstring> keys;
};

std::wstring RegistryForm(REFGUID identifier) {
  std::array<wchar_t, 40> text{};
  StringFromGUID2(identifier, text.data(), static_cast<int>(text.size()));
  return text.data();
}

void AddClass(Registered& to, const std::wstring& library, const std::wstring& version,
              const std::wstring& path) {
  const auto& control = type_library::kClasses[0];
  const std::wstring identifier = Utf16(control.class_id);
  const std::wstring name = Utf16(type_library::kCalendarProgrammaticIdentifier);
  const std::wstring key = L"CLSID\\" + identifier;
  to.entries.push_back({name, L"", kClassTitle});
  to.entries.push_back({name + L"\\CLSID", L"", identifier});
  to.entries.push_back({key, L"", kClassTitle});
  to.entries.push_back({key + L"\\InprocServer32", L"", path});
  to.entries.push_back({key + L"\\InprocServer32", L"ThreadingModel", L"Apartment"});
  to.entries.push_back({key + L"\\ProgID", L"", name});
  to.entries.push_back({key + L"\\VersionIndependentProgID", L"", name});
  to.entries.push_back({key + L"\\TypeLib", L"", library});
  to.entries.push_back({key + L"\\Version", L"", version});
  to.entries.push_back({key + L"\\Control", L"", L""});
  to.entries.push_back({key + L"\\Programmable", L"", L""});
  to.entries.push_back({key + L"\\MiscStatus", L"", L"0"});
  to.entries.push_back({key + L"\\MiscStatus\\1", L"", std::to_wstring(kMiscellaneousStatus)});
  to.keys.push_back(name);
  to.keys.push_back(key);
}

void AddInterface(Registered& to, const char* interface_id, const char* interface_name,
                  const wchar_t* marshaller, const std::wstring& library, const std::wstring& version) {
  const std::wstring key = L"Interface\\" + Utf16(interface_id);
  to.entries.push_back({key, L"", Utf16(interface_name)});
  to.entries.push_back({key + L"\\ProxyStubClsid32", L"", marshaller});
  to.entries.push_back({key + L"\\TypeLib", L"", library});
  to.entries.push_back({key + L"\\TypeLib", L"Version", version});
  to.keys.push_back(key);
}

void AddLibrary(Registered& to, const std::wstring& library, const std::wstring& version,
                const std::wstring& path) {
  constexpr const wchar_t* kSystem = sizeof(void*) == 8 ? L"win64" : L"win32";
  const std::wstring top = L"TypeLib\\" + library;
  const std::wstring key = top + L"\\" + version;
  to.entries.push_back({key, L"", kClassTitle});
  to.entries.push_back({key + L"\\0\\" + kSystem, L"", path});
  to.entries.push_back({key + L"\\FLAGS", L"", L"0"});
  to.entries.push_back({key + L"\\HELPDIR", L"", path.substr(0, path.find_last_of(L'\\'))});
  to.keys.push_back(top);
}

Registered WhatToRegister() {
  const ComPointer<ITypeLib> loaded = Module::Get().TypeLibrary();
  TLIBATTR* attributes = nullptr;
  RequireSuccess(loaded->GetLibAttr(&attributes));
  const std::wstring library = RegistryForm(attributes->guid);
  const std::wstring version =
      std::to_wstring(attributes->wMajorVerNum) + L"." + std::to_wstring(attributes->wMinorVerNum);
  loaded->ReleaseTLibAttr(attributes);

  const std::wstring path = Module::Path();
  Registered result;
  AddClass(result, library, version, path);
  for (const auto& described : type_library::kClasses) {
    AddInterface(result, described.interface_id, described.interface_name, kDualMarshaller, library, version);
    if (described.events_id == nullptr) continue;
    AddInterface(result, described.events_id, described.events_name, kEventMarshaller, library, version);
  }
  AddLibrary(result, library, version, path);
  return result;
}

std::wstring BelowClasses(const std::wstring& key) { return L"Software\\Classes\\" + key; }

}  // namespace

void RegisterServer(HKEY users) {
  const Registered what = WhatToRegister();
  RegistryChanges changes(users);
  for (const auto& [key, name, text] : what.entries) changes.Set(BelowClasses(key), name, text);
  changes.Keep();
}

void UnregisterServer(HKEY users) {
  for (const auto& key : WhatToRegister().keys) {
    const LSTATUS status = RegDeleteTreeW(users, BelowClasses(key).c_str());
    if (status != ERROR_FILE_NOT_FOUND) RequireSuccess(HRESULT_FROM_WIN32(static_cast<DWORD>(status)));
  }
}

}  // namespace ferrowind::automation
