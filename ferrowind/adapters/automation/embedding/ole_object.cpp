#include "ferrowind/adapters/automation/embedding/ole_object.h"

#include <algorithm>
#include <string_view>

#include <objbase.h>
#include <ole2.h>

#include "ferrowind/adapters/automation/class_title.h"
#include "ferrowind/adapters/automation/embedding/control_size.h"
#include "ferrowind/adapters/automation/miscellaneous_status.h"

#include "generated/ferrowind.h"

namespace ferrowind::automation {

HRESULT OleObject::SetClientSite(IOleClientSite* client) {
  return Guard([&] {
    in_place_.Deactivate();
    site_.Set(client);
    site_.AskMode();
    return S_OK;
  });
}

HRESULT OleObject::GetClientSite(IOleClientSite** client) {
  if (client == nullptr) return E_POINTER;
  return site_.Client().CopyTo(client);
}

HRESULT OleObject::Close(DWORD /*save*/) {
  return Guard([this] {
    in_place_.Deactivate();
    if (const ComPointer<IOleAdviseHolder> advised = advised_) advised->SendOnClose();
    return S_OK;
  });
}

HRESULT OleObject::GetMoniker(DWORD /*assign*/, DWORD /*which*/, IMoniker** moniker) {
  if (moniker == nullptr) return E_POINTER;
  *moniker = nullptr;
  return E_NOTIMPL;
}

HRESULT OleObject::GetClipboardData(DWORD /*reserved*/, IDataObject** data) {
  if (data == nullptr) return E_POINTER;
  *data = nullptr;
  return E_NOTIMPL;
}

HRESULT OleObject::DoVerb(LONG verb, MSG* /*message*/, IOleClientSite* client, LONG /*part*/, HWND /*parent*/,
                          LPCRECT /*position*/) {
  return Guard([&] {
    switch (verb) {
      case OLEIVERB_HIDE:
        in_place_.Hide();
        return S_OK;
      case OLEIVERB_PRIMARY:
      case OLEIVERB_SHOW:
      case OLEIVERB_INPLACEACTIVATE:
      case OLEIVERB_UIACTIVATE:
        break;
      default:
        if (verb < 0) return E_NOTIMPL;
    }
    const ComPointer<IOleClientSite> where = client != nullptr ? ComPointer(client) : site_.Client();
    if (!where) return E_UNEXPECTED;
    const HRESULT result = in_place_.Activate(*where.Get());
    return result == S_OK && verb > OLEIVERB_PRIMARY ? OLEOBJ_S_INVALIDVERB : result;
  });
}

HRESULT OleObject::EnumVerbs(IEnumOLEVERB** verbs) {
  if (verbs == nullptr) return E_POINTER;
  *verbs = nullptr;
  return OLEOBJ_E_NOVERBS;
}

HRESULT OleObject::GetUserClassID(CLSID* class_id) {
  if (class_id == nullptr) return E_POINTER;
  *class_id = __uuidof(::Calendar);
  return S_OK;
}

HRESULT OleObject::GetUserType(DWORD /*form*/, LPOLESTR* title) {
  if (title == nullptr) return E_POINTER;
  constexpr std::wstring_view kTitle = kClassTitle;
  *title = static_cast<LPOLESTR>(CoTaskMemAlloc((kTitle.size() + 1) * sizeof(wchar_t)));
  if (*title == nullptr) return E_OUTOFMEMORY;
  *std::copy(kTitle.begin(), kTitle.end(), *title) = L'\0';
  return S_OK;
}

HRESULT OleObject::SetExtent(DWORD aspect, SIZEL* size) {
  if (size == nullptr) return E_POINTER;
  if (aspect != DVASPECT_CONTENT) return DV_E_DVASPECT;
  const SIZEL own = ControlExtent();
  return size->cx == own.cx && size->cy == own.cy ? S_OK : E_FAIL;
}

HRESULT OleObject::GetExtent(DWORD aspect, SIZEL* size) {
  if (size == nullptr) return E_POINTER;
  *size = {};
  if (aspect != DVASPECT_CONTENT) return E_INVALIDARG;
  *size = ControlExtent();
  return S_OK;
}

HRESULT OleObject::Advise(IAdviseSink* sink, DWORD* connection) {
  if (connection == nullptr) return E_POINTER;
  *connection = 0;
  return Guard([&] {
    if (!advised_) {
      if (const HRESULT result = CreateOleAdviseHolder(advised_.Receive()); FAILED(result)) return result;
    }
    return advised_->Advise(sink, connection);
  });
}

HRESULT OleObject::Unadvise(DWORD connection) {
  return Guard([&] { return advised_ ? advised_->Unadvise(connection) : OLE_E_NOCONNECTION; });
}

HRESULT OleObject::EnumAdvise(IEnumSTATDATA** advised) {
  if (advised == nullptr) return E_POINTER;
  *advised = nullptr;
  return advised_ ? advised_->EnumAdvise(advised) : S_OK;
}

HRESULT OleObject::GetMiscStatus(DWORD aspect, DWORD* status) {
  if (status == nullptr) return E_POINTER;
  *status = aspect == DVASPECT_CONTENT ? kMiscellaneousStatus : 0;
  return S_OK;
}

}  // namespace ferrowind::automation
