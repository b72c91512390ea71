#include "ferrowind/adapters/win32/services/message_box.h"

#include <memory>
#include <utility>

#include "ferrowind/adapters/win32/base/modal_show.h"
#include "ferrowind/adapters/win32/base/present_controls.h"
#include "ferrowind/adapters/win32/base/wide_text.h"
#include "ferrowind/adapters/win32/base/window_thread.h"
#include "ferrowind/adapters/windows/system_message.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::win32 {
namespace {

constexpr std::size_t kLongestShown = 1200;
constexpr wchar_t kEllipsis = L'\u2026';

bool IsLowSurrogate(wchar_t unit) { return unit >= 0xDC00 && unit <= 0xDFFF; }

std::wstring Shown(const std::wstring& text) {
  if (text.size() <= kLongestShown) return text;
  const std::size_t end = IsLowSurrogate(text[kLongestShown]) ? kLongestShown - 1 : kLongestShown;
  return text.substr(0, end) + kEllipsis;
}

/// A request to end waits for the thread's message loops, all of which leave it to the outermost.
bool IsApplicationEnding() {
  MSG message{};
  return PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_NOREMOVE) != 0;
}

/// Finds the window of the next box that this thread shows.
class BoxFinder {
 public:
  BoxFinder(FormSite& site, ModalShow& show) : site_(site), show_(show), before_(std::exchange(now, this)) {
    hook_ = SetWindowsHookExW(WH_CBT, &BoxFinder::Procedure, nullptr, GetCurrentThreadId());
  }
  ~BoxFinder() {
    UnhookWindowsHookEx(hook_);
    now = before_;
  }
  BoxFinder(const BoxFinder&) = delete;
  BoxFinder& operator=(const BoxFinder&) = delete;

 private:
  static LRESULT CALLBACK Procedure(int code, WPARAM w_param, LPARAM l_param) noexcept {
    // The first window that is activated is the box itself; its owner takes no input already.
    if (code == HCBT_ACTIVATE && now->site_.window == nullptr) {
      now->site_.window = reinterpret_cast<HWND>(w_param);
      now->show_.DisableOthers();
    }
    return CallNextHookEx(nullptr, code, w_param, l_param);
  }

  static thread_local BoxFinder* now;

  FormSite& site_;
  ModalShow& show_;
  BoxFinder* before_;
  HHOOK hook_;
};

thread_local BoxFinder* BoxFinder::now = nullptr;

}  // namespace

void ShowMessageBox(const Message& message) {
  if (IsApplicationEnding()) return;
  const auto thread = WindowThread::OfThisThread();
  const auto site = std::make_shared<FormSite>(FormSite{.name = "fmSharedMessage", .is_shown = true});
  constexpr int kNoAnswer = 0;
  ModalShow show(*thread, site, [&site] {
    site->is_shown = false;
    EndDialog(site->window, kNoAnswer);
  });
  UINT style = MB_OK | MB_SETFOREGROUND | (message.is_error ? MB_ICONERROR : MB_ICONINFORMATION);
  if (message.is_on_top) style |= MB_TOPMOST;
  if (show.Owner() == nullptr) style |= MB_TASKMODAL;
  int answer = kNoAnswer;
  DWORD error = ERROR_SUCCESS;
  {
    const BoxFinder finder(*site, show);
    const PresentControls present;
    answer = MessageBoxW(show.Owner(), Shown(message.text).c_str(), message.title.c_str(), style);
    error = GetLastError();
  }
  site->is_shown = false;
  show.EnableOthers();
  if (show.IsInterrupted() || IsApplicationEnding()) {
    throw platform::Interruption("Nobody has answered the message \"" + FromWide(message.text) + "\"");
  }
  if (answer == kNoAnswer) {
    throw platform::Failure(
        platform::failure_number::kCannotCreateObject,
        "The message \"" + FromWide(message.text) + "\" cannot be shown: " + windows::SystemMessage(error));
  }
}

}  // namespace ferrowind::win32
