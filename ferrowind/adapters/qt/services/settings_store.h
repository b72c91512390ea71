#pragma once

#include <QSettings>
#include <memory>
#include <optional>
#include <string>

#include "ferrowind/platform/values/value.h"

namespace ferrowind::qt {

/// Settings in sections. A section is a path whose levels backslashes separate; outer and doubled ones change
/// nothing. Sections and names may hold any other character.
class SettingsStore {
 public:
  /// The platform's own store for the current user.
  SettingsStore();
  /// The store in the ini file at `path`, which need not be there.
  explicit SettingsStore(const std::string& path);

  /// The value under the name in the section, or nothing when there is none, or one that is no text: a store
  /// is readable, and so writable, by others.
  [[nodiscard]] std::optional<platform::Value> Read(const std::string& section,
                                                    const std::string& name) const;
  /// The value is in the store when it returns. One that cannot be written is a failure that names the store.
  void Write(const std::string& section, const std::string& name, const platform::Value& value);

 private:
  [[nodiscard]] std::unique_ptr<QSettings> Open() const;

  /// Empty for the platform's own store.
  QString path_;
};

}  // namespace ferrowind::qt
