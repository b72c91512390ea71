#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "ferrowind/platform/events/subscription.h"
#include "ferrowind/platform/toolkit/toolkit.h"

namespace ferrowind {

/// What the buttons of the dialog say, and which of the two, "cmdOk" or "cmdCancel", Esc presses: by itself
/// none.
struct MessageButtons {
  std::string ok = "Ok";
  std::string cancel = "Cancel";
  std::string_view escape_presses = {};
};

/// The confirmation dialog: a line of text over the buttons "Ok" and "Cancel".
///
/// A fresh one for each question. Its buttons only hide it; unloading it is the task of whoever asked.
class fmMessage {
 public:
  explicit fmMessage(platform::Toolkit& toolkit, const MessageButtons& buttons = {});
  fmMessage(const fmMessage&) = delete;
  fmMessage& operator=(const fmMessage&) = delete;

  void SetCaption(const std::string& caption);
  void SetMessage(const std::string& message);
  /// 0 hides "Cancel", 1 shows it, any other value changes nothing.
  void SetState(std::int32_t state);
  /// Puts the focus on "Cancel", so that Enter alone presses that.
  void PreferCancel();
  /// Returns once a button was pressed.
  void ShowModal();
  void Unload();
  /// 0 for "Ok", 1 for "Cancel"; 0 while nothing was pressed.
  [[nodiscard]] std::int32_t Result() const { return result_; }

 private:
  void Answer(std::int32_t result);

  platform::Toolkit& toolkit_;
  std::shared_ptr<platform::Form> form_;
  std::int32_t result_ = 0;
  platform::Subscription ok_clicked_;
  platform::Subscription cancel_clicked_;
};

}  // namespace ferrowind
