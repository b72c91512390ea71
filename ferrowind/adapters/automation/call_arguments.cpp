#include "ferrowind/adapters/automation/call_arguments.h"

#include <algorithm>

#include "ferrowind/adapters/automation/variant_value.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::automation {
namespace {

std::size_t CountOfParameters(const FUNCDESC& function) {
  const auto* first = function.lprgelemdescParam;
  return static_cast<std::size_t>(std::count_if(
      first, first + function.cParams,
      [](const ELEMDESC& parameter) { return (parameter.paramdesc.wParamFlags & PARAMFLAG_FRETVAL) == 0; }));
}

bool IsLeftOut(const VARIANT& variant) {
  return V_VT(&variant) == VT_ERROR && V_ERROR(&variant) == DISP_E_PARAMNOTFOUND;
}

}  // namespace

CallArguments::CallArguments(const FUNCDESC& function, WORD kind, const DISPPARAMS& given)
    : is_put_((kind & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) != 0) {
  arguments_.resize(CountOfParameters(function));
  if (given.cArgs > arguments_.size()) {
    outcome_ = DISP_E_BADPARAMCOUNT;
    return;
  }
  Read(given);
  if (SUCCEEDED(outcome_)) FillIn(function);
}

void CallArguments::Read(const DISPPARAMS& given) {
  const bool names_are_places = !is_put_;
  const UINT named = names_are_places ? given.cNamedArgs : 0;
  for (UINT i = 0; i < given.cArgs; ++i) {
    const bool is_named = i < named;
    const std::size_t place =
        is_named ? static_cast<std::size_t>(given.rgdispidNamedArgs[i]) : given.cArgs - 1 - i;
    if (!Take(given, i, place)) return;
  }
}

bool CallArguments::Take(const DISPPARAMS& given, UINT given_place, std::size_t place) {
  wrong_place_ = given_place;
  if (place >= arguments_.size() || arguments_[place]) {
    outcome_ = DISP_E_PARAMNOTFOUND;
    return false;
  }
  try {
    arguments_[place] = Argument{WithoutReferences(given.rgvarg[given_place]), given_place};
    return true;
  } catch (const platform::Failure&) {
    outcome_ = DISP_E_TYPEMISMATCH;
    return false;
  }
}

void CallArguments::FillIn(const FUNCDESC& function) {
  for (std::size_t i = 0; i < arguments_.size(); ++i) {
    const PARAMDESC& parameter = function.lprgelemdescParam[i].paramdesc;
    const bool is_given = arguments_[i] && !IsLeftOut(arguments_[i]->value.Get());
    if (is_given || (parameter.wParamFlags & PARAMFLAG_FHASDEFAULT) == 0) continue;
    arguments_[i] = Argument{WithoutReferences(parameter.pparamdescex->varDefaultValue), 0};
  }
  const auto is_missing = [](const auto& argument) { return !argument.has_value(); };
  if (std::any_of(arguments_.begin(), arguments_.end(), is_missing)) outcome_ = DISP_E_BADPARAMCOUNT;
}

DISPPARAMS CallArguments::Get() {
  passed_.clear();
  for (auto argument = arguments_.rbegin(); argument != arguments_.rend(); ++argument) {
    passed_.push_back((*argument)->value.Get());
  }
  const auto count = static_cast<UINT>(passed_.size());
  return {passed_.data(), is_put_ ? &put_name_ : nullptr, count, is_put_ ? 1U : 0U};
}

UINT CallArguments::GivenPlace(UINT place) const {
  if (place >= arguments_.size()) return 0;
  const auto& argument = arguments_[arguments_.size() - 1 - place];
  return argument ? argument->given_place : 0;
}

}  // namespace ferrowind::automation
