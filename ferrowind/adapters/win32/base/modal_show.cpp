#include "ferrowind/adapters/win32/base/modal_show.h"

#include <algorithm>
#include <utility>

namespace ferrowind::win32 {

ModalShow::ModalShow(WindowThread& thread, std::shared_ptr<FormSite> site, std::function<void()> hide)
    : thread_(thread.shared_from_this()),
      site_(std::move(site)),
      hide_(std::move(hide)),
      owner_(thread.OwnerOf(*site_)),
      in_front_(thread, site_) {
  thread_->ModalShows().push_back(this);
}

ModalShow::~ModalShow() {
  EnableOthers();
  std::erase(thread_->ModalShows(), this);
}

void ModalShow::DisableOthers() {
  const auto disable = [](HWND window, LPARAM object) -> BOOL {
    auto& show = *reinterpret_cast<ModalShow*>(object);
    if (window != show.site_->window && IsWindowVisible(window) != 0 && IsWindowEnabled(window) != 0)
      show.disabled_.push_back(window);
    return TRUE;
  };
  EnumThreadWindows(GetCurrentThreadId(), disable, reinterpret_cast<LPARAM>(this));
  for (const HWND window : disabled_) EnableWindow(window, FALSE);
}

void ModalShow::EnableOthers() {
  for (const HWND window : std::exchange(disabled_, {})) {
    if (IsWindow(window) != 0) EnableWindow(window, TRUE);
  }
}

void ModalShow::InterruptThoseOf(WindowThread& thread, HWND owner) {
  std::vector<HWND> gone{owner};
  for (ModalShow* show : thread.ModalShows()) {
    if (show->owner_ == nullptr || std::find(gone.begin(), gone.end(), show->owner_) == gone.end()) continue;
    gone.push_back(show->site_->window);
    // One that is hidden already was answered just before.
    show->is_interrupted_ |= show->site_->is_shown;
  }
  HideInterrupted(thread);
}

void ModalShow::InterruptAll(WindowThread& thread) {
  for (ModalShow* show : thread.ModalShows()) show->is_interrupted_ |= show->site_->is_shown;
  HideInterrupted(thread);
}

void ModalShow::HideInterrupted(WindowThread& thread) {
  // Copied, since hiding a window raises events.
  const std::vector<ModalShow*> shows = thread.ModalShows();
  for (auto show = shows.rbegin(); show != shows.rend(); ++show) {
    const auto& now = thread.ModalShows();
    const bool is_there = std::find(now.begin(), now.end(), *show) != now.end();
    if (is_there && (*show)->is_interrupted_ && (*show)->site_->is_shown) (*show)->hide_();
  }
}

}  // namespace ferrowind::win32
