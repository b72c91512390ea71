#pragma once

#include <memory>
#include <utility>

#include <oaidl.h>
#include <ocidl.h>

#include "ferrowind/adapters/automation/call_guard.h"
#include "ferrowind/adapters/automation/com_object.h"
#include "ferrowind/adapters/automation/com_pointer.h"
#include "ferrowind/adapters/automation/described_class.h"
#include "ferrowind/adapters/automation/described_interface.h"
#include "ferrowind/adapters/automation/dispatch_call.h"
#include "ferrowind/adapters/automation/module.h"

namespace ferrowind::automation {

/// An object of a class of the type library, with its dual interface and what hosts ask of every such object:
/// late-bound calls, error information, and what class it is.
template <typename Dual, typename... Others>
class DispatchObject : public ComObject<Dual, ISupportErrorInfo, IProvideClassInfo2, Others...> {
 public:
  /// Fails where the type library cannot be read.
  explicit DispatchObject(const DescribedClass& described)
      : described_(described), interface_(Module::Get().Interface(described.interface_id)) {}

  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
    if (count == nullptr) return E_POINTER;
    *count = 1;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, LCID, ITypeInfo** info) override {
    if (info == nullptr) return E_POINTER;
    *info = nullptr;
    if (index != 0) return DISP_E_BADINDEX;
    return interface_->Info().CopyTo(info);
  }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID iid, OLECHAR** names, UINT count, LCID,
                                          DISPID* found) override {
    if (!IsEqualIID(iid, GUID_NULL)) return DISP_E_UNKNOWNINTERFACE;
    return FindDispatchIdentifiers(*interface_, names, count, found);
  }
  HRESULT STDMETHODCALLTYPE Invoke(DISPID member, REFIID iid, LCID locale, WORD kind, DISPPARAMS* arguments,
                                   VARIANT* result, EXCEPINFO* exception, UINT* wrong_argument) override {
    if (!IsEqualIID(iid, GUID_NULL)) return DISP_E_UNKNOWNINTERFACE;
    return RunDispatchCall(*interface_, static_cast<Dual*>(this),
                           {member, locale, kind, arguments, result, exception, wrong_argument});
  }

  HRESULT STDMETHODCALLTYPE InterfaceSupportsErrorInfo(REFIID iid) override {
    return IsEqualIID(iid, described_.interface_id) ? S_OK : S_FALSE;
  }

  HRESULT STDMETHODCALLTYPE GetClassInfo(ITypeInfo** info) override {
    if (info == nullptr) return E_POINTER;
    *info = nullptr;
    return Guard([&] { *info = Module::Get().TypeInfo(described_.class_id).Detach(); });
  }
  HRESULT STDMETHODCALLTYPE GetGUID(DWORD kind, GUID* identifier) override {
    if (identifier == nullptr) return E_POINTER;
    *identifier = GUID_NULL;
    if (kind != GUIDKIND_DEFAULT_SOURCE_DISP_IID) return E_INVALIDARG;
    *identifier = described_.events_id;
    return IsEqualIID(described_.events_id, GUID_NULL) ? E_FAIL : S_OK;
  }

 protected:
  /// Runs what a host called.
  template <typename Body>
  [[nodiscard]] HRESULT Guard(Body&& body) noexcept {
    return Guarded(static_cast<Dual*>(this), described_.interface_id, std::forward<Body>(body));
  }

 private:
  DescribedClass described_;
  std::shared_ptr<const DescribedInterface> interface_;
};

}  // namespace ferrowind::automation
