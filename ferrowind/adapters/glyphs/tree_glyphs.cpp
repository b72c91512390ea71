#include "ferrowind/adapters/glyphs/tree_glyphs.h"

#include "ferrowind/adapters/glyphs/glyphs.h"

namespace ferrowind::glyphs {

MakeGlyph TreeGlyph(std::string_view image) {
  if (image == "Currency") return CurrencyGlyph;
  if (image == "Calendar") return CalendarGlyph;
  return nullptr;
}

}  // namespace ferrowind::glyphs
