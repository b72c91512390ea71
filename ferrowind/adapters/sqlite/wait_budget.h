#pragma once

#include <chrono>

#include "ferrowind/export.h"

namespace ferrowind::sqlite {

/// The time that all calls of one undertaking together may wait for other programs to release the database.
/// Once it is spent, a call that meets a locked database fails at once. Used by one thread.
class FERROWIND_EXPORT WaitBudget {
 public:
  /// Holds `most` at first.
  explicit WaitBudget(std::chrono::milliseconds most) : most_(most), left_(most) {}

  /// Another undertaking begins.
  void Renew() { left_ = most_; }
  /// What may still be waited until the next `Renew`; never negative.
  [[nodiscard]] std::chrono::milliseconds Left() const;
  /// Sleeps a moment, the longer the more `attempts` there were before, and takes it off. False, at once,
  /// when nothing is left.
  bool WaitAMoment(int attempts);

 private:
  std::chrono::nanoseconds most_;
  std::chrono::nanoseconds left_;
};

}  // namespace ferrowind::sqlite
