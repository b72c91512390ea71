#include "ferrowind/adapters/headless/faulty_shared_services.h"

namespace ferrowind::headless {

std::string FaultySharedServices::SettingsRoot() {
  plan_.Pass("services.SettingsRoot");
  return inner_->SettingsRoot();
}

platform::Value FaultySharedServices::ReadSetting(const std::string& section, const std::string& name,
                                                  const platform::Value& user,
                                                  const platform::Value& default_value) {
  plan_.Pass("services.ReadSetting");
  return inner_->ReadSetting(section, name, user, default_value);
}

void FaultySharedServices::WriteSetting(const std::string& section, const std::string& name,
                                        const platform::Value& value) {
  plan_.Pass("services.WriteSetting");
  inner_->WriteSetting(section, name, value);
}

void FaultySharedServices::TraceMessage(const std::string& text) {
  plan_.Pass("services.TraceMessage");
  inner_->TraceMessage(text);
}

std::int32_t FaultySharedServices::ShowMessage(const std::string& text, std::int32_t style,
                                               std::int32_t buttons, std::int32_t default_button,
                                               platform::Form* owner, const std::string& title, bool modal,
                                               bool on_top) {
  plan_.Pass("services.ShowMessage");
  return inner_->ShowMessage(text, style, buttons, default_button, owner, title, modal, on_top);
}

void FaultySharedServices::ReportError(std::int32_t number, const std::string& description) {
  plan_.Pass("services.ReportError");
  inner_->ReportError(number, description);
}

void FaultySharedServices::SortGridByColumn(std::int32_t sort_order, platform::Grid& grid,
                                            platform::GridColumn& column) {
  plan_.Pass("services.SortGridByColumn");
  inner_->SortGridByColumn(sort_order, grid, column);
}

void FaultySharedServices::SaveGridLayout(platform::Grid& grid, const std::string& section) {
  plan_.Pass("services.SaveGridLayout");
  inner_->SaveGridLayout(grid, section);
}

void FaultySharedServices::LoadGridLayout(platform::Grid& grid, const std::string& section) {
  plan_.Pass("services.LoadGridLayout");
  inner_->LoadGridLayout(grid, section);
}

void FaultySharedServices::CopyGridRows(platform::Grid& grid, bool with_headers) {
  plan_.Pass("services.CopyGridRows");
  inner_->CopyGridRows(grid, with_headers);
}

}  // namespace ferrowind::headless
