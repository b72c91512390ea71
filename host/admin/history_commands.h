#pragma once

namespace ferrowind::host {

class CommandSet;

/// Adds the commands that are about what was changed: history, undo and as-of.
void AddHistoryCommands(CommandSet& commands);

}  // namespace ferrowind::host
