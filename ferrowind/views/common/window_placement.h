#pragma once

#include <string>
#include <utility>

#include "ferrowind/platform/toolkit/toolkit.h"

namespace ferrowind {

/// Stores the window's position and outer size in the settings section, as it reports them now: a minimised
/// or maximised window is not treated apart, by intention. A failure of the settings reaches the caller.
void SaveWindowPlacement(const platform::Form& window, const std::string& section);

/// Centres the window on the screen at its size and then takes what the settings section stores, each value
/// for itself and without comparing it with the screen, by intention. Failures are ignored: a value that
/// cannot be read or taken leaves the window as it was.
void RestoreWindowPlacement(const platform::Toolkit& toolkit, platform::Form& window,
                            const std::string& section);

/// The section, below the settings root, of one of the component's windows, as "Window Calendars".
[[nodiscard]] std::string SettingsSectionOf(const std::string& window);

/// The placement of one of the component's windows, in its section below the settings root.
class StoredPlacement {
 public:
  /// `window` is the last part of the section's name, as in "Window Calendars".
  explicit StoredPlacement(std::string window) : window_(std::move(window)) {}

  /// To be called when the window loads.
  void Restore(const platform::Toolkit& toolkit, platform::Form& window);
  /// To be called when it is about to close.
  void Save(const platform::Form& window) const { SaveWindowPlacement(window, section_); }

 private:
  std::string window_;
  std::string section_;
};

}  // namespace ferrowind
