#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <string_view>

namespace ferrowind::host {

/// A line on a terminal that says how far a long work is, and rewrites itself. Writes nothing at all where
/// there is no terminal, so that logs and scripts get none of it.
class ProgressLine {
 public:
  /// Writes to the file `descriptor`, which stays open for as long as the line lives.
  explicit ProgressLine(int descriptor);
  ProgressLine(const ProgressLine&) = delete;
  ProgressLine& operator=(const ProgressLine&) = delete;
  /// Wipes the line off.
  ~ProgressLine();

  /// Shows "WHAT: 37 %", in what the terminal's width leaves room for. May be called as often as the work
  /// goes on by a step: the terminal gets ten lines a second at most. Precondition: 0 <= done <= total.
  void Show(std::string_view what, std::int64_t done, std::int64_t total);

 private:
  void Write(std::string_view text) const;

  int descriptor_;
  bool is_terminal_;
  /// When the line was written last; nothing when it never was.
  std::optional<std::chrono::steady_clock::time_point> shown_;
};

}  // namespace ferrowind::host
