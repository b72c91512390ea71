#pragma once

#include "ferrowind/adapters/automation/calendar_object.h"
#include "ferrowind/adapters/automation/embedding/ambient_changes.h"
#include "ferrowind/adapters/automation/embedding/container_site.h"
#include "ferrowind/adapters/automation/embedding/in_place_object.h"
#include "ferrowind/adapters/automation/embedding/ole_object.h"
#include "ferrowind/adapters/automation/embedding/quick_activation.h"
#include "ferrowind/adapters/automation/embedding/stored_state.h"
#include "ferrowind/adapters/automation/embedding/view_object.h"

namespace ferrowind::automation {

/// The control as hosts create it: by name, or on a form, where it is 16 by 16 pixels that only the form's
/// designer shows.
class FormControl : public CalendarObject {
 public:
  using CalendarObject::CalendarObject;

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override;

 private:
  [[nodiscard]] IUnknown& Identity() { return *static_cast<_Calendar*>(this); }

  ContainerSite site_;
  InPlaceObject in_place_{Identity(), site_};
  ViewObject view_{Identity(), site_};
  OleObject object_{Identity(), site_, in_place_};
  StoredState stored_{Identity()};
  AmbientChanges changes_{Identity(), site_, in_place_, view_};
  QuickActivation quick_{Identity(), site_, object_, view_};
};

}  // namespace ferrowind::automation
