#include "ferrowind/adapters/automation/grid_fields_object.h"

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "ferrowind/adapters/automation/native_failure.h"
#include "ferrowind/adapters/automation/snapshot_enumerator.h"
#include "ferrowind/adapters/automation/text.h"
#include "ferrowind/adapters/automation/variant_value.h"
#include "ferrowind/platform/values/value.h"

namespace ferrowind::automation {
namespace {

struct KeptColumn {
  ComPointer<IDispatch> object;

  HRESULT GiveTo(VARIANT& to) const {
    V_VT(&to) = VT_DISPATCH;
    return object.CopyTo(&V_DISPATCH(&to));
  }
};

using ColumnEnumerator = SnapshotEnumerator<IEnumVARIANT, VARIANT, KeptColumn>;

/// An argument by reference that refers to nothing is one that was left out.
platform::Value IndexIn(const VARIANT* index) {
  return index != nullptr ? ValueOf(*index) : platform::Value();
}

std::string TextIn(const BSTR* text) { return text != nullptr ? Utf8OfBstr(*text) : std::string(); }

}  // namespace

GridFieldsObject::GridFieldsObject(std::shared_ptr<GridFields> map)
    : DispatchObject({__uuidof(::GridFields), __uuidof(_GridFields), GUID_NULL}), map_(std::move(map)) {}

HRESULT GridFieldsObject::Invoke(DISPID member, REFIID iid, LCID locale, WORD kind, DISPPARAMS* arguments,
                                 VARIANT* result, EXCEPINFO* exception, UINT* wrong_argument) {
  if (member == DISPID_NEWENUM && result != nullptr) {
    return Guard([&] { *result = NewEnumerator(); });
  }
  return DispatchObject::Invoke(member, iid, locale, kind, arguments, result, exception, wrong_argument);
}

HRESULT GridFieldsObject::Add(BSTR* local_name, BSTR* field_name, BSTR* caption, VARIANT_BOOL* visible) {
  return Guard([&] {
    constexpr const char* kNoCaption = "None name";
    map_->Add(TextIn(local_name), TextIn(field_name), caption != nullptr ? TextIn(caption) : kNoCaption,
              visible == nullptr || *visible != VARIANT_FALSE);
  });
}

HRESULT GridFieldsObject::LocalNames(VARIANT* index, _GridField** field) {
  if (field == nullptr) return E_POINTER;
  *field = nullptr;
  return Guard([&] { RequireSuccess(ObjectOf(map_->LocalNames(IndexIn(index))).CopyTo(field)); });
}

HRESULT GridFieldsObject::Fields(VARIANT* index, _GridField** field) {
  if (field == nullptr) return E_POINTER;
  *field = nullptr;
  return Guard([&] { RequireSuccess(ObjectOf(map_->Fields(IndexIn(index))).CopyTo(field)); });
}

HRESULT GridFieldsObject::RemoveByLocalIndex(VARIANT* index) {
  return Guard([&] {
    try {
      map_->RemoveByLocalIndex(IndexIn(index));
    } catch (...) {
      // The second removal may have failed after the first one.
      ForgetRemoved();
      throw;
    }
    ForgetRemoved();
  });
}

HRESULT GridFieldsObject::RemoveByFieldIndex(VARIANT* index) {
  return Guard([&] {
    map_->RemoveByFieldIndex(IndexIn(index));
    ForgetRemoved();
  });
}

HRESULT GridFieldsObject::Clear() {
  return Guard([&] {
    map_->Clear();
    ForgetRemoved();
  });
}

HRESULT GridFieldsObject::get_Count(LONG* value) {
  if (value == nullptr) return E_POINTER;
  *value = map_->Count();
  return S_OK;
}

const ComPointer<GridFieldObject>& GridFieldsObject::ObjectOf(const std::shared_ptr<GridField>& field) {
  ComPointer<GridFieldObject>& object = objects_[field.get()];
  if (!object) object.Attach(new GridFieldObject(field));
  return object;
}

void GridFieldsObject::ForgetRemoved() {
  std::vector<ComPointer<GridFieldObject>> removed;
  for (auto entry = objects_.begin(); entry != objects_.end();) {
    // An object without a column is one that could not be made.
    const bool is_held_by_map = entry->second && entry->second->Field().use_count() > 1;
    if (is_held_by_map) {
      ++entry;
      continue;
    }
    removed.push_back(std::move(entry->second));
    entry = objects_.erase(entry);
  }
}

VARIANT GridFieldsObject::NewEnumerator() {
  auto columns = std::make_shared<std::vector<KeptColumn>>();
  for (std::int32_t i = 1; i <= map_->Count(); ++i) columns->push_back({ObjectOf(map_->LocalNames(i))});
  VARIANT result;
  V_VT(&result) = VT_UNKNOWN;
  V_UNKNOWN(&result) = new ColumnEnumerator(std::move(columns));
  return result;
}

}  // namespace ferrowind::automation
