#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace ferrowind::host {

/// A character at the front of a text.
struct FrontCharacter {
  std::string_view bytes;
  /// Nothing for a byte that begins no well-formed UTF-8.
  std::optional<char32_t> code;
};

/// Precondition: `text` is not empty.
[[nodiscard]] FrontCharacter FirstCharacter(std::string_view text);

/// Whether `text` is the beginning of a character of UTF-8 that more bytes could complete.
[[nodiscard]] bool IsCutCharacter(std::string_view text);

/// Whether a character could make a terminal do something, or make a text read otherwise than it is stored:
/// control characters (line breaks among them), marks that turn the direction of writing, separators of lines
/// and paragraphs, and bytes that are no UTF-8.
[[nodiscard]] bool IsUnsafe(const FrontCharacter& character);

/// A backslash and more: "\n", "\x1b", "\u202e"; of bytes that are no UTF-8 "\xff". Those above 7E are
/// written as JSON writes them, so that they may be escaped in it as well.
[[nodiscard]] std::string Escaped(const FrontCharacter& character);

/// `text` with what is unsafe escaped, so that it stands on one line and shows what is in it.
[[nodiscard]] std::string OneLine(std::string_view text);

}  // namespace ferrowind::host
