#include "ferrowind/adapters/automation/embedding/quick_activation.h"

#include "ferrowind/adapters/automation/com_pointer.h"
#include "ferrowind/adapters/automation/miscellaneous_status.h"

#include "generated/ferrowind.h"

namespace ferrowind::automation {

HRESULT QuickActivation::QuickActivate(QACONTAINER* container, QACONTROL* control) {
  if (container == nullptr || control == nullptr) return E_POINTER;
  // Newer containers may say more than we know of.
  if (container->cbSize < sizeof *container || control->cbSize < sizeof *control) return E_INVALIDARG;
  return Guard([&] {
    DWORD cookie = 0;
    if (const HRESULT refused = Connect(container->pUnkEventSink, cookie); FAILED(refused)) return refused;
    const HRESULT placed = object_.SetClientSite(container->pClientSite);
    if (FAILED(placed)) return placed;
    site_.SetDesigning((container->dwAmbientFlags & QACONTAINER_USERMODE) == 0);
    if (container->pAdviseSink != nullptr) {
      const HRESULT advised = view_.SetAdvise(DVASPECT_CONTENT, 0, container->pAdviseSink);
      if (FAILED(advised)) return advised;
    }
    *control = {};
    control->cbSize = sizeof *control;
    control->dwMiscStatus = kMiscellaneousStatus;
    control->dwEventCookie = cookie;
    return S_OK;
  });
}

HRESULT QuickActivation::Connect(IUnknown* listener, DWORD& cookie) {
  if (listener == nullptr) return S_OK;
  ComPointer<IConnectionPointContainer> points;
  HRESULT result = QueryInterface(__uuidof(*points.Get()), points.ReceiveAny());
  if (FAILED(result)) return result;
  ComPointer<IConnectionPoint> events;
  result = points->FindConnectionPoint(__uuidof(__Calendar), events.Receive());
  return FAILED(result) ? result : events->Advise(listener, &cookie);
}

HRESULT QuickActivation::SetContentExtent(SIZEL* size) { return object_.SetExtent(DVASPECT_CONTENT, size); }

HRESULT QuickActivation::GetContentExtent(SIZEL* size) { return object_.GetExtent(DVASPECT_CONTENT, size); }

}  // namespace ferrowind::automation
