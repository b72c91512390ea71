#pragma once

#include <utility>

namespace ferrowind::win32 {

/// A flag that is true for as long as this lives, and then what it was.
class WhileTrue {
 public:
  explicit WhileTrue(bool& flag) : flag_(flag), before_(std::exchange(flag, true)) {}
  ~WhileTrue() { flag_ = before_; }
  WhileTrue(const WhileTrue&) = delete;
  WhileTrue& operator=(const WhileTrue&) = delete;

 private:
  bool& flag_;
  bool before_;
};

}  // namespace ferrowind::win32
