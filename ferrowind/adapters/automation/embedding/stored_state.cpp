#include "ferrowind/adapters/automation/embedding/stored_state.h"

#include <array>

#include <oleauto.h>
#include <olectl.h>

#include "ferrowind/adapters/automation/embedding/control_size.h"
#include "ferrowind/adapters/automation/owned_bstr.h"
#include "ferrowind/adapters/automation/owned_variant.h"

#include "generated/ferrowind.h"

namespace ferrowind::automation {
namespace {

/// What a stream holds: a mark, and the version of what follows it, which is nothing yet.
constexpr std::array<unsigned char, 8> kMark = {'F', 'W', 'C', 'L', 1, 0, 0, 0};

constexpr const wchar_t* kWidthName = L"_ExtentX";
constexpr const wchar_t* kHeightName = L"_ExtentY";

void TellLog(IErrorLog* log, const wchar_t* name) {
  if (log == nullptr) return;
  const OwnedBstr description("The stored value is no size");
  EXCEPINFO error{};
  error.scode = CTL_E_INVALIDPROPERTYVALUE;
  error.bstrDescription = description.Get();
  log->AddError(name, &error);
}

HRESULT CheckExtent(IPropertyBag& bag, IErrorLog* log, const wchar_t* name) {
  OwnedVariant value;
  // Old forms have none.
  if (FAILED(bag.Read(name, value.Address(), log)) || value.Type() == VT_EMPTY) return S_OK;
  OwnedVariant number;
  if (SUCCEEDED(VariantChangeType(number.Address(), value.Address(), 0, VT_I4)) && V_I4(&number.Get()) > 0) {
    return S_OK;
  }
  TellLog(log, name);
  return CTL_E_INVALIDPROPERTYVALUE;
}

HRESULT WriteExtent(IPropertyBag& bag, const wchar_t* name, LONG extent) {
  OwnedVariant value;
  V_VT(value.Address()) = VT_I4;
  V_I4(value.Address()) = extent;
  return bag.Write(name, value.Address());
}

}  // namespace

HRESULT StoredState::GetClassID(CLSID* class_id) {
  if (class_id == nullptr) return E_POINTER;
  *class_id = __uuidof(::Calendar);
  return S_OK;
}

HRESULT StoredState::Load(IStream* stream) {
  if (stream == nullptr) return E_POINTER;
  return Guard([stream] {
    std::array<unsigned char, kMark.size()> stored{};
    ULONG length = 0;
    const HRESULT result = stream->Read(stored.data(), static_cast<ULONG>(stored.size()), &length);
    if (FAILED(result)) return result;
    return length == stored.size() && stored == kMark ? S_OK : CTL_E_INVALIDFILEFORMAT;
  });
}

HRESULT StoredState::Save(IStream* stream, BOOL /*clear_dirty*/) {
  if (stream == nullptr) return E_POINTER;
  return Guard([stream] {
    ULONG length = 0;
    const HRESULT result = stream->Write(kMark.data(), static_cast<ULONG>(kMark.size()), &length);
    if (FAILED(result)) return result;
    return length == kMark.size() ? S_OK : STG_E_MEDIUMFULL;
  });
}

HRESULT StoredState::GetSizeMax(ULARGE_INTEGER* size) {
  if (size == nullptr) return E_POINTER;
  size->QuadPart = kMark.size();
  return S_OK;
}

HRESULT StoredState::Load(IPropertyBag* bag, IErrorLog* log) {
  if (bag == nullptr) return E_POINTER;
  return Guard([&] {
    const HRESULT width = CheckExtent(*bag, log, kWidthName);
    return FAILED(width) ? width : CheckExtent(*bag, log, kHeightName);
  });
}

HRESULT StoredState::Save(IPropertyBag* bag, BOOL /*clear_dirty*/, BOOL /*save_all*/) {
  if (bag == nullptr) return E_POINTER;
  return Guard([bag] {
    const SIZEL extent = ControlExtent();
    const HRESULT width = WriteExtent(*bag, kWidthName, extent.cx);
    return FAILED(width) ? width : WriteExtent(*bag, kHeightName, extent.cy);
  });
}

}  // namespace ferrowind::automation
