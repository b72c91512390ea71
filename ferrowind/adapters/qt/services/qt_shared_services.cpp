#include "ferrowind/adapters/qt/services/qt_shared_services.h"

#include <QLoggingCategory>
#include <utility>

#include "ferrowind/adapters/operator_services/grid_services.h"
#include "ferrowind/adapters/operator_services/message_text.h"
#include "ferrowind/adapters/qt/controls/element.h"
#include "ferrowind/adapters/qt/services/message_box.h"
#include "ferrowind/adapters/qt/values/qt_text.h"
#include "ferrowind/adapters/services/password_free.h"
#include "ferrowind/platform/toolkit/form.h"
#include "ferrowind/platform/toolkit/grid.h"

namespace ferrowind::qt {

using platform::Value;

namespace {

Q_LOGGING_CATEGORY(trace_log, "ferrowind.trace", QtWarningMsg)

QWidget* WindowOf(platform::Form* form) {
  auto* element = dynamic_cast<WidgetElement*>(form);
  return element == nullptr ? nullptr : &element->ElementWidget();
}

}  // namespace

QtSharedServices::QtSharedServices(SettingsStore settings, std::shared_ptr<TraceSink> trace)
    : settings_(std::move(settings)), trace_(std::move(trace)) {}

// Settings and trace
// ------------------------------------------------------------------------------------------------

std::string QtSharedServices::SettingsRoot() { return kComponentSettings; }

Value QtSharedServices::ReadSetting(const std::string& section, const std::string& name,
                                    const Value& /*user*/, const Value& default_value) {
  return settings_.Read(section, name).value_or(default_value);
}

void QtSharedServices::WriteSetting(const std::string& section, const std::string& name, const Value& value) {
  settings_.Write(section, name, value);
}

void QtSharedServices::TraceMessage(const std::string& text) {
  if (trace_) trace_->Write(text);
  qCDebug(trace_log).noquote() << ToQt(PasswordFree(text));
}

// Messages
// ------------------------------------------------------------------------------------------------

std::int32_t QtSharedServices::ShowMessage(const std::string& text, std::int32_t style,
                                           std::int32_t /*buttons*/, std::int32_t /*default_button*/,
                                           platform::Form* owner, const std::string& title, bool modal,
                                           bool on_top) {
  TraceMessage("Message: " + text);
  ShowMessageBox({.title = ToQt(title.empty() ? kComponentTitle : title),
                  .text = ToQt(PasswordFree(text)),
                  .is_error = style == kErrorMessage,
                  .is_modal = modal,
                  .is_on_top = on_top,
                  .owner = WindowOf(owner)});
  return kOkPressed;
}

void QtSharedServices::ReportError(std::int32_t number, const std::string& description) {
  const std::string text = FailureReport(number, description);
  TraceMessage(text);
  ShowMessageBox({.title = ToQt(kComponentTitle), .text = ToQt(PasswordFree(text)), .is_error = true});
}

// Grid services
// ------------------------------------------------------------------------------------------------

void QtSharedServices::SortGridByColumn(std::int32_t sort_order, platform::Grid& grid,
                                        platform::GridColumn& column) {
  SortByColumn(sort_order, grid, column);
}

void QtSharedServices::SaveGridLayout(platform::Grid& grid, const std::string& section) {
  StoreLayout(grid, *this, section);
}

void QtSharedServices::LoadGridLayout(platform::Grid& grid, const std::string& section) {
  RestoreLayout(grid, *this, section);
}

void QtSharedServices::CopyGridRows(platform::Grid& grid, bool with_headers) { CopyRows(grid, with_headers); }

}  // namespace ferrowind::qt
