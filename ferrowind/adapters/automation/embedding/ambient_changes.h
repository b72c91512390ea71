#pragma once

#include <ocidl.h>

#include "ferrowind/adapters/automation/embedding/container_site.h"
#include "ferrowind/adapters/automation/embedding/control_part.h"
#include "ferrowind/adapters/automation/embedding/in_place_object.h"
#include "ferrowind/adapters/automation/embedding/view_object.h"

namespace ferrowind::automation {

/// What a container tells a control: that a form is designed now, or runs. There are no keys that the control
/// wants, and no events that could be held back.
class AmbientChanges : public ControlPart<IOleControl> {
 public:
  /// The others must outlive this part.
  AmbientChanges(IUnknown& control, ContainerSite& site, InPlaceObject& in_place, ViewObject& view)
      : ControlPart(control), site_(site), in_place_(in_place), view_(view) {}

  HRESULT STDMETHODCALLTYPE GetControlInfo(CONTROLINFO*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE OnMnemonic(MSG*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE OnAmbientPropertyChange(DISPID property) override;
  HRESULT STDMETHODCALLTYPE FreezeEvents(BOOL) override { return S_OK; }

 private:
  ContainerSite& site_;
  InPlaceObject& in_place_;
  ViewObject& view_;
};

}  // namespace ferrowind::automation
