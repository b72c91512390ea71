#include "ferrowind/adapters/automation/connection_point.h"

#include <memory>
#include <utility>

#include <olectl.h>

#include "ferrowind/adapters/automation/call_guard.h"
#include "ferrowind/adapters/automation/native_failure.h"
#include "ferrowind/adapters/automation/snapshot_enumerator.h"

namespace ferrowind::automation {
namespace {

struct KeptConnection {
  DWORD cookie;
  ComPointer<IDispatch> listener;

  HRESULT GiveTo(CONNECTDATA& connection) const {
    connection.dwCookie = cookie;
    connection.pUnk = nullptr;
    ComPointer<IUnknown> identity;
    const HRESULT outcome = listener.As(identity);
    connection.pUnk = identity.Detach();
    return outcome;
  }
};

using ConnectionEnumerator = SnapshotEnumerator<IEnumConnections, CONNECTDATA, KeptConnection>;

}  // namespace

std::vector<ComPointer<IDispatch>> ConnectionPoint::Listeners() const {
  std::vector<ComPointer<IDispatch>> listeners;
  for (const auto& [cookie, listener] : listeners_) listeners.push_back(listener);
  return listeners;
}

HRESULT ConnectionPoint::QueryInterface(REFIID iid, void** object) {
  if (object == nullptr) return E_POINTER;
  *object = nullptr;
  if (!IsEqualIID(iid, __uuidof(IUnknown)) && !IsEqualIID(iid, __uuidof(IConnectionPoint))) {
    return E_NOINTERFACE;
  }
  *object = static_cast<IConnectionPoint*>(this);
  AddRef();
  return S_OK;
}

HRESULT ConnectionPoint::GetConnectionInterface(IID* iid) {
  if (iid == nullptr) return E_POINTER;
  *iid = events_id_;
  return S_OK;
}

HRESULT ConnectionPoint::GetConnectionPointContainer(IConnectionPointContainer** container) {
  if (container == nullptr) return E_POINTER;
  *container = &owner_;
  owner_.AddRef();
  return S_OK;
}

HRESULT ConnectionPoint::Advise(IUnknown* listener, DWORD* cookie) {
  if (listener == nullptr || cookie == nullptr) return E_POINTER;
  *cookie = 0;
  return Guarded(this, events_id_, [&] {
    ComPointer<IDispatch> events;
    // A listener in another apartment has a stand-in that knows the events by their own identifier only.
    if (FAILED(listener->QueryInterface(events_id_, events.ReceiveAny())) &&
        FAILED(listener->QueryInterface(__uuidof(*events.Get()), events.ReceiveAny()))) {
      throw NativeFailure(CONNECT_E_CANNOTCONNECT);
    }
    listeners_.emplace(last_cookie_ + 1, events);
    *cookie = ++last_cookie_;
  });
}

HRESULT ConnectionPoint::Unadvise(DWORD cookie) {
  // Taken out before it is released, since its end may call back.
  const auto node = listeners_.extract(cookie);
  return node.empty() ? CONNECT_E_NOCONNECTION : S_OK;
}

HRESULT ConnectionPoint::EnumConnections(IEnumConnections** enumerator) {
  if (enumerator == nullptr) return E_POINTER;
  *enumerator = nullptr;
  return Guarded(this, events_id_, [&] {
    auto connections = std::make_shared<std::vector<KeptConnection>>();
    for (const auto& [cookie, listener] : listeners_) connections->push_back({cookie, listener});
    *enumerator = new ConnectionEnumerator(std::move(connections));
  });
}

}  // namespace ferrowind::automation
