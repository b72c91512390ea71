#pragma once

#include <string>

#include <windows.h>
#include <gtest/gtest.h>

namespace ferrowind::testing {

/// A registry of the present user's own, in which nothing lasts; in place of theirs, in this process, as long
/// as it lives.
class OwnRegistry {
 public:
  OwnRegistry() {
    RegDeleteTreeW(HKEY_CURRENT_USER, kName);
    EXPECT_EQ(
        RegCreateKeyExW(HKEY_CURRENT_USER, kName, 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &key_, nullptr),
        ERROR_SUCCESS);
    EXPECT_EQ(RegOverridePredefKey(HKEY_CURRENT_USER, key_), ERROR_SUCCESS);
  }
  ~OwnRegistry() {
    RegOverridePredefKey(HKEY_CURRENT_USER, nullptr);
    RegCloseKey(key_);
    RegDeleteTreeW(HKEY_CURRENT_USER, kName);
  }
  OwnRegistry(const OwnRegistry&) = delete;
  OwnRegistry& operator=(const OwnRegistry&) = delete;

 private:
  static constexpr const wchar_t* kName = L"Software\\FerrowindTest";
  HKEY key_ = nullptr;
};

/// Writes a text for the component, for the present user.
inline void WriteForComponent(const wchar_t* name, const std::wstring& text) {
  EXPECT_EQ(RegSetKeyValueW(HKEY_CURRENT_USER, L"Software\\Tessaro\\Ferrowind", name, REG_SZ, text.c_str(),
                            static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t))),
            ERROR_SUCCESS);
}

/// Has the component's own dictionary name that database.
inline void NameDatabase(const std::wstring& connection_string) {
  WriteForComponent(L"ConnectionString", connection_string);
}

}  // namespace ferrowind::testing
