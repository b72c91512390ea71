#include "tests/windows/automation/native_operator.h"

#include <stdexcept>

#include <commctrl.h>

#include "ferrowind/adapters/automation/text.h"

#include "tests/windows/win32/input.h"

namespace ferrowind::testing {
namespace {

using contract::ClickMouse;
using contract::MiddleOf;

std::wstring ClassOf(HWND window) {
  wchar_t name[64]{};
  GetClassNameW(window, name, 64);
  return name;
}

/// Without the marks of access keys.
std::wstring TextOf(HWND window) {
  wchar_t shown[256]{};
  GetWindowTextW(window, shown, 256);
  std::wstring text = shown;
  std::erase(text, L'&');
  return text;
}

struct Sought {
  std::wstring of_class;
  std::wstring text;
  HWND found = nullptr;
};

HTREEITEM NextItem(HWND tree, WPARAM relation, HTREEITEM item) {
  return reinterpret_cast<HTREEITEM>(
      SendMessageW(tree, TVM_GETNEXTITEM, relation, reinterpret_cast<LPARAM>(item)));
}

HTREEITEM NodeOf(HWND tree, const std::wstring& text) {
  HTREEITEM item = NextItem(tree, TVGN_ROOT, nullptr);
  while (item != nullptr) {
    wchar_t shown[64]{};
    TVITEMW asked{};
    asked.mask = TVIF_TEXT;
    asked.hItem = item;
    asked.pszText = shown;
    asked.cchTextMax = 64;
    SendMessageW(tree, TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&asked));
    if (text == shown) return item;
    // Those that are in sight when they are scrolled to.
    item = NextItem(tree, TVGN_NEXTVISIBLE, item);
  }
  throw std::runtime_error("The tree has no node " + automation::Utf8(text));
}

RECT AreaOf(HWND tree, HTREEITEM item) {
  SendMessageW(tree, TVM_ENSUREVISIBLE, 0, reinterpret_cast<LPARAM>(item));
  RECT area{};
  *reinterpret_cast<HTREEITEM*>(&area) = item;
  SendMessageW(tree, TVM_GETITEMRECT, TRUE, reinterpret_cast<LPARAM>(&area));
  return area;
}

HWND OpenMenu() {
  const HWND menu = FindWindowW(L"#32768", nullptr);
  return menu != nullptr && IsWindowVisible(menu) != 0 ? menu : nullptr;
}

}  // namespace

void NativeOperator::WaitFor(const std::string& what, const std::function<bool()>& is_there) {
  constexpr int kPatience = 2000;
  constexpr DWORD kPause = 10;
  for (int i = 0; i < kPatience; ++i) {
    if (is_there()) return;
    Sleep(kPause);
  }
  throw std::runtime_error("There is no " + what);
}

HWND NativeOperator::Window(const std::wstring& title) const {
  Sought sought{.of_class = {}, .text = title};
  WaitFor("window " + automation::Utf8(title), [&] {
    EnumThreadWindows(
        thread_,
        [](HWND window, LPARAM given) -> BOOL {
          auto& wanted = *reinterpret_cast<Sought*>(given);
          if (IsWindowVisible(window) == 0 || IsWindowEnabled(window) == 0 || TextOf(window) != wanted.text)
            return TRUE;
          wanted.found = window;
          return FALSE;
        },
        reinterpret_cast<LPARAM>(&sought));
    return sought.found != nullptr;
  });
  return sought.found;
}

void NativeOperator::WaitUntilGone(HWND window) const {
  WaitFor("end of the window", [&] { return IsWindowVisible(window) == 0; });
}

HWND NativeOperator::Control(HWND window, const std::wstring& of_class, const std::wstring& text) {
  Sought sought{.of_class = of_class, .text = text};
  WaitFor("control " + automation::Utf8(of_class + L" " + text), [&] {
    EnumChildWindows(
        window,
        [](HWND child, LPARAM given) -> BOOL {
          auto& wanted = *reinterpret_cast<Sought*>(given);
          const bool is_it = IsWindowVisible(child) != 0 && ClassOf(child) == wanted.of_class &&
                             (wanted.text.empty() || TextOf(child) == wanted.text);
          if (is_it) wanted.found = child;
          return is_it ? FALSE : TRUE;
        },
        reinterpret_cast<LPARAM>(&sought));
    return sought.found != nullptr;
  });
  return sought.found;
}

void NativeOperator::ClickNode(HWND tree, const std::wstring& text) const {
  ClickMouse(MiddleOf(tree, AreaOf(tree, NodeOf(tree, text))));
}

void NativeOperator::OpenNode(HWND tree, const std::wstring& text) const {
  const RECT area = AreaOf(tree, NodeOf(tree, text));
  // The mark stands before the text.
  const LONG mark = (area.bottom - area.top) / 2;
  ClickMouse(MiddleOf(tree, {area.left - 2 * mark, area.top, area.left, area.bottom}));
}

void NativeOperator::ClickTool(HWND tool_bar, const std::wstring& caption) const {
  const auto count = SendMessageW(tool_bar, TB_BUTTONCOUNT, 0, 0);
  for (LRESULT place = 0; place < count; ++place) {
    TBBUTTON button{};
    SendMessageW(tool_bar, TB_GETBUTTON, static_cast<WPARAM>(place), reinterpret_cast<LPARAM>(&button));
    wchar_t text[64]{};
    SendMessageW(tool_bar, TB_GETBUTTONTEXTW, static_cast<WPARAM>(button.idCommand),
                 reinterpret_cast<LPARAM>(text));
    if (caption != text) continue;
    WaitFor("enabled tool " + automation::Utf8(caption), [&] {
      return SendMessageW(tool_bar, TB_ISBUTTONENABLED, static_cast<WPARAM>(button.idCommand), 0) != 0;
    });
    RECT area{};
    SendMessageW(tool_bar, TB_GETITEMRECT, static_cast<WPARAM>(place), reinterpret_cast<LPARAM>(&area));
    ClickMouse(MiddleOf(tool_bar, area));
    return;
  }
  throw std::runtime_error("There is no tool " + automation::Utf8(caption));
}

void NativeOperator::ClickButton(HWND window, const std::wstring& caption) const {
  const HWND button = Control(window, L"Button", caption);
  WaitFor("enabled button " + automation::Utf8(caption), [&] { return IsWindowEnabled(button) != 0; });
  ClickMouse(MiddleOf(button));
}

void NativeOperator::ChooseInMenu(const std::wstring& caption) const {
  WaitFor("menu", [] { return OpenMenu() != nullptr; });
  constexpr UINT kAskForMenu = 0x01E1;
  const auto menu = reinterpret_cast<HMENU>(SendMessageW(OpenMenu(), kAskForMenu, 0, 0));
  for (int place = 0; place < GetMenuItemCount(menu); ++place) {
    wchar_t text[128]{};
    GetMenuStringW(menu, static_cast<UINT>(place), text, 128, MF_BYPOSITION);
    if (caption != text) continue;
    WaitFor("way to the item " + automation::Utf8(caption), [&] {
      if ((GetMenuState(menu, static_cast<UINT>(place), MF_BYPOSITION) & MF_HILITE) != 0) return true;
      contract::PressKey(VK_DOWN);
      contract::Settle();
      return false;
    });
    contract::PressKey(VK_RETURN);
    WaitFor("end of the menu", [] { return OpenMenu() == nullptr; });
    return;
  }
  throw std::runtime_error("The menu has no item " + automation::Utf8(caption));
}

void NativeOperator::WaitForFocus(HWND control) const {
  WaitFor("keyboard focus", [&] {
    GUITHREADINFO information{};
    information.cbSize = sizeof information;
    return GetGUIThreadInfo(thread_, &information) != 0 && information.hwndFocus == control;
  });
}

}  // namespace ferrowind::testing
