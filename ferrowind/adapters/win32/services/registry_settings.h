#pragma once

#include <optional>
#include <string>
#include <utility>

#include "ferrowind/adapters/win32/base/windows_api.h"
#include "ferrowind/platform/values/value.h"

namespace ferrowind::win32 {

/// The component's key in the registry, of the present user and of the machine.
inline constexpr const wchar_t* kComponentKey = L"Software\\Tessaro\\Ferrowind";

/// A text in the registry, in UTF-8. Nothing where there is none, where it is something else than a text
/// (REG_SZ), is longer than any that the component writes, or may not be read.
[[nodiscard]] std::optional<std::string> RegistryText(HKEY root, const std::wstring& key,
                                                      const std::wstring& name);

/// Settings of the present user in the registry. A section is a key, whose levels backslashes separate; outer
/// and doubled ones change nothing. Letter case makes no difference, as everywhere in the registry.
class RegistrySettings {
 public:
  /// Below that key, which need not be there.
  explicit RegistrySettings(std::wstring key = kComponentKey) : key_(std::move(key)) {}

  /// The value under the name in the section, or nothing where `RegistryText` gives nothing.
  [[nodiscard]] std::optional<platform::Value> Read(const std::string& section,
                                                    const std::string& name) const;
  /// One that cannot be written is a failure that names the setting and its key, and says why.
  void Write(const std::string& section, const std::string& name, const platform::Value& value);

 private:
  [[nodiscard]] std::wstring KeyOf(const std::string& section) const;

  std::wstring key_;
};

}  // namespace ferrowind::win32
