#pragma once

namespace ferrowind::host {

class CommandSet;

/// Adds the command that calls a procedure by hand.
void AddCallCommand(CommandSet& commands);

}  // namespace ferrowind::host
