// The guide's hosts, as programs of their own that know nothing but what is registered.

#include <string>

#include <windows.h>
#include <gtest/gtest.h>

#include "ferrowind/adapters/automation/text.h"

#include "tests/windows/automation/host_process.h"
#include "tests/windows/automation/registered_file.h"

namespace ferrowind::testing {
namespace {

std::wstring Example(const char* name) {
  return automation::Utf16(FERROWIND_EXAMPLES "/") + automation::Utf16(name);
}

void Resize(HWND window, int width, int height) {
  EXPECT_TRUE(SetWindowPos(window, nullptr, 0, 0, width, height, SWP_NOMOVE | SWP_NOZORDER));
}

TEST(ExampleInAScript, ChangesTheColumnsAndShowsTheCalendars) {
  const RegisteredFile registered;
  const HostProcess host(L"cscript.exe //nologo \"" + Example("columns.vbs") + L"\"");
  const HWND question = host.Window(L"#32770", L"Host");
  ASSERT_NE(question, nullptr) << host.Output();
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

TEST(ExampleBoundEarly, ChangesTheColumnsAndLearnsWhatIsRefused) {
  const RegisteredFile registered;
  const HostProcess host(L"early_bound.exe");
  EXPECT_EQ(host.Output(),
            "FullDate is called Day\n"
            "0x80040258: It's constant header\n"
            "Closed\n");
}

TEST(ExampleBoundEarly, SaysThatNothingIsRegistered) {
  const HostProcess host(L"early_bound.exe");
  EXPECT_EQ(host.Output(1), "0x80040154\n");
}

TEST(ExampleWithAForm, KeepsTheControlsSizeInAWindowOfAnySize) {
  const RegisteredFile registered;
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

TEST(ExampleWithAForm, HidesTheControlAtRunTime) {
  const RegisteredFile registered;
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
