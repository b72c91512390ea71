#include "host/admin/terminal_text.h"

#include <clocale>
#include <cstdint>
#include <cstdio>
#include <string_view>

#include <wchar.h>

namespace ferrowind::host {
namespace {

constexpr std::string_view kEllipsis = "\u2026";

/// Makes the character functions of this thread understand UTF-8, whatever locale the operator has.
class Utf8Characters {
 public:
  Utf8Characters() : locale_(newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr)) {
    if (locale_ != nullptr) previous_ = uselocale(locale_);
  }
  ~Utf8Characters() {
    if (locale_ == nullptr) return;
    uselocale(previous_);
    freelocale(locale_);
  }
  Utf8Characters(const Utf8Characters&) = delete;
  Utf8Characters& operator=(const Utf8Characters&) = delete;

 private:
  locale_t locale_;
  locale_t previous_ = nullptr;
};

std::string EscapedByte(char byte) {
  switch (byte) {
    case '\n':
      return "\\n";
    case '\r':
      return "\\r";
    case '\t':
      return "\\t";
    case '\\':
      return "\\\\";
    default: {
      char escape[5];
      std::snprintf(escape, sizeof escape, "\\x%02x", static_cast<unsigned char>(byte));
      return escape;
    }
  }
}

std::string Escaped(std::string_view bytes) {
  std::string escapes;
  for (const char byte : bytes) escapes += EscapedByte(byte);
  return escapes;
}

/// The next character of `rest`, ready to be shown; `length` bytes of `rest` are used up.
TerminalText NextCharacter(std::string_view rest, std::size_t& length) {
  wchar_t character = 0;
  mbstate_t state{};
  const std::size_t decoded = mbrtowc(&character, rest.data(), rest.size(), &state);
  const bool is_character = decoded != 0 && decoded <= rest.size();
  length = is_character ? decoded : 1;
  const std::string_view bytes = rest.substr(0, length);
  const int width = is_character && character != L'\\' ? wcwidth(character) : -1;
  if (width >= 0) return {std::string(bytes), static_cast<std::size_t>(width)};
  std::string escapes = Escaped(bytes);
  const std::size_t escape_width = escapes.size();
  return {std::move(escapes), escape_width};
}

}  // namespace

TerminalText ForTerminal(const std::string& text, std::size_t limit) {
  const Utf8Characters utf8;
  TerminalText shown;
  // Where to cut when the text turns out too long for the limit: the last place with room for the ellipsis.
  TerminalText cut;
  std::string_view rest = text;
  while (!rest.empty()) {
    std::size_t length = 0;
    const TerminalText next = NextCharacter(rest, length);
    if (shown.width + next.width > limit) {
      cut.text += kEllipsis;
      ++cut.width;
      return cut;
    }
    shown.text += next.text;
    shown.width += next.width;
    if (shown.width < limit) cut = shown;
    rest.remove_prefix(length);
  }
  return shown;
}

}  // namespace ferrowind::host
