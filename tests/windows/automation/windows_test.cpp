// The windows that a script opens by the component's file, in a host with a message loop of its own.

#include <array>
#include <cstdint>
#include <exception>
#include <fstream>
#include <functional>
#include <iterator>
#include <memory>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include <windows.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ferrowind/adapters/win32/base/wide_text.h"
#include "ferrowind/platform/values/conversion.h"
#include "ferrowind/platform/values/file_path.h"

#include "tests/contract/database/sqlite_database.h"
#include "tests/contract/odbc/odbc_database.h"
#include "tests/windows/automation/control_thread.h"
#include "tests/windows/automation/host_process.h"
#include "tests/windows/automation/native_operator.h"
#include "tests/windows/automation/own_registry.h"
#include "tests/windows/automation/registered_file.h"
#include "tests/windows/automation/script_host.h"
#include "tests/windows/win32/input.h"
#include "tests/windows/win32/message_boxes.h"

namespace ferrowind::testing {
namespace {

using contract::PressKey;
using contract::TypeKeys;
using ::testing::HasSubstr;

constexpr std::int32_t kEuro = 978;
constexpr const char* kShow = R"(
  Set calendar = CreateObject("Ferrowind.Calendar")
  calendar.Show
)";
constexpr const char* kClose = R"(
  If Not calendar.ForceClosing Then Err.Raise 5, , "The window refused to be closed"
  Set calendar = Nothing
)";

/// A new database without calendars, which the component's own dictionary names.
class Office {
 public:
  explicit Office(std::unique_ptr<contract::DatabaseUnderTest> database) : database_(std::move(database)) {
    NameDatabase(win32::ToWide(database_->ConnectionString()));
  }

  contract::DatabaseUnderTest& Database() { return *database_; }
  /// What the calendar of the euro has of a day of 2027 in that field; "" for nothing, or without that
  /// calendar.
  [[nodiscard]] std::string OfDay(std::int32_t day_of_year, const char* field) {
    constexpr std::int32_t kYear = 2027;
    const auto answer =
        database_->Engine().Connect(database_->ConnectionString())->Call("CldGetMain", {kEuro, kYear});
    if (answer.return_value != 0) return {};
    auto& days = *answer.record_sets.at(0);
    days.SetFilter("Day1 = " + std::to_string(day_of_year));
    return days.Eof() ? std::string() : platform::ToTextOrEmpty(days[field]);
  }

 private:
  OwnRegistry registry_;
  std::unique_ptr<contract::DatabaseUnderTest> database_;
};

/// A host's message loop as most of them are.
void HandleMessagesUntilTheEnd() {
  MSG message{};
  while (GetMessageW(&message, nullptr, 0, 0) > 0) {
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
}

/// Lets an operator work in the windows of this thread until they are done.
void LetWork(const std::function<void(const NativeOperator& somebody)>& work) {
  const DWORD host = GetCurrentThreadId();
  std::string trouble;
  std::thread worker([&] {
    try {
      work(NativeOperator(host));
    } catch (const std::exception& error) {
      trouble = error.what();
    }
    PostThreadMessageW(host, WM_QUIT, 0, 0);
  });
  HandleMessagesUntilTheEnd();
  worker.join();
  EXPECT_EQ(trouble, "");
}

HWND CalendarsWindow() { return FindWindowW(nullptr, L"Calendars"); }

class WindowsOfAScript : public ::testing::Test {
 protected:
  Office office_{std::make_unique<contract::SqliteDatabase>()};
  RegisteredFile file_;
};

class WindowsOnAnyDatabase
    : public ::testing::TestWithParam<contract::DatabaseKind<contract::DatabaseUnderTest>> {
 protected:
  Office office_{GetParam().make()};
  RegisteredFile file_;
};

INSTANTIATE_TEST_SUITE_P(Engines, WindowsOnAnyDatabase,
                         ::testing::Values(
                             contract::DatabaseKind<contract::DatabaseUnderTest>{
                                 "Sqlite", [] { return std::make_unique<contract::SqliteDatabase>(); }},
                             contract::DatabaseKind<contract::DatabaseUnderTest>{
                                 "Odbc", [] { return std::make_unique<contract::OdbcDatabase>(); }}),
                         contract::KindName<contract::DatabaseKind<contract::DatabaseUnderTest>>);

TEST_F(WindowsOfAScript, OpenAndCloseInAHostWithALoopOfItsOwn) {
  RunInApartment([] {
    ScriptHost host;
    EXPECT_EQ(host.Run(kShow), "");
    EXPECT_NE(CalendarsWindow(), nullptr);
    LetWork([](const NativeOperator& somebody) {
      const HWND calendars = somebody.Window(L"Calendars");
      PostMessageW(calendars, WM_SYSCOMMAND, SC_CLOSE, 0);
      somebody.WaitUntilGone(calendars);
    });
    // The operator has closed it, and the host may open it anew.
    EXPECT_EQ(host.Run("calendar.Show"), "");
    EXPECT_NE(CalendarsWindow(), nullptr);
    EXPECT_EQ(host.Run(kClose), "");
    EXPECT_EQ(CalendarsWindow(), nullptr);
  });
}

/// The file whose code is behind the class of a window.
std::string FileBehind(HWND window) {
  HMODULE module = nullptr;
  GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                     reinterpret_cast<const wchar_t*>(GetClassLongPtrW(window, GCLP_WNDPROC)), &module);
  std::array<wchar_t, MAX_PATH> file{};
  GetModuleFileNameW(module, file.data(), MAX_PATH);
  return win32::FromWide(file.data());
}

TEST_F(WindowsOfAScript, AreThePresentControlsOfThePlatformAlthoughTheHostAsksForNone) {
  RunInApartment([] {
    ScriptHost host;
    EXPECT_EQ(host.Run(kShow), "");
    std::string file;
    LetWork([&file](const NativeOperator& somebody) {
      const HWND calendars = somebody.Window(L"Calendars");
      somebody.ClickNode(NativeOperator::Control(calendars, L"SysTreeView32"), L"EUR");
      somebody.ClickTool(NativeOperator::Control(calendars, L"ToolbarWindow32"), L"New");
      const HWND year = somebody.Window(L"Select year EUR currency");
      // Of buttons the platform has two kinds, one of which hosts without a manifest get.
      file = FileBehind(NativeOperator::Control(year, L"Button"));
      PressKey(VK_ESCAPE);
      somebody.WaitUntilGone(year);
    });
    EXPECT_THAT(file, HasSubstr("common-controls_6595b64144ccf1df_6."));
    EXPECT_EQ(host.Run(kClose), "");
  });
}

TEST_P(WindowsOnAnyDatabase, LetAnOperatorKeepACalendar) {
  RunInApartment([this] {
    ScriptHost host;
    ASSERT_EQ(host.Run(kShow), "");
    LetWork([this](const NativeOperator& somebody) {
      const HWND calendars = somebody.Window(L"Calendars");
      const HWND tree = NativeOperator::Control(calendars, L"SysTreeView32");
      const HWND tools = NativeOperator::Control(calendars, L"ToolbarWindow32");
      const HWND days = NativeOperator::Control(calendars, L"FerrowindPane", L"Days");

      // A new calendar.
      somebody.ClickNode(tree, L"EUR");
      somebody.ClickTool(tools, L"New");
      const HWND year = somebody.Window(L"Select year EUR currency");
      TypeKeys(L"2027");
      PressKey(VK_RETURN);
      somebody.WaitUntilGone(year);
      NativeOperator::WaitFor("days on show", [&] { return IsWindowEnabled(days) != 0; });

      // A new rule, of the first day of the year.
      const auto ask_for_menu_of_day = [&](int day_of_year) {
        NativeOperator::WaitFor("days on show", [&] { return IsWindowEnabled(days) != 0; });
        contract::ClickMouse(contract::MiddleOf(days));
        somebody.WaitForFocus(days);
        PressKey(VK_HOME);
        for (int day = 1; day < day_of_year; ++day) PressKey(VK_DOWN);
        PressKey(VK_APPS);
      };
      ask_for_menu_of_day(1);
      somebody.ChooseInMenu(L"Assign holiday for single day ...");
      const HWND holidays = somebody.Window(L"Assign holiday for single day");
      somebody.ClickButton(holidays, L"Add");
      const HWND editor = somebody.Window(L"Add holiday");
      somebody.WaitForFocus(NativeOperator::Control(editor, L"ComboBox"));
      TypeKeys(L"C");
      const HWND name = NativeOperator::Control(editor, L"Edit");
      NativeOperator::WaitFor("name to write", [&] { return IsWindowEnabled(name) != 0; });
      contract::ClickMouse(contract::MiddleOf(name));
      TypeKeys(L"Founders' day");
      // The date comes next, and today's stands in it.
      PressKey(VK_TAB);
      PressKey(VK_HOME);
      PressKey(VK_END, {VK_SHIFT});
      TypeKeys(L"1/1");
      somebody.ClickButton(editor, L"Ok");
      somebody.WaitUntilGone(editor);

      // The calendar takes it.
      const HWND rules = NativeOperator::Control(holidays, L"FerrowindPane", L"Holidays");
      contract::ClickMouse(contract::MiddleOf(rules));
      PressKey(VK_END);
      somebody.ClickButton(holidays, L"Assign");
      somebody.WaitUntilGone(holidays);
      NativeOperator::WaitFor("day with the rule",
                              [&] { return office_.OfDay(1, "Name1") == "Founders' day"; });

      // The day after it works by exception.
      ask_for_menu_of_day(2);
      somebody.ChooseInMenu(L"Except day from holidays list");
      NativeOperator::WaitFor("day by exception", [&] { return office_.OfDay(2, "ID2") == "1"; });
    });
    EXPECT_EQ(host.Run(kClose), "");
    EXPECT_EQ(office_.OfDay(1, "Name1"), "Founders' day");
    EXPECT_EQ(office_.OfDay(2, "ID2"), "1");
    EXPECT_EQ(office_.OfDay(2, "TID1"), "1");
    EXPECT_EQ(office_.OfDay(3, "ID2"), "");
  });
}

TEST_F(WindowsOfAScript, TellOfADatabaseThatFailsAndStayClosedWithTheCauseInTheTrace) {
  const contract::TemporaryFolder folder;
  const std::string trace = folder.File("trace.txt");
  WriteForComponent(L"TraceFile", win32::ToWide(trace));
  NameDatabase(L"sqlite:Z:\\nowhere\\calendars.db");
  RunInApartment([] {
    const contract::AnsweringOperator answers;
    ScriptHost host;
    EXPECT_EQ(host.Run(kShow), "");
    EXPECT_EQ(answers.AnsweredTexts(), std::vector<std::string>{"Tessaro Calendar. Can't load currency"});
    EXPECT_EQ(CalendarsWindow(), nullptr);
    EXPECT_EQ(host.Run(kClose), "");
  });
  std::ifstream file(platform::FilePath(trace));
  EXPECT_THAT(std::string(std::istreambuf_iterator<char>(file), {}), HasSubstr("calendars.db"));
}

TEST_F(WindowsOfAScript, TellThatNoDatabaseIsNamedAndOpenOnceOneIs) {
  RegDeleteTreeW(HKEY_CURRENT_USER, L"Software\\Tessaro");
  RunInApartment([this] {
    const contract::AnsweringOperator answers;
    ScriptHost host;
    EXPECT_EQ(host.Run(R"(Set calendar = CreateObject("Ferrowind.Calendar"))"), "");
    ASSERT_EQ(answers.AnsweredTexts().size(), 1U);
    const std::string& told = answers.AnsweredTexts()[0];
    EXPECT_EQ(told.substr(0, 53), "Error activate dictionary object. Error Number 429.\r\n");
    EXPECT_NE(told.find("ConnectionString in HKEY_CURRENT_USER\\Software\\Tessaro\\Ferrowind"),
              std::string::npos)
        << told;
    NameDatabase(win32::ToWide(office_.Database().ConnectionString()));
    EXPECT_EQ(host.Run("calendar.Show"), "");
    EXPECT_NE(CalendarsWindow(), nullptr);
    EXPECT_EQ(host.Run(kClose), "");
  });
}

TEST_F(WindowsOfAScript, GoWhenTheHostReleasesTheControlWithoutClosingThem) {
  RunInApartment([] {
    {
      ScriptHost host;
      EXPECT_EQ(host.Run(kShow), "");
    }
    contract::HandleMessages();
    EXPECT_EQ(CalendarsWindow(), nullptr);
  });
}

TEST_F(WindowsOfAScript, GoWithADialogThatIsOpenWhenTheHostEnds) {
  RunInApartment([this] {
    ScriptHost host;
    EXPECT_EQ(host.Run(kShow), "");
    // The operator leaves the question open, and the request to end reaches its message loop.
    LetWork([](const NativeOperator& somebody) {
      const HWND calendars = somebody.Window(L"Calendars");
      somebody.ClickNode(NativeOperator::Control(calendars, L"SysTreeView32"), L"EUR");
      somebody.ClickTool(NativeOperator::Control(calendars, L"ToolbarWindow32"), L"New");
      static_cast<void>(somebody.Window(L"Select year EUR currency"));
    });
    EXPECT_EQ(FindWindowW(nullptr, L"Select year EUR currency"), nullptr);
    EXPECT_EQ(host.Run(kClose), "");
    EXPECT_EQ(office_.OfDay(1, "TID1"), "");
  });
}

TEST(WindowsOfAProgram, AreNoTroubleWhenItEndsWithThemOpen) {
  contract::SqliteDatabase database;
  // Of the user whom the test runs as, since the script runs in a program of its own.
  NameDatabase(win32::ToWide(database.ConnectionString()));
  const RegisteredFile file;
  EXPECT_EQ(HostProcess(RunOfScript(win32::ToWide(FERROWIND_HOSTS "/left_open.vbs"))).Output(), "80040258\n");
}

}  // namespace
}  // namespace ferrowind::testing
