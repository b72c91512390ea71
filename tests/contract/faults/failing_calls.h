#pragma once

#include <cstddef>

/// A library in front of the system's own: the calls by which a program reads, writes, makes durable, opens,
/// renames and talks to servers go through it, whichever library makes them. A test lets one of them fail, or
/// the process die before it. Linked into a test program, or brought to another program by LD_PRELOAD.
namespace ferrowind::contract::failing_calls {

/// How the chosen call goes wrong.
enum class Way : int {
  /// An input or output error; a connection that is reset.
  kError,
  /// No room on the disk, which calls that write from then on find, too.
  kFullDisk,
  /// A signal comes first.
  kInterrupted,
  /// Half of the bytes, or one.
  kPart,
  /// The process is killed before the call.
  kKilled,
};
inline constexpr Way kWays[] = {Way::kError, Way::kFullDisk, Way::kInterrupted, Way::kPart, Way::kKilled};

/// What the calls of a process were, in memory that it shares with the process that it was forked from.
struct Record {
  static constexpr int kMostCalls = 40000;
  /// How many there were since `Arm`.
  int count = 0;
  /// Whether the chosen call came, or one behind it, that could go wrong in the chosen way.
  bool has_fired = false;
  /// The name of each call, as far as there is room; lives as long as the library.
  const char* names[kMostCalls] = {};
};

/// Counts the calls of the process from now on into `record`; the `chosen`, from 1, or the next that can,
/// goes wrong in that `way`. 0 for none.
void Arm(Record& record, int chosen, Way way);
void Disarm();

/// Whether a call of that name can go wrong in that way.
[[nodiscard]] bool CanGoWrong(const char* name, Way way);

/// While it is on, files lie on something like a network drive: it knows a renaming that replaces only, and
/// locks no file that is open for reading.
void BehaveAsNetworkDrive(bool is_on);

}  // namespace ferrowind::contract::failing_calls
