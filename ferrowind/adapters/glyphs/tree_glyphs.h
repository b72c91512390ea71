#pragma once

#include <string_view>

#include "ferrowind/adapters/glyphs/glyph.h"

namespace ferrowind::glyphs {

/// The glyph that `platform::TreeNode::image` names; null where it names none.
[[nodiscard]] MakeGlyph TreeGlyph(std::string_view image);

}  // namespace ferrowind::glyphs
