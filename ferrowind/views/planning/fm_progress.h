#pragma once

#include <cstddef>
#include <exception>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "ferrowind/platform/platform.h"
#include "ferrowind/platform/toolkit/label.h"

namespace ferrowind {

/// The dialog that does a long work step by step, says what it is at, and lets the operator stop it between
/// two steps. A fresh one for each use.
class fmProgress {
 public:
  struct Work {
    /// What the next step is about, for the operator; nothing when all is done.
    std::function<std::optional<std::string>()> next;
    std::function<void()> step;
  };

  /// `platform` must outlive the dialog.
  fmProgress(const platform::Platform& platform, const std::string& caption, Work work);
  fmProgress(const fmProgress&) = delete;
  fmProgress& operator=(const fmProgress&) = delete;

  /// Returns when all is done or the operator has stopped it. A step that throws is the last one, and what it
  /// threw reaches the caller.
  void ShowModal();

 private:
  void GoOn();
  void Step();
  void Close();

  const platform::Platform& platform_;
  Work work_;
  std::shared_ptr<platform::Form> form_;
  platform::Label& step_;
  platform::Subscription stop_;
  platform::Subscription due_;
  std::exception_ptr failure_;
};

}  // namespace ferrowind
