#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>

#include "ferrowind/export.h"
#include "ferrowind/platform/database/engine_registry.h"
#include "ferrowind/platform/platform.h"

namespace ferrowind {

/// Surroundings in which the component works without a window, a display or an operator: a dictionary from
/// the calendars' own database, no settings, and the machine's clock.
///
/// Whatever would need an operator (a form, a file to choose, the name of a day in their language) is a
/// failure that says so, and so is a message without a listener. A control in these surroundings has its
/// column maps and its version; its `Show` opens nothing and tells why.
class FERROWIND_EXPORT WindowlessPlatform {
 public:
  /// Hears what an operator would have been told: the number of a failure, 0 for a message, and the text,
  /// which never holds a password. What it throws is the failure of whatever told it.
  using Listener = std::function<void(std::int32_t number, const std::string& text)>;

  /// Procedure calls go to the database of `connection_string`, which is not looked at before. `engines` must
  /// outlive this object; so must what `listener` refers to. What the listener has heard counts as answered.
  WindowlessPlatform(const platform::EngineRegistry& engines, const std::string& connection_string,
                     Listener listener = {});
  ~WindowlessPlatform();
  WindowlessPlatform(const WindowlessPlatform&) = delete;
  WindowlessPlatform& operator=(const WindowlessPlatform&) = delete;

  /// Valid as long as this object lives, which must be until the last control on it is gone. The dictionary
  /// and the services are one of each for a thread (`platform::ObjectFactory`): on one thread, one of these.
  [[nodiscard]] const platform::Platform& Get() const;

 private:
  struct Parts;
  std::unique_ptr<Parts> parts_;
};

}  // namespace ferrowind
