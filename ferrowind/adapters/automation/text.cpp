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
  const int needed = MultiByteToWideChar(CP_UTF8, 0, text.data(), length, nullptr, 0);
  std::wstring result(static_cast<std::size_t>(needed), L'\0');
  MultiByteToWideChar(CP_UTF8, 0, text.data(), length, result.data(), needed);
  return result;
}

std::string Utf8OfBstr(BSTR text) { return Utf8(std::wstring_view(text, SysStringLen(text))); }

BSTR NewBstr(std::string_view text) {
  const std::wstring wide = Utf16(text);
  BSTR result = SysAllocStringLen(wide.data(), static_cast<UINT>(wide.size()));
  if (result == nullptr) throw std::bad_alloc();
  return result;
}

}  // namespace ferrowind::automation
