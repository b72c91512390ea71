#include "ferrowind/adapters/automation/dispatch_call.h"

#include <oleauto.h>

#include "ferrowind/adapters/automation/call_arguments.h"
#include "ferrowind/adapters/automation/slot_call.h"

namespace ferrowind::automation {

HRESULT RunDispatchCall(const DescribedInterface& described, void* object, const DispatchCall& call) {
  if (call.arguments == nullptr) return E_INVALIDARG;
  const FUNCDESC* const function = described.Function(call.member, call.kind);
  if (function == nullptr) return DISP_E_MEMBERNOTFOUND;
  SetErrorInfo(0, nullptr);
  if (call.arguments->cArgs == 0 && IsWithoutArguments(*function)) {
    return CallSlot(*function, object, call.result, call.exception);
  }
  try {
    CallArguments plain(*function, call.kind, *call.arguments);
    if (FAILED(plain.Outcome())) {
      if (call.wrong_argument != nullptr) *call.wrong_argument = plain.WrongPlace();
      return plain.Outcome();
    }
    DISPPARAMS arguments = plain.Get();
    UINT wrong_argument = 0;
    const HRESULT outcome = described.Info()->Invoke(object, call.member, call.kind, &arguments, call.result,
                                                     call.exception, &wrong_argument);
    if (call.wrong_argument != nullptr) *call.wrong_argument = plain.GivenPlace(wrong_argument);
    return outcome;
  } catch (...) {
    return E_OUTOFMEMORY;
  }
}

HRESULT FindDispatchIdentifiers(const DescribedInterface& described, OLECHAR** names, UINT count,
                                DISPID* found) {
  if (names == nullptr || found == nullptr || count == 0) return E_INVALIDARG;
  return described.Info()->GetIDsOfNames(names, count, found);
}

}  // namespace ferrowind::automation
