#pragma once

#include <string>

namespace ferrowind::planning {

/// The text with a blank in place of each line break and of every other control character.
[[nodiscard]] inline std::string OneLine(std::string text) {
  for (char& character : text) {
    if (static_cast<unsigned char>(character) < ' ') character = ' ';
  }
  return text;
}

}  // namespace ferrowind::planning
