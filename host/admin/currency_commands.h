#pragma once

namespace ferrowind::host {

class CommandSet;

/// Adds the commands of `currency`: list, add, rename and retire.
void AddCurrencyCommands(CommandSet& commands);

}  // namespace ferrowind::host
