#include "host/automation/registered_text.h"

#include <windows.h>

#include "ferrowind/adapters/win32/services/registry_settings.h"

namespace ferrowind::host {

std::optional<std::string> RegisteredText(const std::wstring& name) {
  for (const HKEY root : {HKEY_CURRENT_USER, HKEY_LOCAL_MACHINE}) {
    auto text = win32::RegistryText(root, win32::kComponentKey, name);
    if (text && !text->empty()) return text;
  }
  return std::nullopt;
}

}  // namespace ferrowind::host
