#include <array>

#include <windows.h>
#include <lmcons.h>

#include "ferrowind/adapters/sqlite/system_user.h"
#include "ferrowind/platform/values/file_path.h"

namespace ferrowind::sqlite {

const std::string& SystemUserName() {
  // Asked once, as a program stays its user's.
  static const std::string name = [] {
    std::array<wchar_t, UNLEN + 1> room{};
    DWORD size = static_cast<DWORD>(room.size());
    if (GetUserNameW(room.data(), &size) == 0 || size <= 1) return std::string("unknown");
    return platform::FileName(std::wstring(room.data(), size - 1));
  }();
  return name;
}

}  // namespace ferrowind::sqlite
