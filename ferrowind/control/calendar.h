#pragma once

#include <array>
#include <memory>

#include "ferrowind/control/grid_fields.h"
#include "ferrowind/export.h"
#include "ferrowind/platform/events/subscription.h"
#include "ferrowind/platform/platform.h"
#include "ferrowind/platform/toolkit/control_site.h"
#include "ferrowind/platform/values/value.h"

/// The control that hosts embed, its column maps, and what adapters share.
namespace ferrowind {

class CalendarsWindow;

/// The component's one public class: a control, invisible at run time, that a host places on one of its
/// windows.
///
/// Adjust the two column maps, call `Show`, and ask `ForceClosing` when the window has to go. Use it on one
/// thread, the host's user-interface thread. Destroying it closes the window, or drops one that refuses.
///
/// A thread may have several controls. Each one's windows and calls use the surroundings that it was given;
/// but the dictionary object and the shared services are one of each for the thread, made in the surroundings
/// that need them first, and serve all its controls, also later ones, until the thread ends or they are let
/// go by `ReleaseThreadObjects`. The dictionary object names the
/// database. So the controls of a thread work on one database, and new surroundings do not change it: a host
/// that changes databases closes its windows, has its dictionary object answer with the other connection
/// string, which every call asks for anew, and shows them again.
class FERROWIND_EXPORT Calendar {
 public:
  /// Creates the thread's dictionary object when there is none, and fills the maps with their default
  /// columns. A dictionary object that cannot be created is shown to the operator, and the control goes on
  /// without it. `platform`, and `site` where the host has one, must outlive the control and every handler of
  /// its windows that still runs: one that is destroyed while a dialog of its window is open leaves a handler
  /// behind that ends when control comes back to it.
  explicit Calendar(const platform::Platform& platform, platform::ControlSite* site = nullptr);
  /// The control keeps a reference, which a temporary would leave dangling.
  explicit Calendar(const platform::Platform&& platform, platform::ControlSite* site = nullptr) = delete;
  virtual ~Calendar();
  Calendar(const Calendar&) = delete;
  Calendar& operator=(const Calendar&) = delete;

  /// Asks the Calendars window to close. True when it is closed or was not open, false when it refuses.
  bool ForceClosing();

  /// Opens the Calendars window, without an owner and beside the host's windows. Does nothing while one is
  /// open; it is not brought forward. A dictionary object that could not be created so far is tried again.
  /// What goes wrong is shown to the operator, and the window then stays closed; shared services that cannot
  /// be created are told of by a dialog of the component's own.
  void Show();

  /// The column map of the day grid, always the same object. While the Calendars window is open it is the
  /// failure 0x80040258, "Property is accessed only before show method"; a map obtained before stays usable,
  /// and changes of it reach the open window.
  [[nodiscard]] std::shared_ptr<GridFields> Headers();
  /// The column map of the holiday grid; as `Headers`.
  [[nodiscard]] std::shared_ptr<GridFields> HolidayHeaders();

  /// The title "Ferrowind", the major version, the minor version and the revision as 16-bit integers, and a
  /// fifth element that is empty by intention. The version is that of this interface and stays 1, 2 and 10;
  /// the release is `FERROWIND_VERSION` of version.h.
  [[nodiscard]] static std::array<platform::Value, 5> Version();

  /// Lets go of the thread's dictionary object and shared services, which otherwise stay until the thread
  /// ends; the next control creates them anew. For a plug-in that is unloaded before its thread ends, whose
  /// classes they are, and for a host that goes on with others. The failure 5 while the thread has a control.
  static void ReleaseThreadObjects();

 protected:
  /// Makes the window that `Show` opens.
  [[nodiscard]] virtual std::shared_ptr<CalendarsWindow> CreateCalendarsWindow();

 private:
  void EnsureDictionary();
  void OpenWindow();
  void RetryDictionary();
  void TellThatNothingCanBeTold();
  void frmCalendar_OnClosing();
  void SnapToSize();
  std::shared_ptr<GridFields> MapBeforeShow(std::shared_ptr<GridFields>& map) const;

  const platform::Platform& platform_;
  platform::ControlSite* site_;
  std::shared_ptr<GridFields> headers_;
  std::shared_ptr<GridFields> holiday_headers_;
  std::shared_ptr<CalendarsWindow> frmCalendar_;
  platform::Subscription window_closing_;
  platform::Subscription site_resized_;
};

}  // namespace ferrowind
