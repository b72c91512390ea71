#pragma once

#include <string>
#include <type_traits>
#include <vector>

#include "ferrowind/adapters/win32/base/native_window.h"
#include "ferrowind/adapters/win32/base/run_guarded.h"
#include "ferrowind/adapters/win32/controls/accessible_window.h"
#include "ferrowind/adapters/win32/controls/control_host.h"
#include "ferrowind/platform/events/signal.h"

namespace ferrowind::win32 {

/// The window of a control, and what all controls of a form do in the same way whatever their kind.
class ControlWindow : public NativeWindow {
 public:
  /// `host` outlives the control. The window is a child, shown and enabled at first.
  ControlWindow(ControlHost& host, std::string name, const Design& design);

  [[nodiscard]] const std::string& ControlName() const { return name_; }
  [[nodiscard]] bool IsOwnEnabled() const { return is_enabled_; }
  void Enable(bool enabled);
  [[nodiscard]] bool IsOwnVisible() const { return is_visible_; }
  void MakeVisible(bool visible);
  [[nodiscard]] float OuterHeight() const;
  /// A negative height is the failure Invalid argument.
  void SetOuterHeight(float height);
  void TakeFocus();

  /// The control that this one stands in; null for the form itself. It lives at least as long.
  void SetContainer(ControlWindow* container);
  /// Whether it is shown and enabled, and so is all that it stands in.
  [[nodiscard]] bool IsUsable() const;
  /// The pixels that the layout gives it where there is room: what was asked for last, or what it needs.
  [[nodiscard]] SIZE WantedSize() const;
  virtual void UseFont(HFONT font);
  /// The colours are others now.
  virtual void UseColors() {}
  /// Puts it there, in pixels of its parent.
  virtual void Place(const RECT& area);
  /// Its form was dropped: it raises nothing any more.
  virtual void Mute() { is_muted_ = true; }

  /// Whether Tab and clicks bring the focus here.
  [[nodiscard]] virtual bool CanHaveFocus() const { return false; }
  /// Whether it fills the height of a row that it stands in.
  [[nodiscard]] virtual bool FillsHeight() const { return false; }
  /// Whether typed characters are text to it, or a way to find an item.
  [[nodiscard]] virtual bool TakesText() const { return false; }
  /// Whether it keeps that key, pressed alone, for itself.
  [[nodiscard]] virtual bool KeepsKey(WPARAM /*key*/) const { return false; }
  /// What assistive programs are told of the parts that it paints itself; null where the platform tells all.
  [[nodiscard]] virtual const AccessibleWindow* Accessible() const { return nullptr; }

 protected:
  LRESULT OnMessage(UINT message, WPARAM w_param, LPARAM l_param) override;
  virtual void OnFocusLost() {}
  /// In pixels, what the control needs to show what it has to.
  [[nodiscard]] virtual SIZE NeededSize() const = 0;
  [[nodiscard]] ControlHost& Host() const { return host_; }
  [[nodiscard]] HFONT Font() const { return font_; }
  [[nodiscard]] const Wording& Words() const { return host_.Thread().Words(); }
  [[nodiscard]] const Theme& Colors() const { return host_.Thread().Colors(); }
  [[nodiscard]] SIZE TextSize(const std::string& text) const;
  /// Tells that `NeededSize` may be another.
  void NeedsOtherRoom() { host_.LayoutChanged(); }

  template <typename... Arguments>
  void RaiseEvent(const platform::Signal<Arguments...>& signal,
                  std::type_identity_t<Arguments>... arguments) {
    if (is_muted_) return;
    const EventOf event(host_.Thread(), Site());
    RunGuarded(name_, [&] { signal.Emit(arguments...); });
  }

 private:
  void ShowEnabled();
  /// The edge around it in dark colours, which the platform's painting does not know.
  void PaintDarkEdge() const;

  ControlHost& host_;
  std::string name_;
  ControlWindow* container_ = nullptr;
  std::vector<ControlWindow*> contained_;
  HFONT font_ = nullptr;
  /// In twips; negative for none.
  float asked_height_ = -1;
  bool is_enabled_ = true;
  bool is_visible_ = true;
  bool is_muted_ = false;
};

/// A control of the port `Port` over such a window. Kinds derive from it and add what they are for.
template <typename Port>
class Win32Control : public Port, public ControlWindow {
 public:
  using ControlWindow::ControlWindow;

  [[nodiscard]] const std::string& Name() const override { return ControlName(); }
  [[nodiscard]] bool Enabled() const override { return IsOwnEnabled(); }
  void SetEnabled(bool enabled) override { Enable(enabled); }
  [[nodiscard]] bool Visible() const override { return IsOwnVisible(); }
  void SetVisible(bool visible) override { MakeVisible(visible); }
  [[nodiscard]] float Height() const override { return OuterHeight(); }
  void SetHeight(float height) override { SetOuterHeight(height); }
  void SetFocus() override { TakeFocus(); }
};

}  // namespace ferrowind::win32
