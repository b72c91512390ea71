#pragma once

#include <string>

#include "ferrowind/export.h"
#include "ferrowind/platform/additions/additions.h"
#include "ferrowind/platform/database/change_watch.h"
#include "ferrowind/platform/database/command.h"
#include "ferrowind/platform/services/action_observer.h"
#include "ferrowind/platform/services/clock.h"
#include "ferrowind/platform/services/dictionary.h"
#include "ferrowind/platform/services/locale.h"
#include "ferrowind/platform/services/object_factory.h"
#include "ferrowind/platform/services/shared_services.h"
#include "ferrowind/platform/services/words.h"
#include "ferrowind/platform/toolkit/toolkit.h"

/// What the component asks of its surroundings: ports, which hosts may implement, and the values that cross
/// them.
namespace ferrowind::platform {

/// The component's surroundings, put together by the host's composition root.
///
/// References only: everything must outlive the component's use on the thread that it was attached on.
struct FERROWIND_EXPORT Platform {
  /// Creates the dictionary and the shared services, by name.
  ObjectFactory& objects;
  /// Calls the procedures of the calendar database.
  CommandFactory& commands;
  /// Makes the windows, on whose thread the component is used.
  Toolkit& toolkit;
  /// Names and reads days for the operator.
  const Locale& locale;
  /// Says which day is today.
  const Clock& clock;
  /// The folder that the component's own files lie in, such as the animation; UTF-8, without a trailing
  /// separator.
  std::string component_folder;
  /// Told of the operator's actions; null for a host that wants to know nothing of them.
  ActionObserver* action_observer = nullptr;
  /// What the host adds to the windows; null for the windows as they are.
  Additions* additions = nullptr;
  /// The component's texts in the operator's language; null for English.
  const Words* words = nullptr;
  /// By which windows learn that somebody else changed the database, or that it does not answer; null for a
  /// host whose windows need not.
  ChangeWatchFactory* change_watches = nullptr;
};

}  // namespace ferrowind::platform
