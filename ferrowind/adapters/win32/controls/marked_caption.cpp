#include "ferrowind/adapters/win32/controls/marked_caption.h"

#include <cwctype>

#include "ferrowind/adapters/win32/base/wide_text.h"

namespace ferrowind::win32 {

std::wstring MarkedCaption(const std::string& caption, wchar_t mnemonic) {
  std::wstring marked;
  for (const wchar_t letter : ToWide(caption)) {
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
