#pragma once

#include <ocidl.h>

#include "ferrowind/adapters/automation/embedding/control_part.h"

namespace ferrowind::automation {

/// The control among what a container stores with its form. It has no property that a host sets, so that a
/// form's file holds only that it is this control, and loading changes nothing.
///
/// A stream gets eight bytes, which tell damaged ones. A bag gets the extents, as form designers expect them
/// of controls; those of an old form may be of any size, and anything that is no size is refused.
class StoredState : public ControlPart<IPersistStreamInit, IPersistPropertyBag> {
 public:
  using ControlPart::ControlPart;

  HRESULT STDMETHODCALLTYPE GetClassID(CLSID* class_id) override;
  HRESULT STDMETHODCALLTYPE InitNew() override { return S_OK; }

  HRESULT STDMETHODCALLTYPE IsDirty() override { return S_FALSE; }
  /// CTL_E_INVALIDFILEFORMAT for what `Save` has not written.
  HRESULT STDMETHODCALLTYPE Load(IStream* stream) override;
  HRESULT STDMETHODCALLTYPE Save(IStream* stream, BOOL clear_dirty) override;
  HRESULT STDMETHODCALLTYPE GetSizeMax(ULARGE_INTEGER* size) override;

  /// CTL_E_INVALIDPROPERTYVALUE, told to `log` too if there is one, for extents that are none.
  HRESULT STDMETHODCALLTYPE Load(IPropertyBag* bag, IErrorLog* log) override;
  HRESULT STDMETHODCALLTYPE Save(IPropertyBag* bag, BOOL clear_dirty, BOOL save_all) override;
};

}  // namespace ferrowind::automation
