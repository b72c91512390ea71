#pragma once

#include <QString>
#include <memory>
#include <string>

#include "ferrowind/platform/database/engine_registry.h"
#include "ferrowind/platform/platform.h"

#include "host/desktop/watched_engine.h"

namespace ferrowind::host {

/// The composition root of the desktop program: the adapters that the component runs on here. Make one after
/// the application, and keep it until all windows are gone.
class DesktopSurroundings {
 public:
  /// `observer` is told of every use that the component makes of a database, and must outlive this object.
  explicit DesktopSurroundings(DatabaseObserver& observer);
  ~DesktopSurroundings();
  DesktopSurroundings(const DesktopSurroundings&) = delete;
  DesktopSurroundings& operator=(const DesktopSurroundings&) = delete;

  /// Appends the trace to the file from now on. A file that cannot be opened is a failure that names it.
  void TraceTo(const QString& file);
  /// From now on the dictionary object names the database of `connection_string`.
  void UseDatabase(const std::string& connection_string);

  /// The engines for what the host does itself; nobody observes them.
  [[nodiscard]] const platform::EngineRegistry& Engines() const;
  /// Valid as long as this object lives.
  [[nodiscard]] const platform::Platform& Get() const;

 private:
  struct Parts;
  std::unique_ptr<Parts> parts_;
};

}  // namespace ferrowind::host
