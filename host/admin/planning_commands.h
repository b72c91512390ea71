#pragma once

namespace ferrowind::host {

class CommandSet;

/// Adds "plan", "apply", "review" and "why".
void AddPlanningCommands(CommandSet& commands);

}  // namespace ferrowind::host
