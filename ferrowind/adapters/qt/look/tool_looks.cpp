#include "ferrowind/adapters/qt/look/tool_looks.h"

#include <QLatin1String>

#include "ferrowind/adapters/glyphs/tool_faces.h"
#include "ferrowind/adapters/qt/look/line_icon.h"

namespace ferrowind::qt {

ToolLook ToolLookOf(const std::string& tool_id) {
  const glyphs::ToolFace* face = glyphs::FindToolFace(tool_id);
  if (face == nullptr) return {};
  const QLatin1String shortcut(face->shortcut.data(), static_cast<qsizetype>(face->shortcut.size()));
  return {LineIcon(face->glyph), QKeySequence(shortcut)};
}

}  // namespace ferrowind::qt
