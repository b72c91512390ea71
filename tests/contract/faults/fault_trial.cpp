#include "tests/contract/faults/fault_trial.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <exception>
#include <new>
#include <stdexcept>

#include <signal.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

namespace ferrowind::contract {
namespace {

using failing_calls::Record;
using failing_calls::Way;

constexpr unsigned kLongestTrialInSeconds = 180;

/// What the two processes know in common.
struct Shared {
  Record record;
  bool is_done = false;
  char text[4096] = {};
  char note[1024] = {};
};

Shared& SharedMemory() {
  static auto* const shared = [] {
    void* const memory =
        mmap(nullptr, sizeof(Shared), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    if (memory == MAP_FAILED) throw std::runtime_error("no shared memory");
    return new (memory) Shared();
  }();
  return *shared;
}

WorkEnd EndOf(const Work& work) {
  try {
    return work();
  } catch (const std::exception& error) {
    return {false, error.what()};
  }
}

[[noreturn]] void RunInChild(const Work& work, int chosen, Way way, Shared& shared) {
  alarm(kLongestTrialInSeconds);
  failing_calls::Arm(shared.record, chosen, way);
  const WorkEnd end = EndOf(work);
  failing_calls::Disarm();
  shared.is_done = end.is_done;
  std::strncpy(shared.text, end.text.c_str(), sizeof shared.text - 1);
  _exit(0);
}

const char* WordFor(Way way) {
  switch (way) {
    case Way::kError:
      return "fails";
    case Way::kFullDisk:
      return "finds the disk full";
    case Way::kInterrupted:
      return "is interrupted";
    case Way::kPart:
      return "is done in part";
    case Way::kKilled:
      return "is never made";
  }
  return "";
}

}  // namespace

TrialEnd RunTrial(const Work& work, int chosen, Way way) {
  Shared& shared = SharedMemory();
  shared.is_done = false;
  std::memset(shared.text, 0, sizeof shared.text);
  std::memset(shared.note, 0, sizeof shared.note);
  const pid_t child = fork();
  if (child < 0) throw std::runtime_error("no process for a trial");
  if (child == 0) RunInChild(work, chosen, way, shared);
  int status = 0;
  while (waitpid(child, &status, 0) < 0) continue;
  const bool was_killed = WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL && way == Way::kKilled;
  if (!was_killed && (!WIFEXITED(status) || WEXITSTATUS(status) != 0)) {
    const bool did_not_end = WIFSIGNALED(status) && WTERMSIG(status) == SIGALRM;
    throw std::runtime_error(std::string(did_not_end ? "it did not end in three minutes" : "it crashed") +
                             ", with the status " + std::to_string(status) + ", at " + shared.note);
  }
  return {was_killed, !was_killed && shared.is_done, shared.text, shared.record.has_fired};
}

void NoteInTrial(const std::string& what) {
  Shared& shared = SharedMemory();
  std::strncpy(shared.note, what.c_str(), sizeof shared.note - 1);
}

std::vector<std::string> CallsOf(const Work& work) {
  const TrialEnd end = RunTrial(work, 0, Way::kError);
  if (!end.is_done) throw std::runtime_error("it fails by itself: " + end.text);
  const Record& record = SharedMemory().record;
  if (record.count > Record::kMostCalls) throw std::runtime_error("it makes more calls than are recorded");
  return {record.names, record.names + record.count};
}

std::vector<Fault> FaultsIn(const std::vector<std::string>& calls, std::size_t most) {
  std::vector<Fault> faults;
  for (std::size_t i = 0; i < calls.size(); ++i) {
    for (const Way way : failing_calls::kWays) {
      if (!failing_calls::CanGoWrong(calls[i].c_str(), way)) continue;
      const int call = static_cast<int>(i) + 1;
      faults.push_back({call, way, "call " + std::to_string(call) + ", " + calls[i] + ", " + WordFor(way)});
    }
  }
  if (faults.size() <= most || std::getenv("FERROWIND_EVERY_FAULT") != nullptr) return faults;
  constexpr std::time_t kSecondsOfADay = 24 * 60 * 60;
  const std::size_t step = (faults.size() + most - 1) / most;
  const auto today = static_cast<std::size_t>(std::time(nullptr) / kSecondsOfADay);
  std::vector<Fault> some;
  for (std::size_t i = today % step; i < faults.size(); i += step) some.push_back(faults[i]);
  return some;
}

}  // namespace ferrowind::contract
