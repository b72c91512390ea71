#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "ferrowind/platform/events/subscription.h"
#include "ferrowind/platform/toolkit/toolkit.h"

namespace ferrowind {

/// The dialog "Except with message": the operator types the text that goes with excepting a day.
///
/// A fresh one for each use. Unlike the confirmation dialog it unloads itself; its values stay readable
/// afterwards.
class fmExceptMess {
 public:
  explicit fmExceptMess(platform::Toolkit& toolkit);
  fmExceptMess(const fmExceptMess&) = delete;
  fmExceptMess& operator=(const fmExceptMess&) = delete;

  /// Returns once a button was pressed.
  void ShowModal();
  /// The text typed, without outer blanks, as taken when "Except" was pressed; empty until then. Any text
  /// goes, the empty one too.
  [[nodiscard]] const std::string& Message() const { return message_; }
  /// 0 for "Except", 1 for "Cancel"; 0 while nothing was pressed.
  [[nodiscard]] std::int32_t Result() const { return result_; }

 private:
  void Except();
  void Cancel();

  platform::Toolkit& toolkit_;
  std::shared_ptr<platform::Form> form_;
  std::string message_;
  std::int32_t result_ = 0;
  platform::Subscription except_clicked_;
  platform::Subscription cancel_clicked_;
};

}  // namespace ferrowind
