#include "ferrowind/adapters/windows/system_message.h"

#include <array>

#include <windows.h>

#include "ferrowind/platform/values/file_path.h"

namespace ferrowind::windows {

std::string SystemMessage(std::uint32_t error) {
  std::array<wchar_t, 512> text{};
  DWORD size = FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr, error, 0,
                              text.data(), static_cast<DWORD>(text.size()), nullptr);
  const auto is_end = [](wchar_t character) {
    return character == L'.' || character == L' ' || character == L'\r' || character == L'\n';
  };
  while (size > 0 && is_end(text[size - 1])) --size;
  if (size == 0) return "error " + std::to_string(error) + " of the system";
  return platform::FileName(std::wstring(text.data(), size));
}

}  // namespace ferrowind::windows
