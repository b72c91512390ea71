#include "ferrowind/adapters/win32/services/registry_settings.h"

#include <algorithm>
#include <cstdint>

#include "ferrowind/adapters/operator_services/setting_text.h"
#include "ferrowind/adapters/win32/base/wide_text.h"
#include "ferrowind/adapters/windows/system_message.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::win32 {
namespace {

using platform::Value;

/// Others may write what they like into the registry of their own.
constexpr DWORD kMostBytes = 1 << 20;

}  // namespace

std::optional<std::string> RegistryText(HKEY root, const std::wstring& key, const std::wstring& name) {
  DWORD size = 0;
  const auto read = [&](wchar_t* text) {
    return RegGetValueW(root, key.c_str(), name.c_str(), RRF_RT_REG_SZ, nullptr, text, &size);
  };
  if (read(nullptr) != ERROR_SUCCESS) return std::nullopt;
  std::wstring text;
  LSTATUS status = ERROR_MORE_DATA;
  // Another program may make it longer meanwhile.
  while (status == ERROR_MORE_DATA && size <= kMostBytes) {
    text.resize(size / sizeof(wchar_t));
    status = read(text.data());
  }
  if (status != ERROR_SUCCESS) return std::nullopt;
  text.resize(size / sizeof(wchar_t));
  // The platform ends it, and what is no text of whole characters as well.
  if (!text.empty() && text.back() == L'\0') text.pop_back();
  return FromWide(text);
}

std::wstring RegistrySettings::KeyOf(const std::string& section) const {
  std::wstring key = key_;
  const std::wstring levels = ToWide(section);
  for (std::size_t begin = 0; begin < levels.size();) {
    const std::size_t end = std::min(levels.find(L'\\', begin), levels.size());
    if (end > begin) key += L'\\' + levels.substr(begin, end - begin);
    begin = end + 1;
  }
  return key;
}

std::optional<Value> RegistrySettings::Read(const std::string& section, const std::string& name) const {
  const auto text = RegistryText(HKEY_CURRENT_USER, KeyOf(section), ToWide(name));
  if (!text) return std::nullopt;
  return SettingValue(*text);
}

void RegistrySettings::Write(const std::string& section, const std::string& name, const Value& value) {
  const std::wstring key = KeyOf(section);
  const std::wstring text = ToWide(SettingText(value));
  const std::size_t size = (text.size() + 1) * sizeof(wchar_t);
  LSTATUS status = ERROR_INVALID_PARAMETER;
  if (size <= kMostBytes) {
    status = RegSetKeyValueW(HKEY_CURRENT_USER, key.c_str(), ToWide(name).c_str(), REG_SZ, text.c_str(),
                             static_cast<DWORD>(size));
  }
  if (status == ERROR_SUCCESS) return;
  throw platform::Failure(platform::failure_number::kInvalidArgument,
                          "Cannot write the setting " + name + " to HKEY_CURRENT_USER\\" + FromWide(key) +
                              ": " + windows::SystemMessage(static_cast<std::uint32_t>(status)));
}

}  // namespace ferrowind::win32
