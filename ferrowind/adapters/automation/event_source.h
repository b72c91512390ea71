#pragma once

#include <memory>
#include <utility>
#include <vector>

#include <ocidl.h>
#include <olectl.h>

#include "ferrowind/adapters/automation/com_pointer.h"
#include "ferrowind/adapters/automation/connection_point.h"
#include "ferrowind/adapters/automation/dispatch_object.h"
#include "ferrowind/adapters/automation/snapshot_enumerator.h"

namespace ferrowind::automation {

/// A connection point that an enumerator keeps.
struct KeptConnectionPoint {
  ComPointer<IConnectionPoint> point;
  HRESULT GiveTo(IConnectionPoint*& to) const { return point.CopyTo(&to); }
};

/// An object of a class of the type library that has events, which hosts connect to.
template <typename Dual, typename... Others>
class EventSource : public DispatchObject<Dual, IConnectionPointContainer, Others...> {
 public:
  explicit EventSource(const DescribedClass& described)
      : DispatchObject<Dual, IConnectionPointContainer, Others...>(described),
        events_id_(described.events_id),
        point_(*this, described.events_id) {}

  HRESULT STDMETHODCALLTYPE FindConnectionPoint(REFIID iid, IConnectionPoint** found) override {
    if (found == nullptr) return E_POINTER;
    *found = nullptr;
    // Some hosts know the events only as what can be called late.
    if (!IsEqualIID(iid, events_id_) && !IsEqualIID(iid, __uuidof(IDispatch))) return CONNECT_E_NOCONNECTION;
    *found = &point_;
    point_.AddRef();
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE EnumConnectionPoints(IEnumConnectionPoints** enumerator) override {
    if (enumerator == nullptr) return E_POINTER;
    *enumerator = nullptr;
    return this->Guard([&] {
      auto points = std::make_shared<std::vector<KeptConnectionPoint>>();
      points->push_back({&point_});
      *enumerator = new SnapshotEnumerator<IEnumConnectionPoints, IConnectionPoint*, KeptConnectionPoint>(
          std::move(points));
    });
  }

 protected:
  [[nodiscard]] const ConnectionPoint& Events() const { return point_; }

 private:
  const GUID& events_id_;
  ConnectionPoint point_;
};

}  // namespace ferrowind::automation
