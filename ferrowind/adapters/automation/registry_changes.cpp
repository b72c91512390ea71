#include "ferrowind/adapters/automation/registry_changes.h"

#include <utility>

#include "ferrowind/adapters/automation/native_failure.h"

namespace ferrowind::automation {
namespace {

void RequireDone(LSTATUS status) { RequireSuccess(HRESULT_FROM_WIN32(static_cast<DWORD>(status))); }

DWORD SizeOf(const std::wstring& text) { return static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t)); }

LSTATUS Write(HKEY root, const std::wstring& key, const std::wstring& name, const std::wstring& text) {
  return RegSetKeyValueW(root, key.c_str(), name.c_str(), REG_SZ, text.c_str(), SizeOf(text));
}

/// False without one, or with one that is no text.
bool Read(HKEY root, const std::wstring& key, const std::wstring& name, std::wstring& text) {
  DWORD size = 0;
  if (RegGetValueW(root, key.c_str(), name.c_str(), RRF_RT_REG_SZ, nullptr, nullptr, &size) !=
      ERROR_SUCCESS) {
    return false;
  }
  text.resize(size / sizeof(wchar_t));
  if (RegGetValueW(root, key.c_str(), name.c_str(), RRF_RT_REG_SZ, nullptr, text.data(), &size) !=
      ERROR_SUCCESS) {
    return false;
  }
  text.resize(size / sizeof(wchar_t) - 1);
  return true;
}

}  // namespace

RegistryChanges::~RegistryChanges() {
  for (auto change = changes_.rbegin(); change != changes_.rend(); ++change) {
    if (change->had_value) {
      Write(root_, change->key, change->name, change->value_before);
    } else {
      RegDeleteKeyValueW(root_, change->key.c_str(), change->name.c_str());
    }
  }
  for (auto key = new_keys_.rbegin(); key != new_keys_.rend(); ++key) RegDeleteKeyW(root_, key->c_str());
}

void RegistryChanges::Set(const std::wstring& key, const std::wstring& name, const std::wstring& text) {
  // Level by level, so that each that is new is known.
  for (auto end = key.find(L'\\'); end != std::wstring::npos; end = key.find(L'\\', end + 1)) {
    MakeKey(key.substr(0, end));
  }
  MakeKey(key);
  Change change{key, name, false, {}};
  change.had_value = Read(root_, key, name, change.value_before);
  changes_.reserve(changes_.size() + 1);
  RequireDone(Write(root_, key, name, text));
  changes_.push_back(std::move(change));
}

void RegistryChanges::Keep() {
  changes_.clear();
  new_keys_.clear();
}

void RegistryChanges::MakeKey(const std::wstring& key) {
  std::wstring made = key;
  new_keys_.reserve(new_keys_.size() + 1);
  HKEY opened = nullptr;
  DWORD disposition = 0;
  RequireDone(RegCreateKeyExW(root_, key.c_str(), 0, nullptr, 0, KEY_CREATE_SUB_KEY | KEY_QUERY_VALUE,
                              nullptr, &opened, &disposition));
  RegCloseKey(opened);
  if (disposition == REG_CREATED_NEW_KEY) new_keys_.push_back(std::move(made));
}

}  // namespace ferrowind::automation
