#include "host/admin/interruption.h"

#include <atomic>
#include <csignal>
#include <cstdlib>
#include <ostream>

#include "ferrowind/adapters/content/doubtful_outcome.h"

namespace ferrowind::host {
namespace {

constexpr int kSignals[] = {SIGHUP, SIGINT, SIGTERM};

/// 0 while there was none. Other threads may ask for it, too.
std::atomic<int> received = 0;
static_assert(std::atomic<int>::is_always_lock_free);

void Remember(int signal) { received = signal; }

}  // namespace

Interrupted::Interrupted(int signal)
    : Failure(platform::failure_number::kInvalidArgument, "Stopped; nothing was changed"), signal_(signal) {}

Interruption::Interruption() {
  received = 0;
  for (const int number : kSignals) {
    struct sigaction action {};
    sigaction(number, nullptr, &action);
    // Whoever started the program with a signal ignored, as nohup does, wants it to stay so.
    if (action.sa_handler == SIG_IGN) continue;
    action = {};
    action.sa_handler = Remember;
    action.sa_flags = static_cast<int>(SA_RESETHAND | SA_RESTART);
    sigaction(number, &action, nullptr);
  }
}

Interruption::~Interruption() {
  for (const int number : kSignals) {
    struct sigaction action {};
    sigaction(number, nullptr, &action);
    if (action.sa_handler == Remember) std::signal(number, SIG_DFL);
  }
}

bool Interruption::WasAsked() { return received != 0; }

void Interruption::ThrowIfAsked() {
  if (WasAsked()) throw Interrupted(received);
}

void EndBySignal(int signal) {
  std::signal(signal, SIG_DFL);
  std::raise(signal);
  // Only when something outside keeps the signal from arriving.
  std::_Exit(EXIT_FAILURE);
}

void RunInterruptibly(const std::function<void()>& work, std::ostream& errors) {
  try {
    const Interruption interruption;
    try {
      work();
    } catch (const content::DoubtfulOutcome&) {
      // Stopped or not, something may have been changed.
      throw;
    } catch (const platform::Failure&) {
      // What was told to stop may fail in words of its own.
      Interruption::ThrowIfAsked();
      throw;
    }
  } catch (const Interrupted& interrupted) {
    errors << "ferrowindctl: " << interrupted.Description() << std::endl;
    EndBySignal(interrupted.Signal());
  }
}

}  // namespace ferrowind::host
