#pragma once

#include <string>

namespace ferrowind::contract {

/// While it lives, somebody puts a file beside every database that this process opens, just before SQLite
/// opens the file of that name, and takes it away just after. One at a time.
class PlantingFiles {
 public:
  /// Where the name of a database with `suffix`, "-wal" or "-shm", would be, stands the file `planted`.
  PlantingFiles(const std::string& planted, const std::string& suffix);
  PlantingFiles(const PlantingFiles&) = delete;
  PlantingFiles& operator=(const PlantingFiles&) = delete;
  ~PlantingFiles();

  /// How often the file was there.
  [[nodiscard]] static int Count();
};

}  // namespace ferrowind::contract
