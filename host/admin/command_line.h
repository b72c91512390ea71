#pragma once

#include <iosfwd>
#include <string>
#include <vector>

#include "ferrowind/platform/database/engine_registry.h"

#include "host/admin/exit_status.h"

namespace ferrowind::host {

/// Runs what the command line asks for. `arguments` are those of the process without the program's name.
/// Results go to `out`, errors to `errors`; nothing is thrown. A database's URL, which may hold a password,
/// is never printed.
[[nodiscard]] ExitStatus RunCommandLine(const std::vector<std::string>& arguments,
                                        const platform::EngineRegistry& engines, std::ostream& out,
                                        std::ostream& errors);

}  // namespace ferrowind::host
