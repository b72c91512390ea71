// The file itself: what it says of itself, how it is registered, and hosts in other apartments and programs.

#include "tests/windows/automation/server_file.h"

#include <fstream>
#include <iterator>
#include <string>
#include <thread>
#include <vector>

#include <windows.h>
#include <gtest/gtest.h>
#include <winver.h>

#include "ferrowind/adapters/automation/com_pointer.h"

#include "generated/ferrowind.h"
#include "tests/windows/automation/control_thread.h"
#include "tests/windows/automation/host_process.h"
#include "tests/windows/automation/late_call.h"
#include "tests/windows/automation/own_registry.h"
#include "tests/windows/automation/registered_file.h"

namespace ferrowind::testing {
namespace {

using automation::ComPointer;
using platform::Value;

/// Controls look for no database until they show their windows.
constexpr const wchar_t* kNowhere = L"sqlite:Z:\\nowhere\\calendars.db";

constexpr const wchar_t* kClasses = L"Software\\Classes";
constexpr const wchar_t* kClassKey = L"CLSID\\{DED80419-449B-11D6-8AE6-0050228F1EE8}";

/// What is registered for the present user, in a registry of the test's own.
class UserClasses {
 public:
  /// A key below the classes in which no other that lasts can be made.
  void CloseOff(const std::wstring& key) const {
    HKEY closed = nullptr;
    const std::wstring path = std::wstring(kClasses) + L"\\" + key;
    EXPECT_EQ(RegCreateKeyExW(HKEY_CURRENT_USER, path.c_str(), 0, nullptr, REG_OPTION_VOLATILE,
                              KEY_ALL_ACCESS, nullptr, &closed, nullptr),
              ERROR_SUCCESS);
    RegCloseKey(closed);
  }
  [[nodiscard]] static std::vector<std::wstring> KeysBelowClasses() {
    std::vector<std::wstring> names;
    HKEY classes = nullptr;
    if (RegOpenKeyExW(HKEY_CURRENT_USER, kClasses, 0, KEY_READ, &classes) != ERROR_SUCCESS) return names;
    wchar_t name[256];
    DWORD length = std::size(name);
    for (DWORD i = 0;
         RegEnumKeyExW(classes, i, name, &length, nullptr, nullptr, nullptr, nullptr) == ERROR_SUCCESS;
         ++i, length = std::size(name)) {
      names.emplace_back(name);
    }
    RegCloseKey(classes);
    return names;
  }
  [[nodiscard]] static std::wstring Text(const std::wstring& key, const wchar_t* name = L"") {
    wchar_t text[MAX_PATH] = {};
    DWORD size = sizeof text;
    const std::wstring path = std::wstring(kClasses) + L"\\" + key;
    RegGetValueW(HKEY_CURRENT_USER, path.c_str(), name, RRF_RT_REG_SZ, nullptr, text, &size);
    return text;
  }

 private:
  OwnRegistry registry_;
};

TEST(ServerFileVersion, IsOfFourParts) {
  const std::wstring path = ServerFile().Path();
  std::vector<char> information(GetFileVersionInfoSizeW(path.c_str(), nullptr));
  ASSERT_TRUE(
      GetFileVersionInfoW(path.c_str(), 0, static_cast<DWORD>(information.size()), information.data()));
  VS_FIXEDFILEINFO* fixed = nullptr;
  UINT size = 0;
  ASSERT_TRUE(VerQueryValueW(information.data(), L"\\", reinterpret_cast<void**>(&fixed), &size));
  EXPECT_EQ(fixed->dwFileVersionMS, 0x00010002U);
  EXPECT_EQ(fixed->dwFileVersionLS, 0x0000000AU);
}

TEST(ServerRegistration, OfThePresentUserWritesAllThatHostsLookUpAndTakesItAway) {
  const UserClasses registry;
  const ServerFile file;
  ASSERT_EQ(file.Install(true, L"user"), S_OK);
  const std::wstring class_key = kClassKey;
  EXPECT_EQ(registry.Text(L"Ferrowind.Calendar\\CLSID"), L"{DED80419-449B-11D6-8AE6-0050228F1EE8}");
  EXPECT_EQ(registry.Text(class_key + L"\\InprocServer32"), file.Path());
  EXPECT_EQ(registry.Text(class_key + L"\\InprocServer32", L"ThreadingModel"), L"Apartment");
  EXPECT_EQ(registry.Text(class_key + L"\\ProgID"), L"Ferrowind.Calendar");
  EXPECT_EQ(registry.Text(class_key + L"\\MiscStatus\\1"), L"132497");
  const std::wstring library = registry.Text(class_key + L"\\TypeLib");
  EXPECT_EQ(registry.Text(L"TypeLib\\" + library + L"\\1.0\\0\\win64"), file.Path());
  EXPECT_EQ(registry.Text(L"Interface\\{03C0325A-44B4-11D6-8AE6-0050228F1EE8}\\TypeLib"), library);
  ASSERT_EQ(file.Install(false, L"user"), S_OK);
  for (const auto& group : {L"CLSID", L"Interface", L"TypeLib"}) {
    HKEY key = nullptr;
    DWORD count = 99;
    const std::wstring path = std::wstring(kClasses) + L"\\" + group;
    ASSERT_EQ(RegOpenKeyExW(HKEY_CURRENT_USER, path.c_str(), 0, KEY_READ, &key), ERROR_SUCCESS);
    EXPECT_EQ(RegQueryInfoKeyW(key, nullptr, nullptr, nullptr, &count, nullptr, nullptr, nullptr, nullptr,
                               nullptr, nullptr, nullptr),
              ERROR_SUCCESS);
    RegCloseKey(key);
    EXPECT_EQ(count, 0U) << automation::Utf8(group);
  }
  EXPECT_EQ(registry.Text(L"Ferrowind.Calendar"), L"");
}

TEST(ServerRegistration, LeavesNothingHalfDoneWhereItIsRefused) {
  const UserClasses registry;
  const ServerFile file;
  registry.CloseOff(L"Interface");
  EXPECT_EQ(file.Install(true, L"user"), HRESULT_FROM_WIN32(ERROR_CHILD_MUST_BE_VOLATILE));
  EXPECT_EQ(registry.KeysBelowClasses(), std::vector<std::wstring>{L"Interface"});
}

TEST(ServerRegistration, PutsBackWhatItReplacedWhereItIsRefused) {
  const UserClasses registry;
  const ServerFile file;
  const std::wstring key = std::wstring(kClasses) + L"\\" + kClassKey + L"\\InprocServer32";
  const std::wstring other = L"C:\\other.dll";
  ASSERT_EQ(RegSetKeyValueW(HKEY_CURRENT_USER, key.c_str(), nullptr, REG_SZ, other.c_str(),
                            static_cast<DWORD>((other.size() + 1) * sizeof(wchar_t))),
            ERROR_SUCCESS);
  registry.CloseOff(L"Interface");
  EXPECT_NE(file.Install(true, L"user"), S_OK);
  EXPECT_EQ(registry.Text(std::wstring(kClassKey) + L"\\InprocServer32"), other);
  EXPECT_EQ(registry.Text(std::wstring(kClassKey) + L"\\InprocServer32", L"ThreadingModel"), L"");
}

TEST(ServerRegistration, RefusesACommandLineThatItDoesNotKnow) {
  const UserClasses registry;
  EXPECT_EQ(ServerFile().Install(true, L"everybody"), E_INVALIDARG);
  EXPECT_TRUE(registry.KeysBelowClasses().empty());
}

TEST(ServerClassObject, IsOfTheControlOnly) {
  const ServerFile file;
  void* object = nullptr;
  EXPECT_EQ(file.ClassObject(__uuidof(::GridFields), __uuidof(IClassFactory), &object),
            CLASS_E_CLASSNOTAVAILABLE);
  EXPECT_EQ(file.ClassObject(__uuidof(::Calendar), __uuidof(IClassFactory), nullptr), E_POINTER);
  EXPECT_EQ(file.ClassObject(__uuidof(::Calendar), __uuidof(_Calendar), &object), E_NOINTERFACE);
  EXPECT_EQ(object, nullptr);
}

TEST(ServerFileUnloading, WaitsForTheLastObjectAndLock) {
  const OwnRegistry registry;
  NameDatabase(kNowhere);
  RunInApartment([] {
    const ServerFile file;
    EXPECT_EQ(file.CanUnload(), S_OK);
    ComPointer<IClassFactory> factory;
    ASSERT_EQ(file.ClassObject(__uuidof(::Calendar), __uuidof(*factory.Get()), factory.ReceiveAny()), S_OK);
    EXPECT_EQ(file.CanUnload(), S_FALSE);
    ASSERT_EQ(factory->LockServer(TRUE), S_OK);
    factory.Reset();
    EXPECT_EQ(file.CanUnload(), S_FALSE);
    ASSERT_EQ(file.ClassObject(__uuidof(::Calendar), __uuidof(*factory.Get()), factory.ReceiveAny()), S_OK);
    ASSERT_EQ(factory->LockServer(FALSE), S_OK);
    ComPointer<IDispatch> control;
    ASSERT_EQ(factory->CreateInstance(nullptr, __uuidof(*control.Get()), control.ReceiveAny()), S_OK);
    factory.Reset();
    EXPECT_EQ(file.CanUnload(), S_FALSE);
    control.Reset();
    EXPECT_EQ(file.CanUnload(), S_OK);
  });
}

TEST(ServerFileUnloading, IsPossibleAfterAThousandCyclesAndTheFileComesAgain) {
  const OwnRegistry registry;
  NameDatabase(kNowhere);
  const RegisteredFile registered;
  RunInApartment([&registered] {
    for (int i = 0; i < 1000; ++i) ASSERT_NE(CreateByName(), nullptr);
    CoFreeUnusedLibraries();
    EXPECT_EQ(registered.file.CanUnload(), S_OK);
    EXPECT_EQ(ValueLate(*CreateByName().Get(), L"ForceClosing"), Value(true));
  });
}

TEST(ServerInAnotherApartment, IsCalledThroughThePlatform) {
  const OwnRegistry registry;
  NameDatabase(kNowhere);
  const RegisteredFile registered;
  RunInApartment([] {
    const auto control = CreateByName();
    ComPointer<IStream> stream;
    ASSERT_EQ(CoMarshalInterThreadInterfaceInStream(__uuidof(_Calendar), control.Get(), stream.Receive()),
              S_OK);
    const DWORD home = GetCurrentThreadId();
    std::thread caller([&stream, home, own = control.Get()] {
      {
        const Apartment apartment;
        ComPointer<_Calendar> marshalled;
        EXPECT_EQ(
            CoGetInterfaceAndReleaseStream(stream.Detach(), __uuidof(_Calendar), marshalled.ReceiveAny()),
            S_OK);
        EXPECT_NE(marshalled.Get(), own);
        ComPointer<_GridFields> map;
        EXPECT_EQ(marshalled->get_Headers(map.Receive()), S_OK);
        EXPECT_EQ(CallLate(*map.Get(), L"Add", Late("Mine"), Late("F1")).result, S_OK);
        LONG count = 0;
        EXPECT_EQ(map->get_Count(&count), S_OK);
        EXPECT_EQ(count, 10);
      }
      PostThreadMessageW(home, WM_QUIT, 0, 0);
    });
    MSG message;
    while (GetMessageW(&message, nullptr, 0, 0) > 0) DispatchMessageW(&message);
    caller.join();
  });
}

TEST(ServerInAScript, ChangesColumnsAndTellsWhatIsRefused) {
  const RegisteredFile registered;
  // Of the user whom the test runs as, since the script runs in a program of its own.
  NameDatabase(kNowhere);
  const std::string folder = FERROWIND_HOSTS;
  const HostProcess host(RunOfScript(automation::Utf16(folder + "/late_bound.vbs")));
  std::ifstream file(folder + "/late_bound.txt");
  const std::string expected{std::istreambuf_iterator<char>(file), {}};
  ASSERT_FALSE(expected.empty());
  EXPECT_EQ(host.Output(), expected);
}

}  // namespace
}  // namespace ferrowind::testing
