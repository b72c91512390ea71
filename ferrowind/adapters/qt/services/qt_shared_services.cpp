#include "ferrowind/adapters/qt/services/qt_shared_services.h"

#include <QLoggingCategory>
#include <array>
#include <cstdio>
#include <utility>

#include "ferrowind/adapters/qt/controls/element.h"
#include "ferrowind/adapters/qt/grid/qt_grid.h"
#include "ferrowind/adapters/qt/services/message_box.h"
#include "ferrowind/adapters/qt/values/qt_text.h"
#include "ferrowind/adapters/services/password_free.h"
#include "ferrowind/platform/toolkit/form.h"
#include "ferrowind/platform/toolkit/grid.h"

namespace ferrowind::qt {

using platform::Value;

namespace {

Q_LOGGING_CATEGORY(trace_log, "ferrowind.trace", QtWarningMsg)

constexpr const char* kComponentName = "Ferrowind";
constexpr const char* kSettingsRoot = "\\Tessaro";
constexpr const char* kLayoutName = "Layout";
constexpr std::int32_t kErrorStyle = 3;
constexpr std::int32_t kOkPressed = 1;

/// As operators know numbers from manuals: in decimal, and in hexadecimal where it is a code of many digits.
std::string NumberText(std::int32_t number) {
  std::string text = std::to_string(number);
  if (number >= 0 && number <= 0xFFFF) return text;
  std::array<char, 16> hexadecimal{};
  std::snprintf(hexadecimal.data(), hexadecimal.size(), "0x%08X", static_cast<unsigned>(number));
  return text + " (" + hexadecimal.data() + ")";
}

/// A leading backslash changes nothing.
std::string PathOf(const std::string& section) {
  return section.starts_with('\\') ? section.substr(1) : section;
}

QWidget* WindowOf(platform::Form* form) {
  auto* element = dynamic_cast<WidgetElement*>(form);
  return element == nullptr ? nullptr : &element->ElementWidget();
}

}  // namespace

QtSharedServices::QtSharedServices(SettingsStore settings, std::shared_ptr<TraceSink> trace)
    : settings_(std::move(settings)), trace_(std::move(trace)) {}

// Settings and trace
// ------------------------------------------------------------------------------------------------

std::string QtSharedServices::SettingsRoot() { return kSettingsRoot; }

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
  ShowMessageBox({.title = ToQt(title.empty() ? kComponentName : title),
                  .text = ToQt(PasswordFree(text)),
                  .is_error = style == kErrorStyle,
                  .is_modal = modal,
                  .is_on_top = on_top,
                  .owner = WindowOf(owner)});
  return kOkPressed;
}

void QtSharedServices::ReportError(std::int32_t number, const std::string& description) {
  const std::string text = "Error " + NumberText(number) + ".\n" + description;
  TraceMessage(text);
  ShowMessageBox({.title = ToQt(kComponentName), .text = ToQt(PasswordFree(text)), .is_error = true});
}

// Grid services
// ------------------------------------------------------------------------------------------------

void QtSharedServices::SortGridByColumn(std::int32_t sort_order, platform::Grid& grid,
                                        platform::GridColumn& column) {
  grid.SortKeys().Clear();
  if (sort_order != platform::kSortNone) grid.SortKeys().Add(column.Index(), sort_order, 0);
  grid.Refresh(false);
}

Value QtSharedServices::StoredLayout(const std::string& section) {
  return ReadSetting(section, kLayoutName, Value(), Value());
}

void QtSharedServices::SaveGridLayout(platform::Grid& grid, const std::string& section) {
  auto* qt_grid = dynamic_cast<QtGrid*>(&grid);
  if (qt_grid == nullptr) return;
  const std::string layout = qt_grid->SaveLayout();
  if (layout.empty()) return;
  const bool is_known = qt_grid->LayoutSections().contains(PathOf(section));
  if (!is_known && !StoredLayout(section).IsEmpty()) {
    TraceMessage("The layout of the grid " + grid.Name() + " in the settings was not loaded; kept");
    return;
  }
  WriteSetting(section, kLayoutName, layout);
  qt_grid->LayoutSections().insert(PathOf(section));
}

void QtSharedServices::LoadGridLayout(platform::Grid& grid, const std::string& section) {
  auto* qt_grid = dynamic_cast<QtGrid*>(&grid);
  if (qt_grid == nullptr) return;
  const Value stored = StoredLayout(section);
  qt_grid->LayoutSections().insert(PathOf(section));
  if (stored.IsEmpty()) return;
  const auto* layout = stored.If<std::string>();
  if (layout == nullptr || !qt_grid->RestoreLayout(*layout)) {
    TraceMessage("The layout of the grid " + grid.Name() +
                 " in the settings is damaged or not the grid's; ignored");
  }
}

void QtSharedServices::CopyGridRows(platform::Grid& grid, bool with_headers) {
  if (const auto* qt_grid = dynamic_cast<QtGrid*>(&grid)) qt_grid->CopyRows(with_headers);
}

}  // namespace ferrowind::qt
