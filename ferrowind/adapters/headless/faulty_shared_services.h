#pragma once

#include <memory>
#include <string>
#include <utility>

#include "ferrowind/adapters/headless/fault_plan.h"
#include "ferrowind/platform/services/shared_services.h"

namespace ferrowind::headless {

/// Shared services of which every operation passes a plan first.
class FaultySharedServices : public platform::SharedServices {
 public:
  /// `plan` must outlive this.
  FaultySharedServices(std::shared_ptr<platform::SharedServices> inner, FaultPlan& plan)
      : inner_(std::move(inner)), plan_(plan) {}

  [[nodiscard]] std::string SettingsRoot() override;
  [[nodiscard]] platform::Value ReadSetting(const std::string& section, const std::string& name,
                                            const platform::Value& user,
                                            const platform::Value& default_value) override;
  void WriteSetting(const std::string& section, const std::string& name,
                    const platform::Value& value) override;
  void TraceMessage(const std::string& text) override;
  std::int32_t ShowMessage(const std::string& text, std::int32_t style, std::int32_t buttons,
                           std::int32_t default_button, platform::Form* owner, const std::string& title,
                           bool modal, bool on_top) override;
  void ReportError(std::int32_t number, const std::string& description) override;
  void SortGridByColumn(std::int32_t sort_order, platform::Grid& grid, platform::GridColumn& column) override;
  void SaveGridLayout(platform::Grid& grid, const std::string& section) override;
  void LoadGridLayout(platform::Grid& grid, const std::string& section) override;
  void CopyGridRows(platform::Grid& grid, bool with_headers) override;

 private:
  std::shared_ptr<platform::SharedServices> inner_;
  FaultPlan& plan_;
};

}  // namespace ferrowind::headless
