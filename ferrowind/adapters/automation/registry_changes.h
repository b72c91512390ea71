#pragma once

#include <string>
#include <vector>

#include <windows.h>

namespace ferrowind::automation {

/// Writes to the registry, all of it or nothing: what was written is taken back at the end, unless `Keep` was
/// called. Only keys and values of its own making are; a value that was there before gets its text again.
class RegistryChanges {
 public:
  /// Below `root`, which stays open and the caller's.
  explicit RegistryChanges(HKEY root) : root_(root) {}
  ~RegistryChanges();
  RegistryChanges(const RegistryChanges&) = delete;
  RegistryChanges& operator=(const RegistryChanges&) = delete;

  /// Sets a text, making the key where there is none; an empty name is the key's default value. Without the
  /// right to it, the failure that the platform gives, and nothing is done.
  void Set(const std::wstring& key, const std::wstring& name, const std::wstring& text);
  /// What was written stays.
  void Keep();

 private:
  struct Change {
    std::wstring key;
    std::wstring name;
    bool had_value;
    std::wstring value_before;
  };

  void MakeKey(const std::wstring& key);

  HKEY root_;
  std::vector<std::wstring> new_keys_;
  std::vector<Change> changes_;
};

}  // namespace ferrowind::automation
