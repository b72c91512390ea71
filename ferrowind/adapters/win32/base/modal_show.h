#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "ferrowind/adapters/win32/base/window_thread.h"

namespace ferrowind::win32 {

/// A window that is shown modally for as long as this object lives: the thread's other windows take no input,
/// and it goes with the form that it belongs to.
class ModalShow {
 public:
  /// `hide` takes the window from the screen and ends whoever waits for it.
  ModalShow(WindowThread& thread, std::shared_ptr<FormSite> site, std::function<void()> hide);
  ~ModalShow();
  ModalShow(const ModalShow&) = delete;
  ModalShow& operator=(const ModalShow&) = delete;

  /// The window that this one belongs to; null for none.
  [[nodiscard]] HWND Owner() const { return owner_; }
  /// Whether the window was hidden with its owner, and not by its answer.
  [[nodiscard]] bool IsInterrupted() const { return is_interrupted_; }
  /// Has the thread's other windows, those on show now, take no input any more.
  void DisableOthers();
  /// Gives the other windows their input back. To be called before the window is hidden, so that the
  /// activation goes to its owner; does nothing the second time.
  void EnableOthers();

  /// Hides the modal windows on show that belong to `owner`, directly or through another one.
  static void InterruptThoseOf(WindowThread& thread, HWND owner);
  /// Hides all of them.
  static void InterruptAll(WindowThread& thread);

 private:
  static void HideInterrupted(WindowThread& thread);

  std::shared_ptr<WindowThread> thread_;
  std::shared_ptr<FormSite> site_;
  std::function<void()> hide_;
  HWND owner_;
  bool is_interrupted_ = false;
  std::vector<HWND> disabled_;
  EventOf in_front_;
};

}  // namespace ferrowind::win32
