// What all systems have in common.
#include "ferrowind/adapters/sqlite/new_file.h"

#include <cerrno>
#include <filesystem>

#include "ferrowind/adapters/sqlite/files_beside.h"
#include "ferrowind/platform/values/file_path.h"

namespace ferrowind::sqlite {

using platform::FilePath;

platform::Failure CannotCreate(const std::string& path, const std::error_code& error) {
  return {error.value(), "The database " + path + " cannot be created: " + error.message()};
}

platform::Failure InTheWay(const std::string& path, const std::string& what) {
  return {EEXIST, "The database " + path + " cannot be created: " + what};
}

NewFile::~NewFile() {
  if (is_in_place_) return;
  std::error_code ignored;
  std::filesystem::remove(FilePath(path_), ignored);
  for (const auto suffix : kSuffixesBeside) {
    std::filesystem::remove(FilePath(path_ + std::string(suffix)), ignored);
  }
}

}  // namespace ferrowind::sqlite
