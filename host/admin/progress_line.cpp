#include "host/admin/progress_line.h"

#include <cstddef>
#include <string>

#include <sys/ioctl.h>
#include <unistd.h>

#include "host/admin/terminal_text.h"

namespace ferrowind::host {
namespace {

using Clock = std::chrono::steady_clock;

constexpr Clock::duration kShortestStay = std::chrono::milliseconds(100);
constexpr std::size_t kUsualWidth = 80;
/// To the start of the line, and everything behind there away.
constexpr std::string_view kWipe = "\r\x1b[K";

std::size_t WidthOf(int terminal) {
  winsize size{};
  if (ioctl(terminal, TIOCGWINSZ, &size) != 0 || size.ws_col == 0) return kUsualWidth;
  return size.ws_col;
}

}  // namespace

ProgressLine::ProgressLine(int descriptor) : descriptor_(descriptor), is_terminal_(isatty(descriptor) == 1) {}

ProgressLine::~ProgressLine() {
  if (shown_) Write(kWipe);
}

void ProgressLine::Show(std::string_view what, std::int64_t done, std::int64_t total) {
  if (!is_terminal_) return;
  const auto now = Clock::now();
  if (shown_ && now - *shown_ < kShortestStay) return;
  shown_ = now;
  const std::int64_t percent = total > 0 ? done * 100 / total : 100;
  // A full line would make the terminal begin another one.
  const TerminalText text =
      ForTerminal(std::string(what) + ": " + std::to_string(percent) + " %", WidthOf(descriptor_) - 1);
  Write(std::string(kWipe) + text.text);
}

void ProgressLine::Write(std::string_view text) const {
  // Whether it arrives does not matter to the work.
  const ssize_t ignored = write(descriptor_, text.data(), text.size());
  static_cast<void>(ignored);
}

}  // namespace ferrowind::host
