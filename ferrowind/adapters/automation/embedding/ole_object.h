#pragma once

#include <oleidl.h>

#include "ferrowind/adapters/automation/com_pointer.h"
#include "ferrowind/adapters/automation/embedding/container_site.h"
#include "ferrowind/adapters/automation/embedding/control_part.h"
#include "ferrowind/adapters/automation/embedding/in_place_object.h"

namespace ferrowind::automation {

/// The control as an object in a container's document or form: its site, its verbs and its size.
class OleObject : public ControlPart<IOleObject> {
 public:
  /// `site` and `in_place` must outlive this part.
  OleObject(IUnknown& control, ContainerSite& site, InPlaceObject& in_place)
      : ControlPart(control), site_(site), in_place_(in_place) {}

  HRESULT STDMETHODCALLTYPE SetClientSite(IOleClientSite* client) override;
  HRESULT STDMETHODCALLTYPE GetClientSite(IOleClientSite** client) override;
  HRESULT STDMETHODCALLTYPE SetHostNames(LPCOLESTR, LPCOLESTR) override { return S_OK; }
  /// There is never anything unsaved.
  HRESULT STDMETHODCALLTYPE Close(DWORD save) override;
  HRESULT STDMETHODCALLTYPE SetMoniker(DWORD, IMoniker*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetMoniker(DWORD assign, DWORD which, IMoniker** moniker) override;
  HRESULT STDMETHODCALLTYPE InitFromData(IDataObject*, BOOL, DWORD) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetClipboardData(DWORD reserved, IDataObject** data) override;
  /// All that are shown make the control active in place. There are none of its own.
  HRESULT STDMETHODCALLTYPE DoVerb(LONG verb, MSG* message, IOleClientSite* client, LONG part, HWND parent,
                                   LPCRECT position) override;
  HRESULT STDMETHODCALLTYPE EnumVerbs(IEnumOLEVERB** verbs) override;
  HRESULT STDMETHODCALLTYPE Update() override { return S_OK; }
  HRESULT STDMETHODCALLTYPE IsUpToDate() override { return S_OK; }
  HRESULT STDMETHODCALLTYPE GetUserClassID(CLSID* class_id) override;
  HRESULT STDMETHODCALLTYPE GetUserType(DWORD form, LPOLESTR* title) override;
  /// Refuses every size but the control's own.
  HRESULT STDMETHODCALLTYPE SetExtent(DWORD aspect, SIZEL* size) override;
  HRESULT STDMETHODCALLTYPE GetExtent(DWORD aspect, SIZEL* size) override;
  HRESULT STDMETHODCALLTYPE Advise(IAdviseSink* sink, DWORD* connection) override;
  HRESULT STDMETHODCALLTYPE Unadvise(DWORD connection) override;
  HRESULT STDMETHODCALLTYPE EnumAdvise(IEnumSTATDATA** advised) override;
  HRESULT STDMETHODCALLTYPE GetMiscStatus(DWORD aspect, DWORD* status) override;
  HRESULT STDMETHODCALLTYPE SetColorScheme(LOGPALETTE*) override { return E_NOTIMPL; }

 private:
  ContainerSite& site_;
  InPlaceObject& in_place_;
  /// Null until somebody asks to be told.
  ComPointer<IOleAdviseHolder> advised_;
};

}  // namespace ferrowind::automation
