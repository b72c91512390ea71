#include "ferrowind/adapters/win32/base/native_window.h"

#include <array>
#include <string>
#include <utility>

#include "ferrowind/adapters/win32/base/present_controls.h"
#include "ferrowind/adapters/win32/base/run_guarded.h"
#include "ferrowind/adapters/win32/base/this_module.h"
#include "ferrowind/adapters/win32/base/wide_text.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::win32 {
namespace {

constexpr UINT_PTR kSubclassId = 1;
constexpr const wchar_t* kObjectProperty = L"FerrowindObject";

constexpr const wchar_t* kPaneClass = L"FerrowindPane";

void RegisterPaneClass() {
  WNDCLASSEXW pane{};
  pane.cbSize = sizeof pane;
  pane.style = CS_DBLCLKS;
  pane.lpfnWndProc = DefWindowProcW;
  pane.hInstance = ThisModule();
  pane.hCursor = LoadCursorW(nullptr, MAKEINTRESOURCEW(32512));
  pane.hbrBackground = reinterpret_cast<HBRUSH>(static_cast<INT_PTR>(COLOR_BTNFACE + 1));
  pane.lpszClassName = kPaneClass;
  // It is there already where this file was unloaded and has come again.
  RegisterClassExW(&pane);
}

platform::Failure NoWindow() {
  return {platform::failure_number::kInvalidArgument,
          "The platform made no window; its error is " + std::to_string(GetLastError())};
}

}  // namespace

const wchar_t* PaneClass() {
  static const bool is_registered = [] {
    RegisterPaneClass();
    return true;
  }();
  static_cast<void>(is_registered);
  return kPaneClass;
}

NativeWindow::NativeWindow(std::shared_ptr<FormSite> site, const Design& design)
    : site_(std::move(site)), is_pane_(design.window_class == PaneClass()) {
  const PresentControls present;
  handle_ = CreateWindowExW(design.extended_style, design.window_class, L"", design.style, 0, 0, 0, 0,
                            design.parent, nullptr, ThisModule(), nullptr);
  if (handle_ == nullptr) throw NoWindow();
  SetPropW(handle_, kObjectProperty, this);
  SetWindowSubclass(handle_, &NativeWindow::Procedure, kSubclassId, reinterpret_cast<DWORD_PTR>(this));
}

NativeWindow::~NativeWindow() {
  if (handle_ == nullptr) return;
  RemovePropW(handle_, kObjectProperty);
  RemoveWindowSubclass(handle_, &NativeWindow::Procedure, kSubclassId);
  DestroyWindow(handle_);
}

UINT NativeWindow::DotsPerInch() const { return GetDpiForWindow(handle_); }

NativeWindow* NativeWindow::Of(HWND window) {
  return window == nullptr ? nullptr : static_cast<NativeWindow*>(GetPropW(window, kObjectProperty));
}

LRESULT NativeWindow::OnMessage(UINT message, WPARAM w_param, LPARAM l_param) {
  if (message == WM_ERASEBKGND && is_pane_ && IsDark()) {
    EraseDark(reinterpret_cast<HDC>(w_param));
    return 1;
  }
  return DefSubclassProc(handle_, message, w_param, l_param);
}

std::optional<LRESULT> NativeWindow::Reflected(UINT message, WPARAM w_param, LPARAM l_param) {
  if (message == WM_COMMAND) {
    NativeWindow* child = Of(reinterpret_cast<HWND>(l_param));
    if (child == nullptr) return std::nullopt;
    child->OnCommand(HIWORD(w_param), LOWORD(w_param));
    return 0;
  }
  if (message == WM_NOTIFY) {
    auto& header = *reinterpret_cast<NMHDR*>(l_param);
    NativeWindow* child = Of(header.hwndFrom);
    return child == nullptr ? std::nullopt : child->OnNotify(header);
  }
  if (message == WM_DRAWITEM) {
    const auto& item = *reinterpret_cast<const DRAWITEMSTRUCT*>(l_param);
    NativeWindow* child = Of(item.hwndItem);
    if (child == nullptr) return std::nullopt;
    child->OnDrawItem(item);
    return TRUE;
  }
  return std::nullopt;
}

void NativeWindow::EraseDark(HDC context) const {
  RECT room{};
  GetClientRect(handle_, &room);
  SetDCBrushColor(context, site_->colors->face);
  FillRect(context, &room, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
}

std::optional<LRESULT> NativeWindow::ColorsOfChild(UINT message, WPARAM w_param, LPARAM l_param) const {
  if (!IsDark()) return std::nullopt;
  const Theme& colors = *site_->colors;
  std::array<wchar_t, 8> child_class{};
  GetClassNameW(reinterpret_cast<HWND>(l_param), child_class.data(), static_cast<int>(child_class.size()));
  const bool is_label = message == WM_CTLCOLORSTATIC && lstrcmpiW(child_class.data(), WC_EDITW) != 0;
  switch (message) {
    case WM_CTLCOLORSTATIC:
    case WM_CTLCOLOREDIT:
    case WM_CTLCOLORLISTBOX:
    case WM_CTLCOLORBTN:
      break;
    default:
      return std::nullopt;
  }
  const COLORREF ground = is_label || message == WM_CTLCOLORBTN ? colors.face : colors.window;
  const auto context = reinterpret_cast<HDC>(w_param);
  SetTextColor(context, IsWindowEnabled(reinterpret_cast<HWND>(l_param)) != 0 ? colors.text : colors.muted);
  SetBkColor(context, ground);
  SetDCBrushColor(context, ground);
  return reinterpret_cast<LRESULT>(GetStockObject(DC_BRUSH));
}

LRESULT CALLBACK NativeWindow::Procedure(HWND window, UINT message, WPARAM w_param, LPARAM l_param,
                                         UINT_PTR /*id*/, DWORD_PTR object) noexcept {
  auto& self = *reinterpret_cast<NativeWindow*>(object);
  if (message == WM_NCDESTROY) {
    self.handle_ = nullptr;
    RemovePropW(window, kObjectProperty);
    RemoveWindowSubclass(window, &NativeWindow::Procedure, kSubclassId);
    return DefSubclassProc(window, message, w_param, l_param);
  }
  const AtWork at_work(self.site_);
  LRESULT result = 0;
  RunGuarded(self.site_->name, [&] {
    auto reflected = Reflected(message, w_param, l_param);
    if (!reflected) reflected = self.ColorsOfChild(message, w_param, l_param);
    result = reflected ? *reflected : self.OnMessage(message, w_param, l_param);
  });
  return result;
}

}  // namespace ferrowind::win32
