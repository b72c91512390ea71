#include "ferrowind/adapters/automation/embedding/in_place_object.h"

#include <utility>

#include "ferrowind/adapters/automation/embedding/control_size.h"

namespace ferrowind::automation {

HRESULT InPlaceObject::Activate(IOleClientSite& client) {
  is_hidden_ = false;
  if (window_ && window_->Handle() != nullptr) {
    ShowWindow();
    return S_OK;
  }
  // A window that went with the container's leaves the place behind.
  Deactivate();
  ComPointer<IOleInPlaceSite> place;
  if (const HRESULT none = client.QueryInterface(__uuidof(*place.Get()), place.ReceiveAny()); FAILED(none)) {
    return none;
  }
  if (place->CanInPlaceActivate() != S_OK) return E_FAIL;
  place_ = place;
  HRESULT result = place->OnInPlaceActivate();
  if (FAILED(result)) {
    if (place_ == place) place_.Reset();
    return result;
  }
  result = TakePlace(*place.Get());
  // What the container was asked may have made it deactivate the control, which has told it so then.
  if (place_ != place) return E_FAIL;
  if (FAILED(result)) {
    Deactivate();
    return result;
  }
  client.ShowObject();
  return S_OK;
}

HRESULT InPlaceObject::TakePlace(IOleInPlaceSite& place) {
  HWND parent = nullptr;
  if (const HRESULT result = place.GetWindow(&parent); FAILED(result)) return result;
  ComPointer<IOleInPlaceFrame> frame;
  ComPointer<IOleInPlaceUIWindow> document;
  RECT position{};
  RECT clip{};
  OLEINPLACEFRAMEINFO information{};
  information.cb = sizeof information;
  const HRESULT result =
      place.GetWindowContext(frame.Receive(), document.Receive(), &position, &clip, &information);
  if (FAILED(result)) return result;
  if (place_.Get() != &place) return E_FAIL;
  const POINT left_top{position.left, position.top};
  auto window = std::make_unique<InPlaceWindow>(parent, left_top);
  // The form's window is told of its new child, and may have taken the site away for that.
  if (place_.Get() != &place) return E_FAIL;
  window_ = std::move(window);
  window_->MoveTo(left_top, clip);
  ShowWindow();
  SnapBack(position);
  return S_OK;
}

void InPlaceObject::Deactivate() {
  const ComPointer<IOleInPlaceSite> place = std::move(place_);
  window_.reset();
  if (place) place->OnInPlaceDeactivate();
}

void InPlaceObject::Hide() {
  is_hidden_ = true;
  ShowWindow();
}

HRESULT InPlaceObject::GetWindow(HWND* window) {
  if (window == nullptr) return E_POINTER;
  *window = window_ ? window_->Handle() : nullptr;
  return *window == nullptr ? E_FAIL : S_OK;
}

HRESULT InPlaceObject::ContextSensitiveHelp(BOOL /*enter*/) { return E_NOTIMPL; }

HRESULT InPlaceObject::InPlaceDeactivate() {
  return Guard([this] {
    Deactivate();
    return S_OK;
  });
}

HRESULT InPlaceObject::SetObjectRects(LPCRECT position, LPCRECT clip) {
  if (position == nullptr || clip == nullptr) return E_POINTER;
  return Guard([&] {
    if (!window_) return E_UNEXPECTED;
    window_->MoveTo({position->left, position->top}, *clip);
    SnapBack(*position);
    return S_OK;
  });
}

void InPlaceObject::ShowWindow() {
  if (window_) window_->Show(site_.IsDesigning() && !is_hidden_);
}

void InPlaceObject::SnapBack(const RECT& given) {
  // A container that insists gets no second answer.
  if (IsControlSize(given) || is_snapping_) return;
  const ComPointer<IOleInPlaceSite> place = place_;
  const RECT own{given.left, given.top, given.left + kControlPixels, given.top + kControlPixels};
  is_snapping_ = true;
  place->OnPosRectChange(&own);
  is_snapping_ = false;
}

}  // namespace ferrowind::automation
