#pragma once

#include <oaidl.h>

#include "ferrowind/adapters/automation/described_interface.h"

namespace ferrowind::automation {

/// A late-bound call of a member of a dual interface, as its type library describes it.
struct DispatchCall {
  DISPID member;
  LCID locale;
  /// DISPATCH_METHOD and its like.
  WORD kind;
  DISPPARAMS* arguments;
  ///@{
  /// May be null: the host wants none of it.
  VARIANT* result;
  EXCEPINFO* exception;
  UINT* wrong_argument;
  ///@}
};

/// Runs the call on `object`, whose interface is the one of `described`. Arguments may come by reference, as
/// deep as scripts pass them, by name, and those with defaults not at all.
[[nodiscard]] HRESULT RunDispatchCall(const DescribedInterface& described, void* object,
                                      const DispatchCall& call);

/// The identifiers of a member and of its arguments, found without regard to case.
[[nodiscard]] HRESULT FindDispatchIdentifiers(const DescribedInterface& described, OLECHAR** names,
                                              UINT count, DISPID* found);

}  // namespace ferrowind::automation
