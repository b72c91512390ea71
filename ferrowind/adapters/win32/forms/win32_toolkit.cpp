#include "ferrowind/adapters/win32/forms/win32_toolkit.h"

#include <utility>

#include "ferrowind/adapters/win32/base/clipboard.h"
#include "ferrowind/adapters/win32/base/modal_show.h"
#include "ferrowind/adapters/win32/base/twips.h"
#include "ferrowind/adapters/win32/base/wide_text.h"
#include "ferrowind/adapters/win32/base/window_thread.h"
#include "ferrowind/adapters/win32/controls/control_window.h"
#include "ferrowind/adapters/win32/forms/file_question.h"
#include "ferrowind/adapters/win32/forms/win32_form.h"

namespace ferrowind::win32 {
namespace {

/// Null for an element of another toolkit.
NativeWindow* WindowOf(platform::Element& element) {
  if (auto* form = dynamic_cast<Win32Form*>(&element)) return &form->Window();
  return dynamic_cast<ControlWindow*>(&element);
}

void UsePlatformControls() {
  INITCOMMONCONTROLSEX controls{};
  controls.dwSize = sizeof controls;
  controls.dwICC = ICC_WIN95_CLASSES | ICC_DATE_CLASSES | ICC_STANDARD_CLASSES;
  InitCommonControlsEx(&controls);
}

}  // namespace

/// Stops the painting of a window until it goes.
class Win32Toolkit::UpdateLock {
 public:
  explicit UpdateLock(NativeWindow& locked) : site_(locked.Site()), window_(locked.Handle()) {
    SetPainted(FALSE);
  }
  ~UpdateLock() {
    if (IsGone()) return;
    SetPainted(TRUE);
    RedrawWindow(window_, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN);
  }
  UpdateLock(const UpdateLock&) = delete;
  UpdateLock& operator=(const UpdateLock&) = delete;

  [[nodiscard]] bool IsGone() const { return site_->is_retired; }

 private:
  void SetPainted(BOOL is_painted) const {
    // The platform would show a hidden window that may be painted again.
    if (site_->is_shown) SendMessageW(window_, WM_SETREDRAW, static_cast<WPARAM>(is_painted), 0);
  }

  std::shared_ptr<FormSite> site_;
  HWND window_;
};

Win32Toolkit::Win32Toolkit(FormLayouts layouts, const platform::Words* words) : layouts_(std::move(layouts)) {
  UsePlatformControls();
  thread_ = WindowThread::OfThisThread();
  thread_->UseWords(Wording(words));
}

Win32Toolkit::~Win32Toolkit() = default;

std::shared_ptr<platform::Form> Win32Toolkit::CreateForm(const platform::FormDesign& design) {
  return Win32Form::Create(thread_, design, layouts_);
}

platform::ScreenSize Win32Toolkit::Screen() const {
  const UINT dpi = GetDpiForSystem();
  return {ToTwips(GetSystemMetrics(SM_CXSCREEN), dpi), ToTwips(GetSystemMetrics(SM_CYSCREEN), dpi)};
}

float Win32Toolkit::TwipsPerPixelX() const { return ToTwips(1, GetDpiForSystem()); }

bool Win32Toolkit::LockUpdates(platform::Element& element) {
  NativeWindow* window = WindowOf(element);
  const bool is_locked = lock_ != nullptr && !lock_->IsGone();
  if (is_locked || window == nullptr) return false;
  lock_ = std::make_unique<UpdateLock>(*window);
  return true;
}

void Win32Toolkit::UnlockUpdates() { lock_.reset(); }

platform::Subscription Win32Toolkit::After(std::int32_t milliseconds, std::function<void()> handler) {
  return thread_->After(milliseconds, std::move(handler));
}

std::optional<std::string> Win32Toolkit::ChooseFileToSave(const std::string& title,
                                                          const std::string& suggested_name,
                                                          const std::vector<platform::FileKind>& kinds) {
  return AskForFileToSave(*thread_, title, suggested_name, kinds);
}

std::optional<std::string> Win32Toolkit::ChooseFileToOpen(const std::string& title,
                                                          const std::string& caption,
                                                          const std::vector<std::string>& suffixes) {
  return AskForFileToOpen(*thread_, title, caption, suffixes);
}

void Win32Toolkit::SetClipboardText(const std::string& text) { PutOnClipboard(nullptr, ToWide(text)); }

void Win32Toolkit::ProcessPendingEvents() {
  MSG message{};
  while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != 0) {
    if (message.message == WM_QUIT) {
      // The host's own loop is to find it.
      PostQuitMessage(static_cast<int>(message.wParam));
      return;
    }
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
}

void Win32Toolkit::Beep() { MessageBeep(MB_OK); }

void Win32Toolkit::InterruptModalForms() { ModalShow::InterruptAll(*thread_); }

}  // namespace ferrowind::win32
