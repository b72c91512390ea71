#include "ferrowind/adapters/win32/services/win32_shared_services.h"

#include <optional>
#include <utility>

#include "ferrowind/adapters/operator_services/grid_services.h"
#include "ferrowind/adapters/operator_services/message_text.h"
#include "ferrowind/adapters/services/password_free.h"
#include "ferrowind/adapters/win32/base/wide_text.h"
#include "ferrowind/adapters/win32/base/window_thread.h"
#include "ferrowind/adapters/win32/forms/win32_form.h"
#include "ferrowind/adapters/win32/services/message_box.h"

namespace ferrowind::win32 {

using platform::Value;

namespace {

void Show(const std::string& text, const std::string& title, bool is_error, bool is_on_top) {
  ShowMessageBox({.title = ToWide(title),
                  .text = ToWide(PasswordFree(text)),
                  .is_error = is_error,
                  .is_on_top = is_on_top});
}

}  // namespace

Win32SharedServices::Win32SharedServices(RegistrySettings settings, std::shared_ptr<TraceSink> trace)
    : settings_(std::move(settings)), trace_(std::move(trace)) {}

// Settings and trace
// ------------------------------------------------------------------------------------------------

std::string Win32SharedServices::SettingsRoot() { return kComponentSettings; }

Value Win32SharedServices::ReadSetting(const std::string& section, const std::string& name,
                                       const Value& /*user*/, const Value& default_value) {
  return settings_.Read(section, name).value_or(default_value);
}

void Win32SharedServices::WriteSetting(const std::string& section, const std::string& name,
                                       const Value& value) {
  settings_.Write(section, name, value);
}

void Win32SharedServices::TraceMessage(const std::string& text) {
  if (trace_) trace_->Write(text);
  if (IsDebuggerPresent() != 0) OutputDebugStringW(ToWide(PasswordFree(text) + "\n").c_str());
}

// Messages
// ------------------------------------------------------------------------------------------------

std::int32_t Win32SharedServices::ShowMessage(const std::string& text, std::int32_t style,
                                              std::int32_t /*buttons*/, std::int32_t /*default_button*/,
                                              platform::Form* owner, const std::string& title, bool /*modal*/,
                                              bool on_top) {
  TraceMessage("Message: " + text);
  const auto thread = WindowThread::OfThisThread();
  std::optional<EventOf> on_behalf_of_owner;
  if (auto* const form = dynamic_cast<Win32Form*>(owner))
    on_behalf_of_owner.emplace(*thread, form->Window().Site());
  Show(text, title.empty() ? kComponentTitle : title, style == kErrorMessage, on_top);
  return kOkPressed;
}

void Win32SharedServices::ReportError(std::int32_t number, const std::string& description) {
  const std::string text = FailureReport(number, description);
  TraceMessage(text);
  Show(text, kComponentTitle, true, false);
}

// Grid services
// ------------------------------------------------------------------------------------------------

void Win32SharedServices::SortGridByColumn(std::int32_t sort_order, platform::Grid& grid,
                                           platform::GridColumn& column) {
  SortByColumn(sort_order, grid, column);
}

void Win32SharedServices::SaveGridLayout(platform::Grid& grid, const std::string& section) {
  StoreLayout(grid, *this, section);
}

void Win32SharedServices::LoadGridLayout(platform::Grid& grid, const std::string& section) {
  RestoreLayout(grid, *this, section);
}

void Win32SharedServices::CopyGridRows(platform::Grid& grid, bool with_headers) {
  CopyRows(grid, with_headers);
}

}  // namespace ferrowind::win32
