#include "ferrowind/platform/values/utf8_text.h"

namespace ferrowind::platform {

void AppendUtf8(std::uint32_t code, std::string& text) {
  const auto add = [&](std::uint32_t byte) { text += static_cast<char>(byte); };
  if (code < 0x80) {
    add(code);
  } else if (code < 0x800) {
    add(0xC0 | (code >> 6));
    add(0x80 | (code & 0x3F));
  } else if (code < 0x10000) {
    add(0xE0 | (code >> 12));
    add(0x80 | ((code >> 6) & 0x3F));
    add(0x80 | (code & 0x3F));
  } else {
    add(0xF0 | (code >> 18));
    add(0x80 | ((code >> 12) & 0x3F));
    add(0x80 | ((code >> 6) & 0x3F));
    add(0x80 | (code & 0x3F));
  }
}

}  // namespace ferrowind::platform
