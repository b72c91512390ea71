#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include <oaidl.h>

#include "ferrowind/adapters/automation/owned_variant.h"

namespace ferrowind::automation {

/// The arguments of a late-bound call in plain form: each by value, in its place whether it was given by name
/// or by place, and those that were left out with the values that the type library says.
///
/// The component never changes an argument, so none needs to go back. Wine would pass the value of a default
/// where a reference to it belongs.
class CallArguments {
 public:
  /// Reads what the host gave; on failure, arguments that do not fit the function, `Outcome` says why.
  CallArguments(const FUNCDESC& function, WORD kind, const DISPPARAMS& given);

  /// S_OK, or what the host is answered.
  [[nodiscard]] HRESULT Outcome() const { return outcome_; }
  /// Where the host gave what is wrong; meaningful when `Outcome` is a failure about one argument.
  [[nodiscard]] UINT WrongPlace() const { return wrong_place_; }

  /// Valid as long as this object.
  [[nodiscard]] DISPPARAMS Get();
  /// Where the host gave the argument that stands at `place` of `Get`.
  [[nodiscard]] UINT GivenPlace(UINT place) const;

 private:
  struct Argument {
    OwnedVariant value;
    UINT given_place = 0;
  };

  void Read(const DISPPARAMS& given);
  [[nodiscard]] bool Take(const DISPPARAMS& given, UINT given_place, std::size_t place);
  void FillIn(const FUNCDESC& function);

  HRESULT outcome_ = S_OK;
  UINT wrong_place_ = 0;
  bool is_put_;
  /// From the first to the last.
  std::vector<std::optional<Argument>> arguments_;
  /// As they are passed: from the last to the first.
  std::vector<VARIANT> passed_;
  DISPID put_name_ = DISPID_PROPERTYPUT;
};

}  // namespace ferrowind::automation
