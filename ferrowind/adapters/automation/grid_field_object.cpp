#include "ferrowind/adapters/automation/grid_field_object.h"

#include <utility>

#include "ferrowind/adapters/automation/owned_bstr.h"
#include "ferrowind/adapters/automation/text.h"

namespace ferrowind::automation {
namespace {

constexpr DISPID kGetIndex = 1;

VARIANT_BOOL BoolOf(bool value) { return value ? VARIANT_TRUE : VARIANT_FALSE; }

}  // namespace

GridFieldObject::GridFieldObject(std::shared_ptr<GridField> field)
    : EventSource({__uuidof(::GridField), __uuidof(_GridField), __uuidof(__GridField)}),
      field_(std::move(field)),
      asked_for_index_(field_->OnGetIndex(
          [this](std::string& local_name, std::int32_t& index) { RaiseGetIndex(local_name, index); })) {}

HRESULT GridFieldObject::get_FieldName(BSTR* value) {
  if (value == nullptr) return E_POINTER;
  return Guard([&] { *value = NewBstr(field_->FieldName()); });
}

HRESULT GridFieldObject::put_FieldName(BSTR value) {
  return Guard([&] { field_->SetFieldName(Utf8OfBstr(value)); });
}

HRESULT GridFieldObject::get_Visible(VARIANT_BOOL* value) {
  if (value == nullptr) return E_POINTER;
  *value = BoolOf(field_->Visible());
  return S_OK;
}

HRESULT GridFieldObject::put_Visible(VARIANT_BOOL value) {
  return Guard([&] { field_->SetVisible(value != VARIANT_FALSE); });
}

HRESULT GridFieldObject::get_Caption(BSTR* value) {
  if (value == nullptr) return E_POINTER;
  return Guard([&] { *value = NewBstr(field_->Caption()); });
}

HRESULT GridFieldObject::put_Caption(BSTR value) {
  return Guard([&] { field_->SetCaption(Utf8OfBstr(value)); });
}

HRESULT GridFieldObject::get_LocalName(BSTR* value) {
  if (value == nullptr) return E_POINTER;
  return Guard([&] { *value = NewBstr(field_->LocalName()); });
}

HRESULT GridFieldObject::put_LocalName(BSTR value) {
  return Guard([&] { field_->SetLocalName(Utf8OfBstr(value)); });
}

HRESULT GridFieldObject::get_Index(LONG* value) {
  if (value == nullptr) return E_POINTER;
  return Guard([&] { *value = field_->Index(); });
}

HRESULT GridFieldObject::get_IsConst(VARIANT_BOOL* value) {
  if (value == nullptr) return E_POINTER;
  *value = BoolOf(field_->IsConst());
  return S_OK;
}

void GridFieldObject::RaiseGetIndex(std::string& local_name, std::int32_t& index) const {
  OwnedBstr name(local_name);
  LONG position = index;
  for (const auto& listener : Events().Listeners()) {
    // The last argument comes first.
    VARIANT arguments[2];
    V_VT(&arguments[0]) = VT_I4 | VT_BYREF;
    V_I4REF(&arguments[0]) = &position;
    V_VT(&arguments[1]) = VT_BSTR | VT_BYREF;
    V_BSTRREF(&arguments[1]) = name.Address();
    DISPPARAMS parameters{arguments, nullptr, 2, 0};
    // A listener that fails has answered nothing, and the next one is asked.
    listener->Invoke(kGetIndex, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &parameters, nullptr, nullptr,
                     nullptr);
  }
  local_name = name.Utf8();
  index = static_cast<std::int32_t>(position);
}

}  // namespace ferrowind::automation
