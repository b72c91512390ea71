#include "host/admin/terminal_text.h"

#include <clocale>
#include <string_view>
#include <utility>

#include <wchar.h>

#include "host/admin/text_escapes.h"

namespace ferrowind::host {
namespace {

constexpr std::string_view kEllipsis = "\u2026";

/// Null where the system has none. Kept until the program ends: a table tells the width of a hundred thousand
/// texts, and the system reads a file for each one that is made.
locale_t Utf8Locale() {
  static const locale_t locale = newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
  return locale;
}

/// Makes the character functions of this thread understand UTF-8, whatever locale the operator has.
class Utf8Characters {
 public:
  Utf8Characters() {
    if (Utf8Locale() != nullptr) previous_ = uselocale(Utf8Locale());
  }
  ~Utf8Characters() {
    if (previous_ != nullptr) uselocale(previous_);
  }
  Utf8Characters(const Utf8Characters&) = delete;
  Utf8Characters& operator=(const Utf8Characters&) = delete;

 private:
  locale_t previous_ = nullptr;
};

/// A character as it stands on a terminal.
TerminalText Shown(const FrontCharacter& character) {
  const bool is_shown = !IsUnsafe(character) && character.code != U'\\';
  const int width = is_shown ? wcwidth(static_cast<wchar_t>(*character.code)) : -1;
  if (width >= 0) return {std::string(character.bytes), static_cast<std::size_t>(width)};
  std::string escape = Escaped(character);
  const std::size_t escape_width = escape.size();
  return {std::move(escape), escape_width};
}

}  // namespace

TerminalText ForTerminal(const std::string& text, std::size_t limit) {
  const Utf8Characters utf8;
  TerminalText shown;
  // Where to cut when the text turns out too long for the limit: the last place with room for the ellipsis.
  TerminalText cut;
  std::string_view rest = text;
  while (!rest.empty()) {
    const FrontCharacter character = FirstCharacter(rest);
    const TerminalText next = Shown(character);
    if (shown.width + next.width > limit) {
      cut.text += kEllipsis;
      ++cut.width;
      return cut;
    }
    shown.text += next.text;
    shown.width += next.width;
    if (shown.width < limit) cut = shown;
    rest.remove_prefix(character.bytes.size());
  }
  return shown;
}

}  // namespace ferrowind::host
