#include "ferrowind/adapters/automation/embedding/view_object.h"

#include <windows.h>

#include "ferrowind/adapters/automation/embedding/control_size.h"
#include "ferrowind/adapters/automation/embedding/design_picture.h"

namespace ferrowind::automation {
namespace {

constexpr LONG kWhole = -1;

HRESULT CheckAspect(DWORD aspect, LONG part) {
  if (aspect != DVASPECT_CONTENT) return DV_E_DVASPECT;
  return part == kWhole ? S_OK : DV_E_LINDEX;
}

}  // namespace

void ViewObject::TellChange() {
  const ComPointer<IAdviseSink> told = told_;
  if (!told || (told_aspects_ & DVASPECT_CONTENT) == 0) return;
  if ((told_flags_ & ADVF_ONLYONCE) != 0) told_.Reset();
  told->OnViewChange(DVASPECT_CONTENT, kWhole);
}

HRESULT ViewObject::Draw(DWORD aspect, LONG part, void* /*aspect_data*/, DVTARGETDEVICE* /*device*/,
                         HDC /*device_information*/, HDC context, LPCRECTL bounds, LPCRECTL /*window_bounds*/,
                         WINBOOL(STDMETHODCALLTYPE* /*go_on*/)(ULONG_PTR), ULONG_PTR /*argument*/) {
  if (const HRESULT wrong = CheckAspect(aspect, part); FAILED(wrong)) return wrong;
  if (context == nullptr || bounds == nullptr) return E_INVALIDARG;
  if (site_.IsDesigning()) {
    DrawDesignPicture(context, {bounds->left, bounds->top, bounds->right, bounds->bottom});
  }
  return S_OK;
}

HRESULT ViewObject::GetColorSet(DWORD /*aspect*/, LONG /*part*/, void* /*aspect_data*/,
                                DVTARGETDEVICE* /*device*/, HDC /*device_information*/,
                                LOGPALETTE** colours) {
  if (colours == nullptr) return E_POINTER;
  *colours = nullptr;
  return S_FALSE;
}

HRESULT ViewObject::Freeze(DWORD, LONG, void*, DWORD*) { return E_NOTIMPL; }

HRESULT ViewObject::Unfreeze(DWORD) { return E_NOTIMPL; }

HRESULT ViewObject::SetAdvise(DWORD aspects, DWORD flags, IAdviseSink* sink) {
  return Guard([&] {
    told_aspects_ = aspects;
    told_flags_ = flags;
    told_ = ComPointer<IAdviseSink>(sink);
    if ((flags & ADVF_PRIMEFIRST) != 0) TellChange();
    return S_OK;
  });
}

HRESULT ViewObject::GetAdvise(DWORD* aspects, DWORD* flags, IAdviseSink** sink) {
  if (aspects != nullptr) *aspects = told_aspects_;
  if (flags != nullptr) *flags = told_flags_;
  if (sink != nullptr) told_.CopyTo(sink);
  return S_OK;
}

HRESULT ViewObject::GetExtent(DWORD aspect, LONG part, DVTARGETDEVICE* /*device*/, SIZEL* size) {
  if (size == nullptr) return E_POINTER;
  *size = {};
  if (const HRESULT wrong = CheckAspect(aspect, part); FAILED(wrong)) return wrong;
  *size = ControlExtent();
  return S_OK;
}

}  // namespace ferrowind::automation
