#pragma once

#include <cstddef>
#include <string>

namespace ferrowind::host {

/// A piece of text as it stands on a terminal.
struct TerminalText {
  std::string text;
  /// Columns that the text takes: 2 for wide East Asian characters and emoji, 0 for combining marks.
  std::size_t width = 0;
};

/// `text` (UTF-8) on one line of at most `limit` columns: line breaks, tabs, backslashes, other control
/// characters and bytes that are no UTF-8 are written as escapes ("\n", "\x1b"), and a longer text ends with
/// an ellipsis, which counts.
[[nodiscard]] TerminalText ForTerminal(const std::string& text, std::size_t limit);

}  // namespace ferrowind::host
