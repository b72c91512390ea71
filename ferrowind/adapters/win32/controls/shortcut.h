#pragma once

#include <optional>
#include <string>

#include "ferrowind/adapters/win32/base/windows_api.h"

namespace ferrowind::win32 {

/// A key with the modifiers that are held.
struct KeyPress {
  WPARAM key = 0;
  bool has_control = false;
  bool has_shift = false;
  bool has_alt = false;

  friend bool operator==(const KeyPress&, const KeyPress&) = default;
};

/// Reads the form in which tools are given their shortcuts: "Ctrl+F", "F5", "Ctrl+Shift+Z". Nothing for a
/// text that is none.
[[nodiscard]] std::optional<KeyPress> ReadShortcut(const std::string& text);

/// The key of a message of now, with the modifiers that are held.
[[nodiscard]] KeyPress PressOf(WPARAM key);

/// Whether a box of text needs the keys itself: to undo, copy, cut, paste and select.
[[nodiscard]] bool IsKeyOfText(const KeyPress& press);

}  // namespace ferrowind::win32
