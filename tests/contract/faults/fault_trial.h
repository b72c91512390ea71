#pragma once

#include <functional>
#include <string>
#include <vector>

#include "tests/contract/faults/failing_calls.h"

namespace ferrowind::contract {

/// How a piece of work ended in a process in which a system call went wrong.
struct TrialEnd {
  /// It returned this; nothing when it died, by the signal that was to be.
  bool was_killed = false;
  bool is_done = false;
  /// What it told.
  std::string text;
  bool has_fired = false;
};

/// What a work that may go wrong returns: whether it says that it is done, and what it tells.
struct WorkEnd {
  bool is_done = false;
  std::string text;
};
using Work = std::function<WorkEnd()>;

/// Forks the process, in which `work` runs with the `chosen` call going wrong, and waits for its end. A
/// process that dies in any other way than by `kKilled`, or does not end in three minutes, is a
/// std::runtime_error.
[[nodiscard]] TrialEnd RunTrial(const Work& work, int chosen, failing_calls::Way way);

/// For a work in a trial: what it does now, which is told when it crashes or does not end.
void NoteInTrial(const std::string& what);

/// The calls that `work` makes when none goes wrong, in a process of its own. It must say that it is done.
[[nodiscard]] std::vector<std::string> CallsOf(const Work& work);

/// One call of a work, and how it goes wrong.
struct Fault {
  int call = 0;
  failing_calls::Way way;
  /// Both, for people.
  std::string name;
};

/// Every way in which each of `calls` can go wrong. Of more than `most` those at equal distances, the first
/// of which another one is each day, unless the variable FERROWIND_EVERY_FAULT is in the environment.
[[nodiscard]] std::vector<Fault> FaultsIn(const std::vector<std::string>& calls, std::size_t most);

}  // namespace ferrowind::contract
