#pragma once

#include <ocidl.h>

#include "ferrowind/adapters/automation/embedding/container_site.h"
#include "ferrowind/adapters/automation/embedding/control_part.h"
#include "ferrowind/adapters/automation/embedding/ole_object.h"
#include "ferrowind/adapters/automation/embedding/view_object.h"

namespace ferrowind::automation {

/// Everything that a container says to a new control, in one call.
class QuickActivation : public ControlPart<IQuickActivate> {
 public:
  /// The others must outlive this part.
  QuickActivation(IUnknown& control, ContainerSite& site, OleObject& object, ViewObject& view)
      : ControlPart(control), site_(site), object_(object), view_(view) {}

  /// Only the listener of events can be refused, and then nothing is taken.
  HRESULT STDMETHODCALLTYPE QuickActivate(QACONTAINER* container, QACONTROL* control) override;
  HRESULT STDMETHODCALLTYPE SetContentExtent(SIZEL* size) override;
  HRESULT STDMETHODCALLTYPE GetContentExtent(SIZEL* size) override;

 private:
  /// Connects the container's listener to the events; 0 without one.
  [[nodiscard]] HRESULT Connect(IUnknown* listener, DWORD& cookie);

  ContainerSite& site_;
  OleObject& object_;
  ViewObject& view_;
};

}  // namespace ferrowind::automation
