#include "ferrowind/adapters/qt/controls/modal_show.h"

#include <QApplication>
#include <algorithm>
#include <vector>

namespace ferrowind::qt {
namespace {

// Windows are used on one thread only. Both lists have the innermost last.

std::vector<QPointer<QWidget>>& WindowsAtWork() {
  static std::vector<QPointer<QWidget>> windows;
  return windows;
}

std::vector<ModalShow*>& ModalShows() {
  static std::vector<ModalShow*> shows;
  return shows;
}

}  // namespace

EventOf::EventOf(QWidget& element) { WindowsAtWork().emplace_back(element.window()); }

EventOf::~EventOf() { WindowsAtWork().pop_back(); }

ModalShow::ModalShow(QWidget& window, QWidget* owner)
    : window_(&window), owner_(owner != nullptr ? owner->window() : OwnerOf(&window)), in_front_(window) {
  ModalShows().push_back(this);
}

ModalShow::~ModalShow() { std::erase(ModalShows(), this); }

QWidget* ModalShow::OwnerOf(const QWidget* window) {
  const auto& windows = WindowsAtWork();
  const auto owner = std::find_if(windows.rbegin(), windows.rend(), [window](const auto& at_work) {
    return at_work && at_work != window && at_work->isVisible();
  });
  return owner != windows.rend() ? owner->data() : QApplication::activeWindow();
}

void ModalShow::InterruptThoseOf(const QWidget& owner) {
  std::vector<const QWidget*> gone{&owner};
  for (ModalShow* show : ModalShows()) {
    if (!show->window_ || std::find(gone.begin(), gone.end(), show->owner_.data()) == gone.end()) continue;
    gone.push_back(show->window_);
    // One that is hidden already was answered just before.
    show->is_interrupted_ |= show->window_->isVisible();
  }
  HideInterrupted();
}

void ModalShow::InterruptAll() {
  for (ModalShow* show : ModalShows()) show->is_interrupted_ |= show->window_ && show->window_->isVisible();
  HideInterrupted();
}

void ModalShow::HideInterrupted() {
  // Copied, since hiding a window raises events.
  std::vector<QPointer<QWidget>> windows;
  for (const ModalShow* show : ModalShows()) {
    if (show->is_interrupted_) windows.push_back(show->window_);
  }
  for (auto window = windows.rbegin(); window != windows.rend(); ++window) {
    if (*window) (*window)->hide();
  }
}

}  // namespace ferrowind::qt
