#pragma once

#include <map>
#include <vector>

#include <ocidl.h>

#include "ferrowind/adapters/automation/com_pointer.h"

namespace ferrowind::automation {

// Interfaces of the platform cannot have a virtual destructor: it would be a slot of theirs.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"

/// The connections of an object's events to those who listen. It is a part of the object: references to it
/// are references to the object, and it has none itself.
class ConnectionPoint : public IConnectionPoint {
 public:
  /// `owner` holds this point, and `events_id` is that of its events' dispatch interface.
  ConnectionPoint(IConnectionPointContainer& owner, const GUID& events_id)
      : owner_(owner), events_id_(events_id) {}
  ConnectionPoint(const ConnectionPoint&) = delete;
  ConnectionPoint& operator=(const ConnectionPoint&) = delete;
  virtual ~ConnectionPoint() = default;

  /// Who listens now, in the order in which they began to.
  [[nodiscard]] std::vector<ComPointer<IDispatch>> Listeners() const;

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override;
  ULONG STDMETHODCALLTYPE AddRef() override { return owner_.AddRef(); }
  ULONG STDMETHODCALLTYPE Release() override { return owner_.Release(); }

  HRESULT STDMETHODCALLTYPE GetConnectionInterface(IID* iid) override;
  HRESULT STDMETHODCALLTYPE GetConnectionPointContainer(IConnectionPointContainer** container) override;
  HRESULT STDMETHODCALLTYPE Advise(IUnknown* listener, DWORD* cookie) override;
  HRESULT STDMETHODCALLTYPE Unadvise(DWORD cookie) override;
  HRESULT STDMETHODCALLTYPE EnumConnections(IEnumConnections** enumerator) override;

 private:
  IConnectionPointContainer& owner_;
  const GUID& events_id_;
  DWORD last_cookie_ = 0;
  std::map<DWORD, ComPointer<IDispatch>> listeners_;
};

#pragma GCC diagnostic pop

}  // namespace ferrowind::automation
