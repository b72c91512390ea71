#include "ferrowind/adapters/win32/table/cell_words.h"

#include "ferrowind/adapters/win32/base/wide_text.h"
#include "ferrowind/adapters/win32/base/windows_api.h"

namespace ferrowind::win32 {

std::wstring SpokenText(const platform::TableCell& cell, const Wording& words) {
  std::wstring text = ToWide(cell.text);
  const std::wstring word = words.Translated(platform::WordOf(cell.mark));
  const bool says_it = FindNLSStringEx(LOCALE_NAME_USER_DEFAULT, FIND_FROMSTART | LINGUISTIC_IGNORECASE,
                                       text.c_str(), static_cast<int>(text.size()), word.c_str(),
                                       static_cast<int>(word.size()), nullptr, nullptr, nullptr, 0) >= 0;
  if (word.empty() || (!text.empty() && says_it)) return text;
  return text.empty() ? word : word + L": " + text;
}

}  // namespace ferrowind::win32
