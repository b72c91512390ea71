#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "ferrowind/adapters/win32/base/form_site.h"
#include "ferrowind/adapters/win32/base/native_window.h"
#include "ferrowind/adapters/win32/base/theme.h"
#include "ferrowind/adapters/win32/base/wording.h"
#include "ferrowind/platform/events/subscription.h"

namespace ferrowind::win32 {

class ModalShow;

/// What all forms of a thread share: its timers, the events that are being handled, the modal forms on show,
/// and the dropped forms that are still at work. It needs nothing of the host but that its message loop
/// dispatches messages.
class WindowThread : public std::enable_shared_from_this<WindowThread> {
 public:
  /// The one of the calling thread, which is made when nobody has it; never null.
  [[nodiscard]] static std::shared_ptr<WindowThread> OfThisThread();
  /// How many threads have one: while there are any, the platform may call what is in this file.
  [[nodiscard]] static int Count();
  ~WindowThread();
  WindowThread(const WindowThread&) = delete;
  WindowThread& operator=(const WindowThread&) = delete;

  [[nodiscard]] const Wording& Words() const { return words_; }
  /// From now on its forms have those; until then they are English.
  void UseWords(const Wording& words) { words_ = words; }
  [[nodiscard]] const Theme& Colors() const { return colors_; }
  /// Looks at the user's colours anew, which have changed.
  void TakeColors() { colors_ = Theme::OfUser(); }

  /// As `platform::Toolkit::After`.
  [[nodiscard]] platform::Subscription After(std::int32_t milliseconds, std::function<void()> handler);

  /// Deletes what is left of a dropped form as soon as nothing of it is being handled any more.
  void Retire(std::shared_ptr<FormSite> site, std::shared_ptr<void> remains);

  /// The form whose event is being handled, the innermost of those on show but `modal` itself, else the
  /// active window; null for none.
  [[nodiscard]] HWND OwnerOf(const FormSite& modal) const;

  ///@{
  /// The innermost is the last.
  [[nodiscard]] std::vector<std::shared_ptr<FormSite>>& Events() { return events_; }
  [[nodiscard]] std::vector<ModalShow*>& ModalShows() { return modal_shows_; }
  ///@}

 private:
  class Receiver;

  WindowThread();
  void Fire(UINT_PTR timer);
  void DeleteRetired();

  Wording words_ = Wording(nullptr);
  Theme colors_ = Theme::OfUser();
  std::unique_ptr<Receiver> receiver_;
  std::map<UINT_PTR, std::function<void()>> timers_;
  UINT_PTR last_timer_ = 0;
  std::vector<std::pair<std::shared_ptr<FormSite>, std::shared_ptr<void>>> retired_;
  std::vector<std::shared_ptr<FormSite>> events_;
  std::vector<ModalShow*> modal_shows_;
};

/// Marks, for as long as it lives, that an event of a form is being handled: what is shown modally meanwhile
/// belongs to that form.
class EventOf {
 public:
  EventOf(WindowThread& thread, const std::shared_ptr<FormSite>& site);
  ~EventOf();
  EventOf(const EventOf&) = delete;
  EventOf& operator=(const EventOf&) = delete;

 private:
  std::shared_ptr<WindowThread> thread_;
  AtWork at_work_;
};

}  // namespace ferrowind::win32
