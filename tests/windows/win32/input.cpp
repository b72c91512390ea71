#include "tests/windows/win32/input.h"

#include <array>

namespace ferrowind::contract {
namespace {

void Send(INPUT input) {
  SendInput(1, &input, sizeof input);
  HandleMessages();
}

void SendKey(WORD key, DWORD flags) {
  INPUT input{};
  input.type = INPUT_KEYBOARD;
  input.ki.wVk = key;
  input.ki.wScan = static_cast<WORD>(MapVirtualKeyW(key, MAPVK_VK_TO_VSC));
  input.ki.dwFlags = flags;
  Send(input);
}

void SendMouse(DWORD flags) {
  INPUT input{};
  input.type = INPUT_MOUSE;
  input.mi.dwFlags = flags;
  Send(input);
}

/// Both at once, since a control may wait for the release before it goes on after the press.
void PressAndRelease(DWORD press, DWORD release) {
  std::array<INPUT, 2> inputs{};
  for (INPUT& input : inputs) input.type = INPUT_MOUSE;
  inputs[0].mi.dwFlags = press;
  inputs[1].mi.dwFlags = release;
  SendInput(static_cast<UINT>(inputs.size()), inputs.data(), sizeof(INPUT));
  HandleMessages();
}

/// Holds keys down for as long as it lives.
class Holding {
 public:
  explicit Holding(const Held& keys) : keys_(keys) {
    for (const WORD key : keys_) SendKey(key, 0);
  }
  ~Holding() {
    for (const WORD key : keys_) SendKey(key, KEYEVENTF_KEYUP);
  }
  Holding(const Holding&) = delete;
  Holding& operator=(const Holding&) = delete;

 private:
  const Held& keys_;
};

}  // namespace

void HandleMessages() {
  MSG message{};
  while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != 0) {
    if (message.message == WM_QUIT) {
      PostQuitMessage(static_cast<int>(message.wParam));
      return;
    }
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
}

void Settle() {
  HandleMessages();
  constexpr DWORD kMoment = 20;
  Sleep(kMoment);
  HandleMessages();
}

void PressKey(WORD key, const Held& held) {
  const Holding holding(held);
  SendKey(key, 0);
  SendKey(key, KEYEVENTF_KEYUP);
}

void TypeKeys(const std::wstring& text) {
  for (const wchar_t letter : text) {
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wScan = static_cast<WORD>(letter);
    input.ki.dwFlags = KEYEVENTF_UNICODE;
    Send(input);
    input.ki.dwFlags |= KEYEVENTF_KEYUP;
    Send(input);
  }
}

void MoveMouse(POINT screen) {
  constexpr LONG kWhole = 65535;
  INPUT input{};
  input.type = INPUT_MOUSE;
  input.mi.dx = (screen.x * kWhole + GetSystemMetrics(SM_CXSCREEN) / 2) / (GetSystemMetrics(SM_CXSCREEN) - 1);
  input.mi.dy = (screen.y * kWhole + GetSystemMetrics(SM_CYSCREEN) / 2) / (GetSystemMetrics(SM_CYSCREEN) - 1);
  input.mi.dwFlags = MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE;
  Send(input);
  Settle();
}

void ClickMouse(POINT screen, bool is_right, const Held& held) {
  MoveMouse(screen);
  const Holding holding(held);
  if (is_right) {
    PressAndRelease(MOUSEEVENTF_RIGHTDOWN, MOUSEEVENTF_RIGHTUP);
  } else {
    PressAndRelease(MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP);
  }
  // So that the next click there is no double one.
  MoveMouse({screen.x + GetSystemMetrics(SM_CXDOUBLECLK) + 1, screen.y});
}

void DoubleClickMouse(POINT screen) {
  MoveMouse(screen);
  for (int i = 0; i < 2; ++i) PressAndRelease(MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP);
}

void DragMouse(POINT from, POINT to) {
  MoveMouse(from);
  SendMouse(MOUSEEVENTF_LEFTDOWN);
  MoveMouse({(from.x + to.x) / 2, (from.y + to.y) / 2});
  MoveMouse(to);
  SendMouse(MOUSEEVENTF_LEFTUP);
}

POINT MiddleOf(HWND window, const RECT& area) {
  POINT middle{(area.left + area.right) / 2, (area.top + area.bottom) / 2};
  ClientToScreen(window, &middle);
  return middle;
}

POINT MiddleOf(HWND window) {
  RECT area{};
  GetClientRect(window, &area);
  return MiddleOf(window, area);
}

}  // namespace ferrowind::contract
