#pragma once

#include "host/desktop/operator_news.h"

namespace ferrowind::host {

/// Shows the cursor of a program that works while an action of the operator runs, and never while the program
/// waits for the operator, as in a message of the action.
class WaitCursor {
 public:
  /// `news` must outlive this object.
  explicit WaitCursor(OperatorNews& news);
  /// Takes the cursor off.
  ~WaitCursor();
  WaitCursor(const WaitCursor&) = delete;
  WaitCursor& operator=(const WaitCursor&) = delete;

 private:
  void Follow(bool is_busy);

  bool is_on_ = false;
  platform::Subscription busy_changed_;
};

}  // namespace ferrowind::host
