#pragma once

#include <memory>

#include "ferrowind/adapters/automation/com_pointer.h"
#include "ferrowind/adapters/automation/event_source.h"
#include "ferrowind/adapters/automation/grid_fields_object.h"
#include "ferrowind/adapters/automation/surroundings.h"
#include "ferrowind/control/calendar.h"

#include "generated/ferrowind.h"

namespace ferrowind::automation {

/// The control, as hosts see it.
class CalendarObject : public EventSource<_Calendar> {
 public:
  /// `surroundings` is not null, and kept.
  explicit CalendarObject(std::shared_ptr<Surroundings> surroundings);

  HRESULT STDMETHODCALLTYPE ForceClosing(VARIANT_BOOL* closed) override;
  HRESULT STDMETHODCALLTYPE Show() override;
  HRESULT STDMETHODCALLTYPE get_Headers(_GridFields** map) override;
  HRESULT STDMETHODCALLTYPE get_HolidayHeaders(_GridFields** map) override;
  HRESULT STDMETHODCALLTYPE get_Version(VARIANT* parts) override;

 private:
  using MapObject = ComPointer<GridFieldsObject>;

  std::shared_ptr<Surroundings> surroundings_;
  Calendar calendar_;
  ///@{
  /// Made when a host first asks for the map, and then always the same.
  MapObject headers_;
  MapObject holiday_headers_;
  ///@}
};

}  // namespace ferrowind::automation
