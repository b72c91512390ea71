#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "ferrowind/adapters/win32/base/windows_api.h"
#include "ferrowind/platform/toolkit/form_design.h"

namespace ferrowind::win32 {

class ControlWindow;
class Win32Button;
class Win32TextBox;
class Win32ToolBar;

/// What the keys of a form do before the focused control has them: Tab, Enter, Esc, access keys, shortcuts of
/// tools, and text that is typed while no box has the focus.
class FormKeys {
 public:
  /// Closes the form as its frame does.
  explicit FormKeys(std::function<void()> close);

  /// In tab order. Precondition: `control` is the one that `design` designs.
  void Add(const platform::ControlDesign& design, ControlWindow& control);
  /// After all controls: finds the buttons' access keys, and the button that Enter presses.
  void Settle(const platform::FormDesign& design);

  /// True when the key, or the character that it makes, was the form's. `focused` is null while no control
  /// has the focus.
  [[nodiscard]] bool Takes(ControlWindow* focused, UINT message, WPARAM key, LPARAM state);
  /// As `ControlHost::PlaceMenus`, for the menus of all tool bars.
  void PlaceMenus(std::optional<POINT> screen) const;
  /// The first control that can have the focus now; null for none.
  [[nodiscard]] ControlWindow* First() const;

 private:
  [[nodiscard]] bool TakesDown(ControlWindow* focused, WPARAM key);
  [[nodiscard]] bool TakesCharacter(ControlWindow* focused, WPARAM character, LPARAM state) const;
  [[nodiscard]] bool PressAccessKey(WPARAM character) const;
  [[nodiscard]] bool PressEnter(ControlWindow* focused) const;
  [[nodiscard]] bool PressEscape() const;
  void MoveOn(const ControlWindow* focused, bool backwards) const;
  void GiveAccessKeys() const;

  std::function<void()> close_;
  std::vector<ControlWindow*> controls_;
  std::vector<Win32Button*> buttons_;
  std::vector<Win32ToolBar*> tool_bars_;
  Win32Button* default_button_ = nullptr;
  Win32Button* cancel_button_ = nullptr;
  Win32TextBox* typing_target_ = nullptr;
  bool closes_by_escape_ = false;
  /// The key of now was the form's, and so is the character that it makes.
  bool swallows_character_ = false;
};

}  // namespace ferrowind::win32
