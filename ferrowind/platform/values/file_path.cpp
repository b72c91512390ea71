#include "ferrowind/platform/values/file_path.h"

#include <system_error>

#include "ferrowind/platform/values/failure.h"

namespace ferrowind::platform {

std::filesystem::path FilePath(const std::string& name) {
  try {
    return {std::u8string(name.begin(), name.end())};
  } catch (const std::system_error&) {
    throw Failure(failure_number::kInvalidArgument, "The name of a file is not UTF-8: " + name);
  }
}

std::string FileName(const std::filesystem::path& path) {
  const std::u8string name = path.u8string();
  return {name.begin(), name.end()};
}

}  // namespace ferrowind::platform
