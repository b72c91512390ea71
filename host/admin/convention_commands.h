#pragma once

namespace ferrowind::host {

class CommandSet;

/// Adds the commands of `conventions`: list, set and remove.
void AddConventionCommands(CommandSet& commands);

}  // namespace ferrowind::host
