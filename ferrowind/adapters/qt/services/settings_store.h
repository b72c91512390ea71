#pragma once

#include <QSettings>
#include <memory>
#include <optional>
#include <string>

#include "ferrowind/export.h"
#include "ferrowind/platform/values/value.h"

namespace ferrowind::qt {

/// Settings in sections. A section is a path whose levels backslashes separate; outer and doubled ones change
/// nothing. Sections and names may hold any other character.
class FERROWIND_EXPORT SettingsStore {
 public:
  /// The desktop's store for the current user, as the platform keeps such.
  SettingsStore();
  /// The store of the running program for the current user: that of its organization and application names,
  /// as `QCoreApplication` has them at each use; "Tessaro" where the program has no organization.
  [[nodiscard]] static SettingsStore OfProgram();
  /// The store in the ini file at `path`, which need not be there.
  explicit SettingsStore(const std::string& path);

  /// The value under the name in the section, or nothing when there is none, or one that is no text: a store
  /// is readable, and so writable, by others. Nothing also of a file that holds, anywhere, what Qt would
  /// unpack into an object.
  [[nodiscard]] std::optional<platform::Value> Read(const std::string& section,
                                                    const std::string& name) const;
  /// The value is in the store when it returns. A file of that kind is kept beside it under the name
  /// FILE.refused, and a new one begun. One that cannot be written is a failure that names the store.
  void Write(const std::string& section, const std::string& name, const platform::Value& value);

 private:
  [[nodiscard]] std::unique_ptr<QSettings> Open() const;

  /// Empty for the platform's own stores.
  QString path_;
  bool is_of_program_ = false;
};

}  // namespace ferrowind::qt
