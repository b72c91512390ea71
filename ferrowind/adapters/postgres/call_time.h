#pragma once

#include <algorithm>
#include <chrono>

namespace ferrowind::postgres {

/// How long a call may still wait for its server. Only what its steps last counts, not what its caller does
/// in between. Used by one thread.
class CallTime {
 public:
  using Clock = std::chrono::steady_clock;

  explicit CallTime(std::chrono::milliseconds whole) : whole_(whole), left_(whole) {}

  /// The next call begins.
  void Renew() { left_ = whole_; }
  [[nodiscard]] std::chrono::milliseconds Whole() const { return whole_; }
  [[nodiscard]] std::chrono::milliseconds Left() const {
    return std::chrono::duration_cast<std::chrono::milliseconds>(left_);
  }

  /// While it lives, a step of the call is under way; `time` must outlive it.
  class Step {
   public:
    explicit Step(CallTime& time) : time_(time), began_(Clock::now()) {}
    Step(const Step&) = delete;
    Step& operator=(const Step&) = delete;
    ~Step() { time_.left_ = std::max(Clock::duration::zero(), time_.left_ - (Clock::now() - began_)); }

   private:
    CallTime& time_;
    Clock::time_point began_;
  };

 private:
  std::chrono::milliseconds whole_;
  Clock::duration left_;
};

}  // namespace ferrowind::postgres
