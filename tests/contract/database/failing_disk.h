#pragma once

namespace ferrowind::contract {

/// While it lives, every database that this process opens is written through a file system whose writes fail
/// as those on a full disk do, from the write on that a test chooses. One at a time.
class FailingDisk {
 public:
  FailingDisk();
  FailingDisk(const FailingDisk&) = delete;
  FailingDisk& operator=(const FailingDisk&) = delete;
  ~FailingDisk();

  /// Lets `count` more writes pass, and fails all after them.
  static void FillAfter(int count);
  /// Lets every write pass again.
  static void MakeRoom();
  /// Whether a write has failed since the last `FillAfter`.
  [[nodiscard]] static bool HasFailed();
};

}  // namespace ferrowind::contract
