#include "ferrowind/adapters/win32/table/type_ahead.h"

#include <algorithm>

#include "ferrowind/adapters/win32/base/windows_api.h"

namespace ferrowind::win32 {
namespace {

bool BeginsWith(const std::wstring& text, const std::wstring& beginning) {
  return FindNLSStringEx(LOCALE_NAME_USER_DEFAULT, FIND_STARTSWITH | LINGUISTIC_IGNORECASE, text.c_str(),
                         static_cast<int>(text.size()), beginning.c_str(), static_cast<int>(beginning.size()),
                         nullptr, nullptr, nullptr, 0) >= 0;
}

}  // namespace

bool TypeAhead::IsTyping() const {
  constexpr unsigned long long kPause = 1000;
  return !typed_.empty() && GetTickCount64() - last_ < kPause;
}

std::optional<std::size_t> TypeAhead::Type(wchar_t letter, std::size_t current, std::size_t rows,
                                           const std::function<std::wstring(std::size_t)>& text_of) {
  if (!IsTyping()) typed_.clear();
  last_ = GetTickCount64();
  typed_ += letter;
  const bool is_one_letter =
      std::all_of(typed_.begin(), typed_.end(), [&](wchar_t typed) { return typed == letter; });
  const std::wstring beginning = is_one_letter ? std::wstring(1, letter) : typed_;
  const std::size_t first = is_one_letter ? 1 : 0;
  for (std::size_t i = 0; i < rows; ++i) {
    const std::size_t row = (current + first + i) % rows;
    if (BeginsWith(text_of(row), beginning)) return row;
  }
  return std::nullopt;
}

}  // namespace ferrowind::win32
