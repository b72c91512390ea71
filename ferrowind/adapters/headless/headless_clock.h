#pragma once

#include "ferrowind/platform/services/clock.h"

namespace ferrowind::headless {

/// A clock that stands still until it is set.
class HeadlessClock : public platform::Clock {
 public:
  explicit HeadlessClock(const platform::Date& today) : today_(today) {}
  [[nodiscard]] platform::Date Today() const override { return today_; }
  void SetToday(const platform::Date& today) { today_ = today; }

 private:
  platform::Date today_;
};

}  // namespace ferrowind::headless
