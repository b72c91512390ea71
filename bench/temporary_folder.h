#pragma once

#include <filesystem>
#include <stdexcept>
#include <string>
#include <system_error>

#include <stdlib.h>

namespace ferrowind::bench {

/// A folder of its own for one benchmark program, removed with all its files at the end.
class TemporaryFolder {
 public:
  TemporaryFolder() {
    if (mkdtemp(path_.data()) == nullptr) throw std::runtime_error("cannot make " + path_);
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  ~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  /// Where a database can be made.
  [[nodiscard]] std::string File() const { return path_ + "/calendars.db"; }

 private:
  std::string path_ = std::filesystem::temp_directory_path() / "ferrowind-bench-XXXXXX";
};

}  // namespace ferrowind::bench
