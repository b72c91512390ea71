#include "host/admin/confirmation.h"

#include <cerrno>
#include <iostream>

#include <poll.h>
#include <unistd.h>

#include "ferrowind/platform/values/case_fold.h"

#include "host/admin/interruption.h"

namespace ferrowind::host {
namespace {

/// Returns when a line, or its end, has come from standard input. Throws `Interrupted`.
void AwaitInput() {
  // A signal may come to another thread, whose handler does not wake this one.
  constexpr int kMillisecondsBetweenLooks = 100;
  pollfd input{STDIN_FILENO, POLLIN, 0};
  for (;;) {
    if (Interruption::WasAsked()) std::cerr << '\n';
    Interruption::ThrowIfAsked();
    const int ready = poll(&input, 1, kMillisecondsBetweenLooks);
    if (ready > 0 || (ready < 0 && errno != EINTR)) return;
  }
}

}  // namespace

std::optional<bool> AskOnTerminal(const std::string& question) {
  if (isatty(STDIN_FILENO) == 0) return std::nullopt;
  RunInterruptibly(
      [&] {
        // Whoever has read the question may stop the program at once.
        std::cerr << question << " [y/N] " << std::flush;
        AwaitInput();
      },
      std::cerr);
  std::string answer;
  std::getline(std::cin, answer);
  return platform::CompareIgnoringCase(answer, "y") == 0 || platform::CompareIgnoringCase(answer, "yes") == 0;
}

}  // namespace ferrowind::host
