#include "ferrowind/adapters/windowless/windowless_platform.h"

#include <utility>

#include "ferrowind/adapters/services/desktop_dictionary.h"
#include "ferrowind/adapters/services/object_makers.h"
#include "ferrowind/adapters/services/system_clock.h"
#include "ferrowind/platform/database/engine_command.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind {
namespace {

namespace failure_number = platform::failure_number;

[[noreturn]] void RefuseWindow() {
  throw platform::Failure(failure_number::kCannotCreateObject, "This program has no windows");
}

/// Keeps no settings and shows nothing. Trace lines are dropped: they would hold the values of parameters.
class SilentServices : public platform::SharedServices {
 public:
  explicit SilentServices(WindowlessPlatform::Listener listener) : listener_(std::move(listener)) {}

  std::string SettingsRoot() override { return {}; }
  platform::Value ReadSetting(const std::string&, const std::string&, const platform::Value&,
                              const platform::Value& default_value) override {
    return default_value;
  }
  void WriteSetting(const std::string&, const std::string&, const platform::Value&) override {}
  void TraceMessage(const std::string&) override {}
  std::int32_t ShowMessage(const std::string& text, std::int32_t, std::int32_t, std::int32_t default_button,
                           platform::Form*, const std::string&, bool, bool) override {
    Tell(0, text);
    return default_button;
  }
  void ReportError(std::int32_t number, const std::string& description) override {
    Tell(number, description);
  }
  void SortGridByColumn(std::int32_t, platform::Grid&, platform::GridColumn&) override { RefuseWindow(); }
  void SaveGridLayout(platform::Grid&, const std::string&) override { RefuseWindow(); }
  void LoadGridLayout(platform::Grid&, const std::string&) override { RefuseWindow(); }
  void CopyGridRows(platform::Grid&, bool) override { RefuseWindow(); }

 private:
  void Tell(std::int32_t number, const std::string& text) {
    if (!listener_) RefuseWindow();
    listener_(number, text);
  }

  WindowlessPlatform::Listener listener_;
};

class NoToolkit : public platform::Toolkit {
 public:
  std::shared_ptr<platform::Form> CreateForm(const platform::FormDesign&) override { RefuseWindow(); }
  [[nodiscard]] platform::ScreenSize Screen() const override { return {}; }
  [[nodiscard]] float TwipsPerPixelX() const override { return 1440.0F / 96.0F; }
  bool LockUpdates(platform::Element&) override { return false; }
  void UnlockUpdates() override {}
  [[nodiscard]] platform::Subscription After(std::int32_t, std::function<void()>) override { return {}; }
  [[nodiscard]] std::optional<std::string> ChooseFileToSave(const std::string&, const std::string&,
                                                            const std::vector<platform::FileKind>&) override {
    RefuseWindow();
  }
  [[nodiscard]] std::optional<std::string> ChooseFileToOpen(const std::string&, const std::string&,
                                                            const std::vector<std::string>&) override {
    RefuseWindow();
  }
  void SetClipboardText(const std::string&) override {}
  void ProcessPendingEvents() override {}
  void Beep() override {}
};

/// Names are for windows only.
class NoLocale : public platform::Locale {
 public:
  [[nodiscard]] std::string MonthName(int) const override { RefuseWindow(); }
  [[nodiscard]] std::string WeekdayName(int) const override { RefuseWindow(); }
  [[nodiscard]] std::string DateText(const platform::Date&) const override { RefuseWindow(); }
  [[nodiscard]] std::string LongDateText(const platform::Date&) const override { RefuseWindow(); }
  [[nodiscard]] std::string LongDayText(const platform::Date&) const override { RefuseWindow(); }
  [[nodiscard]] platform::DateReading ReadDate(const std::string&, int) const override { RefuseWindow(); }
};

}  // namespace

struct WindowlessPlatform::Parts {
  Parts(const platform::EngineRegistry& engines, const std::string& connection_string, Listener listener)
      : commands(engines) {
    objects.Register(platform::kDictionaryIdentifier, [&engines, connection_string] {
      return std::make_shared<DesktopDictionary>(engines, connection_string);
    });
    objects.Register(platform::kSharedServicesIdentifier,
                     [listener = std::move(listener)] { return std::make_shared<SilentServices>(listener); });
  }

  ObjectMakers objects;
  platform::EngineCommandFactory commands;
  NoToolkit toolkit;
  NoLocale locale;
  SystemClock clock;
  platform::Platform platform{objects, commands, toolkit, locale, clock, {}};
};

WindowlessPlatform::WindowlessPlatform(const platform::EngineRegistry& engines,
                                       const std::string& connection_string, Listener listener)
    : parts_(std::make_unique<Parts>(engines, connection_string, std::move(listener))) {}

WindowlessPlatform::~WindowlessPlatform() = default;

const platform::Platform& WindowlessPlatform::Get() const { return parts_->platform; }

}  // namespace ferrowind
