#include "ferrowind/adapters/automation/module.h"

#include <windows.h>

#include "ferrowind/adapters/automation/native_failure.h"

namespace ferrowind::automation {
namespace {

// Its address is in the file that is asked for, whatever program or library that is.
constexpr char kOfThisFile = 0;

}  // namespace

Module& Module::Get() {
  static Module& module = *new Module;
  return module;
}

void Module::Hold() {
  const std::lock_guard lock(mutex_);
  ++held_;
}

void Module::LetGo() {
  ComPointer<ITypeLib> dropped;
  Interfaces dropped_interfaces;
  const std::lock_guard lock(mutex_);
  if (--held_ > 0) return;
  dropped.Swap(library_);
  dropped_interfaces.swap(interfaces_);
}

long Module::Held() {
  const std::lock_guard lock(mutex_);
  return held_;
}

std::wstring Module::Path() {
  HMODULE file = nullptr;
  if (!GetModuleHandleExW(
          GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
          reinterpret_cast<const wchar_t*>(&kOfThisFile), &file)) {
    throw NativeFailure(HRESULT_FROM_WIN32(GetLastError()));
  }
  std::wstring path(MAX_PATH, L'\0');
  for (;;) {
    const DWORD length = GetModuleFileNameW(file, path.data(), static_cast<DWORD>(path.size()));
    if (length == 0) throw NativeFailure(HRESULT_FROM_WIN32(GetLastError()));
    if (length < path.size()) {
      path.resize(length);
      return path;
    }
    path.resize(2 * path.size());
  }
}

ComPointer<ITypeLib> Module::TypeLibrary() {
  const std::lock_guard lock(mutex_);
  if (library_) return library_;
  ComPointer<ITypeLib> loaded;
  RequireSuccess(LoadTypeLibEx(Path().c_str(), REGKIND_NONE, loaded.Receive()));
  if (held_ > 0) library_ = loaded;
  return loaded;
}

ComPointer<ITypeInfo> Module::TypeInfo(REFGUID identifier) {
  ComPointer<ITypeInfo> info;
  RequireSuccess(TypeLibrary()->GetTypeInfoOfGuid(identifier, info.Receive()));
  return info;
}

std::shared_ptr<const DescribedInterface> Module::Interface(REFGUID identifier) {
  {
    const std::lock_guard lock(mutex_);
    for (const auto& [known, described] : interfaces_) {
      if (IsEqualGUID(known, identifier)) return described;
    }
  }
  auto described = std::make_shared<const DescribedInterface>(TypeInfo(identifier));
  const std::lock_guard lock(mutex_);
  // Another thread may have been faster, and then there are two, of which the first one is found.
  if (held_ > 0) interfaces_.emplace_back(identifier, described);
  return described;
}

}  // namespace ferrowind::automation
