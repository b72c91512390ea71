#include "ferrowind/adapters/automation/embedding/in_place_window.h"

#include <windows.h>
#include <commctrl.h>

#include "ferrowind/adapters/automation/embedding/control_size.h"
#include "ferrowind/adapters/automation/embedding/design_picture.h"
#include "ferrowind/adapters/automation/native_failure.h"

namespace ferrowind::automation {
namespace {

constexpr UINT_PTR kSubclassId = 1;

}  // namespace

// A class of the platform's, since one of our own would have to be taken back before the file is unloaded.
InPlaceWindow::InPlaceWindow(HWND parent, POINT left_top)
    : handle_(CreateWindowExW(0, L"STATIC", L"", WS_CHILD | WS_CLIPSIBLINGS, left_top.x, left_top.y,
                              kControlPixels, kControlPixels, parent, nullptr, nullptr, nullptr)) {
  if (handle_ == nullptr) throw NativeFailure(HRESULT_FROM_WIN32(GetLastError()));
  SetWindowSubclass(handle_, &InPlaceWindow::Procedure, kSubclassId, reinterpret_cast<DWORD_PTR>(this));
}

InPlaceWindow::~InPlaceWindow() {
  if (handle_ == nullptr) return;
  RemoveWindowSubclass(handle_, &InPlaceWindow::Procedure, kSubclassId);
  DestroyWindow(handle_);
}

RECT InPlaceWindow::Place() const {
  RECT place{};
  if (handle_ == nullptr) return place;
  GetWindowRect(handle_, &place);
  MapWindowPoints(nullptr, GetParent(handle_), reinterpret_cast<POINT*>(&place), 2);
  return place;
}

void InPlaceWindow::MoveTo(POINT left_top, const RECT& clip) {
  if (handle_ == nullptr) return;
  RECT visible = clip;
  OffsetRect(&visible, -left_top.x, -left_top.y);
  const RECT whole{0, 0, kControlPixels, kControlPixels};
  IntersectRect(&visible, &visible, &whole);
  // The platform takes the region over.
  SetWindowRgn(handle_, EqualRect(&visible, &whole) ? nullptr : CreateRectRgnIndirect(&visible), TRUE);
  SetWindowPos(handle_, nullptr, left_top.x, left_top.y, kControlPixels, kControlPixels,
               SWP_NOZORDER | SWP_NOACTIVATE);
}

void InPlaceWindow::Show(bool is_shown) { ShowWindow(handle_, is_shown ? SW_SHOWNA : SW_HIDE); }

LRESULT CALLBACK InPlaceWindow::Procedure(HWND window, UINT message, WPARAM w_param, LPARAM l_param,
                                          UINT_PTR /*id*/, DWORD_PTR object) noexcept {
  auto& self = *reinterpret_cast<InPlaceWindow*>(object);
  if (message == WM_PAINT) {
    self.Paint();
    return 0;
  }
  if (message == WM_WINDOWPOSCHANGING) {
    // Whoever else moves it cannot make it larger either.
    auto& changed = *reinterpret_cast<WINDOWPOS*>(l_param);
    changed.cx = kControlPixels;
    changed.cy = kControlPixels;
  }
  if (message == WM_NCDESTROY) {
    self.handle_ = nullptr;
    RemoveWindowSubclass(window, &InPlaceWindow::Procedure, kSubclassId);
  }
  return DefSubclassProc(window, message, w_param, l_param);
}

void InPlaceWindow::Paint() const {
  PAINTSTRUCT paint;
  const HDC context = BeginPaint(handle_, &paint);
  DrawDesignPicture(context, {0, 0, kControlPixels, kControlPixels});
  EndPaint(handle_, &paint);
}

}  // namespace ferrowind::automation
