#include "ferrowind/adapters/qt/look/message_images.h"

#include "ferrowind/adapters/glyphs/glyphs.h"
#include "ferrowind/adapters/qt/look/line_icon.h"

namespace ferrowind::qt {
namespace {

// Told from light and dark grounds alike.
constexpr QColor kWarningAccent(0xb8, 0x7a, 0x0c);
constexpr QColor kErrorAccent(0xdb, 0x45, 0x4d);

}  // namespace

QIcon MessageImage(MessageKind kind) {
  switch (kind) {
    case MessageKind::kQuestion:
      return LineIcon(glyphs::QuestionGlyph);
    case MessageKind::kInformation:
      return LineIcon(glyphs::InformationGlyph);
    case MessageKind::kWarning:
      return LineIcon(glyphs::WarningGlyph, kWarningAccent);
    case MessageKind::kError:
      return LineIcon(glyphs::ErrorGlyph, kErrorAccent);
  }
  return {};
}

}  // namespace ferrowind::qt
