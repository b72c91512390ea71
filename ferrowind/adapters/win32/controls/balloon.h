#pragma once

#include <memory>
#include <string>

#include "ferrowind/adapters/win32/base/native_window.h"

namespace ferrowind::win32 {

/// Says something of what stands in a control, below it, until it is hidden; it takes neither focus nor keys.
/// (Text boxes of the platform have balloons of their own, but not all of its releases show them.)
class Balloon {
 public:
  /// `about` outlives the balloon.
  explicit Balloon(const NativeWindow& about);
  ~Balloon();
  Balloon(const Balloon&) = delete;
  Balloon& operator=(const Balloon&) = delete;

  /// In place of what it said.
  void Show(const std::wstring& text);
  void Hide();
  [[nodiscard]] bool IsShown() const { return tip_ != nullptr; }

 private:
  class Tip;

  const NativeWindow& about_;
  /// Null until it is shown first.
  std::unique_ptr<Tip> tip_;
};

}  // namespace ferrowind::win32
