#pragma once

#include <iosfwd>

#include "host/admin/documents/program_outline.h"

namespace ferrowind::host {

/// Writes the functions by which bash completes the program's commands, options and values. They need nothing
/// of the package bash-completion, which finds the file by the program's name.
void WriteBashCompletion(const OutlinedCommand& program, std::ostream& out);

/// The same for zsh, as a file that its compinit finds.
void WriteZshCompletion(const OutlinedCommand& program, std::ostream& out);

}  // namespace ferrowind::host
