#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace ferrowind::host {

/// A part of what the help of a command ends with.
struct ManualBlock {
  enum class Kind {
    /// A line of capitals: `text`.
    kHeading,
    /// Running text, its line breaks gone: `text`.
    kParagraph,
    /// An entry of a list: `tag` and, behind it in a column of its own, `text`.
    kItem,
    /// A line that stays as it is: `text`.
    kVerbatim,
  };
  Kind kind = Kind::kParagraph;
  std::string text;
  std::string tag = {};

  bool operator==(const ManualBlock&) const = default;
};

/// Reads the text as people do: an empty line or another indentation ends a paragraph, an indented word with
/// two spaces behind it begins an entry, and what is indented below EXAMPLES is a line of its own.
[[nodiscard]] std::vector<ManualBlock> ReadManual(std::string_view text);

}  // namespace ferrowind::host
