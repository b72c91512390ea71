#include "ferrowind/adapters/automation/text.h"

#include <limits>
#include <new>

#include <windows.h>

namespace ferrowind::automation {
namespace {

int LengthOf(std::size_t size) {
  if (size > static_cast<std::size_t>(std::numeric_limits<int>::max())) throw std::bad_alloc();
  return static_cast<int>(size);
}

}  // namespace

std::string Utf8(std::wstring_view text) {
  if (text.empty()) return {};
  const int length = LengthOf(text.size());
  const int needed = WideCharToMultiByte(CP_UTF8, 0, text.data(), length, nullptr, 0, nullptr, nullptr);
  std::string result(static_cast<std::size_t>(needed), '\0');
  WideCharToMultiByte(CP_UTF8, 0, text.data(), length, result.data(), needed, nullptr, nullptr);
  return result;
}

std::wstring Utf16(std::string_view text) {
  if (text.empty()) return {};
  const int length = LengthOf(text.size());
  // Never more units than bytes.
  std::wstring result(text.size(), L'\0');
  const int converted = MultiByteToWideChar(CP_UTF8, 0, text.data(), length, result.data(), length);
  result.resize(static_cast<std::size_t>(converted));
  return result;
}

std::string Utf8OfBstr(BSTR text) { return Utf8(std::wstring_view(text, SysStringLen(text))); }

BSTR NewBstr(std::string_view text) {
  const int length = LengthOf(text.size());
  // Never more units than bytes, and as many of most texts.
  const BSTR converted = SysAllocStringLen(nullptr, static_cast<UINT>(length));
  if (converted == nullptr) throw std::bad_alloc();
  const int units = MultiByteToWideChar(CP_UTF8, 0, text.data(), length, converted, length);
  if (units == length) return converted;
  const BSTR result = SysAllocStringLen(converted, static_cast<UINT>(units));
  SysFreeString(converted);
  if (result == nullptr) throw std::bad_alloc();
  return result;
}

}  // namespace ferrowind::automation
