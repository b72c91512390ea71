#pragma once

#include <cstddef>

#include "ferrowind/adapters/sqlite/database_handle.h"

namespace ferrowind::sqlite {

/// How much memory what a database gives may take in one call, all of its parts together. A file from
/// somewhere else may give any number of long rows, at once or in many record sets and variables.
class CallMemory {
 public:
  static constexpr std::size_t kMostMegabytes = 512;

  /// `database` must outlive the object.
  explicit CallMemory(const DatabaseHandle& database, std::size_t most_megabytes = kMostMegabytes);

  /// A failure that names the database when `bytes` more are too many.
  void Take(std::size_t bytes);

 private:
  const DatabaseHandle& database_;
  std::size_t most_megabytes_;
  std::size_t left_;
};

}  // namespace ferrowind::sqlite
