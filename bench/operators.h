#pragma once

#include <string>

#include "ferrowind/platform/database/engine_registry.h"

/// Many operators at work on one server at the same time, all of them calling `CldGetMain`, `CldIUMain` and
/// `CldAllInfo` in the same proportion, each call over a connection of its own.
namespace ferrowind::bench {

inline constexpr int kOperators = 16;

/// Makes the calendars that the operators work on: of the euro and the dollar, in 2026 and 2027. The euro's
/// of 2026 exists. On the calling thread's database.
void CreateCalendarsOfOperators();

/// Lets them work through the component's gateway until they have made `calls` calls together. Returns the
/// milliseconds from one completed call to the next, on the average. A call that fails is an exception.
[[nodiscard]] double WorkOfOperators(const platform::EngineRegistry& engines, const std::string& uri,
                                     int calls);

/// The same calls, made by the server's own load generator.
[[nodiscard]] double WorkOfLoadGenerator(const std::string& uri, int calls);

}  // namespace ferrowind::bench
