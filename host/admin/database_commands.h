#pragma once

namespace ferrowind::host {

class CommandSet;

/// Adds the commands that are about whole databases: init, check, copy, status and upgrade.
void AddDatabaseCommands(CommandSet& commands);

}  // namespace ferrowind::host
