#pragma once

#include <memory>
#include <string>

#include "ferrowind/platform/database/engine_registry.h"
#include "ferrowind/platform/platform.h"

namespace ferrowind::host {

/// Surroundings in which the component's procedure calls run without a window: a dictionary and silent
/// services.
///
/// Whatever would need an operator (a form, a message) is a failure that says so.
class WindowlessPlatform {
 public:
  /// Procedure calls go to the database of `connection_string`. `engines` must outlive this object.
  WindowlessPlatform(const platform::EngineRegistry& engines, const std::string& connection_string);
  ~WindowlessPlatform();
  WindowlessPlatform(const WindowlessPlatform&) = delete;
  WindowlessPlatform& operator=(const WindowlessPlatform&) = delete;

  /// Valid as long as this object lives.
  [[nodiscard]] const platform::Platform& Get() const;

 private:
  struct Parts;
  std::unique_ptr<Parts> parts_;
};

}  // namespace ferrowind::host
