#pragma once

namespace ferrowind::host {

class CommandSet;

/// Adds the commands of `date`: a question each, and serve.
void AddDateCommands(CommandSet& commands);

}  // namespace ferrowind::host
