#include "ferrowind/adapters/automation/embedding/ambient_changes.h"

#include <oaidl.h>
#include <olectl.h>

namespace ferrowind::automation {

HRESULT AmbientChanges::OnAmbientPropertyChange(DISPID property) {
  // Unknown stands for several.
  if (property != DISPID_AMBIENT_USERMODE && property != DISPID_UNKNOWN) return S_OK;
  return Guard([this] {
    const bool was_designing = site_.IsDesigning();
    site_.AskMode();
    if (site_.IsDesigning() == was_designing) return S_OK;
    in_place_.FollowMode();
    view_.TellChange();
    return S_OK;
  });
}

}  // namespace ferrowind::automation
