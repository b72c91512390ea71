#pragma once

#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <oaidl.h>
#include <oleauto.h>

#include "ferrowind/adapters/automation/owned_variant.h"
#include "ferrowind/adapters/automation/text.h"
#include "ferrowind/adapters/automation/variant_value.h"

namespace ferrowind::testing {

/// An argument of a late-bound call.
using LateArgument = automation::OwnedVariant;

[[nodiscard]] inline LateArgument Late(const platform::Value& value) { return automation::VariantOf(value); }
[[nodiscard]] inline LateArgument LeftOut() {
  LateArgument argument;
  V_VT(argument.Address()) = VT_ERROR;
  V_ERROR(argument.Address()) = DISP_E_PARAMNOTFOUND;
  return argument;
}
/// A reference to another, which must outlive it.
[[nodiscard]] inline LateArgument ReferenceTo(LateArgument& other) {
  LateArgument argument;
  V_VT(argument.Address()) = VT_VARIANT | VT_BYREF;
  V_VARIANTREF(argument.Address()) = other.Address();
  return argument;
}

/// How a late-bound call ended.
struct LateOutcome {
  HRESULT result = S_OK;
  automation::OwnedVariant value = {};
  ///@{
  /// Of an exception.
  HRESULT code = S_OK;
  std::string description = {};
  std::string source = {};
  ///@}
  /// The place of the wrong argument, from the last one.
  UINT wrong_argument = 99;
};

/// Calls a member by its name. The last arguments have the names of `names`, in their order.
template <typename... Arguments>
[[nodiscard]] LateOutcome CallLateNamed(IDispatch& object, WORD kind, const wchar_t* member,
                                        const std::vector<const wchar_t*>& names, Arguments&&... arguments) {
  std::vector<LPOLESTR> all = {const_cast<LPOLESTR>(member)};
  for (const auto* name : names) all.push_back(const_cast<LPOLESTR>(name));
  std::vector<DISPID> identifiers(all.size(), DISPID_UNKNOWN);
  LateOutcome outcome;
  outcome.result = object.GetIDsOfNames(GUID_NULL, all.data(), static_cast<UINT>(all.size()),
                                        LOCALE_USER_DEFAULT, identifiers.data());
  if (FAILED(outcome.result)) return outcome;

  std::vector<VARIANT> from_last;
  (from_last.insert(from_last.begin(), arguments.Get()), ...);
  std::vector<DISPID> named(identifiers.rbegin(), identifiers.rend() - 1);
  if (kind == DISPATCH_PROPERTYPUT) named.insert(named.begin(), DISPID_PROPERTYPUT);
  DISPPARAMS parameters{from_last.data(), named.data(), static_cast<UINT>(from_last.size()),
                        static_cast<UINT>(named.size())};
  EXCEPINFO exception{};
  outcome.result = object.Invoke(identifiers[0], GUID_NULL, LOCALE_USER_DEFAULT, kind, &parameters,
                                 outcome.value.Address(), &exception, &outcome.wrong_argument);
  outcome.code = exception.scode;
  outcome.description = automation::Utf8OfBstr(exception.bstrDescription);
  outcome.source = automation::Utf8OfBstr(exception.bstrSource);
  for (BSTR text : {exception.bstrDescription, exception.bstrSource, exception.bstrHelpFile}) {
    SysFreeString(text);
  }
  return outcome;
}

template <typename... Arguments>
[[nodiscard]] LateOutcome CallLate(IDispatch& object, const wchar_t* member, Arguments&&... arguments) {
  return CallLateNamed(object, DISPATCH_METHOD | DISPATCH_PROPERTYGET, member, {}, arguments...);
}

[[nodiscard]] inline LateOutcome PutLate(IDispatch& object, const wchar_t* member, LateArgument value) {
  return CallLateNamed(object, DISPATCH_PROPERTYPUT, member, {}, value);
}

/// The value of a call that must succeed.
template <typename... Arguments>
[[nodiscard]] platform::Value ValueLate(IDispatch& object, const wchar_t* member, Arguments&&... arguments) {
  const LateOutcome outcome = CallLate(object, member, arguments...);
  EXPECT_EQ(outcome.result, S_OK) << automation::Utf8(member) << ": " << outcome.description;
  return automation::ValueOf(outcome.value.Get());
}

}  // namespace ferrowind::testing
