#include "ferrowind/adapters/automation/embedding/form_control.h"

namespace ferrowind::automation {

HRESULT FormControl::QueryInterface(REFIID iid, void** object) {
  const HRESULT result = CalendarObject::QueryInterface(iid, object);
  if (result != E_NOINTERFACE) return result;
  const auto find_in = [&](auto&... parts) { return ((*object = parts.Find(iid)) || ...); };
  if (!find_in(object_, in_place_, view_, stored_, changes_, quick_)) return E_NOINTERFACE;
  AddRef();
  return S_OK;
}

}  // namespace ferrowind::automation
