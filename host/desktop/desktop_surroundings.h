#pragma once

#include <QString>
#include <memory>
#include <string>

#include "ferrowind/platform/database/engine_registry.h"
#include "ferrowind/platform/platform.h"

namespace ferrowind::host {

/// The composition root of the desktop program: the adapters that the component runs on here. Make one after
/// the application, and keep it until all windows are gone.
class DesktopSurroundings {
 public:
  DesktopSurroundings();
  ~DesktopSurroundings();
  DesktopSurroundings(const DesktopSurroundings&) = delete;
  DesktopSurroundings& operator=(const DesktopSurroundings&) = delete;

  /// Appends the trace to the file from now on. A file that cannot be opened is a failure that names it.
  void TraceTo(const QString& file);
  /// From now on the dictionary object names the database of `connection_string`.
  void UseDatabase(const std::string& connection_string);

  [[nodiscard]] const platform::EngineRegistry& Engines() const;
  /// Valid as long as this object lives.
  [[nodiscard]] const platform::Platform& Get() const;

 private:
  struct Parts;
  std::unique_ptr<Parts> parts_;
};

}  // namespace ferrowind::host
