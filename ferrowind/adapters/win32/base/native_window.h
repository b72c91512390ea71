#pragma once

#include <memory>
#include <optional>

#include "ferrowind/adapters/win32/base/form_site.h"
#include "ferrowind/adapters/win32/base/windows_api.h"

namespace ferrowind::win32 {

/// The class of windows that have no behaviour but that of `NativeWindow::OnMessage`.
[[nodiscard]] const wchar_t* PaneClass();

/// A window of the platform, and what this adapter does with its messages.
///
/// The window goes with this object; when it goes first, with its parent, the handle is null from then on.
class NativeWindow {
 public:
  struct Design {
    const wchar_t* window_class = nullptr;
    /// Without WS_CHILD for a top-level window.
    DWORD style = 0;
    DWORD extended_style = 0;
    HWND parent = nullptr;
  };

  /// Failure when the platform makes no such window.
  NativeWindow(std::shared_ptr<FormSite> site, const Design& design);
  virtual ~NativeWindow();
  NativeWindow(const NativeWindow&) = delete;
  NativeWindow& operator=(const NativeWindow&) = delete;

  [[nodiscard]] HWND Handle() const { return handle_; }
  [[nodiscard]] const std::shared_ptr<FormSite>& Site() const { return site_; }
  /// Of the monitor that the window is on.
  [[nodiscard]] UINT DotsPerInch() const;
  /// The object of a window; null for one that this adapter has not made.
  [[nodiscard]] static NativeWindow* Of(HWND window);

  ///@{
  /// What a child tells its parent, handed on to the child's object. Nothing leaves it to the platform.
  virtual void OnCommand(WORD /*notification*/, WORD /*id*/) {}
  [[nodiscard]] virtual std::optional<LRESULT> OnNotify(NMHDR& /*header*/) { return std::nullopt; }
  virtual void OnDrawItem(const DRAWITEMSTRUCT& /*item*/) {}
  ///@}

 protected:
  /// Whether it is to be painted in dark colours, which the platform's own painting does not know.
  [[nodiscard]] bool IsDark() const { return site_->colors != nullptr && site_->colors->is_dark; }
  /// Handles a message, or leaves it to the window's class by calling this one.
  virtual LRESULT OnMessage(UINT message, WPARAM w_param, LPARAM l_param);

 private:
  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM w_param, LPARAM l_param, UINT_PTR id,
                                    DWORD_PTR object) noexcept;
  /// Hands on what a child of this window tells.
  [[nodiscard]] static std::optional<LRESULT> Reflected(UINT message, WPARAM w_param, LPARAM l_param);

  /// Paints the ground of a window without behaviour dark.
  void EraseDark(HDC context) const;
  /// Gives a child its dark colours when it asks for colours.
  [[nodiscard]] std::optional<LRESULT> ColorsOfChild(UINT message, WPARAM w_param, LPARAM l_param) const;

  std::shared_ptr<FormSite> site_;
  HWND handle_ = nullptr;
  bool is_pane_;
};

}  // namespace ferrowind::win32
