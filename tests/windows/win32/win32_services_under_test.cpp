#include <algorithm>
#include <memory>

#include "ferrowind/adapters/headless/memory_engine.h"
#include "ferrowind/adapters/services/desktop_dictionary.h"
#include "ferrowind/adapters/services/object_makers.h"
#include "ferrowind/adapters/services/system_clock.h"
#include "ferrowind/adapters/win32/base/wide_text.h"
#include "ferrowind/adapters/win32/forms/win32_toolkit.h"
#include "ferrowind/adapters/win32/services/registry_settings.h"
#include "ferrowind/adapters/win32/services/win32_locale.h"
#include "ferrowind/adapters/win32/services/win32_shared_services.h"
#include "ferrowind/platform/database/engine_registry.h"
#include "ferrowind/platform/toolkit/form.h"

#include "tests/contract/services/services_under_test.h"
#include "tests/windows/win32/message_boxes.h"

namespace ferrowind::contract {
namespace {

constexpr const char* kConnection = "memory:contract";
constexpr const wchar_t* kSettings = L"Software\\FerrowindServicesContract";

win32::FormLayouts Layouts() {
  win32::FormLayouts layouts;
  layouts.Add("fmServices", {.places = {{.name = "gexRows", .stretch = 1}}});
  return layouts;
}

/// The services of native windows over a database in memory.
class Win32ServicesUnderTest : public ServicesUnderTest {
 public:
  Win32ServicesUnderTest() {
    RegDeleteTreeW(HKEY_CURRENT_USER, kSettings);
    engine_->CreateDatabase("contract");
    engines_.Register("memory", engine_);
    objects_.Register(platform::kDictionaryIdentifier,
                      [this] { return std::make_shared<DesktopDictionary>(engines_, kConnection); });
    objects_.Register(platform::kSharedServicesIdentifier,
                      [this] { return std::make_shared<win32::Win32SharedServices>(settings_); });
    form_->Show();
  }
  ~Win32ServicesUnderTest() override { RegDeleteTreeW(HKEY_CURRENT_USER, kSettings); }

  [[nodiscard]] platform::ObjectFactory& Objects() override { return objects_; }
  [[nodiscard]] const platform::Locale& Locale() override { return locale_; }
  [[nodiscard]] const platform::Clock& Clock() override { return clock_; }
  [[nodiscard]] std::string ConnectionString() override { return kConnection; }
  [[nodiscard]] platform::Grid& Grid() override {
    return platform::ControlOf<platform::Grid>(*form_, "gexRows");
  }
  [[nodiscard]] platform::Grid& AnotherGrid() override {
    another_.reset();
    another_ = toolkit_.CreateForm(Design());
    return platform::ControlOf<platform::Grid>(*another_, "gexRows");
  }
  [[nodiscard]] std::string Clipboard() override {
    OpenClipboard(nullptr);
    const HANDLE memory = GetClipboardData(CF_UNICODETEXT);
    std::wstring text;
    if (memory != nullptr) {
      text = static_cast<const wchar_t*>(GlobalLock(memory));
      GlobalUnlock(memory);
    }
    CloseClipboard();
    std::erase(text, L'\r');
    return win32::FromWide(text);
  }
  void DamageLayout(const std::string& section) override { settings_.Write(section, "Layout", "damaged"); }
  [[nodiscard]] std::vector<std::string> AnsweredTexts() override { return operator_.AnsweredTexts(); }

 private:
  static platform::FormDesign Design() {
    return {.name = "fmServices", .controls = {{platform::ControlKind::kGrid, "gexRows"}}};
  }

  win32::RegistrySettings settings_{kSettings};
  std::shared_ptr<headless::MemoryEngine> engine_ = std::make_shared<headless::MemoryEngine>();
  platform::EngineRegistry engines_;
  ObjectMakers objects_;
  win32::Win32Locale locale_;
  SystemClock clock_;
  win32::Win32Toolkit toolkit_{Layouts()};
  std::shared_ptr<platform::Form> form_ = toolkit_.CreateForm(Design());
  std::shared_ptr<platform::Form> another_;
  AnsweringOperator operator_;
};

}  // namespace

std::unique_ptr<ServicesUnderTest> MakeServicesUnderTest() {
  return std::make_unique<Win32ServicesUnderTest>();
}

}  // namespace ferrowind::contract
