#pragma once

namespace ferrowind::host {

class CommandSet;

/// Adds the commands of `book`: show, set and check.
void AddBookCommands(CommandSet& commands);

}  // namespace ferrowind::host
