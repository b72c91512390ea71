#pragma once

#include <map>
#include <memory>

#include "ferrowind/adapters/automation/com_pointer.h"
#include "ferrowind/adapters/automation/dispatch_object.h"
#include "ferrowind/adapters/automation/grid_field_object.h"
#include "ferrowind/control/grid_fields.h"

#include "generated/ferrowind.h"

namespace ferrowind::automation {

/// A column map, as hosts see it. A column is always the same object, with the same connections, as long as
/// the map has it.
///
/// Beyond what the type library says, hosts that enumerate it get its columns in the order of the local
/// names.
class GridFieldsObject : public DispatchObject<_GridFields> {
 public:
  /// `map` is not null.
  explicit GridFieldsObject(std::shared_ptr<GridFields> map);

  HRESULT STDMETHODCALLTYPE Invoke(DISPID member, REFIID iid, LCID locale, WORD kind, DISPPARAMS* arguments,
                                   VARIANT* result, EXCEPINFO* exception, UINT* wrong_argument) override;

  HRESULT STDMETHODCALLTYPE Add(BSTR* local_name, BSTR* field_name, BSTR* caption,
                                VARIANT_BOOL* visible) override;
  HRESULT STDMETHODCALLTYPE LocalNames(VARIANT* index, _GridField** field) override;
  HRESULT STDMETHODCALLTYPE Fields(VARIANT* index, _GridField** field) override;
  HRESULT STDMETHODCALLTYPE RemoveByLocalIndex(VARIANT* index) override;
  HRESULT STDMETHODCALLTYPE RemoveByFieldIndex(VARIANT* index) override;
  HRESULT STDMETHODCALLTYPE Clear() override;
  HRESULT STDMETHODCALLTYPE get_Count(LONG* value) override;

 private:
  [[nodiscard]] const ComPointer<GridFieldObject>& ObjectOf(const std::shared_ptr<GridField>& field);
  /// The objects of columns that are in neither list any more are left to the hosts that hold them.
  void ForgetRemoved();
  [[nodiscard]] VARIANT NewEnumerator();

  std::shared_ptr<GridFields> map_;
  std::map<GridField*, ComPointer<GridFieldObject>> objects_;
};

}  // namespace ferrowind::automation
