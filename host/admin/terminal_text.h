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

/// `text` (UTF-8) on one line of at most `limit` columns: what is unsafe (text_escapes.h), what cannot be
/// shown, and backslashes are written as escapes, and a longer text ends with an ellipsis, which counts.
[[nodiscard]] TerminalText ForTerminal(const std::string& text, std::size_t limit);

}  // namespace ferrowind::host
