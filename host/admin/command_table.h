#pragma once

#include "host/admin/command_set.h"

namespace ferrowind::host {

/// What ferrowindctl is: gives `program`, which must be new, its name, its description, what its help ends
/// with, and its commands, which `commands` adds. Its help, its manual page and the completion of shells
/// follow from it.
void BuildCommandTable(CLI::App& program, CommandSet& commands);

}  // namespace ferrowind::host
