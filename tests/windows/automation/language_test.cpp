// What the windows of the component's file say to an operator whose language is German.

#include <memory>
#include <string>

#include <windows.h>
#include <gtest/gtest.h>

#include "ferrowind/adapters/win32/base/wide_text.h"

#include "tests/contract/database/sqlite_database.h"
#include "tests/windows/automation/control_thread.h"
#include "tests/windows/automation/native_operator.h"
#include "tests/windows/automation/own_registry.h"
#include "tests/windows/automation/registered_file.h"
#include "tests/windows/automation/script_host.h"

namespace ferrowind::testing {
namespace {

TEST(WindowsOfAGerman, SayTheirOwnTextsInGermanAndTheGivenOnesAsGiven) {
  const OwnRegistry registry;
  contract::SqliteDatabase database;
  NameDatabase(win32::ToWide(database.ConnectionString()));
  const RegisteredFile file;
  RunInApartment([] {
    ScriptHost host;
    EXPECT_EQ(host.Run("Set calendar = CreateObject(\"Ferrowind.Calendar\")\ncalendar.Show"), "");
    const HWND calendars = FindWindowW(nullptr, L"Calendars");
    ASSERT_NE(calendars, nullptr);
    // Each fails where there is none of that name.
    EXPECT_NO_THROW(static_cast<void>(NativeOperator::Control(calendars, L"FerrowindPane", L"Tage")));
    EXPECT_NO_THROW(static_cast<void>(
        NativeOperator::Control(calendars, L"SysTreeView32", L"W\u00E4hrungen und Kalender")));
    EXPECT_EQ(host.Run("closed = calendar.ForceClosing"), "");
  });
}

}  // namespace
}  // namespace ferrowind::testing
