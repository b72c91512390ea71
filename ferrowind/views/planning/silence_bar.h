#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

#include "ferrowind/platform/database/silence_watch.h"
#include "ferrowind/platform/platform.h"
#include "ferrowind/platform/toolkit/button.h"
#include "ferrowind/platform/toolkit/label.h"

namespace ferrowind {

/// A bar that is there while the server of the database does not answer. It says so once, counts the seconds
/// down to the next try, and tries at once when the operator wants that; it goes as soon as the server
/// answers. Calls fail at once meanwhile, so the window stands still for nobody.
class SilenceBar {
 public:
  /// The controls of the bar, in tab order; at most one bar stands on a form.
  [[nodiscard]] static std::vector<platform::ControlDesign> Controls();
  /// Puts them behind those that `design` has, whose access keys stay what they are.
  static void AddTo(platform::FormDesign& design);

  /// `form` has the controls; both must outlive the bar.
  SilenceBar(const platform::Platform& platform, platform::Form& form);
  SilenceBar(const SilenceBar&) = delete;
  SilenceBar& operator=(const SilenceBar&) = delete;

  /// Looks after the database of the dictionary from now on, where the host lets windows watch it; a failure
  /// is traced. `answered` is called each time that the server answers again, and may drop the bar.
  void Start(std::function<void()> answered = {});
  /// Looks no more.
  void Stop();

 private:
  void Look();
  void LookLater(std::chrono::milliseconds pause);
  void Tell(std::chrono::milliseconds until_next_try);
  void TryNow();

  const platform::Platform& platform_;
  platform::Control& panel_;
  platform::Label& text_;
  platform::Label& countdown_;
  /// Null for a database that is never silent.
  std::unique_ptr<platform::SilenceWatch> watch_;
  std::function<void()> answered_;
  /// On show; 0 while the server answers.
  std::int64_t seconds_ = 0;
  /// The operator waits to hear what a try came to.
  bool has_asked_ = false;
  platform::Subscription next_look_;
  platform::Subscription clicked_;
};

}  // namespace ferrowind
