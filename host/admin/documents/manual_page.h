#pragma once

#include <iosfwd>
#include <string>

#include "host/admin/documents/program_outline.h"

namespace ferrowind::host {

/// What a manual page says of the program beside its outline.
struct Release {
  std::string version;
  /// YYYY-MM-DD.
  std::string date;
};

/// Writes the page of section 1 that man(1) shows: everything that the help of the program and of its
/// commands says.
void WriteManualPage(const OutlinedCommand& program, const Release& release, std::ostream& out);

}  // namespace ferrowind::host
