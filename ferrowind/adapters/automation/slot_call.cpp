#include "ferrowind/adapters/automation/slot_call.h"

#include <array>

#include <oleauto.h>

#include "ferrowind/adapters/automation/com_pointer.h"
#include "ferrowind/adapters/automation/owned_variant.h"

namespace ferrowind::automation {
namespace {

/// What the last argument of the slot points to; VT_EMPTY when it has none.
VARTYPE ResultType(const FUNCDESC& function) {
  switch (const VARTYPE type = function.elemdescFunc.tdesc.vt) {
    case VT_VOID:
    case VT_HRESULT:
      return VT_EMPTY;
    case VT_PTR:
      // All that the library's functions give by a pointer are its own dual interfaces.
      return VT_DISPATCH;
    default:
      return type;
  }
}

void TellException(HRESULT failure, EXCEPINFO& exception) {
  exception = {};
  exception.scode = failure;
  ComPointer<IErrorInfo> information;
  if (GetErrorInfo(0, information.Receive()) != S_OK) return;
  information->GetDescription(&exception.bstrDescription);
  information->GetSource(&exception.bstrSource);
  information->GetHelpFile(&exception.bstrHelpFile);
  information->GetHelpContext(&exception.dwHelpContext);
}

}  // namespace

bool IsWithoutArguments(const FUNCDESC& function) {
  return function.funckind == FUNC_DISPATCH && function.cParams == 0;
}

HRESULT CallSlot(const FUNCDESC& function, void* object, VARIANT* result, EXCEPINFO* exception) {
  const VARTYPE type = ResultType(function);
  OwnedVariant given;
  std::array<VARTYPE, 1> types{static_cast<VARTYPE>(type | VT_BYREF)};
  VARIANT argument;
  V_VT(&argument) = types[0];
  // A value's place in a VARIANT is the same for every type but a VARIANT.
  V_BYREF(&argument) = type == VT_VARIANT ? static_cast<void*>(given.Address()) : &V_I8(given.Address());
  std::array<VARIANT*, 1> arguments{&argument};
  VARIANT outcome;
  VariantInit(&outcome);
  const HRESULT called =
      DispCallFunc(object, static_cast<ULONG_PTR>(function.oVft), function.callconv, VT_ERROR,
                   type == VT_EMPTY ? 0 : 1, types.data(), arguments.data(), &outcome);
  if (FAILED(called)) return called;
  if (FAILED(V_ERROR(&outcome))) {
    if (exception != nullptr) TellException(V_ERROR(&outcome), *exception);
    return DISP_E_EXCEPTION;
  }
  if (type != VT_VARIANT) V_VT(given.Address()) = type;
  if (result != nullptr) *result = given.Release();
  return S_OK;
}

}  // namespace ferrowind::automation
