#pragma once

namespace ferrowind::host {

class CommandSet;

/// Adds the commands of `currency`: list, add, rename, retire and restore.
void AddCurrencyCommands(CommandSet& commands);

}  // namespace ferrowind::host
