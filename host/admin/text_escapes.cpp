#include "host/admin/text_escapes.h"

#include <algorithm>
#include <cstddef>
#include <cstdio>

#include "ferrowind/platform/values/utf8_validation.h"

namespace ferrowind::host {
namespace {

/// Of a character that begins with `lead`; 0 when none does.
std::size_t LengthFrom(unsigned char lead) {
  if (lead < 0x80U) return 1;
  if (lead >= 0xC2U && lead < 0xE0U) return 2;
  if (lead >= 0xE0U && lead < 0xF0U) return 3;
  if (lead >= 0xF0U && lead < 0xF5U) return 4;
  return 0;
}

bool Continues(char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U; }

/// Of well-formed UTF-8.
char32_t CodeOf(std::string_view bytes) {
  const auto lead = static_cast<unsigned char>(bytes.front());
  if (bytes.size() == 1) return lead;
  char32_t code = lead & (0x7FU >> bytes.size());
  for (const char byte : bytes.substr(1)) code = code << 6U | (static_cast<unsigned char>(byte) & 0x3FU);
  return code;
}

std::string Hex(char32_t number, int digits) {
  char text[16];
  std::snprintf(text, sizeof text, "%0*x", digits, static_cast<unsigned>(number));
  return text;
}

}  // namespace

FrontCharacter FirstCharacter(std::string_view text) {
  const std::size_t length = LengthFrom(static_cast<unsigned char>(text.front()));
  const std::string_view bytes = text.substr(0, length);
  if (length == 0 || bytes.size() < length || !platform::IsWellFormedUtf8(bytes)) {
    return {text.substr(0, 1), std::nullopt};
  }
  return {bytes, CodeOf(bytes)};
}

bool IsCutCharacter(std::string_view text) {
  if (text.empty() || LengthFrom(static_cast<unsigned char>(text.front())) <= text.size()) return false;
  return std::all_of(text.begin() + 1, text.end(), Continues);
}

bool IsUnsafe(const FrontCharacter& character) {
  if (!character.code) return true;
  const char32_t code = *character.code;
  const bool is_control = code < 0x20 || (code >= 0x7F && code < 0xA0);
  const bool separates_lines = code == 0x2028 || code == 0x2029;
  const bool turns_direction = (code >= 0x202A && code <= 0x202E) || (code >= 0x2066 && code <= 0x2069);
  return is_control || separates_lines || turns_direction;
}

std::string Escaped(const FrontCharacter& character) {
  if (!character.code) return "\\x" + Hex(static_cast<unsigned char>(character.bytes.front()), 2);
  const char32_t code = *character.code;
  switch (code) {
    case U'\n':
      return "\\n";
    case U'\r':
      return "\\r";
    case U'\t':
      return "\\t";
    case U'\\':
      return "\\\\";
    default:
      if (code < 0x7F) return "\\x" + Hex(code, 2);
      return code < 0x10000 ? "\\u" + Hex(code, 4) : "\\U" + Hex(code, 8);
  }
}

std::string OneLine(std::string_view text) {
  std::string line;
  while (!text.empty()) {
    const FrontCharacter next = FirstCharacter(text);
    line += IsUnsafe(next) ? Escaped(next) : std::string(next.bytes);
    text.remove_prefix(next.bytes.size());
  }
  return line;
}

}  // namespace ferrowind::host
