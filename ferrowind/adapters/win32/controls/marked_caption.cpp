#include "ferrowind/adapters/win32/controls/marked_caption.h"

#include <algorithm>
#include <cwctype>

#include "ferrowind/adapters/win32/base/wide_text.h"

namespace ferrowind::win32 {

bool CanBeMnemonic(wchar_t letter) {
  constexpr wchar_t kBehindLatin = 0x250;
  return letter < kBehindLatin && std::iswalnum(letter) != 0;
}

bool HasForeignWords(std::wstring_view caption) {
  return std::any_of(caption.begin(), caption.end(),
                     [](wchar_t letter) { return std::iswalpha(letter) != 0; }) &&
         std::none_of(caption.begin(), caption.end(), CanBeMnemonic);
}

std::wstring MarkedCaption(const std::string& caption, wchar_t mnemonic) {
  const std::wstring plain = ToWide(caption);
  if (mnemonic != 0 && HasForeignWords(plain))
    return plain + L"(&" + static_cast<wchar_t>(std::towupper(mnemonic)) + L")";
  std::wstring marked;
  for (const wchar_t letter : plain) {
    if (mnemonic != 0 && std::towlower(letter) == std::towlower(mnemonic)) {
      marked += L'&';
      mnemonic = 0;
    }
    if (letter == L'&') marked += L'&';
    marked += letter;
  }
  return marked;
}

}  // namespace ferrowind::win32
