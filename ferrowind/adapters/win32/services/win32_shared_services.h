#pragma once

#include <memory>
#include <string>

#include "ferrowind/adapters/services/trace_sink.h"
#include "ferrowind/adapters/win32/services/registry_settings.h"
#include "ferrowind/export.h"
#include "ferrowind/platform/services/shared_services.h"

namespace ferrowind::win32 {

/// The shared services on native windows: settings in the registry, messages by the platform's own boxes.
///
/// Trace goes to the host's sink, if any, and to a debugger that watches the host; messages and error reports
/// are traced there too. No password of a connection string gets into either, nor on the screen. Grid layouts
/// and copying need the grids of this toolkit; for another grid they do nothing.
class FERROWIND_EXPORT Win32SharedServices : public platform::SharedServices {
 public:
  /// `trace` may be null.
  explicit Win32SharedServices(RegistrySettings settings = RegistrySettings(),
                               std::shared_ptr<TraceSink> trace = nullptr);

  [[nodiscard]] std::string SettingsRoot() override;
  [[nodiscard]] platform::Value ReadSetting(const std::string& section, const std::string& name,
                                            const platform::Value& user,
                                            const platform::Value& default_value) override;
  void WriteSetting(const std::string& section, const std::string& name,
                    const platform::Value& value) override;
  void TraceMessage(const std::string& text) override;
  /// Always modal.
  std::int32_t ShowMessage(const std::string& text, std::int32_t style, std::int32_t buttons,
                           std::int32_t default_button, platform::Form* owner, const std::string& title,
                           bool modal, bool on_top) override;
  void ReportError(std::int32_t number, const std::string& description) override;
  void SortGridByColumn(std::int32_t sort_order, platform::Grid& grid, platform::GridColumn& column) override;
  void SaveGridLayout(platform::Grid& grid, const std::string& section) override;
  void LoadGridLayout(platform::Grid& grid, const std::string& section) override;
  void CopyGridRows(platform::Grid& grid, bool with_headers) override;

 private:
  RegistrySettings settings_;
  std::shared_ptr<TraceSink> trace_;
};

}  // namespace ferrowind::win32
