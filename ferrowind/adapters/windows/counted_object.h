#pragma once

#include <atomic>

namespace ferrowind::windows {

/// A part of each object that others may hold beyond the window or call that it is of: as long as one of them
/// lives, the file with its code must stay loaded.
class CountedObject {
 public:
  CountedObject() { ++alive_; }
  ~CountedObject() { --alive_; }
  CountedObject(const CountedObject&) = delete;
  CountedObject& operator=(const CountedObject&) = delete;

  /// How many there are in this file, of all threads.
  [[nodiscard]] static long Alive() { return alive_; }

 private:
  inline static std::atomic<long> alive_ = 0;
};

}  // namespace ferrowind::windows
