#pragma once

#include <string>

#include "ferrowind/platform/database/engine_registry.h"
#include "ferrowind/platform/services/clock.h"

namespace ferrowind::host {

/// The connection string of the user's own database, in the platform's folder for the application's data. At
/// the first start it is created there, readable by its owner only, with currencies, rule books and the
/// calendars of the year that `clock` tells and the next; a
/// start that is interrupted leaves none behind. What cannot be created is a `platform::Failure` that names
/// the place.
[[nodiscard]] std::string UserDatabase(const platform::EngineRegistry& engines, const platform::Clock& clock);

}  // namespace ferrowind::host
