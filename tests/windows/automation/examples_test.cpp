// The guide's hosts, as programs of their own that know nothing but what is registered.

#include <string>

#include <windows.h>
#include <gtest/gtest.h>

#include "ferrowind/adapters/automation/text.h"

#include "tests/contract/database/sqlite_database.h"
#include "tests/windows/automation/host_process.h"
#include "tests/windows/automation/own_registry.h"
#include "tests/windows/automation/registered_file.h"

namespace ferrowind::testing {
namespace {

std::wstring Example(const char* name) {
  return automation::Utf16(FERROWIND_EXAMPLES "/") + automation::Utf16(name);
}

/// The component as its users have it: registered, with a database named.
class Examples : public ::testing::Test {
 protected:
  // Of the user whom the test runs as, since the hosts are programs of their own.
  Examples() { NameDatabase(automation::Utf16(database_.ConnectionString())); }

 private:
  contract::SqliteDatabase database_;
  RegisteredFile registered_;
};

void Resize(HWND window, int width, int height) {
  EXPECT_TRUE(SetWindowPos(window, nullptr, 0, 0, width, height, SWP_NOMOVE | SWP_NOZORDER));
}

TEST_F(Examples, InAScriptChangesTheColumnsAndShowsTheCalendars) {
  const HostProcess host(RunOfScript(Example("columns.vbs")));
  const HWND question = host.Window(L"#32770", L"Host");
  ASSERT_NE(question, nullptr) << host.Output();
  EXPECT_NE(FindWindowW(nullptr, L"Calendars"), nullptr);
  EXPECT_TRUE(PostMessageW(question, WM_COMMAND, IDOK, 0));
  EXPECT_EQ(host.Output(),
            "Ferrowind 1.2.10\n"
            "FullDate: Day\n"
            "HolidayType: Day type\n"
            "HolidayName: Holiday name\n"
            "Description: Description\n"
            "Comment: Comment\n"
            "DayOfMonth: Day of month\n"
            "Month: Month\n"
            "MonthName: Month name\n"
            "Closed\n");
}

TEST_F(Examples, BoundEarlyChangesTheColumnsAndLearnsWhatIsRefused) {
  const HostProcess host(L"early_bound.exe");
  EXPECT_EQ(host.Output(),
            "FullDate is called Day\n"
            "0x80040258: It's constant header\n"
            "Closed\n");
}

TEST(ExamplesWithoutTheComponent, SayThatNothingIsRegistered) {
  const HostProcess host(L"early_bound.exe");
  EXPECT_EQ(host.Output(1), "0x80040154\n");
}

TEST_F(Examples, WithAFormKeepsTheControlsSizeInAWindowOfAnySize) {
  const HostProcess host(L"form_host.exe");
  const HWND form = host.Window(L"FormHost", L"A form");
  ASSERT_NE(form, nullptr) << host.Output();
  Resize(form, 500, 200);
  Resize(form, 300, 400);
  EXPECT_TRUE(PostMessageW(form, WM_CLOSE, 0, 0));
  EXPECT_EQ(host.Output(),
            "placed in a window of 400 by 300: 16 by 16 pixels, visible\n"
            "resized in a window of 500 by 200: 16 by 16 pixels, visible\n"
            "resized in a window of 300 by 400: 16 by 16 pixels, visible\n"
            "removed\n");
}

TEST_F(Examples, WithAFormHidesTheControlAtRunTime) {
  const HostProcess host(L"form_host.exe run");
  const HWND form = host.Window(L"FormHost", L"A form");
  ASSERT_NE(form, nullptr) << host.Output();
  EXPECT_TRUE(PostMessageW(form, WM_CLOSE, 0, 0));
  EXPECT_EQ(host.Output(),
            "placed in a window of 400 by 300: 16 by 16 pixels, invisible\n"
            "removed\n");
}

}  // namespace
}  // namespace ferrowind::testing
