// The component's file, when its windows are opened and closed again and again. By the class and not by a
// script, and in a program without scripts, since Wine's engine of them keeps the factory of each object that
// they create.

#include <algorithm>
#include <cstddef>
#include <cstdint>

#include <windows.h>
#include <gtest/gtest.h>

#include "ferrowind/adapters/win32/base/wide_text.h"

#include "tests/contract/database/sqlite_database.h"
#include "tests/windows/automation/control_thread.h"
#include "tests/windows/automation/own_registry.h"
#include "tests/windows/automation/registered_file.h"
#include "tests/windows/win32/input.h"

namespace ferrowind::testing {
namespace {

void OpenAndClose() {
  const auto control = CreateByName();
  ASSERT_EQ(control->Show(), S_OK);
  ASSERT_NE(FindWindowW(nullptr, L"Calendars"), nullptr);
  contract::HandleMessages();
  VARIANT_BOOL is_closed = VARIANT_FALSE;
  ASSERT_EQ(control->ForceClosing(&is_closed), S_OK);
  ASSERT_EQ(is_closed, VARIANT_TRUE);
}

/// Those that nobody sees among them.
int WindowsOfThisThread() {
  int count = 0;
  EnumThreadWindows(
      GetCurrentThreadId(),
      [](HWND, LPARAM number) -> BOOL {
        ++*reinterpret_cast<int*>(number);
        return TRUE;
      },
      reinterpret_cast<LPARAM>(&count));
  for (HWND window = nullptr; (window = FindWindowExW(HWND_MESSAGE, window, nullptr, nullptr)) != nullptr;) {
    if (GetWindowThreadProcessId(window, nullptr) == GetCurrentThreadId()) ++count;
  }
  return count;
}

/// Pens, fonts, bitmaps and the like of this process, by the table that the platform keeps of them: Wine's
/// `GetGuiResources` counts none.
int DrawingObjects() {
  struct Entry {
    std::uint64_t object;
    std::uint32_t owner;
    std::uint16_t unique;
    /// 0 for a free place.
    std::uint8_t type;
    std::uint8_t flags;
    std::uint64_t for_user;
  };
  constexpr std::size_t kPlaceOfProcess = 0x60;
  constexpr std::size_t kPlaceOfTable = 0xF8;
  constexpr int kEntries = 16384;
  const auto* const process =
      *reinterpret_cast<const char* const*>(reinterpret_cast<const char*>(NtCurrentTeb()) + kPlaceOfProcess);
  const auto* const table = *reinterpret_cast<const Entry* const*>(process + kPlaceOfTable);
  return static_cast<int>(
      std::count_if(table, table + kEntries, [](const Entry& entry) { return entry.type != 0; }));
}

TEST(DrawingObjectsOfATest, AreCounted) {
  const HPEN first = CreatePen(PS_SOLID, 1, 0);
  const int before = DrawingObjects();
  const HPEN pen = CreatePen(PS_SOLID, 1, 0);
  EXPECT_EQ(DrawingObjects(), before + 1);
  DeleteObject(pen);
  EXPECT_EQ(DrawingObjects(), before);
  DeleteObject(first);
}

TEST(ServerFileWindows, LeaveNothingBehindWhenTheyOpenAndCloseAgainAndAgain) {
  const OwnRegistry registry;
  contract::SqliteDatabase database;
  NameDatabase(win32::ToWide(database.ConnectionString()));
  const RegisteredFile registered;
  RunInApartment([&registered] {
    // What is made once and kept.
    for (int i = 0; i < 5; ++i) OpenAndClose();
    const int windows = WindowsOfThisThread();
    const int drawing_objects = DrawingObjects();
    for (int i = 0; i < 100; ++i) OpenAndClose();
    EXPECT_EQ(WindowsOfThisThread(), windows);
    EXPECT_EQ(DrawingObjects(), drawing_objects);
    EXPECT_EQ(registered.file.CanUnload(), S_OK);
  });
}

}  // namespace
}  // namespace ferrowind::testing
