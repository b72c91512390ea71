#pragma once

#include <memory>

#include <oleidl.h>

#include "ferrowind/adapters/automation/com_pointer.h"
#include "ferrowind/adapters/automation/embedding/container_site.h"
#include "ferrowind/adapters/automation/embedding/control_part.h"
#include "ferrowind/adapters/automation/embedding/in_place_window.h"

namespace ferrowind::automation {

/// The control while it is active in its container's window. Its window is shown in designers only, keeps its
/// size, and takes neither focus nor keys, so that there is nothing more to activate.
class InPlaceObject : public ControlPart<IOleInPlaceObject, IOleInPlaceActiveObject> {
 public:
  /// `site` must outlive this part.
  InPlaceObject(IUnknown& control, const ContainerSite& site) : ControlPart(control), site_(site) {}

  /// Becomes active in `client`, or shows itself again when it is active already. Where the container refuses
  /// it, nothing has changed.
  [[nodiscard]] HRESULT Activate(IOleClientSite& client);
  /// Tells the container's site, if there is one that it is active in.
  void Deactivate();
  /// Stays active.
  void Hide();
  /// The container's form is designed now, or no longer.
  void FollowMode() { ShowWindow(); }

  HRESULT STDMETHODCALLTYPE GetWindow(HWND* window) override;
  HRESULT STDMETHODCALLTYPE ContextSensitiveHelp(BOOL enter) override;

  HRESULT STDMETHODCALLTYPE InPlaceDeactivate() override;
  HRESULT STDMETHODCALLTYPE UIDeactivate() override { return S_OK; }
  /// Takes the position over; of a size that is not the control's, the container is told better.
  HRESULT STDMETHODCALLTYPE SetObjectRects(LPCRECT position, LPCRECT clip) override;
  HRESULT STDMETHODCALLTYPE ReactivateAndUndo() override { return INPLACE_E_NOTUNDOABLE; }

  HRESULT STDMETHODCALLTYPE TranslateAccelerator(MSG*) override { return S_FALSE; }
  HRESULT STDMETHODCALLTYPE OnFrameWindowActivate(BOOL) override { return S_OK; }
  HRESULT STDMETHODCALLTYPE OnDocWindowActivate(BOOL) override { return S_OK; }
  HRESULT STDMETHODCALLTYPE ResizeBorder(LPCRECT, IOleInPlaceUIWindow*, BOOL) override { return S_OK; }
  HRESULT STDMETHODCALLTYPE EnableModeless(BOOL) override { return S_OK; }

 private:
  /// Makes the window where the container says.
  [[nodiscard]] HRESULT TakePlace(IOleInPlaceSite& place);
  void ShowWindow();
  /// Tells the container the control's own size when it has given another.
  void SnapBack(const RECT& given);

  const ContainerSite& site_;
  /// Where it is active; null when it is not.
  ComPointer<IOleInPlaceSite> place_;
  std::unique_ptr<InPlaceWindow> window_;
  bool is_hidden_ = false;
  bool is_snapping_ = false;
};

}  // namespace ferrowind::automation
