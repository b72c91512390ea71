#include "ferrowind/adapters/automation/native_failure.h"

#include <cstdint>
#include <cstdio>
#include <iterator>
#include <string>
#include <string_view>

#include <windows.h>

#include "ferrowind/adapters/automation/text.h"

namespace ferrowind::automation {
namespace {

std::string PlatformText(HRESULT result) {
  wchar_t text[512];
  const DWORD length = FormatMessageW(
      FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS | FORMAT_MESSAGE_MAX_WIDTH_MASK, nullptr,
      static_cast<DWORD>(result), 0, text, static_cast<DWORD>(std::size(text)), nullptr);
  std::wstring_view trimmed(text, length);
  while (!trimmed.empty() && trimmed.back() == L' ') trimmed.remove_suffix(1);
  return Utf8(trimmed);
}

}  // namespace

platform::Failure NativeFailure(HRESULT result) {
  char number[16];
  std::snprintf(number, sizeof number, "0x%08lX", static_cast<unsigned long>(result));
  const std::string text = PlatformText(result);
  return {static_cast<std::int32_t>(result), text.empty() ? number : text + " (" + number + ")"};
}

void RequireSuccess(HRESULT result) {
  if (FAILED(result)) throw NativeFailure(result);
}

}  // namespace ferrowind::automation
