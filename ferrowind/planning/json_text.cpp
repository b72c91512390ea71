#include "ferrowind/planning/json_text.h"

#include <cstdio>

namespace ferrowind::planning {

std::string JsonText(std::string_view text) {
  constexpr unsigned char kFirstPrintable = 0x20;
  std::string quoted = "\"";
  for (const char character : text) {
    if (character == '"' || character == '\\') {
      quoted += '\\';
      quoted += character;
    } else if (static_cast<unsigned char>(character) < kFirstPrintable) {
      char escape[7];
      std::snprintf(escape, sizeof escape, "\\u%04x", static_cast<unsigned>(character));
      quoted += escape;
    } else {
      quoted += character;
    }
  }
  return quoted + '"';
}

}  // namespace ferrowind::planning
