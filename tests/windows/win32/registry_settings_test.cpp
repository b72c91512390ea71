#include "ferrowind/adapters/win32/services/registry_settings.h"

#include <array>
#include <string>

#include <gtest/gtest.h>

#include "ferrowind/platform/values/failure.h"

namespace ferrowind::win32 {
namespace {

using platform::Value;

constexpr const wchar_t* kKey = L"Software\\FerrowindRegistrySettingsTest";

class RegistrySettingsTest : public testing::Test {
 protected:
  RegistrySettingsTest() { RegDeleteTreeW(HKEY_CURRENT_USER, kKey); }
  ~RegistrySettingsTest() override { RegDeleteTreeW(HKEY_CURRENT_USER, kKey); }

  static void Put(const wchar_t* name, DWORD type, const void* bytes, DWORD size) {
    const std::wstring key = std::wstring(kKey) + L"\\Window";
    ASSERT_EQ(RegSetKeyValueW(HKEY_CURRENT_USER, key.c_str(), name, type, bytes, size), ERROR_SUCCESS);
  }

  RegistrySettings settings_{kKey};
};

TEST_F(RegistrySettingsTest, StandInTheRegistryUnderTheirNames) {
  settings_.Write("\\Tessaro\\Window", "Left", 1200.5F);
  EXPECT_EQ(RegistryText(HKEY_CURRENT_USER, std::wstring(kKey) + L"\\Tessaro\\Window", L"Left"),
            "Single:1200.5");
}

TEST_F(RegistrySettingsTest, ComeBackAsTheyWere) {
  for (const Value& value : {Value(true), Value(7), Value(1200.5F), Value("text"), Value(""), Value("\u795D"),
                             Value(std::string("a\0b", 3))}) {
    settings_.Write("Window", "Any", value);
    EXPECT_EQ(settings_.Read("\\\\Window\\", "Any"), value);
  }
}

TEST_F(RegistrySettingsTest, OfOtherTypesAreNone) {
  constexpr DWORD kNumber = 7;
  Put(L"Number", REG_DWORD, &kNumber, sizeof kNumber);
  Put(L"Bytes", REG_BINARY, "abc", 3);
  Put(L"Texts", REG_MULTI_SZ, L"a\0b\0", 10);
  for (const char* name : {"Number", "Bytes", "Texts", "Nothing"})
    EXPECT_FALSE(settings_.Read("Window", name).has_value()) << name;
  EXPECT_FALSE(settings_.Read("Nowhere", "Left").has_value());
}

TEST_F(RegistrySettingsTest, ThatEndInTheMiddleOfACharacterOrWithoutAnEndAreReadAsFarAsTheyGo) {
  Put(L"Halved", REG_SZ, L"ab", 3);
  Put(L"Endless", REG_SZ, L"ab", 4);
  EXPECT_EQ(settings_.Read("Window", "Halved"), Value("a"));
  EXPECT_EQ(settings_.Read("Window", "Endless"), Value("ab"));
}

TEST_F(RegistrySettingsTest, LongerThanAnyOfOursAreNone) {
  const std::wstring text((1 << 19) + 1, L'x');
  Put(L"Long", REG_SZ, text.c_str(), static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t)));
  EXPECT_FALSE(settings_.Read("Window", "Long").has_value());
}

TEST_F(RegistrySettingsTest, ThatCannotBeWrittenAreToldWithTheirKeyAndTheReason) {
  // Below a key that lasts until the machine ends nothing that lasts can be made.
  HKEY key = nullptr;
  ASSERT_EQ(RegCreateKeyExW(HKEY_CURRENT_USER, kKey, 0, nullptr, REG_OPTION_VOLATILE, KEY_ALL_ACCESS, nullptr,
                            &key, nullptr),
            ERROR_SUCCESS);
  RegCloseKey(key);
  try {
    settings_.Write("Window", "Left", 1);
    ADD_FAILURE() << "The setting was written";
  } catch (const platform::Failure& failure) {
    const std::string start =
        "Cannot write the setting Left to "
        "HKEY_CURRENT_USER\\Software\\FerrowindRegistrySettingsTest\\Window: ";
    EXPECT_EQ(failure.Description().substr(0, start.size()), start);
    EXPECT_GT(failure.Description().size(), start.size());
  }
}

TEST_F(RegistrySettingsTest, TooLongToBeReadAgainAreNotWritten) {
  EXPECT_THROW(settings_.Write("Window", "Long", std::string(1 << 19, 'x')), platform::Failure);
  EXPECT_THROW(settings_.Write(std::string(300, 'x'), "Left", 1), platform::Failure);
}

}  // namespace
}  // namespace ferrowind::win32
