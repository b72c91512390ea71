#pragma once

namespace ferrowind::host {

class CommandSet;

/// Adds `export`, `import` and `reconcile`.
void AddExchangeCommands(CommandSet& commands);

}  // namespace ferrowind::host
