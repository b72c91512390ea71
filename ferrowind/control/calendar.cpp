#include "ferrowind/control/calendar.h"

#include <string>
#include <utility>

#include "ferrowind/control/component_error.h"
#include "ferrowind/control/default_headers.h"
#include "ferrowind/control/type_library.h"
#include "ferrowind/data/confirm.h"
#include "ferrowind/data/error_reporting.h"
#include "ferrowind/data/module_state.h"
#include "ferrowind/data/run_handler.h"
#include "ferrowind/data/runtime_failure.h"
#include "ferrowind/platform/values/conversion.h"
#include "ferrowind/platform/values/failure.h"
#include "ferrowind/views/calendars/calendars_window.h"
#include "ferrowind/views/calendars/fm_calendar.h"

namespace ferrowind {
namespace {

constexpr const char* kTitle = "Ferrowind";
constexpr float kSizeInPixels = 16;

/// A call of a control that runs handlers of the host, which may destroy the control.
class RunningCall {
 public:
  explicit RunningCall(const Calendar& control) : call_{&control, Module().innermost_call} {
    Module().innermost_call = &call_;
  }
  ~RunningCall() { Module().innermost_call = call_.outer; }
  RunningCall(const RunningCall&) = delete;
  RunningCall& operator=(const RunningCall&) = delete;

  [[nodiscard]] bool HasControl() const { return call_.control != nullptr; }

 private:
  ControlCall call_;
};

/// Has the calls of the control that are running know that it is gone.
void EndCallsOf(const Calendar& control) {
  for (ControlCall* call = Module().innermost_call; call != nullptr; call = call->outer) {
    if (call->control == &control) call->control = nullptr;
  }
}

}  // namespace

Calendar::Calendar(const platform::Platform& platform, platform::ControlSite* site)
    : platform_(platform), site_(site) {
  ++Module().controls;
  AttachPlatform(platform);
  const InSurroundings surroundings(platform);
  EnsureDictionary();
  AddDefaultHolidayHeaders(*HolidayHeaders());
  AddDefaultHeaders(*Headers());
  if (site_ != nullptr) {
    site_resized_ = site_->OnResize([this] { RunHandler(platform_, [this] { SnapToSize(); }); });
  }
}

// A window cannot outlive the control that it reports its closing to.
Calendar::~Calendar() {
  RunHandler(platform_, [this] { ForceClosing(); });
  DetachPlatform(platform_);
  EndCallsOf(*this);
  --Module().controls;
}

void Calendar::ReleaseThreadObjects() {
  ModuleState& module = Module();
  if (module.controls > 0) {
    throw platform::Failure(platform::failure_number::kInvalidArgument,
                            "The dictionary and the shared services are in use by a control of this thread");
  }
  // What they do while they end may need new ones, which stay.
  const auto dictionary = std::exchange(module.dictionary, nullptr);
  const auto shared_services = std::exchange(module.shared_services, nullptr);
}

bool Calendar::ForceClosing() {
  if (!frmCalendar_) return true;
  const InSurroundings surroundings(platform_);
  // Held here, because the window reports its closing, and the control then drops its reference, while this
  // call runs.
  const auto window = frmCalendar_;
  const RunningCall call(*this);
  if (!window->ForceClosing()) return false;
  if (call.HasControl() && frmCalendar_ == window) frmCalendar_OnClosing();
  return true;
}

void Calendar::Show() {
  const RunningCall call(*this);
  RunHandler(platform_, [this] { OpenWindow(); });
  if (call.HasControl() && !frmCalendar_) RunHandler(platform_, [this] { TellThatNothingCanBeTold(); });
}

void Calendar::OpenWindow() {
  if (frmCalendar_) return;
  RetryDictionary();
  const auto window = CreateCalendarsWindow();
  const auto headers = Headers();
  const auto holiday_headers = HolidayHeaders();
  const RunningCall call(*this);
  frmCalendar_ = window;
  window_closing_ = window->OnClosing([this] { frmCalendar_OnClosing(); });
  // A window that is not ready is not shown, and the reference stays until the window reports its closing, by
  // intention.
  if (window->Init(headers, holiday_headers) && call.HasControl()) window->Show();
}

void Calendar::frmCalendar_OnClosing() {
  window_closing_.Reset();
  frmCalendar_.reset();
}

std::shared_ptr<GridFields> Calendar::Headers() { return MapBeforeShow(headers_); }

std::shared_ptr<GridFields> Calendar::HolidayHeaders() { return MapBeforeShow(holiday_headers_); }

std::shared_ptr<GridFields> Calendar::MapBeforeShow(std::shared_ptr<GridFields>& map) const {
  if (frmCalendar_) throw platform::Failure(kComponentError, "Property is accessed only before show method");
  if (!map) map = std::make_shared<GridFields>();
  return map;
}

std::array<platform::Value, 5> Calendar::Version() {
  return {kTitle, type_library::kMajorVersion, type_library::kMinorVersion, type_library::kRevision,
          platform::Value()};
}

std::shared_ptr<CalendarsWindow> Calendar::CreateCalendarsWindow() { return fmCalendar::Create(platform_); }

void Calendar::EnsureDictionary() {
  try {
    EnsureDictionaryObject();
  } catch (...) {
    const platform::Failure failure = FailureBeingHandled();
    RunHandler([&failure] {
      SharedServicesObject().ShowMessage("Error activate dictionary object. Error Number " +
                                             platform::ToText(failure.Number()) + ".\r\n" +
                                             failure.Description(),
                                         kInformationStyle, 1, 1, nullptr, "", true, true);
    });
  }
}

// What fails again the window itself reports: it has no currencies.
void Calendar::RetryDictionary() {
  try {
    EnsureDictionaryObject();
  } catch (...) {
    TraceFailureBeingHandled();
  }
}

// Everything else is told by the shared services.
void Calendar::TellThatNothingCanBeTold() {
  std::string reason;
  try {
    static_cast<void>(SharedServicesObject());
    return;
  } catch (...) {
    reason = FailureBeingHandled().Description();
  }
  Inform(platform_.toolkit, kTitle, "The calendars cannot be opened. " + reason);
}

void Calendar::SnapToSize() {
  // The horizontal factor serves the height too.
  const float size = kSizeInPixels * platform_.toolkit.TwipsPerPixelX();
  site_->SetSize(size, size);
}

}  // namespace ferrowind
