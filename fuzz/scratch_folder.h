#pragma once

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include <stdlib.h>

namespace ferrowind::fuzz {

/// A folder for the files of the inputs, in memory where the machine has such a place. It goes with the
/// program, unless an input crashes it.
class ScratchFolder {
 public:
  ScratchFolder() {
    const std::filesystem::path memory = "/dev/shm";
    std::error_code ignored;
    const bool is_there = std::filesystem::is_directory(memory, ignored);
    path_ = (is_there ? memory : std::filesystem::temp_directory_path()) / "ferrowind-fuzz-XXXXXX";
    if (mkdtemp(path_.data()) == nullptr) {
      std::perror(path_.c_str());
      std::abort();
    }
  }
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;
  ~ScratchFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }

  [[nodiscard]] std::string File(const std::string& name) const { return path_ + "/" + name; }

  /// Takes away all files.
  void Empty() const {
    for (const auto& file : std::filesystem::directory_iterator(path_))
      std::filesystem::remove_all(file.path());
  }

 private:
  std::string path_;
};

inline void WriteFile(const std::string& path, const std::string& bytes) {
  std::ofstream(path, std::ios::binary | std::ios::trunc) << bytes;
}

}  // namespace ferrowind::fuzz
