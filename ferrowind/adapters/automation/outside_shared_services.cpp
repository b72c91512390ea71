#include "ferrowind/adapters/automation/outside_shared_services.h"

#include <utility>
#include <vector>

#include "ferrowind/adapters/automation/variant_value.h"
#include "ferrowind/platform/values/conversion.h"
#include "ferrowind/platform/values/value.h"

namespace ferrowind::automation {
namespace {

using platform::Value;

OwnedVariant LeftOut() {
  OwnedVariant argument;
  V_VT(argument.Address()) = VT_ERROR;
  V_ERROR(argument.Address()) = DISP_E_PARAMNOTFOUND;
  return argument;
}

OwnedVariant NoObject() {
  OwnedVariant argument;
  V_VT(argument.Address()) = VT_DISPATCH;
  V_DISPATCH(argument.Address()) = nullptr;
  return argument;
}

template <typename... Arguments>
std::vector<OwnedVariant> List(Arguments&&... arguments) {
  std::vector<OwnedVariant> list;
  (list.push_back(std::forward<Arguments>(arguments)), ...);
  return list;
}

}  // namespace

OutsideSharedServices::OutsideSharedServices(OutsideCall object,
                                             std::shared_ptr<platform::SharedServices> own)
    : object_(*new OutsideCall(std::move(object))), own_(std::move(own)) {}

std::string OutsideSharedServices::SettingsRoot() {
  return platform::ToText(ValueOf(object_.Call("SettingsRoot").Get()));
}

Value OutsideSharedServices::ReadSetting(const std::string& section, const std::string& name,
                                         const Value& user, const Value& default_value) {
  const OwnedVariant stored = object_.Call(
      "ReadSetting", List(VariantOf(section), VariantOf(name), user.IsEmpty() ? LeftOut() : VariantOf(user),
                          VariantOf(default_value)));
  return ValueOf(stored.Get());
}

void OutsideSharedServices::WriteSetting(const std::string& section, const std::string& name,
                                         const Value& value) {
  static_cast<void>(
      object_.Call("WriteSetting", List(VariantOf(section), VariantOf(name), VariantOf(value))));
}

void OutsideSharedServices::TraceMessage(const std::string& text) {
  static_cast<void>(object_.Call("TraceMessage", List(VariantOf(text))));
}

std::int32_t OutsideSharedServices::ShowMessage(const std::string& text, std::int32_t style,
                                                std::int32_t buttons, std::int32_t default_button,
                                                platform::Form*, const std::string& title, bool modal,
                                                bool on_top) {
  const OwnedVariant answer = object_.Call(
      "ShowMessage", List(VariantOf(text), VariantOf(style), VariantOf(buttons), VariantOf(default_button),
                          NoObject(), VariantOf(title), VariantOf(modal), VariantOf(on_top)));
  const Value button = ValueOf(answer.Get());
  return button.IsEmpty() ? default_button : platform::ToInt32(button);
}

void OutsideSharedServices::ReportError(std::int32_t number, const std::string& description) {
  static_cast<void>(object_.Call("ReportError", List(VariantOf(number), VariantOf(description))));
}

void OutsideSharedServices::SortGridByColumn(std::int32_t sort_order, platform::Grid& grid,
                                             platform::GridColumn& column) {
  own_->SortGridByColumn(sort_order, grid, column);
}

void OutsideSharedServices::SaveGridLayout(platform::Grid& grid, const std::string& section) {
  own_->SaveGridLayout(grid, section);
}

void OutsideSharedServices::LoadGridLayout(platform::Grid& grid, const std::string& section) {
  own_->LoadGridLayout(grid, section);
}

void OutsideSharedServices::CopyGridRows(platform::Grid& grid, bool with_headers) {
  own_->CopyGridRows(grid, with_headers);
}

}  // namespace ferrowind::automation
