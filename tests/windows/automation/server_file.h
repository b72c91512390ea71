#pragma once

#include <string>

#include <windows.h>
#include <gtest/gtest.h>
#include <objbase.h>

namespace ferrowind::testing {

/// `Ferrowind.dll`, which lies beside the test's program, loaded as a host loads it.
class ServerFile {
 public:
  ServerFile() : file_(LoadLibraryW(L"Ferrowind.dll")) { EXPECT_NE(file_, nullptr); }
  ~ServerFile() { FreeLibrary(file_); }
  ServerFile(const ServerFile&) = delete;
  ServerFile& operator=(const ServerFile&) = delete;

  [[nodiscard]] std::wstring Path() const {
    wchar_t path[MAX_PATH] = {};
    EXPECT_NE(GetModuleFileNameW(file_, path, MAX_PATH), 0U);
    return path;
  }
  [[nodiscard]] HRESULT Register() const { return Exported<HRESULT()>("DllRegisterServer")(); }
  [[nodiscard]] HRESULT Unregister() const { return Exported<HRESULT()>("DllUnregisterServer")(); }
  [[nodiscard]] HRESULT Install(bool install, const wchar_t* command_line) const {
    return Exported<HRESULT(BOOL, const wchar_t*)>("DllInstall")(install, command_line);
  }
  [[nodiscard]] HRESULT CanUnload() const { return Exported<HRESULT()>("DllCanUnloadNow")(); }
  [[nodiscard]] HRESULT ClassObject(REFCLSID class_id, REFIID iid, void** object) const {
    return Exported<HRESULT(REFCLSID, REFIID, void**)>("DllGetClassObject")(class_id, iid, object);
  }

 private:
  template <typename Signature>
  [[nodiscard]] Signature* Exported(const char* name) const {
    auto* const address = GetProcAddress(file_, name);
    EXPECT_NE(address, nullptr) << name;
    return reinterpret_cast<Signature*>(reinterpret_cast<void*>(address));
  }

  HMODULE file_;
};

}  // namespace ferrowind::testing
