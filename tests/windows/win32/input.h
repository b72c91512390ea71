#pragma once

#include <string>
#include <vector>

#include "ferrowind/adapters/win32/base/windows_api.h"

namespace ferrowind::contract {

/// Handles the messages that wait, those of injected input among them.
void HandleMessages();

/// Handles what the display tells a moment later of a window or a move of the mouse: with it come the keys
/// that are held there, which are none.
void Settle();

/// Keys that are held while another key or a mouse button is pressed.
using Held = std::vector<WORD>;

///@{
/// Input as of the keyboard and the mouse, handled when the call returns. Places are those of the screen.
void PressKey(WORD key, const Held& held = {});
void TypeKeys(const std::wstring& text);
void MoveMouse(POINT screen);
void ClickMouse(POINT screen, bool is_right = false, const Held& held = {});
void DoubleClickMouse(POINT screen);
void DragMouse(POINT from, POINT to);
///@}

/// The middle of an area of a window, on the screen.
[[nodiscard]] POINT MiddleOf(HWND window, const RECT& area);
/// The middle of a window, on the screen.
[[nodiscard]] POINT MiddleOf(HWND window);

}  // namespace ferrowind::contract
