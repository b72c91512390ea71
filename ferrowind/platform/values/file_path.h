#pragma once

#include <filesystem>
#include <string>

#include "ferrowind/export.h"

/// Names of files are UTF-8 wherever they are texts, also where the system's own text is another.
namespace ferrowind::platform {

/// @throws Failure (`failure_number::kInvalidArgument`) for a name that the system cannot have
[[nodiscard]] FERROWIND_EXPORT std::filesystem::path FilePath(const std::string& name);

/// The name of that path.
[[nodiscard]] FERROWIND_EXPORT std::string FileName(const std::filesystem::path& path);

}  // namespace ferrowind::platform
