#include "ferrowind/platform/values/json_text.h"

namespace ferrowind::platform {
namespace {

void AppendEscaped(char character, std::string& json) {
  constexpr std::string_view kDigits = "0123456789abcdef";
  switch (character) {
    case '"':
    case '\\':
      json += '\\';
      json += character;
      return;
    case '\b':
      json += "\\b";
      return;
    case '\f':
      json += "\\f";
      return;
    case '\n':
      json += "\\n";
      return;
    case '\r':
      json += "\\r";
      return;
    case '\t':
      json += "\\t";
      return;
    default:
      break;
  }
  const auto code = static_cast<unsigned char>(character);
  if (code >= 0x20) {
    json += character;
    return;
  }
  json += "\\u00";
  json += kDigits[code / 16];
  json += kDigits[code % 16];
}

}  // namespace

void AppendJsonText(std::string_view text, std::string& json) {
  json += '"';
  for (const char character : text) AppendEscaped(character, json);
  json += '"';
}

std::string JsonText(std::string_view text) {
  std::string json;
  AppendJsonText(text, json);
  return json;
}

}  // namespace ferrowind::platform
