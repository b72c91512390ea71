#include "ferrowind/adapters/win32/base/window_thread.h"

#include <algorithm>
#include <atomic>

#include "ferrowind/adapters/win32/base/run_guarded.h"
#include "ferrowind/platform/values/failure.h"

namespace ferrowind::win32 {
namespace {

constexpr UINT kDeleteRetired = WM_APP + 1;
/// How long a dropped form that is at work is left alone until it is looked at again.
constexpr std::int32_t kRetiredPause = 50;

std::atomic<int> count = 0;

}  // namespace

/// The window that nobody sees, to which timers and what waits for the message loop are addressed.
class WindowThread::Receiver final : public NativeWindow {
 public:
  explicit Receiver(WindowThread& thread)
      : NativeWindow(std::make_shared<FormSite>(FormSite{"toolkit"}),
                     {.window_class = PaneClass(), .parent = HWND_MESSAGE}),
        thread_(thread) {}

 protected:
  LRESULT OnMessage(UINT message, WPARAM w_param, LPARAM l_param) override {
    if (message != WM_TIMER && message != kDeleteRetired)
      return NativeWindow::OnMessage(message, w_param, l_param);
    // A handler may drop the toolkit.
    const auto keep = thread_.shared_from_this();
    if (message == WM_TIMER) {
      thread_.Fire(w_param);
    } else {
      thread_.DeleteRetired();
    }
    return 0;
  }

 private:
  WindowThread& thread_;
};

std::shared_ptr<WindowThread> WindowThread::OfThisThread() {
  static thread_local std::weak_ptr<WindowThread> of_this_thread;
  auto thread = of_this_thread.lock();
  if (thread == nullptr) {
    thread.reset(new WindowThread);
    of_this_thread = thread;
  }
  return thread;
}

int WindowThread::Count() { return count; }

WindowThread::WindowThread() : receiver_(std::make_unique<Receiver>(*this)) { ++count; }

WindowThread::~WindowThread() { --count; }

platform::Subscription WindowThread::After(std::int32_t milliseconds, std::function<void()> handler) {
  if (milliseconds < 0) throw platform::InvalidArgument();
  const UINT_PTR timer = ++last_timer_;
  timers_.emplace(timer, std::move(handler));
  SetTimer(receiver_->Handle(), timer, static_cast<UINT>(milliseconds), nullptr);
  return platform::Subscription([thread = weak_from_this(), timer] {
    const auto there = thread.lock();
    if (there == nullptr || there->timers_.erase(timer) == 0) return;
    KillTimer(there->receiver_->Handle(), timer);
  });
}

void WindowThread::Fire(UINT_PTR timer) {
  KillTimer(receiver_->Handle(), timer);
  const auto due = timers_.extract(timer);
  if (!due.empty()) RunGuarded("toolkit", due.mapped());
}

void WindowThread::Retire(std::shared_ptr<FormSite> site, std::shared_ptr<void> remains) {
  if (site->work_under_way == 0) return;
  retired_.emplace_back(std::move(site), std::move(remains));
  PostMessageW(receiver_->Handle(), kDeleteRetired, 0, 0);
}

void WindowThread::DeleteRetired() {
  // Taken out first, since the end of a form may drop another one.
  std::vector<std::pair<std::shared_ptr<FormSite>, std::shared_ptr<void>>> gone;
  std::erase_if(retired_, [&](auto& retired) {
    if (retired.first->work_under_way > 0) return false;
    gone.push_back(std::move(retired));
    return true;
  });
  gone.clear();
  if (retired_.empty()) return;
  timers_.emplace(++last_timer_, [this] { DeleteRetired(); });
  SetTimer(receiver_->Handle(), last_timer_, kRetiredPause, nullptr);
}

HWND WindowThread::OwnerOf(const FormSite& modal) const {
  const auto owner = std::find_if(events_.rbegin(), events_.rend(), [&](const auto& site) {
    return site.get() != &modal && site->is_shown && site->window != nullptr;
  });
  if (owner != events_.rend()) return (*owner)->window;
  const HWND active = GetActiveWindow();
  return active == modal.window ? nullptr : active;
}

EventOf::EventOf(WindowThread& thread, const std::shared_ptr<FormSite>& site)
    : thread_(thread.shared_from_this()), at_work_(site) {
  thread_->Events().push_back(site);
}

EventOf::~EventOf() { thread_->Events().pop_back(); }

}  // namespace ferrowind::win32
