#include "ferrowind/adapters/qt/look/tree_images.h"

#include "ferrowind/adapters/glyphs/tree_glyphs.h"
#include "ferrowind/adapters/qt/look/line_icon.h"

namespace ferrowind::qt {

QIcon TreeImage(const std::string& key) {
  const glyphs::MakeGlyph glyph = glyphs::TreeGlyph(key);
  return glyph == nullptr ? QIcon() : LineIcon(glyph);
}

}  // namespace ferrowind::qt
