#pragma once

#include <span>
#include <string_view>

namespace ferrowind::win32 {

/// What stands for an English text in a language ("de"), with its places in it.
struct TranslatedText {
  std::string_view language;
  std::string_view english;
  std::string_view translation;
};

/// The texts of this adapter in all languages that there are, as translations/*.ts has them.
[[nodiscard]] std::span<const TranslatedText> TranslatedTexts();

}  // namespace ferrowind::win32
