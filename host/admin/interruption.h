#pragma once

#include <functional>
#include <iosfwd>

#include "ferrowind/platform/values/failure.h"

namespace ferrowind::host {

/// That the user stopped a work by a signal.
class Interrupted : public platform::Failure {
 public:
  explicit Interrupted(int signal);
  [[nodiscard]] int Signal() const noexcept { return signal_; }

 private:
  int signal_;
};

/// While it lives, the signals that ask a program to end (Ctrl+C among them) wait until the work is where it
/// can stop without leaving anything behind. A second one ends the program at once. One object at a time.
class Interruption {
 public:
  Interruption();
  Interruption(const Interruption&) = delete;
  Interruption& operator=(const Interruption&) = delete;
  ~Interruption();

  /// Whether there was a signal. Any thread may ask.
  [[nodiscard]] static bool WasAsked();
  /// Throws `Interrupted` when there was a signal.
  static void ThrowIfAsked();
};

/// Ends the program as `signal` would have, so that a shell sees what happened.
[[noreturn]] void EndBySignal(int signal);

/// Runs `work` during an `Interruption`: it asks now and then whether it shall stop, and leaves nothing
/// behind. When a signal has stopped it, `errors` gets to know, and the program ends by that signal. A
/// `content::DoubtfulOutcome` is passed on, for then it is not known whether nothing was changed.
void RunInterruptibly(const std::function<void()>& work, std::ostream& errors);

}  // namespace ferrowind::host
