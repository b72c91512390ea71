#include "ferrowind/views/common/window_placement.h"

#include "ferrowind/data/ignoring_failure.h"
#include "ferrowind/data/module_state.h"
#include "ferrowind/platform/values/conversion.h"

namespace ferrowind {
namespace {

using platform::Form;

constexpr const char* kComponentSection = "\\Calendar\\7E34C663-43BF-11d6-8AE5-0050228F1EE8\\";

using Getter = float (Form::*)() const;
using Setter = void (Form::*)(float);

struct PlacementSetting {
  const char* name;
  Getter get;
  Setter set;
};

/// In the order in which they are stored and restored.
constexpr PlacementSetting kPlacement[] = {
    {"Left", &Form::Left, &Form::SetLeft},
    {"Top", &Form::Top, &Form::SetTop},
    {"Width", &Form::Width, &Form::SetWidth},
    {"Height", &Form::Height, &Form::SetHeight},
};

}  // namespace

void SaveWindowPlacement(const Form& window, const std::string& section) {
  for (const auto& setting : kPlacement) {
    SharedServicesObject().WriteSetting(section, setting.name, (window.*setting.get)());
  }
}

void RestoreWindowPlacement(const platform::Toolkit& toolkit, Form& window, const std::string& section) {
  IgnoringFailure([&] { window.SetLeft((toolkit.Screen().width - window.Width()) / 2); });
  IgnoringFailure([&] { window.SetTop((toolkit.Screen().height - window.Height()) / 2); });
  for (const auto& setting : kPlacement) {
    IgnoringFailure([&] {
      const platform::Value stored =
          SharedServicesObject().ReadSetting(section, setting.name, {}, (window.*setting.get)());
      (window.*setting.set)(platform::ToSingle(stored));
    });
  }
}

std::string SettingsSectionOf(const std::string& window) {
  return SharedServicesObject().SettingsRoot() + kComponentSection + window;
}

void StoredPlacement::Restore(const platform::Toolkit& toolkit, platform::Form& window) {
  section_ = SettingsSectionOf(window_);
  RestoreWindowPlacement(toolkit, window, section_);
}

}  // namespace ferrowind
