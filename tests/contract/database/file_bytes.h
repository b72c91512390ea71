#pragma once

#include <fstream>
#include <iterator>
#include <string>

namespace ferrowind::contract {

/// All bytes of the file at `path`; none when there is no such file.
inline std::string ReadFile(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

/// Puts `bytes` in place of whatever the file at `path` held.
inline void WriteFile(const std::string& path, const std::string& bytes) {
  std::ofstream(path, std::ios::binary) << bytes;
}

}  // namespace ferrowind::contract
