#include "ferrowind/adapters/qt/look/tree_images.h"

#include "ferrowind/adapters/qt/look/glyphs.h"
#include "ferrowind/adapters/qt/look/line_icon.h"

namespace ferrowind::qt {

QIcon TreeImage(const std::string& key) {
  if (key == "Currency") return LineIcon(CurrencyGlyph);
  if (key == "Calendar") return LineIcon(CalendarGlyph);
  return {};
}

}  // namespace ferrowind::qt
