#include "ferrowind/adapters/win32/base/wording.h"

#include <string_view>

#include "ferrowind/adapters/win32/base/wide_text.h"

namespace ferrowind::win32 {

std::wstring Wording::Translated(const char* english, const std::wstring& first,
                                 const std::wstring& second) const {
  const auto translation = words_ == nullptr ? std::nullopt : words_->Translate(english, std::nullopt);
  const std::wstring text = ToWide(translation.value_or(english));
  std::wstring filled;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const std::wstring_view place = std::wstring_view(text).substr(i, 2);
    if (place == L"%1" || place == L"%2") {
      filled += place == L"%1" ? first : second;
      ++i;
    } else {
      filled += text[i];
    }
  }
  return filled;
}

}  // namespace ferrowind::win32
