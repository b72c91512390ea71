#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "ferrowind/adapters/automation/outside_call.h"
#include "ferrowind/platform/services/shared_services.h"

namespace ferrowind::automation {

/// The shared services object of the host's product family: its settings, trace and messages. What it would
/// do to a grid ours do, since it knows none of this toolkit's.
///
/// Never released, as `OutsideDictionary`.
class OutsideSharedServices : public platform::SharedServices {
 public:
  /// `own` is not null.
  OutsideSharedServices(OutsideCall object, std::shared_ptr<platform::SharedServices> own);

  [[nodiscard]] std::string SettingsRoot() override;
  [[nodiscard]] platform::Value ReadSetting(const std::string& section, const std::string& name,
                                            const platform::Value& user,
                                            const platform::Value& default_value) override;
  void WriteSetting(const std::string& section, const std::string& name,
                    const platform::Value& value) override;
  void TraceMessage(const std::string& text) override;
  /// Without an owner, whatever it is: none of this toolkit's is an object that it knows.
  std::int32_t ShowMessage(const std::string& text, std::int32_t style, std::int32_t buttons,
                           std::int32_t default_button, platform::Form* owner, const std::string& title,
                           bool modal, bool on_top) override;
  void ReportError(std::int32_t number, const std::string& description) override;
  void SortGridByColumn(std::int32_t sort_order, platform::Grid& grid, platform::GridColumn& column) override;
  void SaveGridLayout(platform::Grid& grid, const std::string& section) override;
  void LoadGridLayout(platform::Grid& grid, const std::string& section) override;
  void CopyGridRows(platform::Grid& grid, bool with_headers) override;

 private:
  const OutsideCall& object_;
  std::shared_ptr<platform::SharedServices> own_;
};

}  // namespace ferrowind::automation
