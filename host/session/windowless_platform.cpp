#include "host/session/windowless_platform.h"

#include "ferrowind/adapters/services/desktop_dictionary.h"
#include "ferrowind/platform/database/engine_command.h"
#include "ferrowind/platform/values/failure.h"

#include "host/session/system_clock.h"

namespace ferrowind::host {
namespace {

namespace failure_number = platform::failure_number;

[[noreturn]] void RefuseWindow() {
  throw platform::Failure(failure_number::kCannotCreateObject, "This program has no windows");
}

/// Keeps no settings and shows nothing. Trace lines are dropped: they would hold the values of parameters.
class SilentServices : public platform::SharedServices {
 public:
  std::string SettingsRoot() override { return {}; }
  platform::Value ReadSetting(const std::string&, const std::string&, const platform::Value&,
                              const platform::Value& default_value) override {
    return default_value;
  }
  void WriteSetting(const std::string&, const std::string&, const platform::Value&) override {}
  void TraceMessage(const std::string&) override {}
  std::int32_t ShowMessage(const std::string&, std::int32_t, std::int32_t, std::int32_t, platform::Form*,
                           const std::string&, bool, bool) override {
    RefuseWindow();
  }
  void ReportError(std::int32_t, const std::string&) override { RefuseWindow(); }
  void SortGridByColumn(std::int32_t, platform::Grid&, platform::GridColumn&) override { RefuseWindow(); }
  void SaveGridLayout(platform::Grid&, const std::string&) override { RefuseWindow(); }
  void LoadGridLayout(platform::Grid&, const std::string&) override { RefuseWindow(); }
  void CopyGridRows(platform::Grid&, bool) override { RefuseWindow(); }
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

class DatabaseObjects : public platform::ObjectFactory {
 public:
  DatabaseObjects(const platform::EngineRegistry& engines, const std::string& connection_string)
      : engines_(engines), connection_string_(connection_string) {}

  std::shared_ptr<platform::OutsideObject> CreateObject(const std::string& identifier) override {
    if (identifier == platform::kDictionaryIdentifier) {
      return std::make_shared<DesktopDictionary>(engines_, connection_string_);
    }
    if (identifier == platform::kSharedServicesIdentifier) return std::make_shared<SilentServices>();
    throw platform::Failure(failure_number::kCannotCreateObject,
                            "No object is registered under " + identifier);
  }

 private:
  const platform::EngineRegistry& engines_;
  std::string connection_string_;
};

}  // namespace

struct WindowlessPlatform::Parts {
  Parts(const platform::EngineRegistry& engines, const std::string& connection_string)
      : objects(engines, connection_string), commands(engines) {}

  DatabaseObjects objects;
  platform::EngineCommandFactory commands;
  NoToolkit toolkit;
  NoLocale locale;
  SystemClock clock;
  platform::Platform platform{objects, commands, toolkit, locale, clock, {}};
};

WindowlessPlatform::WindowlessPlatform(const platform::EngineRegistry& engines,
                                       const std::string& connection_string)
    : parts_(std::make_unique<Parts>(engines, connection_string)) {}

WindowlessPlatform::~WindowlessPlatform() = default;

const platform::Platform& WindowlessPlatform::Get() const { return parts_->platform; }

}  // namespace ferrowind::host
