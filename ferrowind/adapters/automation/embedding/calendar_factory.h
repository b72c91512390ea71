#pragma once

#include <unknwn.h>

#include "ferrowind/adapters/automation/com_object.h"
#include "ferrowind/adapters/automation/surroundings.h"

namespace ferrowind::automation {

/// Makes controls. Those of a thread share the surroundings that `make_surroundings` makes for the first of
/// them.
class CalendarFactory : public ComObject<IClassFactory> {
 public:
  explicit CalendarFactory(MakeSurroundings make_surroundings) : make_surroundings_(make_surroundings) {}

  /// A control is no part of another object.
  HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID iid, void** object) override;
  HRESULT STDMETHODCALLTYPE LockServer(BOOL lock) override;

 private:
  MakeSurroundings make_surroundings_;
};

}  // namespace ferrowind::automation
