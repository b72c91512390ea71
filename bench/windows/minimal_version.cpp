#include "bench/windows/minimal_version.h"

#include <oleauto.h>

namespace ferrowind::bench {
namespace {

// Interfaces of the platform have no virtual destructor.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"

class MinimalVersion final : public IDispatch {
 public:
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override {
    *object = nullptr;
    if (!IsEqualIID(iid, __uuidof(IUnknown)) && !IsEqualIID(iid, __uuidof(IDispatch))) return E_NOINTERFACE;
    *object = this;
    AddRef();
    return S_OK;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
  ULONG STDMETHODCALLTYPE Release() override {
    const ULONG left = --references_;
    if (left == 0) delete this;
    return left;
  }
  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override {
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE Invoke(DISPID member, REFIID, LCID, WORD, DISPPARAMS*, VARIANT* result,
                                   EXCEPINFO*, UINT*) override {
    if (member != kMinimalVersion) return DISP_E_MEMBERNOTFOUND;
    SAFEARRAY* const parts = SafeArrayCreateVector(VT_VARIANT, 0, 5);
    VARIANT* elements = nullptr;
    SafeArrayAccessData(parts, reinterpret_cast<void**>(&elements));
    V_VT(&elements[0]) = VT_BSTR;
    V_BSTR(&elements[0]) = SysAllocString(L"Ferrowind");
    constexpr SHORT kNumbers[] = {1, 2, 10};
    for (int i = 0; i < 3; ++i) {
      V_VT(&elements[i + 1]) = VT_I2;
      V_I2(&elements[i + 1]) = kNumbers[i];
    }
    SafeArrayUnaccessData(parts);
    V_VT(result) = VT_ARRAY | VT_VARIANT;
    V_ARRAY(result) = parts;
    return S_OK;
  }

 private:
  ULONG references_ = 1;
};

#pragma GCC diagnostic pop

}  // namespace

automation::ComPointer<IDispatch> NewMinimalVersion() {
  automation::ComPointer<IDispatch> made;
  made.Attach(new MinimalVersion);
  return made;
}

}  // namespace ferrowind::bench
