#include "ferrowind/adapters/automation/variant_value.h"

#include <cmath>
#include <cstdint>
#include <limits>
#include <string>
#include <variant>

#include "ferrowind/adapters/automation/text.h"
#include "ferrowind/platform/values/date.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::automation {
namespace {

using platform::Value;

// Scripts pass a variable by reference, and a variable that was passed to them so by a reference to that.
constexpr int kMostReferences = 16;

constexpr bool kMayAskObject = true;

/// For functions of the platform that read a VARIANT, but are declared as if they changed it.
VARIANT* Read(const VARIANT& variant) { return const_cast<VARIANT*>(&variant); }

Value ValueOfPlain(const VARIANT& variant, bool may_ask_object);

Value DefaultPropertyOf(IDispatch& object) {
  DISPPARAMS none{};
  OwnedVariant result;
  const HRESULT outcome =
      object.Invoke(DISPID_VALUE, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYGET | DISPATCH_METHOD,
                    &none, result.Address(), nullptr, nullptr);
  if (FAILED(outcome)) return Value::Object();
  return ValueOfPlain(WithoutReferences(result.Get()).Get(), !kMayAskObject);
}

Value ValueOfObject(const VARIANT& variant, bool may_ask_object) {
  if (may_ask_object && V_VT(&variant) == VT_DISPATCH && V_DISPATCH(&variant) != nullptr) {
    return DefaultPropertyOf(*V_DISPATCH(&variant));
  }
  return Value::Object();
}

Value DateOfSerial(DATE serial) {
  const double day = std::floor(serial);
  if (!(day >= std::numeric_limits<std::int32_t>::min() && day <= std::numeric_limits<std::int32_t>::max())) {
    throw platform::Overflow();
  }
  return platform::Date::FromSerial(static_cast<std::int32_t>(day));
}

Value AsDouble(const VARIANT& variant) {
  OwnedVariant number;
  if (FAILED(VariantChangeType(number.Address(), Read(variant), 0, VT_R8))) throw platform::TypeMismatch();
  return V_R8(&number.Get());
}

Value ValueOfPlain(const VARIANT& variant, bool may_ask_object) {
  switch (V_VT(&variant)) {
    case VT_EMPTY:
    case VT_NULL:
      return {};
    case VT_ERROR:
      if (V_ERROR(&variant) == DISP_E_PARAMNOTFOUND) return {};
      throw platform::TypeMismatch();
    case VT_BOOL:
      return V_BOOL(&variant) != VARIANT_FALSE;
    case VT_I1:
      return static_cast<std::int16_t>(V_I1(&variant));
    case VT_UI1:
      return static_cast<std::int16_t>(V_UI1(&variant));
    case VT_I2:
      return static_cast<std::int16_t>(V_I2(&variant));
    case VT_UI2:
      return static_cast<std::int32_t>(V_UI2(&variant));
    case VT_I4:
      return static_cast<std::int32_t>(V_I4(&variant));
    case VT_INT:
      return static_cast<std::int32_t>(V_INT(&variant));
    case VT_UI4:
      return static_cast<std::int64_t>(V_UI4(&variant));
    case VT_UINT:
      return static_cast<std::int64_t>(V_UINT(&variant));
    case VT_I8:
      return static_cast<std::int64_t>(V_I8(&variant));
    case VT_R4:
      return V_R4(&variant);
    case VT_R8:
      return V_R8(&variant);
    case VT_UI8:
    case VT_CY:
    case VT_DECIMAL:
      return AsDouble(variant);
    case VT_BSTR:
      return Utf8OfBstr(V_BSTR(&variant));
    case VT_DATE:
      return DateOfSerial(V_DATE(&variant));
    case VT_DISPATCH:
    case VT_UNKNOWN:
      return ValueOfObject(variant, may_ask_object);
    default:
      throw platform::TypeMismatch();
  }
}

void Store(VARIANT&, std::monostate) {}
void Store(VARIANT& variant, bool value) {
  V_VT(&variant) = VT_BOOL;
  V_BOOL(&variant) = value ? VARIANT_TRUE : VARIANT_FALSE;
}
void Store(VARIANT& variant, std::int16_t value) {
  V_VT(&variant) = VT_I2;
  V_I2(&variant) = value;
}
void Store(VARIANT& variant, std::int32_t value) {
  V_VT(&variant) = VT_I4;
  V_I4(&variant) = value;
}
void Store(VARIANT& variant, std::int64_t value) {
  V_VT(&variant) = VT_I8;
  V_I8(&variant) = value;
}
void Store(VARIANT& variant, float value) {
  V_VT(&variant) = VT_R4;
  V_R4(&variant) = value;
}
void Store(VARIANT& variant, double value) {
  V_VT(&variant) = VT_R8;
  V_R8(&variant) = value;
}
void Store(VARIANT& variant, const std::string& value) {
  V_BSTR(&variant) = NewBstr(value);
  V_VT(&variant) = VT_BSTR;
}
void Store(VARIANT& variant, const platform::Date& value) {
  V_VT(&variant) = VT_DATE;
  V_DATE(&variant) = value.Serial();
}
void Store(VARIANT&, const Value::Object&) { throw platform::TypeMismatch(); }

}  // namespace

OwnedVariant WithoutReferences(const VARIANT& variant) {
  const VARIANT* inner = &variant;
  for (int i = 0; V_VT(inner) == (VT_VARIANT | VT_BYREF); ++i) {
    if (i == kMostReferences || V_VARIANTREF(inner) == nullptr) throw platform::TypeMismatch();
    inner = V_VARIANTREF(inner);
  }
  OwnedVariant copy;
  if (FAILED(VariantCopyInd(copy.Address(), Read(*inner)))) throw platform::TypeMismatch();
  return copy;
}

Value ValueOf(const VARIANT& variant) {
  return ValueOfPlain(WithoutReferences(variant).Get(), kMayAskObject);
}

OwnedVariant VariantOf(const Value& value) {
  OwnedVariant result;
  std::visit([&result](const auto& held) { Store(*result.Address(), held); }, value.Get());
  return result;
}

}  // namespace ferrowind::automation
