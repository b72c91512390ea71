#pragma once

#include <string_view>

#include "ferrowind/adapters/glyphs/glyph.h"

namespace ferrowind::glyphs {

/// What layouts add to a tool: its glyph, and the key that presses it while its window is active, as
/// `platform::ToolDesign::shortcut` has it.
struct ToolFace {
  std::string_view tool_id;
  MakeGlyph glyph = nullptr;
  /// "" for none.
  std::string_view shortcut = {};
};

/// Null for a tool that no layout knows.
[[nodiscard]] const ToolFace* FindToolFace(std::string_view tool_id);

}  // namespace ferrowind::glyphs
