#include "ferrowind/adapters/win32/words/native_words.h"

#include <algorithm>

#include "ferrowind/adapters/win32/base/wide_text.h"
#include "ferrowind/adapters/win32/base/windows_api.h"
#include "ferrowind/adapters/win32/words/translated_texts.h"

namespace ferrowind::win32 {

std::vector<std::string> LanguagesOfUser() {
  ULONG count = 0;
  ULONG length = 0;
  GetUserPreferredUILanguages(MUI_LANGUAGE_NAME, &count, nullptr, &length);
  std::wstring names(length, L'\0');
  if (length == 0 || GetUserPreferredUILanguages(MUI_LANGUAGE_NAME, &count, names.data(), &length) == 0)
    return {};
  std::vector<std::string> languages;
  // Each name ends in a zero, and an empty one ends the list.
  for (const wchar_t* name = names.c_str(); *name != L'\0'; name += languages.back().size() + 1)
    languages.push_back(FromWide(name));
  return languages;
}

NativeWords::NativeWords(const std::vector<std::string>& languages) {
  const auto texts = TranslatedTexts();
  for (const std::string& name : languages) {
    const std::string language = name.substr(0, name.find('-'));
    const bool is_there = language == "en" || std::any_of(texts.begin(), texts.end(), [&](const auto& text) {
                            return text.language == language;
                          });
    if (!is_there) continue;
    language_ = language;
    return;
  }
}

std::optional<std::string> NativeWords::Translate(const std::string& text,
                                                  std::optional<std::int64_t> number) const {
  if (number) return std::nullopt;
  const auto texts = TranslatedTexts();
  const auto found = std::find_if(texts.begin(), texts.end(), [&](const auto& candidate) {
    return candidate.language == language_ && candidate.english == text;
  });
  if (found == texts.end()) return std::nullopt;
  return std::string(found->translation);
}

}  // namespace ferrowind::win32
