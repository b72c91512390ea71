#pragma once

#include <random>
#include <string>

namespace ferrowind::contract {

/// A file that a disk, a network or somebody has damaged.
struct DamagedBytes {
  std::string bytes;
  /// What was done to it, for people.
  std::string what;
};

/// Flips bits of `sound`, cuts it short, or puts one of its pages in the place of another.
[[nodiscard]] DamagedBytes Damage(const std::string& sound, std::mt19937& random);

}  // namespace ferrowind::contract
