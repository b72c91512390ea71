#include "ferrowind/adapters/automation/dispatch_call.h"

#include <oleauto.h>

#include "ferrowind/adapters/automation/call_arguments.h"

namespace ferrowind::automation {

HRESULT RunDispatchCall(ITypeInfo& described, void* object, const DispatchCall& call) {
  if (call.arguments == nullptr) return E_INVALIDARG;
  try {
    CallArguments plain(described, call.member, call.kind, *call.arguments);
    if (FAILED(plain.Outcome())) {
      if (call.wrong_argument != nullptr) *call.wrong_argument = plain.WrongPlace();
      return plain.Outcome();
    }
    DISPPARAMS arguments = plain.Get();
    UINT wrong_argument = 0;
    SetErrorInfo(0, nullptr);
    const HRESULT outcome = described.Invoke(object, call.member, call.kind, &arguments, call.result,
                                             call.exception, &wrong_argument);
    if (call.wrong_argument != nullptr) *call.wrong_argument = plain.GivenPlace(wrong_argument);
    return outcome;
  } catch (...) {
    return E_OUTOFMEMORY;
  }
}

HRESULT FindDispatchIdentifiers(ITypeInfo& described, OLECHAR** names, UINT count, DISPID* found) {
  if (names == nullptr || found == nullptr || count == 0) return E_INVALIDARG;
  return described.GetIDsOfNames(names, count, found);
}

}  // namespace ferrowind::automation
