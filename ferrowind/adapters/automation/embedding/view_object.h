#pragma once

#include <oleidl.h>

#include "ferrowind/adapters/automation/com_pointer.h"
#include "ferrowind/adapters/automation/embedding/container_site.h"
#include "ferrowind/adapters/automation/embedding/control_part.h"

namespace ferrowind::automation {

/// What the control looks like where a container draws it: a picture in designers, nothing at run time.
class ViewObject : public ControlPart<IViewObject2> {
 public:
  /// `site` must outlive this part.
  ViewObject(IUnknown& control, const ContainerSite& site) : ControlPart(control), site_(site) {}

  /// Tells who asked to be told that the control looks different now.
  void TellChange();

  HRESULT STDMETHODCALLTYPE Draw(DWORD aspect, LONG part, void* aspect_data, DVTARGETDEVICE* device,
                                 HDC device_information, HDC context, LPCRECTL bounds, LPCRECTL window_bounds,
                                 WINBOOL(STDMETHODCALLTYPE* go_on)(ULONG_PTR), ULONG_PTR argument) override;
  HRESULT STDMETHODCALLTYPE GetColorSet(DWORD aspect, LONG part, void* aspect_data, DVTARGETDEVICE* device,
                                        HDC device_information, LOGPALETTE** colours) override;
  HRESULT STDMETHODCALLTYPE Freeze(DWORD aspect, LONG part, void* aspect_data, DWORD* key) override;
  HRESULT STDMETHODCALLTYPE Unfreeze(DWORD key) override;
  HRESULT STDMETHODCALLTYPE SetAdvise(DWORD aspects, DWORD flags, IAdviseSink* sink) override;
  HRESULT STDMETHODCALLTYPE GetAdvise(DWORD* aspects, DWORD* flags, IAdviseSink** sink) override;
  HRESULT STDMETHODCALLTYPE GetExtent(DWORD aspect, LONG part, DVTARGETDEVICE* device, SIZEL* size) override;

 private:
  const ContainerSite& site_;
  DWORD told_aspects_ = 0;
  DWORD told_flags_ = 0;
  ComPointer<IAdviseSink> told_;
};

}  // namespace ferrowind::automation
